// Records as JSON, with the published names of their fields.
#pragma once

#include <tamur/records.h>

#include <nlohmann/json.hpp>

#include <concepts>
#include <cstddef>
#include <type_traits>
#include <utility>

#include <tamur/utf8.h>

namespace tamur::tool {

using Json = nlohmann::ordered_json;

// Null stays null, which is not the same as empty.
[[nodiscard]] Json ToJson(BSTR text);
// JSON has no word for what is no finite number: "inf", "-inf", "nan".
[[nodiscard]] Json ToJson(double number);

template <std::integral Integer>
[[nodiscard]] Json ToJson(Integer number)
{
    return static_cast<long long>(number);  // characters too are shown by their codes
}

template <class Enumeration>
requires std::is_enum_v<Enumeration>
[[nodiscard]] Json ToJson(Enumeration value)
{
    return static_cast<long long>(value);
}

template <class PublicRecord>
requires std::is_class_v<PublicRecord>
[[nodiscard]] Json ToJson(PublicRecord& record);

template <class Value>
[[nodiscard]] Json ToJsonArray(Value* values, int count)
{
    Json array = Json::array();
    for (int i = 0; i < count; ++i) array.push_back(ToJson(values[i]));
    return array;
}

// Collects the fields of one record.
struct JsonFields {
    Json object = Json::object();

    template <class Value>
    void Field(const char* name, Value& value)
    {
        object[name] = ToJson(value);
    }
    template <class Value, std::size_t kCount>
    void Field(const char* name, Value (&values)[kCount])
    {
        object[name] = ToJsonArray(values, static_cast<int>(kCount));
    }
    template <class Value>
    void Array(const char* name, Value* values, int count)
    {
        object[name] = ToJsonArray(values, count);
    }
};

template <class PublicRecord>
requires std::is_class_v<PublicRecord> Json ToJson(PublicRecord& record)
{
    JsonFields fields;
    VisitFields(record, fields);
    return std::move(fields.object);
}

}  // namespace tamur::tool
