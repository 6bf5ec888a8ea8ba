// Records that bars and surfaces carry as copies, found in their tables again.
#pragma once

#include <tamur/records.h>

#include <bit>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "host/structure/structure.h"

namespace tamur::host {

// What a record is told by: its texts and numbers, mixed. Two of the same content are one.
class Fingerprint {
 public:
    template <class Value>
    void Field(const char*, const Value& value)
    {
        if constexpr (std::is_same_v<Value, BSTR>) {
            for (const OLECHAR c : ViewOf(value)) Mix(static_cast<std::uint64_t>(c));
        } else if constexpr (std::is_same_v<Value, double>) {
            Mix(std::bit_cast<std::uint64_t>(value));
        } else if constexpr (std::is_class_v<Value>) {
            VisitFields(const_cast<Value&>(value), *this);
        } else {
            Mix(static_cast<std::uint64_t>(value));
        }
    }
    template <class Value>
    void Array(const char*, const Value*, int count)
    {
        Mix(static_cast<std::uint64_t>(count));
    }

    [[nodiscard]] std::uint64_t Value() const { return value_; }

 private:
    void Mix(std::uint64_t more)
    {
        // Each with its place, apart from the others: the products do not wait for each other.
        place_ += 0x9E3779B97F4A7C15;
        const std::uint64_t mixed = (more ^ place_) * 0xBF58476D1CE4E5B9;
        value_ += (mixed ^ (mixed >> 29)) * 0x94D049BB133111EB;
    }

    std::uint64_t value_ = 0;
    std::uint64_t place_ = 0;
};

class PropertyIndex {
 public:
    template <class PublicRecord>
    void Add(PublicRecord& record)
    {
        places_.try_emplace(FingerprintOf(record), static_cast<Index>(count_++));
    }

    // kNone when no record of the table is like it.
    template <class PublicRecord>
    [[nodiscard]] Index Find(PublicRecord& record) const
    {
        const auto found = places_.find(FingerprintOf(record));
        return found != places_.end() ? found->second : kNone;
    }

 private:
    template <class PublicRecord>
    static std::uint64_t FingerprintOf(PublicRecord& record)
    {
        Fingerprint fingerprint;
        VisitFields(record, fingerprint);
        return fingerprint.Value();
    }

    std::unordered_map<std::uint64_t, Index> places_;
    std::size_t count_ = 0;
};

}  // namespace tamur::host
