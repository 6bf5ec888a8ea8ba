// What people say for the settings of a model that are numbers in it.
#pragma once

#include <string_view>

#include "host/language.h"

namespace tamur::tool {

// "plane frame"; what is neither plane nor grid is "space frame".
[[nodiscard]] std::string_view WorkSpaceWords(long long workSpace, host::Language language);
[[nodiscard]] std::string_view YesOrNo(bool isYes, host::Language language);

}  // namespace tamur::tool
