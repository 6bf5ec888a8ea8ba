// Fields of records that are no records themselves, as JSON.
#pragma once

#include <tamur/records.h>

#include <cstdint>
#include <type_traits>

#include "host/json/json_writer.h"

namespace tamur::host {

// Null stays null, which is not the same as empty.
template <class Value>
void WriteScalar(JsonWriter& out, Value value)
{
    if constexpr (std::is_same_v<Value, BSTR>) {
        if (value == nullptr) return out.Null();
        out.Text(ViewOf(value));
    } else if constexpr (std::is_same_v<Value, double>) {
        out.Number(value);
    } else {
        out.Number(static_cast<std::int64_t>(value));
    }
}

}  // namespace tamur::host
