// Digests of records, in which the same contents have the same digest.
#pragma once

#include <tamur/records.h>

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>

#include "host/diff/field_rules.h"
#include "host/diff/tolerance.h"

namespace tamur::host {

// What is referred to, by its digest: of the model after, that of its counterpart before. So bars
// do not change with their material.
class Identities {
 public:
    void Add(std::uint64_t digest, std::uint64_t counterpart)
    {
        counterparts_.emplace(digest, counterpart);
    }
    [[nodiscard]] std::uint64_t Of(std::uint64_t digest) const
    {
        const auto found = counterparts_.find(digest);
        return found == counterparts_.end() ? digest : found->second;
    }

 private:
    std::unordered_map<std::uint64_t, std::uint64_t> counterparts_;
};

enum class Part : std::uint8_t { kAll, kPoints, kAllButPoints };

class RecordHash {
 public:
    // The field `key` of the record itself is left out.
    RecordHash(const Tolerance& tolerance, const Identities* identities, Part part = Part::kAll,
               std::string_view key = {})
        : tolerance_(tolerance), identities_(identities), part_(part), key_(key)
    {
    }

    template <class Value>
    void Field(const char* name, Value& value)
    {
        if (!IsDerived(name) && name != key_) Add(value);
    }
    template <class Value>
    void Array(const char*, Value* values, int count)
    {
        AddWord(static_cast<std::uint64_t>(count));
        for (int i = 0; i < count; ++i) Add(values[i]);
    }

    [[nodiscard]] std::uint64_t Value() const
    {
        // Ends as good generators of random numbers do, so that every bit tells something.
        std::uint64_t value = value_;
        value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9;
        value = (value ^ (value >> 27)) * 0x94D049BB133111EB;
        return value ^ (value >> 31);
    }

 private:
    template <class Value, std::size_t kCount>
    void Add(Value (&values)[kCount])
    {
        for (Value& value : values) Add(value);
    }
    template <class Value>
    void Add(Value& value)
    {
        if constexpr (std::is_same_v<Value, TMR3DPnt>) {
            AddPoint(value);
        } else if constexpr (kIsReferredTo<Value>) {
            if (part_ != Part::kPoints) AddReferredTo(value);
        } else if constexpr (std::is_class_v<Value>) {
            VisitFields(value, RecordHashOfPart{*this});
        } else if (part_ != Part::kPoints) {
            AddScalar(value);
        }
    }

    // The fields of a part may have the name of the record's key.
    struct RecordHashOfPart {
        RecordHash& whole;

        template <class Value>
        void Field(const char*, Value& value)
        {
            whole.Add(value);
        }
        template <class Value>
        void Array(const char* name, Value* values, int count)
        {
            whole.Array(name, values, count);
        }
    };

    void AddPoint(const TMR3DPnt& point)
    {
        if (part_ == Part::kAllButPoints) return;
        for (double coordinate : {point.x, point.y, point.z}) {
            AddWord(tolerance_.CellOfCoordinate(coordinate));
        }
    }

    template <class Value>
    void AddReferredTo(Value& value)
    {
        RecordHash hash(tolerance_, nullptr);
        VisitFields(value, hash);
        const std::uint64_t digest = hash.Value();
        AddWord(identities_ == nullptr ? digest : identities_->Of(digest));
    }

    void AddScalar(BSTR text)
    {
        const WideStringView view = ViewOf(text);
        AddWord(text == nullptr ? ~std::uint64_t{0} : view.size());
        for (OLECHAR unit : view) AddWord(unit);
    }
    void AddScalar(double number) { AddWord(tolerance_.CellOfReal(number)); }
    template <class Number>
    requires(std::is_integral_v<Number> || std::is_enum_v<Number>) void AddScalar(Number number)
    {
        AddWord(static_cast<std::uint64_t>(number));
    }

    void AddWord(std::uint64_t word)
    {
        value_ = (value_ ^ word) * 0x9E3779B97F4A7C15;
        value_ ^= value_ >> 32;
    }

    const Tolerance& tolerance_;
    const Identities* identities_;
    Part part_;
    std::string_view key_;
    std::uint64_t value_ = 0xCBF29CE484222325;
};

}  // namespace tamur::host
