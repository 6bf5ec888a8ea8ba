#include "import/elements/labels.h"

#include <algorithm>

namespace tamur {
namespace {

// Some labels are ended with a control character, which is no part of them.
constexpr char kLabelEnd = '\x04';

// How much room labels take at most that are written with `characters`, blanks between them
// included.
std::size_t LabelRoom(std::size_t count, std::size_t characters)
{
    const std::size_t most = std::min(count, characters);
    return sizeof(LabelCounts) + most * TextRoom(0) + characters * sizeof(OLECHAR);
}

}  // namespace

Labels ReadLabels(StreamScanner& tokens, std::int32_t count, Arena& arena)
{
    if (count <= 0) return Labels();
    LabelCounts counts = {.announced = static_cast<std::uint16_t>(count)};
    char* const room = arena.Reserve(LabelRoom(counts.announced, tokens.Left()));
    char* at = room + sizeof counts;
    for (; counts.held < counts.announced; ++counts.held) {
        std::string_view label;
        tokens >> label;
        if (tokens.Failed()) break;
        if (label.ends_with(kLabelEnd)) label.remove_suffix(1);
        at = WriteText(at, label);
    }
    std::memcpy(room, &counts, sizeof counts);
    arena.Commit(at);
    return Labels(room);
}

void SkipLabels(StreamScanner& tokens, std::int32_t count)
{
    for (; count > 0 && !tokens.Failed(); --count) tokens.Skip<std::string_view>();
}

}  // namespace tamur
