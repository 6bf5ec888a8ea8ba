// `tamur info`: what a model holds, on one screen.
#pragma once

#include <tamur/component.h>

#include <ostream>
#include <string>

namespace tamur::tool {

void WriteInfo(ITAMURStructureReader& reader, const std::string& file, std::ostream& out);

}  // namespace tamur::tool
