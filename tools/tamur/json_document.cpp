#include "json_document.h"

#include "json_text.h"

namespace tamur::tool {
namespace {

constexpr int kIndent = 2;

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
    out_ << JsonText(name) << (isPretty_ ? ": " : ":");
}

void JsonDocument::Write(const Json& value, int depth)
{
    if (!isPretty_) {
        out_ << JsonText(value);
        return;
    }
    // Line feeds within texts are escaped: those that are there are the layout's.
    const std::string margin(static_cast<std::size_t>(depth * kIndent), ' ');
    for (const char c : JsonText(value, kIndent)) {
        out_ << c;
        if (c == '\n') out_ << margin;
    }
}

}  // namespace tamur::tool
