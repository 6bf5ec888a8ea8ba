#include "import/elements/wall.h"

#include "import/tables/switch_character.h"
#include "import/tables/version.h"

namespace tamur {
namespace {

// What the wind types of files mean, in those of the current scale. Version 14.1E changed the
// scale with its second service pack.
std::int32_t WindTypeOf(std::int32_t code, const Model& model)
{
    const int order = CompareVersion(model.version, "14.1E");
    const bool isNewScale = order > 0 || (order == 0 && model.servicePack > 1);
    if (!isNewScale) return code < 5 ? code : 1;
    const std::int32_t lowered = code > 2 ? code - 1 : code;
    return lowered > 4 ? 1 : lowered;
}

void ReadSwitch(StreamScanner& tokens, bool& isOn)
{
    char character = '\0';
    tokens >> character;
    isOn = IsOn(character);
}

}  // namespace

void ReadColumns(StreamScanner& tokens, Model& model, const ModelFile&, Wall& wall)
{
    tokens >> wall.spanDirection;
    ReadSwitch(tokens, wall.snow);
    ReadSwitch(tokens, wall.accumulation);
    tokens >> wall.accumulationMode >> wall.lengthCoefficient >> wall.normalA >> wall.normalB >>
        wall.extremeA >> wall.extremeB;
    ReadSwitch(tokens, wall.wind);
    std::int32_t windType = 0;
    tokens >> windType >> wall.permeability;
    wall.windType = WindTypeOf(windType, model);
    for (WindZone& zone : wall.zones) {
        tokens >> zone.status >> zone.external >> zone.overpressure >> zone.depression;
    }
    const std::size_t corners = static_cast<std::size_t>(wall.outline.count);
    double* const coefficients = model.arena.Array<double>(corners);
    for (std::size_t i = 0; i < corners; ++i) tokens >> coefficients[i];
    wall.spanCoefficients = coefficients;
}

}  // namespace tamur
