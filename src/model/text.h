// Wide strings inside the model.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "model/arena.h"
#include "platform/platform.h"

namespace tamur {

// A string laid out as a BSTR (32-bit byte length, text, NUL), so that it can be lent to hosts
// as it is. It lives in an arena or is a constant; null means absent.
class Text {
 public:
    Text() = default;
    constexpr explicit Text(const OLECHAR* text) : text_(text) {}

    [[nodiscard]] bool IsNull() const { return text_ == nullptr; }
    [[nodiscard]] const OLECHAR* Data() const { return text_; }

    [[nodiscard]] UINT ByteLength() const
    {
        std::uint32_t length;
        std::memcpy(&length, reinterpret_cast<const char*>(text_) - sizeof length, sizeof length);
        return length;
    }

 private:
    const OLECHAR* text_ = nullptr;
};

// An empty text that lives as long as the library.
extern const Text kEmptyText;

// How much room WriteText takes at most for `length` bytes of text.
constexpr std::size_t TextRoom(std::size_t length)
{
    return sizeof(std::uint32_t) + (length + 1) * sizeof(OLECHAR) + sizeof(std::uint32_t);
}

// Lays out text of the ANSI code page at `room`, which is 4-byte aligned; returns the end,
// 4-byte aligned again.
char* WriteText(char* room, std::string_view text);

// The text at `room`.
inline Text TextAt(const char* room)
{
    return Text(reinterpret_cast<const OLECHAR*>(room + sizeof(std::uint32_t)));
}

// The place where WriteText laid out a text, and the one after it where it would put the next.
inline const char* PlaceOf(Text text)
{
    return reinterpret_cast<const char*>(text.Data()) - sizeof(std::uint32_t);
}
inline const char* EndOf(Text text)
{
    const std::size_t size = text.ByteLength() + sizeof(OLECHAR);
    return reinterpret_cast<const char*>(text.Data()) + (size + 3) / 4 * 4;
}

[[nodiscard]] Text MakeText(Arena& arena, std::string_view text);

}  // namespace tamur
