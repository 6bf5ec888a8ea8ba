// What the fuzzers do with their bytes.
#pragma once

#include <tamur/component.h>

#include <string_view>

namespace tamur::fuzz {

// A reader of the component that is linked in.
ComPtr<ITAMURStructureReader> NewReader();

// Imports bytes as a file, and reads everything that came of it.
void ImportBytes(ITAMURStructureReader& reader, std::string_view bytes);

}  // namespace tamur::fuzz
