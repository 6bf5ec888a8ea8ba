// The import's messages for people.
#pragma once

#include <tamur/component.h>

#include <cstddef>
#include <string>
#include <vector>

namespace tamur::tool {

struct CountedMessage {
    std::string text;  // UTF-8
    std::size_t count = 1;
};

struct MessageList {
    std::vector<CountedMessage> first;  // different ones, in the order of their first time
    std::size_t further = 0;            // messages that are none of these
};

// One message may be there a million times, and a million different ones too.
[[nodiscard]] MessageList FirstMessages(ITAMURStructureReader& reader, std::size_t most);

}  // namespace tamur::tool
