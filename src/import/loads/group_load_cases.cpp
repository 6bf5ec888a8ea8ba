#include "import/loads/group_load_cases.h"

#include <algorithm>

#include "prompts/prompts.h"

namespace tamur {
namespace {

struct Kind {
    std::uint8_t caseType;
    GroupLoadTable Model::*loads;
    unsigned refused;
    Finding finding;
};

constexpr Kind kSelfWeight = {case_type::kSelfWeight, &Model::selfWeightLoads,
                              prompt::kSelfWeightRefused, Finding::kSelfWeightRefused};
constexpr Kind kThermal = {case_type::kThermal, &Model::thermalLoads, prompt::kThermalRefused,
                           Finding::kThermalRefused};

bool AreAlike(const GroupLoad& a, const GroupLoad& b)
{
    return std::equal(std::begin(a.values), std::end(a.values), std::begin(b.values));
}

// Whether the case takes the newest load. Its first load makes a static case one of that kind.
bool Accepts(Model& model, const Kind& kind, std::int32_t caseNumber)
{
    LoadCase* const carrier = model.cases.FindCarrier(caseNumber, kind.caseType);
    if (carrier == nullptr) return false;
    if (carrier->type == case_type::kStatic) {
        carrier->type = kind.caseType;
        return true;
    }
    GroupLoadTable& loads = model.*kind.loads;
    return AreAlike(loads.Newest(), loads.FirstOfNewest());
}

void AddMessage(Model& model, const Kind& kind, std::int32_t caseNumber)
{
    model.messages.Append({kind.refused, caseNumber});
}

void Check(Model& model, const ModelFile& file, std::int32_t caseNumber, const Kind& kind,
           const Kind& other)
{
    if (Accepts(model, kind, caseNumber)) return;
    file.Report(kind.finding);
    model.cases.DisableCas(caseNumber);
    (model.*kind.loads).RemoveCase(caseNumber);
    AddMessage(model, kind, caseNumber);
    // Of the other kind only the first load goes; later ones stay with their disabled case.
    if ((model.*other.loads).RemoveFirstOfCase(caseNumber)) AddMessage(model, other, caseNumber);
}

}  // namespace

void CheckSelfWeightCas(Model& model, const ModelFile& file, std::int32_t caseNumber)
{
    Check(model, file, caseNumber, kSelfWeight, kThermal);
}

void CheckThermalCas(Model& model, const ModelFile& file, std::int32_t caseNumber)
{
    Check(model, file, caseNumber, kThermal, kSelfWeight);
}

}  // namespace tamur
