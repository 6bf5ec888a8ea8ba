// What an import drops or replaces without a word.
#pragma once

#include <ostream>
#include <string>

namespace tamur::tool {

// Imports the file once more, inside the tool, and writes a line for each finding: the number of
// the file's line and what became of it. Returns how many there were.
std::size_t WriteCheck(const std::string& file, std::ostream& out);

}  // namespace tamur::tool
