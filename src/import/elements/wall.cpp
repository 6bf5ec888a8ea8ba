#include "import/elements/wall.h"

#include "import/file/read_list.h"
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

void ReadColumns(StreamScanner& tokens, Model& model, const ModelFile&, Wall& wall,
                 WallColumns& columns)
{
    tokens >> columns.spanDirection;
    ReadSwitch(tokens, columns.snow);
    ReadSwitch(tokens, columns.accumulation);
    tokens >> columns.accumulationMode >> columns.lengthCoefficient >> columns.normalA >>
        columns.normalB >> columns.extremeA >> columns.extremeB;
    ReadSwitch(tokens, columns.wind);
    std::int32_t windType = 0;
    tokens >> windType >> columns.permeability;
    columns.windType = WindTypeOf(windType, model);
    for (WindZone& zone : columns.zones) {
        tokens >> zone.status >> zone.external >> zone.overpressure >> zone.depression;
    }
    columns.spanCoefficients = ReadList<double>(tokens, wall.outline.count, model.arena);
}

}  // namespace tamur
