#include "json_document.h"

#include "json_text.h"

namespace tamur::tool {

void JsonDocument::Member(const char* name, const Json& value)
{
    BeginMember(name);
    out_ << JsonText(value);
}

void JsonDocument::BeginArray(const char* name)
{
    BeginMember(name);
    out_ << '[';
    isFirstElement_ = true;
}

void JsonDocument::Element(const Json& value)
{
    out_ << (isFirstElement_ ? "\n" : ",\n") << JsonText(value);
    isFirstElement_ = false;
}

void JsonDocument::EndArray()
{
    out_ << (isFirstElement_ ? "]" : "\n]");
}

void JsonDocument::BeginMember(const char* name)
{
    out_ << (isFirstMember_ ? "\n" : ",\n") << JsonText(name) << ':';
    isFirstMember_ = false;
}

}  // namespace tamur::tool
