#include "host/export/losses.h"

#include <algorithm>
#include <tuple>

namespace tamur::host {

void Losses::Add(Kind kind, const LossText& text, std::size_t count)
{
    if (count == 0) return;
    const auto known = std::find_if(losses_.begin(), losses_.end(), [&](const Loss& loss) {
        return loss.kind == kind && loss.text == &text;
    });
    if (known != losses_.end()) {
        known->count += count;
    } else {
        losses_.push_back({kind, &text, count});
    }
}

std::vector<Loss> Losses::InOrder() const
{
    std::vector<Loss> sorted = losses_;
    std::stable_sort(sorted.begin(), sorted.end(), [](const Loss& a, const Loss& b) {
        return std::tie(a.text->type, a.kind) < std::tie(b.text->type, b.kind);
    });
    return sorted;
}

}  // namespace tamur::host
