#include "model/text.h"

#include <algorithm>

namespace tamur {
namespace {

// Widens up to the first byte above 0x7F; returns how many. ASCII is the same in every ANSI
// code page, so it needs no conversion.
std::size_t WidenAscii(std::string_view text, OLECHAR* wide)
{
    std::size_t i = 0;
    for (; i < text.size(); ++i) {
        const unsigned char byte = static_cast<unsigned char>(text[i]);
        if (byte > 0x7F) break;
        wide[i] = byte;
    }
    return i;
}

struct EmptyText {
    std::uint32_t byteLength;
    OLECHAR end;
};
constexpr EmptyText kEmpty = {0, 0};

}  // namespace

constinit const Text kEmptyText(&kEmpty.end);

char* WriteText(char* room, std::string_view text)
{
    OLECHAR* const wide = reinterpret_cast<OLECHAR*>(room + sizeof(std::uint32_t));
    std::size_t length = WidenAscii(text, wide);
    // From the start: a double-byte code page may pair an ASCII byte with the one before it.
    if (length < text.size()) length = platform::WidenAnsi(text.data(), text.size(), wide);
    wide[length] = 0;
    const std::uint32_t byteLength = static_cast<std::uint32_t>(length * sizeof(OLECHAR));
    std::memcpy(room, &byteLength, sizeof byteLength);
    const std::size_t size = sizeof byteLength + byteLength + sizeof(OLECHAR);
    return room + (size + 3) / 4 * 4;
}

Text MakeText(Arena& arena, std::string_view text)
{
    if (text.empty()) return kEmptyText;
    char* const room = arena.Reserve(TextRoom(text.size()));
    arena.Commit(WriteText(room, text));
    return TextAt(room);
}

}  // namespace tamur
