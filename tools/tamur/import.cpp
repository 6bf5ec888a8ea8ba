#include "import.h"

#include <tamur/utf8.h>

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

ComPtr<ITAMURStructureReader> ImportThrough(const Component& component, const Input& input,
                                            Language language)
{
    ComPtr<ITAMURStructureReader> reader = component.CreateReader();
    const String name(FromUtf8(input.Path()).c_str());
    const SilencedMessageBoxes boxes(component);
    if (FAILED(reader->Import(name.Get()))) {
        constexpr host::Name kRefuses = {{"the component refuses it", "le composant le refuse"}};
        throw ImportRefused(input, std::string(kRefuses.In(language)));
    }
    return reader;
}

Imported Serve(std::unique_ptr<Component> component, const Input& input, Language language,
               host::ImportedFile file)
{
    RequireModel(file, input, language);
    Imported imported;
    imported.reader =
        component ? ImportThrough(*component, input, language) : std::move(file.reader);
    imported.component = std::move(component);
    imported.version = std::move(file.version);
    imported.servicePack = file.servicePack;
    imported.lines = std::move(file.lines);
    return imported;
}

}  // namespace

NoModel::NoModel(const Input& input, const std::string& why)
    : std::runtime_error(input.Name() + ": " + why), why_(why)
{
}

NoModel::NoModel(const Input& input, const host::Finding& why, Language language)
    : NoModel(input, TextOf(why, language))
{
    code_ = IdOf(why.code);
}

void RequireModel(const host::ImportedFile& file, const Input& input, Language language)
{
    if (file.refusal) throw ImportRefused(input, *file.refusal, language);
    if (file.readError) throw NotReadToItsEnd(input, *file.readError, language);
}

Imported Import(const std::string& componentPath, const Input& input, Language language,
                host::Findings& findings)
{
    auto component = LoadIfGiven(componentPath);
    return Serve(std::move(component), input, language, host::ImportFile(input.Path(), findings));
}

Imported Import(const std::string& componentPath, const Input& input, Language language)
{
    auto component = LoadIfGiven(componentPath);
    return Serve(std::move(component), input, language, host::ImportFile(input.Path()));
}

}  // namespace tamur::tool
