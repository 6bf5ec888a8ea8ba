// Memory that lives as long as the model: its records, and their strings and arrays.
#pragma once

#include <cstddef>
#include <cstring>
#include <new>
#include <type_traits>
#include <vector>

#include "model/sanitizer.h"
#include "platform/platform.h"

namespace tamur {

// Gives out memory that never moves and is freed only with the arena. All of it is 8-byte aligned.
// Throws std::bad_alloc.
class Arena {
 public:
    Arena() = default;
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;
    ~Arena();

    // Uninitialised memory.
    [[nodiscard]] char* Allocate(std::size_t size)
    {
        if (size + sanitizer::kGap > Room()) return AllocateFromBlock(size);
        char* const memory = next_;
        sanitizer::AllowSpoilt(memory, size);
        Take(memory + size);
        return memory;
    }

    // `count` zero values; null for a count of 0.
    template <class T>
    [[nodiscard]] T* Array(std::size_t count)
    {
        static_assert(std::is_trivially_copyable_v<T> && alignof(T) <= kAlignment);
        if (count == 0) return nullptr;
        char* const memory = Allocate(count * sizeof(T));
        std::memset(memory, 0, count * sizeof(T));
        return reinterpret_cast<T*>(memory);
    }

    template <class T>
    [[nodiscard]] const T* Copy(const T& record)
    {
        static_assert(std::is_trivially_copyable_v<T> && alignof(T) <= kAlignment);
        return ::new (Allocate(sizeof(T))) T(record);
    }

    // Uninitialised memory whose size is not known yet: at most `size`. It is taken only as far as
    // Commit says; until then it is not taken at all.
    [[nodiscard]] char* Reserve(std::size_t size)
    {
        if (size + sanitizer::kGap > Room()) StartBlock(size);
        sanitizer::AllowSpoilt(next_, size);
        return next_;
    }
    void Commit(const char* end)
    {
        sanitizer::Forbid(end, static_cast<std::size_t>(end_ - end));
        Take(end);
    }
    // The same for values of one type.
    template <class T>
    [[nodiscard]] T* ReserveArray(std::size_t most)
    {
        static_assert(std::is_trivially_copyable_v<T> && alignof(T) <= kAlignment);
        return static_cast<T*>(static_cast<void*>(Reserve(most * sizeof(T))));
    }
    template <class T>
    void CommitArray(const T* end)
    {
        Commit(reinterpret_cast<const char*>(end));
    }

 private:
    static constexpr std::size_t kAlignment = 8;

    // The next piece begins some way after `end`.
    void Take(const char* end)
    {
        const std::size_t used = static_cast<std::size_t>(end - next_);
        next_ += (used + kAlignment - 1) / kAlignment * kAlignment + sanitizer::kGap;
    }

    [[nodiscard]] std::size_t Room() const { return static_cast<std::size_t>(end_ - next_); }
    [[nodiscard]] std::size_t UsualBlock() const;
    char* AddBlock(std::size_t size);
    void StartBlock(std::size_t size);
    char* AllocateFromBlock(std::size_t size);

    std::vector<char*> blocks_;
    std::size_t total_ = 0;  // bytes of all blocks
    char* next_ = nullptr;
    char* end_ = nullptr;
};

}  // namespace tamur
