// Values of records as JSON.
#pragma once

#include <TAMURReader.h>

#include <concepts>

#include "json_text.h"

namespace tamur::tool {

// JSON has no word for what is no finite number: "inf", "-inf", "nan".
[[nodiscard]] Json ToJson(double number);
[[nodiscard]] Json ToJson(const TMR3DPnt& point);

template <std::integral Integer>
[[nodiscard]] Json ToJson(Integer number)
{
    return static_cast<long long>(number);
}

}  // namespace tamur::tool
