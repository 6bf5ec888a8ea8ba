#include "check.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <vector>

#include "import.h"
#include "import/driver.h"
#include <tamur/utf8.h>

namespace tamur::tool {
namespace {

struct Noted {
    std::uint64_t lineOffset;
    Finding finding;
};

class Notes final : public ImportObserver {
 public:
    void OnFinding(Finding finding, std::uint64_t lineOffset) override
    {
        noted_.push_back({lineOffset, finding});
    }

    // In the order of the file; the sections are not read in that order.
    [[nodiscard]] std::vector<Noted> InFileOrder() const
    {
        std::vector<Noted> sorted = noted_;
        std::stable_sort(sorted.begin(), sorted.end(), [](const Noted& a, const Noted& b) {
            return a.lineOffset < b.lineOffset;
        });
        return sorted;
    }

 private:
    std::vector<Noted> noted_;
};

const char* TextOf(Finding finding)
{
    switch (finding) {
        case Finding::kUnknownKind: return "no such kind of element: dropped";
        case Finding::kCountBeyondLine: return "announces more than the line can hold: dropped";
        case Finding::kTooFewPoints: return "too few points for its kind: dropped";
        case Finding::kZeroLengthBar: return "bar without length: dropped";
        case Finding::kUnreadableColumn:
            return "a column cannot be read: it and all after it are 0";
        case Finding::kMaterialReplaced: return "no such material: the first stands in";
        case Finding::kSectionReplaced: return "no such section: the first stands in";
        case Finding::kReleaseReplaced: return "no such release: the first stands in";
        case Finding::kSelfWeightRefused: return "self-weight refused: its load case is disabled";
        case Finding::kThermalRefused: return "thermal load refused: its load case is disabled";
        case Finding::kCaseTypeUnknown: return "no such type of load case: dropped";
        case Finding::kParameterKindUnknown: return "no such kind of case parameters: dropped";
        case Finding::kCombinationOfNoCase: return "combination without a load case: dropped";
        case Finding::kCombinationSkipped:
            return "a combined case is missing: dropped and disabled";
        case Finding::kCombinationUnended: return "combination without its end marker: kept";
        case Finding::kListCountIgnored:
            return "a count that is negative or beyond any line: no values read";
    }
    return "";
}

// Counts the lines of a file up to ascending offsets.
class LineCounter {
 public:
    explicit LineCounter(const std::string& file)
        : stream_(std::filesystem::path(std::u8string(file.begin(), file.end())), std::ios::binary)
    {
    }

    std::uint64_t LineAt(std::uint64_t offset)
    {
        for (; offset_ < offset; ++offset_) {
            if (stream_.get() == '\n') ++line_;
        }
        return line_;
    }

 private:
    std::ifstream stream_;
    std::uint64_t offset_ = 0;
    std::uint64_t line_ = 1;
};

}  // namespace

std::size_t WriteCheck(const std::string& file, std::ostream& out)
{
    Notes notes;
    Model model;
    OpenFiles leftOpen;
    const std::string path = platform::NarrowPath(FromUtf8(file).c_str());
    if (!ImportModelFile(model, path, leftOpen, &notes)) {
        throw ImportRefused("changed while it was read");
    }
    const std::vector<Noted> findings = notes.InFileOrder();
    LineCounter lines(file);
    for (const Noted& noted : findings) {
        out << "line " << lines.LineAt(noted.lineOffset) << ": " << TextOf(noted.finding) << '\n';
    }
    return findings.size();
}

}  // namespace tamur::tool
