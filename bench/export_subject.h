// An export of a model that was imported.
#pragma once

#include <filesystem>
#include <string_view>

struct ITAMURStructureReader;

namespace tamur::bench {

// To a file that is removed again.
void Export(ITAMURStructureReader& reader, std::string_view target);

}  // namespace tamur::bench
