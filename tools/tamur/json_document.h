// A JSON object whose members are written as they come, so that a large model needs no tree of it.
#pragma once

#include <ostream>
#include <string>

#include "json_record.h"

namespace tamur::tool {

class JsonDocument {
 public:
    JsonDocument(std::ostream& out, bool isPretty) : out_(out), isPretty_(isPretty) { out_ << "{"; }

    void End() { out_ << "\n}\n"; }

    void Member(const char* name, const Json& value);
    void BeginArray(const char* name);
    void Element(const Json& value);
    void EndArray();

 private:
    void BeginMember(const char* name);
    void Write(const Json& value, int depth);

    std::ostream& out_;
    bool isPretty_;
    bool isFirstMember_ = true;
    bool isFirstElement_ = true;
};

}  // namespace tamur::tool
