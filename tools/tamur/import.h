// One model file, imported through the component.
#pragma once

#include <tamur/component.h>

#include <filesystem>
#include <stdexcept>
#include <string>

namespace tamur::tool {

// The file could not be imported; what() says why.
class ImportRefused : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

// The component of that file, or the one beside the executable when the path is empty. Throws
// ComponentError.
[[nodiscard]] Component LoadComponent(const std::string& path);

// A reader that holds the model of that file (UTF-8). Throws ImportRefused.
[[nodiscard]] ComPtr<ITAMURStructureReader> Import(const Component& component,
                                                   const std::string& file);

// The line after the file's first "#Version"; empty when there is none. The interface does not
// give it.
[[nodiscard]] std::string VersionOf(const std::string& file);

}  // namespace tamur::tool
