#include "messages.h"

#include <tamur/utf8.h>

#include <algorithm>

#include "tables.h"

namespace tamur::tool {

MessageList FirstMessages(ITAMURStructureReader& reader, std::size_t most)
{
    MessageList list;
    VisitMessages(reader, [&](WideStringView wide) {
        const std::string text = ToUtf8(wide);
        const auto known =
            std::find_if(list.first.begin(), list.first.end(),
                         [&](const CountedMessage& message) { return message.text == text; });
        if (known != list.first.end()) {
            ++known->count;
        } else if (list.first.size() < most) {
            list.first.push_back({text});
        } else {
            ++list.further;
        }
    });
    return list;
}

}  // namespace tamur::tool
