#include "json_document.h"

namespace tamur::tool {
namespace {

constexpr int kIndent = 2;
constexpr int kCompact = -1;

// JSON may have them as they are, but terminals obey them: DEL, and U+0080 to U+009F.
std::string WithoutControls(const std::string& json)
{
    constexpr char kLead = '\xC2', kDel = '\x7F';
    constexpr const char* kDigits = "0123456789abcdef";
    std::string out;
    for (std::size_t i = 0; i < json.size(); ++i) {
        const bool isPair = json[i] == kLead && i + 1 < json.size() &&
                            static_cast<unsigned char>(json[i + 1]) < 0xA0;
        if (!isPair && json[i] != kDel) {
            out += json[i];
            continue;
        }
        const auto code = static_cast<unsigned char>(isPair ? json[++i] : kDel);
        out += "\\u00";
        out += {kDigits[code >> 4], kDigits[code & 0xF]};
    }
    return out;
}

std::string TextOf(const Json& value, int indent)
{
    // Names of files may be no UTF-8.
    return WithoutControls(value.dump(indent, ' ', false, Json::error_handler_t::replace));
}

}  // namespace

void JsonDocument::Member(const char* name, const Json& value)
{
    BeginMember(name);
    Write(value, 1);
}

void JsonDocument::BeginArray(const char* name)
{
    BeginMember(name);
    out_ << '[';
    isFirstElement_ = true;
}

void JsonDocument::Element(const Json& value)
{
    out_ << (isFirstElement_ ? "\n" : ",\n");
    isFirstElement_ = false;
    if (isPretty_) out_ << std::string(2 * kIndent, ' ');
    Write(value, 2);
}

void JsonDocument::EndArray()
{
    if (!isFirstElement_) out_ << '\n' << std::string(isPretty_ ? kIndent : 0, ' ');
    out_ << ']';
}

void JsonDocument::BeginMember(const char* name)
{
    out_ << (isFirstMember_ ? "\n" : ",\n");
    isFirstMember_ = false;
    if (isPretty_) out_ << std::string(kIndent, ' ');
    out_ << Json(name).dump() << (isPretty_ ? ": " : ":");
}

void JsonDocument::Write(const Json& value, int depth)
{
    if (!isPretty_) {
        out_ << TextOf(value, kCompact);
        return;
    }
    // Line feeds within texts are escaped: those that are there are the layout's.
    const std::string margin(static_cast<std::size_t>(depth * kIndent), ' ');
    for (const char c : TextOf(value, kIndent)) {
        out_ << c;
        if (c == '\n') out_ << margin;
    }
}

}  // namespace tamur::tool
