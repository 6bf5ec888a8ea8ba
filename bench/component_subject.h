// The component, driven as a host drives it.
#pragma once

#include <tamur/component.h>

#include <filesystem>
#include <string>

#include "runner.h"

namespace tamur::bench {

inline Component& TheComponent()
{
    static Component component(TAMUR_COMPONENT_PATH);
    return component;
}

// Throws ComponentError.
inline void Import(ITAMURStructureReader& reader, const std::filesystem::path& path)
{
    const std::string& native = path.native();
    const String name(std::basic_string<OLECHAR>(native.begin(), native.end()).c_str());
    Check(reader.Import(name.Get()), "Import");
}

// A new reader that has imported the file.
[[nodiscard]] inline ComPtr<ITAMURStructureReader> Imported(const std::filesystem::path& path)
{
    const auto reader = TheComponent().CreateReader();
    Import(*reader, path);
    return reader;
}

// Seconds of one import, without making and releasing the reader.
[[nodiscard]] inline double TimeImport(const std::filesystem::path& path)
{
    const auto reader = TheComponent().CreateReader();
    return Timed([&] { Import(*reader, path); });
}

}  // namespace tamur::bench
