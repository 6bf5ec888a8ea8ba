#include "check.h"

#include <algorithm>
#include <map>
#include <vector>

#include "import.h"
#include "import/driver.h"
#include <tamur/utf8.h>

namespace tamur::tool {
namespace {

struct Noted {
    std::uint64_t line;
    Finding finding;
};

class Notes final : public ImportObserver {
 public:
    void OnText(std::string_view lines) override
    {
        for (std::size_t at = 0; at < lines.size(); at = lines.find('\n', at) + 1) {
            if (at == 0 && size_ != 0 && isCut_) --count_;
            ++count_;
            if (lines[at] == '#') headers_[size_ + at] = count_;
            if (lines.find('\n', at) == lines.npos) break;
        }
        isCut_ = !lines.ends_with('\n');
        size_ += lines.size();
    }
    void OnSection(SectionHeader, std::uint64_t offset) override { line_ = headers_[offset]; }
    void OnLine(std::string_view, bool isCut) override
    {
        if (!isRest_) ++line_;
        isRest_ = isCut;
    }
    void OnFinding(Finding finding) override { noted_.push_back({line_, finding}); }
    void OnRefusal(Refusal) override {}

    // In the order of the file; the sections are not read in that order.
    [[nodiscard]] std::vector<Noted> InFileOrder() const
    {
        std::vector<Noted> sorted = noted_;
        std::stable_sort(sorted.begin(), sorted.end(),
                         [](const Noted& a, const Noted& b) { return a.line < b.line; });
        return sorted;
    }

 private:
    std::vector<Noted> noted_;
    std::map<std::uint64_t, std::uint64_t> headers_;  // from their places to their lines
    std::uint64_t size_ = 0;                          // of the text
    std::uint64_t count_ = 0;                         // of its lines
    bool isCut_ = false;
    std::uint64_t line_ = 0;
    bool isRest_ = false;
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
    for (const Noted& noted : findings) {
        out << "line " << noted.line << ": " << TextOf(noted.finding) << '\n';
    }
    return findings.size();
}

}  // namespace tamur::tool
