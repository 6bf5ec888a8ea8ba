#include "json_value.h"

#include <cmath>

namespace tamur::tool {

Json ToJson(double number)
{
    if (std::isnan(number)) return "nan";
    if (std::isinf(number)) return number > 0 ? "inf" : "-inf";
    return number;
}

Json ToJson(const TMR3DPnt& point)
{
    return {{"x", ToJson(point.x)}, {"y", ToJson(point.y)}, {"z", ToJson(point.z)}};
}

}  // namespace tamur::tool
