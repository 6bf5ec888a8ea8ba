// Who wants to know what the import drops or replaces. The component has no observer.
#pragma once

#include <cstdint>

namespace tamur {

enum class Finding {
    kUnknownKind,      // element line of a kind without records: dropped
    kCountBeyondLine,  // more points than the line has characters, or labels than any line: dropped
    kTooFewPoints,     // fewer points announced than the kind needs: dropped
    kZeroLengthBar,    // both ends at one place: dropped
    kUnreadableColumn,      // the line ends, or stops making sense, before its last column
    kMaterialReplaced,      // no such material: the first stands in
    kSectionReplaced,       // no such section: the first stands in
    kReleaseReplaced,       // no such release: the first stands in
    kSelfWeightRefused,     // the case cannot carry this self-weight load: case disabled
    kThermalRefused,        // the case cannot carry this thermal load: case disabled
    kCaseTypeUnknown,       // case line of an unknown type: dropped
    kParameterKindUnknown,  // parameter line of an unknown kind: dropped
    kCombinationOfNoCase,   // parameters of a combination whose case is missing: dropped
    kCombinationSkipped,    // a combined case is missing: combination and case disabled
    kCombinationUnended,    // the list ends without its marker: stored as far as it goes
    kListCountIgnored,      // a count that is negative or beyond any line: no values are read
};

class ImportObserver {
 public:
    virtual ~ImportObserver() = default;

    // `lineOffset` is where the line starts in the file, in bytes.
    virtual void OnFinding(Finding finding, std::uint64_t lineOffset) = 0;
};

}  // namespace tamur
