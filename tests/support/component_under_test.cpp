#include "support/component_under_test.h"

namespace tamur::test {

Component& TheComponent()
{
    static Component component(TAMUR_COMPONENT_PATH);
    return component;
}

std::string Utf8(WideStringView text)
{
    std::string out;
    for (const OLECHAR unit : text) {
        const unsigned c = static_cast<unsigned>(unit);  // the tests' texts have no surrogates
        if (c < 0x80) {
            out += static_cast<char>(c);
        } else if (c < 0x800) {
            out += static_cast<char>(0xC0 | (c >> 6));
            out += static_cast<char>(0x80 | (c & 0x3F));
        } else {
            out += static_cast<char>(0xE0 | (c >> 12));
            out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            out += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return out;
}

std::basic_string<OLECHAR> Wide(std::string_view utf8)
{
    std::basic_string<OLECHAR> out;
    for (std::size_t i = 0; i < utf8.size();) {
        const unsigned lead = static_cast<unsigned char>(utf8[i]);
        const unsigned length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : 3;
        unsigned c = length == 1 ? lead : lead & (0xFFu >> (length + 1));
        for (unsigned k = 1; k < length; ++k) {
            c = (c << 6) | (static_cast<unsigned char>(utf8[i + k]) & 0x3Fu);
        }
        out += static_cast<OLECHAR>(c);
        i += length;
    }
    return out;
}

}  // namespace tamur::test
