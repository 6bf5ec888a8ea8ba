#include "import/loads/case_parameters.h"

namespace tamur {
namespace {

// Fields that the line does not reach keep their values.
void ReadFields(StreamScanner& tokens, Modes& modes)
{
    constexpr std::int32_t kDampingsComputed = 1;
    constexpr std::int32_t kFirstMethod = 41;
    tokens >> modes.modeCount >> modes.percent >> modes.massChoice;
    for (int i = 0; i < 8; ++i) tokens >> modes.cases[i] >> modes.factors[i];
    std::int32_t dampings = 0;
    tokens >> dampings;
    if (!tokens.Failed()) modes.computesDampings = dampings == kDampingsComputed;
    std::int32_t method = 0;
    tokens.Skip<std::string_view>() >> method;
    if (!tokens.Failed()) modes.method = method == kFirstMethod ? 0 : 1;
    const bool residualMode = ReadFlag(tokens);
    if (!tokens.Failed()) modes.residualMode = residualMode;
    tokens.Skip<std::string_view>();
}

}  // namespace

void ReadModes(StreamScanner& tokens, const Line& line, Model& model, const ModelFile& file)
{
    Modes& modes = model.modes;
    ReadFields(tokens, modes);
    modes.modeCount = ListCount(modes.modeCount, line, file);
    if (modes.modeCount == 0) return;
    // An array that is already there is given up, and the number of modes with it.
    if (modes.hasDampings) modes.modeCount = 0;
    modes.hasDampings = true;
    const std::size_t count = static_cast<std::size_t>(modes.modeCount);
    double* const dampings = model.arena.Array<double>(count);
    for (std::size_t i = 0; i < count; ++i) tokens >> dampings[i];
    modes.dampings = dampings;
    if (tokens.Failed()) file.Report(Finding::kUnreadableColumn);
}

}  // namespace tamur
