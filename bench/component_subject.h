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

// Seconds of one import, without making and releasing the reader. Throws ComponentError.
inline double TimeImport(ITAMURStructureReader& reader, const std::filesystem::path& path)
{
    const std::string& native = path.native();
    const String name(std::basic_string<OLECHAR>(native.begin(), native.end()).c_str());
    return Timed([&] { Check(reader.Import(name.Get()), "Import"); });
}

inline double TimeImport(const std::filesystem::path& path)
{
    return TimeImport(*TheComponent().CreateReader(), path);
}

// A new reader that has imported the file.
[[nodiscard]] inline ComPtr<ITAMURStructureReader> Imported(const std::filesystem::path& path)
{
    const auto reader = TheComponent().CreateReader();
    TimeImport(*reader, path);
    return reader;
}

}  // namespace tamur::bench
