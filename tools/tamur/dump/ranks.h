// Where records are in their table, found by what they hold.
#pragma once

#include <tamur/ranges.h>

#include <cstring>
#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <unordered_map>

namespace tamur::tool {

// All that a record holds as bytes: equal where the records are, and nowhere else.
class RecordImage {
 public:
    template <class PublicRecord>
    static void Put(PublicRecord& record, std::string& bytes)
    {
        bytes.clear();
        VisitFields(record, RecordImage(bytes));
    }

    template <class Value>
    void Field(const char*, Value& value)
    {
        if constexpr (std::is_class_v<Value>) {
            VisitFields(value, *this);
        } else if constexpr (std::is_same_v<Value, BSTR>) {
            const WideStringView text = ViewOf(value);
            constexpr std::size_t kNull = ~std::size_t{0};
            PutValue(value == nullptr ? kNull : text.size());
            PutBytes(text.data(), text.size() * sizeof(OLECHAR));
        } else {
            PutValue(value);
        }
    }
    template <class Value>
    void Array(const char*, Value* values, int count)
    {
        static_assert(std::is_arithmetic_v<Value>);
        PutValue(count);
        PutBytes(values, static_cast<std::size_t>(count) * sizeof(Value));
    }

 private:
    explicit RecordImage(std::string& bytes) : bytes_(bytes) {}

    template <class Value>
    void PutValue(const Value& value)
    {
        static_assert(std::is_scalar_v<Value>);
        PutBytes(&value, sizeof value);
    }
    void PutBytes(const void* from, std::size_t size)
    {
        if (size != 0) bytes_.append(static_cast<const char*>(from), size);
    }

    std::string& bytes_;
};

// The ranks of the records of one table. Of each it keeps a digest only: a table may hold far more
// than its file.
template <class PublicRecord>
class Ranks {
 public:
    static constexpr LONG kNone = -1;

    explicit Ranks(ITAMURStructureReader& reader) : table_(Records<PublicRecord>(reader)) {}

    // The first record of the table that is equal to this one, or kNone.
    LONG Find(PublicRecord& record)
    {
        RecordImage::Put(record, image_);
        // Most have what the one before them had.
        if (known_ != kUnknown && image_ == knownImage_) return known_;
        known_ = Search();
        knownImage_.swap(image_);
        return known_;
    }

 private:
    static constexpr LONG kUnknown = -2;

    LONG Search()
    {
        if (!isRead_) Read();
        const auto found = ranks_.find(DigestOf(image_));
        if (found == ranks_.end()) return kNone;
        // Equal digests may be of records that differ.
        auto candidate = table_.At(found->second);
        RecordImage::Put(candidate.Get(), candidateImage_);
        return candidateImage_ == image_ ? found->second : kNone;
    }
    void Read()
    {
        isRead_ = true;
        const LONG size = table_.Size();
        for (LONG rank = 0; rank < size; ++rank) {
            auto record = table_.At(rank);
            RecordImage::Put(record.Get(), candidateImage_);
            ranks_.try_emplace(DigestOf(candidateImage_), rank);
        }
    }
    static std::size_t DigestOf(const std::string& image)
    {
        return std::hash<std::string_view>()(image);
    }

    Range<PublicRecord> table_;
    std::unordered_map<std::size_t, LONG> ranks_;  // by digest
    bool isRead_ = false;
    std::string image_, knownImage_, candidateImage_;
    LONG known_ = kUnknown;
};

}  // namespace tamur::tool
