// Records as a dump has them, with the published names of their fields.
#pragma once

#include <string_view>

#include "host/diff/field_rules.h"
#include "host/json/scalar_json.h"
#include "ranks.h"

namespace tamur::tool {

// Points are lists of their three coordinates. What is only a list with its number, which is never
// negative there, is that list. Materials, sections and releases within elements are their ranks in
// their tables; one that is in no table is a record.
class RecordWriter {
 public:
    RecordWriter(ITAMURStructureReader& reader, host::JsonWriter& out)
        : out_(out), materials_(reader), sections_(reader), releases_(reader)
    {
    }

    template <class PublicRecord>
    void Write(PublicRecord& record)
    {
        out_.Begin('{');
        VisitFields(record, *this);
        out_.End('}');
    }

    template <class Value>
    void Field(const char* name, Value& value)
    {
        out_.Key(name);
        if constexpr (host::kIsReferredTo<Value>) {
            WriteReference(value);
        } else if constexpr (std::is_same_v<Value, char>) {
            WriteByte(name, value);
        } else {
            WriteValue(value);
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
        WriteList(values, count);
    }

 private:
    template <class Value>
    void WriteValue(Value& value)
    {
        if constexpr (std::is_same_v<Value, TMR3DPnt>) {
            out_.Begin('[');
            for (const double coordinate : {value.x, value.y, value.z}) out_.Number(coordinate);
            out_.End(']');
        } else if constexpr (std::is_same_v<Value, TMRElementLabels>) {
            WriteList(value.tabLabels, value.nbLabels);
        } else if constexpr (std::is_same_v<Value, TMR3DPlanarElement>) {
            WriteList(value.tabPoints, value.nbPoints);
        } else if constexpr (std::is_same_v<Value, TMRPorteeCoefficients>) {
            WriteList(value.tabCoef, value.nbPoints);
        } else if constexpr (std::is_class_v<Value>) {
            Write(value);
        } else {
            host::WriteScalar(out_, value);
        }
    }
    template <class Value>
    void WriteList(Value* values, int count)
    {
        out_.Begin('[');
        for (int i = 0; i < count; ++i) WriteValue(values[i]);
        out_.End(']');
    }

    // The code of an outline is a character, the others are yes or no. A character has the number
    // of its byte.
    void WriteByte(const char* name, char value)
    {
        if (std::string_view(name) != "Code") return host::WriteScalar(out_, value);
        const auto character = static_cast<OLECHAR>(static_cast<unsigned char>(value));
        out_.Text(WideStringView(&character, 1));
    }

    template <class Value>
    void WriteReference(Value& value)
    {
        const LONG rank = RanksOf(value).Find(value);
        if (rank == Ranks<Value>::kNone) return Write(value);
        out_.Number(rank);
    }
    Ranks<TMRMaterial>& RanksOf(const TMRMaterial&) { return materials_; }
    Ranks<TMRSectionGeometry>& RanksOf(const TMRSectionGeometry&) { return sections_; }
    Ranks<TMRAttache>& RanksOf(const TMRAttache&) { return releases_; }

    host::JsonWriter& out_;
    Ranks<TMRMaterial> materials_;
    Ranks<TMRSectionGeometry> sections_;
    Ranks<TMRAttache> releases_;
};

}  // namespace tamur::tool
