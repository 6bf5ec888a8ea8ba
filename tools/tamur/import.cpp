#include "import.h"

#include <tamur/utf8.h>

#include "host/file/imported_file.h"
#include "message_boxes.h"

namespace tamur::tool {
namespace {

using host::Language;

// Before a file is looked at: without the component nothing can be done.
std::unique_ptr<Component> LoadIfGiven(const std::string& path)
{
    if (path.empty()) return nullptr;
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

Imported Serve(std::unique_ptr<Component> component, const Input& input, host::ImportedFile file)
{
    if (file.refusal) throw ImportRefused(input, *file.refusal);
    if (file.readError) {
        throw std::runtime_error(input.Name() + ": " + TextOf(*file.readError, Language::kEnglish));
    }
    Imported imported;
    imported.reader = component ? ImportThrough(*component, input) : std::move(file.reader);
    imported.component = std::move(component);
    imported.version = std::move(file.version);
    imported.servicePack = file.servicePack;
    imported.lines = std::move(file.lines);
    return imported;
}

}  // namespace

ImportRefused::ImportRefused(const Input& input, const host::Finding& why)
    : std::runtime_error(input.Name() + ": " + TextOf(why, Language::kEnglish))
{
}

Imported Import(const std::string& componentPath, const Input& input, host::Findings& findings)
{
    auto component = LoadIfGiven(componentPath);
    return Serve(std::move(component), input, host::ImportFile(input.Path(), findings));
}

Imported Import(const std::string& componentPath, const Input& input)
{
    auto component = LoadIfGiven(componentPath);
    return Serve(std::move(component), input, host::ImportFile(input.Path()));
}

}  // namespace tamur::tool
