#include "host/rows/text_block.h"

#include <functional>
#include <limits>
#include <new>

namespace tamur::host {
namespace {

std::uint32_t HashOf(std::string_view text)
{
    const std::uint64_t hash = std::hash<std::string_view>()(text);
    return static_cast<std::uint32_t>(hash ^ (hash >> 32));
}

}  // namespace

std::int32_t TextBlock::Add(WideStringView text)
{
    while (!text.empty()) {
        if (text[0] < 0x80) {
            bytes_ += static_cast<char>(text[0]);
            text.remove_prefix(1);
        } else {
            utf::Append(bytes_, utf::Take(text));
        }
    }
    return KeepLast();
}

std::int32_t TextBlock::Add(std::string_view utf8)
{
    bytes_ += utf8;
    return KeepLast();
}

std::string_view TextBlock::At(std::uint32_t place) const
{
    return std::string_view(bytes_).substr(starts_[place], starts_[place + 1] - starts_[place] - 1);
}

// What is at the end of the bytes is a text, or one that is there already.
std::int32_t TextBlock::KeepLast()
{
    if (2 * Size() >= slots_.size()) Grow();
    const std::string_view text = std::string_view(bytes_).substr(starts_.back());
    const std::uint32_t hash = HashOf(text);
    std::size_t slot = hash & (slots_.size() - 1);
    for (; slots_[slot] != 0; slot = (slot + 1) & (slots_.size() - 1)) {
        const std::uint32_t place = slots_[slot] - 1;
        if (hashes_[place] == hash && At(place) == text) {
            bytes_.resize(starts_.back());
            return static_cast<std::int32_t>(place);
        }
    }
    const std::size_t place = Size();
    if (place >= std::numeric_limits<std::int32_t>::max()) throw std::bad_alloc();
    bytes_ += '\0';
    hashes_.push_back(hash);
    starts_.push_back(bytes_.size());
    slots_[slot] = static_cast<std::uint32_t>(place) + 1;
    return static_cast<std::int32_t>(place);
}

void TextBlock::Grow()
{
    std::vector<std::uint32_t> slots(slots_.empty() ? 64 : 2 * slots_.size());
    for (std::size_t place = 0; place < Size(); ++place) {
        std::size_t slot = hashes_[place] & (slots.size() - 1);
        while (slots[slot] != 0) slot = (slot + 1) & (slots.size() - 1);
        slots[slot] = static_cast<std::uint32_t>(place) + 1;
    }
    slots_ = std::move(slots);
}

}  // namespace tamur::host
