#include "import/loads/case_parameters.h"
#include "import/file/read_list.h"

namespace tamur {
namespace {

// Fields that the line does not reach keep their values.
void ReadFields(StreamScanner& tokens, Modes& modes)
{
    constexpr std::int32_t kDampingsComputed = 1;
    constexpr std::int32_t kFirstMethod = 41;
    tokens >> modes.dampings.count >> modes.percent >> modes.massChoice;
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

void ReadModes(StreamScanner& tokens, Model& model, const ModelFile& file)
{
    // The model's record changes when all is read, so that its count never lacks its array.
    Modes modes = model.modes;
    ReadFields(tokens, modes);
    std::int32_t count = ListCount(modes.dampings.count, file);
    const bool hasList = count > 0;
    // An array that is already there is given up, and the number of modes with it.
    if (modes.hasDampings) count = 0;
    modes.dampings = ReadList<double>(tokens, count, model.arena);
    modes.hasDampings = modes.hasDampings || hasList;
    if (hasList && tokens.Failed()) file.Report(Finding::kUnreadableColumn);
    model.modes = modes;
}

}  // namespace tamur
