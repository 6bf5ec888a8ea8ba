// Records that free what they hold.
#pragma once

#include <TAMURReader.h>
#include <tamur/fields.h>
#include <tamur/utf8.h>

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace tamur {

// The text of a string field; empty for null.
inline WideStringView ViewOf(BSTR text)
{
    return text == nullptr ? WideStringView() : WideStringView(text, SysStringLen(text));
}

// Frees what a record's fields hold, by their types: strings, and the blocks of arrays. The
// strings in the block of labels are the reader's and stay.
struct FieldFreer {
    // Called by VisitFields for a field that is held by value.
    template <class Value>
    void Field(const char*, Value& value)
    {
        if constexpr (std::is_same_v<Value, BSTR>) {
            SysFreeString(value);
        } else if constexpr (std::is_class_v<Value>) {
            VisitFields(value, *this);
        }
    }
    // Called by VisitFields for an array.
    template <class Value>
    void Array(const char*, Value* values, int)
    {
        CoTaskMemFree(values);
    }
};

// A public record, empty or filled by an accessor, that frees what it holds.
template <class PublicRecord>
class Record {
 public:
    Record() = default;
    Record(const Record&) = delete;
    Record& operator=(const Record&) = delete;
    Record(Record&& other) noexcept : record_(std::exchange(other.record_, {})) {}
    Record& operator=(Record&& other) noexcept
    {
        std::swap(record_, other.record_);
        return *this;
    }
    ~Record() { VisitFields(record_, FieldFreer()); }

    // Empties the record; for out parameters.
    [[nodiscard]] PublicRecord* Put()
    {
        *this = Record();
        return &record_;
    }

    // The record, which stays this object's.
    [[nodiscard]] PublicRecord& Get() { return record_; }
    // The same, to read.
    [[nodiscard]] const PublicRecord& Get() const { return record_; }
    const PublicRecord* operator->() const { return &record_; }
    const PublicRecord& operator*() const { return record_; }

 private:
    PublicRecord record_ = {};
};

}  // namespace tamur
