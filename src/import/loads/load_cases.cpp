#include "import/loads/load_cases.h"

#include "import/loads/case_parameters.h"
#include "import/scan/format_scanner.h"
#include "import/scan/stream_scanner.h"

namespace tamur {
namespace {

bool HasParameters(std::uint8_t type)
{
    return type == case_type::kCombination || type == case_type::kModal ||
           type == case_type::kSeismic || type == case_type::kEnvelope;
}

// True when one of the cases has parameters.
bool ReadCases(Model& model, ModelFile& file)
{
    bool needsParameters = false;
    for (Line line; file.ReadDataLine(line);) {
        LoadCase loadCase;
        std::string_view title, code;
        std::int32_t type = 0;
        FormatScanner columns(line.text);
        columns >> loadCase.number >> title >> type >> code;
        loadCase.type = static_cast<std::uint8_t>(type);
        if (loadCase.type != case_type::kStatic && !HasParameters(loadCase.type)) {
            file.Report(Finding::kCaseTypeUnknown);
            continue;
        }
        loadCase.title = MakeText(model.arena, title);
        loadCase.code = MakeText(model.arena, code);
        model.cases.Append(loadCase);
        needsParameters = needsParameters || HasParameters(loadCase.type);
    }
    return needsParameters;
}

void ReadParameters(Model& model, ModelFile& file)
{
    // Whatever ends the reading, the combinations must be whole for the hosts.
    struct Settler {
        Model& model;
        ~Settler() { model.combinations.Settle(); }
    } settler{model};
    for (Line line; file.ReadDataLine(line);) {
        StreamScanner tokens(line.text, line.end);
        std::int32_t caseNumber = 0;
        std::int32_t kind = 0;
        tokens >> caseNumber >> kind;
        switch (kind) {
            case case_type::kCombination: ReadCombination(tokens, caseNumber, model, file); break;
            case case_type::kModal: ReadModes(tokens, model, file); break;
            case case_type::kSeismic: ReadSeismicCase(tokens, caseNumber, model, file); break;
            case case_type::kEnvelope: ReadEnvelope(tokens, caseNumber, model, file); break;
            default: file.Report(Finding::kParameterKindUnknown); break;
        }
    }
}

}  // namespace

bool ReadLoadCaseTables(Model& model, ModelFile& file)
{
    model.cases.Clear();
    model.skippedCombinations = 0;
    if (!file.FindSectionHeader(SectionHeader::kCases)) return true;
    const bool needsParameters = ReadCases(model, file);
    model.cases.Finish();
    if (needsParameters && file.FindSectionHeader(SectionHeader::kCaseParameters)) {
        ReadParameters(model, file);
    }
    return true;
}

}  // namespace tamur
