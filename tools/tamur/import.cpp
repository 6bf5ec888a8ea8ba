#include "import.h"

#include <tamur/utf8.h>

#include "host/file/imported_file.h"
#include "message_boxes.h"

namespace tamur::tool {
namespace {

using host::Language;

std::unique_ptr<Component> Load(const std::string& path)
{
    return std::make_unique<Component>(
        std::filesystem::path(std::u8string(path.begin(), path.end())));
}

ComPtr<ITAMURStructureReader> ImportThrough(const Component& component, const Input& input)
{
    ComPtr<ITAMURStructureReader> reader = component.CreateReader();
    const String name(FromUtf8(input.Path()).c_str());
    const SilencedMessageBoxes boxes(component);
    if (FAILED(reader->Import(name.Get()))) {
        throw ImportRefused(input.Name() + ": the component refuses it");
    }
    return reader;
}

}  // namespace

ImportRefused::ImportRefused(const Input& input, const host::Finding& why)
    : std::runtime_error(input.Name() + ": " + TextOf(why, Language::kEnglish))
{
}

Imported Import(const std::string& componentPath, const Input& input, host::Findings& findings)
{
    Imported imported;
    if (!componentPath.empty()) imported.component = Load(componentPath);
    host::ImportedFile file = host::ImportFile(input.Path(), findings);
    if (file.refusal) throw ImportRefused(input, *file.refusal);
    if (file.readError) {
        throw std::runtime_error(input.Name() + ": " + TextOf(*file.readError, Language::kEnglish));
    }
    imported.version = std::move(file.version);
    imported.lines = std::move(file.lines);
    imported.reader =
        imported.component ? ImportThrough(*imported.component, input) : std::move(file.reader);
    return imported;
}

Imported Import(const std::string& componentPath, const Input& input)
{
    host::Findings findings(0);
    return Import(componentPath, input, findings);
}

}  // namespace tamur::tool
