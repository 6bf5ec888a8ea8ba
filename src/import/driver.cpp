#include "import/driver.h"

#include "import/elements/element_line.h"
#include "import/tables/global_settings.h"
#include "import/tables/groups.h"
#include "import/loads/load_cases.h"
#include "import/tables/materials.h"
#include "import/file/model_file.h"
#include "import/tables/releases.h"
#include "import/tables/section_geometries.h"
#include "import/tables/version.h"
#include "prompts/prompts.h"

namespace tamur {
namespace {

void ShowCannotOpen(const std::string& path)
{
    const WideString text = FormatPrompt(prompt::kCannotOpen, platform::WidenPath(path));
    WideString caption;
    KdPrompts::GetPrompt(caption, prompt::kCaption, kPromptSection, 0);
    platform::ShowMessageBox(text.c_str(), caption.c_str());
}

void Refuse(const std::string& path, Refusal why, ImportObserver* observer)
{
    if (observer != nullptr) return observer->OnRefusal(why);
    ShowCannotOpen(path);
}

void ReadElements(Model& model, ModelFile& file)
{
    // Whatever ends the reading, the loads must be whole for the hosts.
    struct Settler {
        Model& model;
        ~Settler()
        {
            model.selfWeightLoads.Settle();
            model.thermalLoads.Settle();
        }
    } settler{model};
    for (Line line; file.ReadDataLine(line);) ParseElementLine(model, file, line);
}

}  // namespace

// Versions compare as text, so a major number of one digit gets a 0 in front. So does one of
// three digits, which makes 100.1 too old.
bool IsVersionSupported(const std::string& version)
{
    const std::size_t point = version.find('.');
    const bool isPadded = point != version.npos && point != 2;
    return CompareVersion(isPadded ? "0" + version : version, "10.1") >= 0;
}

bool ImportModelFile(Model& model, const std::string& path, OpenFiles& leftOpen,
                     ImportObserver* observer)
{
    std::unique_ptr<platform::BlockSource> source = platform::OpenFile(path);
    if (source == nullptr) {
        Refuse(path, Refusal::kCannotOpen, observer);
        return false;
    }
    ModelFile file(*source, observer);
    ReadVersion(model, file);
    if (!IsVersionSupported(model.version)) {
        source.reset();
        Refuse(path, Refusal::kVersion, observer);
        return false;
    }
    const bool complete = ReadGlobalSettings(model, file) && ReadGroups(model, file) &&
                          ReadMaterials(model, file) && ReadSectionGeometries(model, file) &&
                          ReadReleases(model, file) && ReadLoadCaseTables(model, file);
    if (!complete) {
        if (observer != nullptr) observer->OnRefusal(Refusal::kSettings);
        leftOpen.push_back(std::move(source));
        return false;
    }
    if (file.FindSectionHeader(SectionHeader::kElements, SectionHeader::kElementsAccented)) {
        ReadElements(model, file);
    }
    return true;
}

}  // namespace tamur
