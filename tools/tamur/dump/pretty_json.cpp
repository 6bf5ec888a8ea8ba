#include "pretty_json.h"

namespace tamur::tool {

PrettyJson::int_type PrettyJson::overflow(int_type c)
{
    if (!traits_type::eq_int_type(c, traits_type::eof())) Take(traits_type::to_char_type(c));
    return traits_type::not_eof(c);
}

std::streamsize PrettyJson::xsputn(const char* text, std::streamsize size)
{
    for (std::streamsize i = 0; i < size; ++i) Take(text[i]);
    return size;
}

void PrettyJson::Take(char c)
{
    if (isInText_) return TakeOfText(c);
    if (c == '\n') return;
    const bool isClosing = c == '}' || c == ']';
    if (isClosing) --depth_;
    if (hasOpened_ != isClosing) BeginLine();
    hasOpened_ = c == '{' || c == '[';
    if (hasOpened_) ++depth_;
    isInText_ = c == '"';
    out_.put(c);
    if (c == ':') out_.put(' ');
    if (c == ',') BeginLine();
    if (depth_ == 0) out_.put('\n');
}

void PrettyJson::TakeOfText(char c)
{
    out_.put(c);
    isInText_ = isEscaped_ || c != '"';
    isEscaped_ = !isEscaped_ && c == '\\';
}

void PrettyJson::BeginLine()
{
    out_.put('\n');
    for (int i = 0; i < depth_; ++i) out_ << "  ";
}

}  // namespace tamur::tool
