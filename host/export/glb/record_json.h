// Records as JSON, with the published names of their fields.
#pragma once

#include <tamur/records.h>

#include <type_traits>

#include "host/diff/field_rules.h"
#include "host/json/scalar_json.h"

namespace tamur::host {

// Of the records that bars and surfaces refer to, the elements have the place in their table, which
// the caller writes.
class RecordJson {
 public:
    explicit RecordJson(JsonWriter& out) : out_(out) {}

    template <class Value>
    void Field(const char* name, Value& value)
    {
        if constexpr (kIsReferredTo<Value>) {
            return;
        } else {
            out_.Key(name);
            Write(value);
        }
    }
    template <class Value, std::size_t kCount>
    void Field(const char* name, Value (&values)[kCount])
    {
        Array(name, values, static_cast<int>(kCount));
    }
    template <class Value>
    void Array(const char* name, Value* values, int count)
    {
        out_.Key(name);
        out_.Begin('[');
        for (int i = 0; i < count; ++i) Write(values[i]);
        out_.End(']');
    }

 private:
    template <class Value>
    void Write(Value& value)
    {
        if constexpr (std::is_class_v<Value>) {
            out_.Begin('{');
            VisitFields(value, *this);
            out_.End('}');
        } else {
            WriteScalar(out_, value);
        }
    }

    JsonWriter& out_;
};

}  // namespace tamur::host
