// `tamur info`: what a model holds, on one screen.
#pragma once

#include <ostream>
#include <string>

#include "input.h"

namespace tamur::tool {

// Of the model as the component at that path has it, or the one that is built in.
void WriteInfo(const std::string& componentPath, const Input& input, std::ostream& out);

}  // namespace tamur::tool
