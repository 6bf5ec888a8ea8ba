// A JSON object whose members are written as they come, so that a large one needs no tree of it.
#pragma once

#include <ostream>

#include "json_value.h"

namespace tamur::tool {

// Of an array that is a member, each element is a line.
class JsonDocument {
 public:
    explicit JsonDocument(std::ostream& out) : out_(out) { out_ << "{"; }

    void End() { out_ << "\n}\n"; }

    void Member(const char* name, const Json& value);
    void BeginArray(const char* name);
    void Element(const Json& value);
    void EndArray();

 private:
    void BeginMember(const char* name);

    std::ostream& out_;
    bool isFirstMember_ = true;
    bool isFirstElement_ = true;
};

}  // namespace tamur::tool
