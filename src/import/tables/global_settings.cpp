#include "import/tables/global_settings.h"

#include <cstring>

#include "import/scan/format_scanner.h"

namespace tamur {
namespace {

// The line after the header as one value of that type; false when there is no such header.
template <class T>
bool ReadValue(ModelFile& file, SectionHeader header, T& value)
{
    if (!file.FindSectionHeader(header)) return false;
    Line line;
    file.ReadSettingLine(line);
    FormatScanner(line.text) >> value;
    return true;
}

WorkSpace WorkSpaceOf(std::int32_t code)
{
    switch (code) {
        case 0: return WorkSpace::kPlane;
        case 1: return WorkSpace::kGrid;
        default: return WorkSpace::kSpace;
    }
}

}  // namespace

bool ReadVersion(Model& model, ModelFile& file)
{
    constexpr std::size_t kLongestVersion = 255;
    model.version.clear();
    Line line;
    if (file.FindSectionHeader(SectionHeader::kVersion) && file.ReadSettingLine(line)) {
        model.version.assign(line.text, strnlen(line.text, kLongestVersion));
    }
    model.servicePack = -1;
    if (file.FindSectionHeader(SectionHeader::kServicePack) && file.ReadSettingLine(line) &&
        !line.IsEmpty()) {
        model.servicePack = 0;
        FormatScanner(line.text) >> model.servicePack;
    }
    return true;
}

bool ReadGlobalSettings(Model& model, ModelFile& file)
{
    std::int32_t workSpace = 0;
    double tolerance = 0;
    std::int32_t rigidity = 0;
    if (!ReadValue(file, SectionHeader::kWorkSpace, workSpace)) return false;
    if (!ReadValue(file, SectionHeader::kTolerance, tolerance)) return false;
    if (!ReadValue(file, SectionHeader::kRigidity, rigidity)) return false;
    model.settings.tolerance = tolerance;
    model.settings.workSpace = WorkSpaceOf(workSpace);
    model.settings.isRigid = rigidity != 0;
    return true;
}

}  // namespace tamur
