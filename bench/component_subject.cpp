#include "component_subject.h"

#include <string>

#include "runner.h"

namespace tamur::bench {
namespace {

std::basic_string<OLECHAR> Wide(const std::filesystem::path& path)
{
    return std::basic_string<OLECHAR>(path.native().begin(), path.native().end());
}

void Import(ITAMURStructureReader& reader, const String& path)
{
    Check(reader.Import(path.Get()), "Import");
}

}  // namespace

Component& TheComponent()
{
    static Component component(TAMUR_COMPONENT_PATH);
    return component;
}

ComPtr<ITAMURStructureReader> Imported(const std::filesystem::path& path)
{
    const auto reader = TheComponent().CreateReader();
    Import(*reader, String(Wide(path).c_str()));
    return reader;
}

double TimeImport(const std::filesystem::path& path)
{
    const auto reader = TheComponent().CreateReader();
    const String name(Wide(path).c_str());
    return Timed([&] { Import(*reader, name); });
}

}  // namespace tamur::bench
