#include "json_text.h"

#include <array>
#include <cstdio>

namespace tamur::tool {
namespace {

void AppendEscape(std::string& out, unsigned c)
{
    std::array<char, 8> escape;
    (void)std::snprintf(escape.data(), escape.size(), "\\u%04x", c);
    out += escape.data();
}

}  // namespace

std::string JsonText(const Json& value, int indent)
{
    using Handler = Json::error_handler_t;
    const std::string text = value.dump(indent, ' ', false, Handler::replace);
    std::string out;
    out.reserve(text.size());
    // Such bytes are in texts only: what is around them is plain.
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const unsigned next = i + 1 < text.size() ? static_cast<unsigned char>(text[i + 1]) : 0u;
        if (byte == 0x7F) {
            AppendEscape(out, byte);
        } else if (byte == 0xC2 && next >= 0x80 && next < 0xA0) {
            AppendEscape(out, next);
            ++i;
        } else {
            out += text[i];
        }
    }
    return out;
}

}  // namespace tamur::tool
