#include "platform/platform.h"

namespace tamur::platform {
namespace {

// Windows-1252 from 0x80 to 0x9F. Windows maps the five undefined bytes (81, 8D, 8F, 90, 9D) to
// the control characters of the same number.
constexpr OLECHAR kHighControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

}  // namespace

std::size_t WidenAnsi(const char* text, std::size_t length, OLECHAR* wide)
{
    for (std::size_t i = 0; i < length; ++i) {
        const unsigned char byte = static_cast<unsigned char>(text[i]);
        wide[i] = byte >= 0x80 && byte < 0xA0 ? kHighControls[byte - 0x80] : OLECHAR{byte};
    }
    return length;
}

std::string NarrowPath(const OLECHAR* path)
{
    return ToUtf8(path);
}

WideString WidenPath(const std::string& path)
{
    return FromUtf8(path);
}

}  // namespace tamur::platform
