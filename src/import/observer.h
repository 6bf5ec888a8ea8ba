// Who follows an import: every line of the file, and what is dropped or replaced. The component
// has no observer.
#pragma once

#include <cstdint>
#include <string_view>

#include "import/file/section_header.h"

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

enum class Refusal {
    kCannotOpen,  // or it is no regular file
    kVersion,     // none, or below the first that can be read
    kSettings,    // one of the sections that must be there is missing
};

// First comes the text of the whole file, then the sections as they are read, each with its lines.
class ImportObserver {
 public:
    virtual ~ImportObserver() = default;

    // The bytes of the file up to Ctrl-Z, in its order and in pieces. Each begins where a line
    // begins for the import: after a line end, or where a line is cut that is too long.
    virtual void OnText(std::string_view lines) = 0;

    // The section with that header is read next; `offset` is where the header is in the file.
    virtual void OnSection(SectionHeader header, std::uint64_t offset) = 0;

    // A line of the section is read next, without its line end: data, or one that is empty and
    // passed over. With `isCut` the rest of it is the next line. The text ends at its first NUL;
    // there is one after it, and kScanPadding bytes can be read from there.
    virtual void OnLine(std::string_view text, bool isCut) = 0;

    // About the line read last.
    virtual void OnFinding(Finding finding) = 0;

    // Nothing was imported. Takes the place of the message box.
    virtual void OnRefusal(Refusal why) = 0;
};

}  // namespace tamur
