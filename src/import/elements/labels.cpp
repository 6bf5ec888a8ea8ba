#include "import/elements/labels.h"

namespace tamur {
namespace {

// The product ends some labels with a control character, which is no part of them.
constexpr char kLabelEnd = '\x04';

}  // namespace

Labels ReadLabels(StreamScanner& tokens, std::int32_t count, Arena& arena)
{
    if (count <= 0) return Labels();
    const std::uint32_t stored = static_cast<std::uint32_t>(count);
    char* const room =
        arena.Reserve(sizeof stored + stored * TextRoom(0) + tokens.Left() * sizeof(OLECHAR));
    std::memcpy(room, &stored, sizeof stored);
    char* at = room + sizeof stored;
    for (std::uint32_t i = 0; i < stored; ++i) {
        std::string_view label;
        tokens >> label;
        if (label.ends_with(kLabelEnd)) label.remove_suffix(1);
        at = WriteText(at, label);
    }
    arena.Commit(at);
    return Labels(room);
}

void SkipLabels(StreamScanner& tokens, std::int32_t count)
{
    for (; count > 0; --count) tokens.Skip<std::string_view>();
}

}  // namespace tamur
