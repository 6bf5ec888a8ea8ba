#include "guarded.h"

#include <algorithm>
#include <span>

namespace tamur::capi {
namespace {

// Cut before a character that does not fit, ended by a NUL.
void Write(std::string_view text, std::span<char> room)
{
    std::size_t size = std::min(text.size(), room.size() - 1);
    const auto isInside = [&](std::size_t i) {
        return i < text.size() && (static_cast<unsigned char>(text[i]) & 0xC0) == 0x80;
    };
    while (size > 0 && isInside(size)) --size;
    std::copy_n(text.begin(), size, room.begin());
    room[size] = '\0';
}

}  // namespace

int32_t Fail(TamurError* error, int32_t status, std::string_view why, std::string_view code)
{
    if (error != nullptr) {
        Write(code, error->code);
        Write(why, error->text);
    }
    return status;
}

}  // namespace tamur::capi
