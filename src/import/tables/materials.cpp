#include "import/tables/materials.h"

#include "import/scan/format_scanner.h"

namespace tamur {

bool ReadMaterials(Model& model, ModelFile& file)
{
    BarTables& tables = *model.barTables;
    model.hasDefaultMaterial = false;
    if (file.FindSectionHeader(SectionHeader::kMaterials, SectionHeader::kMaterialsAccented)) {
        for (Line line; file.ReadDataLine(line);) {
            std::string_view name;
            Material material;
            FormatScanner columns(line.text);
            MaterialConstants constants;
            columns >> name >> constants.modulus;
            const bool areThere = !columns.Failed();
            columns >> constants.poisson >> constants.density >> constants.expansion >>
                constants.damping;
            if (columns.Failed()) file.Report(Finding::kUnreadableColumn);
            if (areThere) material.constants = tables.arena.Copy(constants);
            material.name = MakeText(tables.arena, name);
            tables.materials.Append(material);
        }
    }
    if (tables.materials.Size() == 0) AddDefaultMaterial(model);
    return true;
}

void AddDefaultMaterial(Model& model)
{
    BarTables& tables = *model.barTables;
    static constexpr MaterialConstants kConcrete = {.modulus = 1.962e10,
                                                    .poisson = 0.1,
                                                    .density = 24525.0,
                                                    .expansion = 1e-5,
                                                    .damping = 0.04};
    tables.materials.Append({.name = MakeText(tables.arena, "BETON"), .constants = &kConcrete});
    model.hasDefaultMaterial = true;
}

}  // namespace tamur
