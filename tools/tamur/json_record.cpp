#include "json_record.h"

#include <cmath>

namespace tamur::tool {

Json ToJson(BSTR text)
{
    return text == nullptr ? Json(nullptr) : Json(ToUtf8(ViewOf(text)));
}

Json ToJson(double number)
{
    if (std::isnan(number)) return "nan";
    if (std::isinf(number)) return number > 0 ? "inf" : "-inf";
    return number;
}

}  // namespace tamur::tool
