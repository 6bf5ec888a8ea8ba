#include "host/export/glb/json_writer.h"

#include <cmath>

namespace tamur::host {

void JsonWriter::Number(double number)
{
    if (std::isnan(number)) return Text("nan");
    if (std::isinf(number)) return Text(number > 0 ? "inf" : "-inf");
    Separate();
    AppendNumber(number);
}

void JsonWriter::Text(std::string_view text)
{
    constexpr std::string_view kDigits = "0123456789abcdef";
    Separate();
    text_ += '"';
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (code < 0x20) {
            text_ += "\\u00";
            text_ += kDigits[code >> 4];
            text_ += kDigits[code & 15];
            continue;
        }
        if (c == '"' || c == '\\') text_ += '\\';
        text_ += c;
    }
    text_ += '"';
}

void JsonWriter::Flush()
{
    out_.write(text_.data(), static_cast<std::streamsize>(text_.size()));
    written_ += text_.size();
    text_.clear();
}

}  // namespace tamur::host
