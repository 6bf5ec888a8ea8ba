// Records that bars and surfaces carry as copies, found in their tables again.
#pragma once

#include <tamur/records.h>

#include <bit>
#include <cstdint>
#include <cstring>
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
            MixText(ViewOf(value));
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
    // Eight bytes at a time, then the rest.
    void MixText(WideStringView text)
    {
        constexpr std::size_t kAtOnce = sizeof(std::uint64_t) / sizeof(OLECHAR);
        Mix(text.size());
        std::size_t i = 0;
        for (; i + kAtOnce <= text.size(); i += kAtOnce) {
            std::uint64_t characters = 0;
            std::memcpy(&characters, &text[i], sizeof characters);
            Mix(characters);
        }
        for (; i < text.size(); ++i) Mix(static_cast<std::uint64_t>(text[i]));
    }
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
        const std::uint64_t fingerprint = FingerprintOf(record);
        const auto place = static_cast<Index>(added_++);
        if (2 * known_ >= slots_.size()) Grow();
        Slot& slot = slots_[SlotIn(slots_, fingerprint)];
        if (slot.place != kNone) return;
        slot = {fingerprint, place};
        ++known_;
    }

    // kNone when no record of the table is like it.
    template <class PublicRecord>
    [[nodiscard]] Index Find(PublicRecord& record) const
    {
        return slots_[SlotIn(slots_, FingerprintOf(record))].place;
    }

 private:
    template <class PublicRecord>
    static std::uint64_t FingerprintOf(PublicRecord& record)
    {
        Fingerprint fingerprint;
        VisitFields(record, fingerprint);
        return fingerprint.Value();
    }

    struct Slot {
        std::uint64_t fingerprint = 0;
        Index place = kNone;
    };

    // Where it is, or where it would be.
    static std::size_t SlotIn(const std::vector<Slot>& slots, std::uint64_t fingerprint)
    {
        const std::size_t mask = slots.size() - 1;
        std::size_t slot = (fingerprint ^ (fingerprint >> 32)) & mask;
        while (slots[slot].place != kNone && slots[slot].fingerprint != fingerprint) {
            slot = (slot + 1) & mask;
        }
        return slot;
    }
    void Grow()
    {
        std::vector<Slot> larger(2 * slots_.size());
        for (const Slot& slot : slots_) {
            if (slot.place != kNone) larger[SlotIn(larger, slot.fingerprint)] = slot;
        }
        slots_.swap(larger);
    }

    std::vector<Slot> slots_ = std::vector<Slot>(64);
    std::size_t known_ = 0;  // slots in use
    std::size_t added_ = 0;
};

}  // namespace tamur::host
