// The growable tables of the model.
#pragma once

#include <bit>
#include <cstddef>
#include <new>
#include <type_traits>
#include <vector>

#include "model/arena.h"
#include "model/sanitizer.h"

namespace tamur {

// Records in the order of the file, in an arena. Growing moves no record: it adds a chunk.
template <class T>
class Table {
    static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);

 public:
    explicit Table(Arena& arena) : arena_(arena) {}

    [[nodiscard]] std::size_t Size() const { return size_; }

    [[nodiscard]] T& operator[](std::size_t rank) { return chunks_[rank >> kShift][rank & kMask]; }
    [[nodiscard]] const T& operator[](std::size_t rank) const
    {
        return chunks_[rank >> kShift][rank & kMask];
    }

    // The slot after the last record, value-initialised. It becomes a record with Commit;
    // until then it is not part of the table.
    [[nodiscard]] T& Prepare()
    {
        if (size_ >> kShift == chunks_.size()) AddChunk();
        return *::new (&(*this)[size_]) T{};
    }
    void Commit() { ++size_; }

    void Append(const T& record)
    {
        Prepare() = record;
        Commit();
    }

    // Keeps the first `size` records.
    void Truncate(std::size_t size)
    {
        size_ = size;
        if constexpr (sanitizer::kIsOn) chunks_.resize(size);  // so that the others cannot be had
    }

 private:
    // The chunk is left uninitialised: as long as it is not used it costs address space only.
    void AddChunk()
    {
        chunks_.push_back(reinterpret_cast<T*>(arena_.Allocate(kChunk * sizeof(T))));
    }

    static constexpr std::size_t kChunkBytes = std::size_t{16} << 10;
    // The sanitizer sees where a piece of an arena ends: then each record is one.
    static constexpr std::size_t kChunk =
        sanitizer::kIsOn ? 1 : std::bit_floor(kChunkBytes / sizeof(T));
    static constexpr int kShift = std::countr_zero(kChunk);
    static constexpr std::size_t kMask = kChunk - 1;

    Arena& arena_;
    std::vector<T*> chunks_;
    std::size_t size_ = 0;
};

// The records of a table that one import contributed: restarting leaves the earlier ones in
// place for whoever still refers to them.
template <class T>
struct Generation {
    explicit Generation(Arena& arena) : all(arena) {}

    Table<T> all;
    std::size_t first = 0;

    void Restart() { first = all.Size(); }
    [[nodiscard]] std::size_t Size() const { return all.Size() - first; }
    [[nodiscard]] const T& operator[](std::size_t rank) const { return all[first + rank]; }
};

}  // namespace tamur
