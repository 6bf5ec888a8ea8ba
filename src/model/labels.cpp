#include "model/labels.h"

namespace tamur {

LabelPlaces::LabelPlaces(const Labels& labels, Arena& arena)
{
    const LabelCounts counts = labels.Counts();
    Text* const texts = arena.Array<Text>(counts.held);
    std::size_t i = 0;
    labels.ForEach([&](Text label) { texts[i++] = label; });
    texts_ = texts;
    counts_ = counts;
}

}  // namespace tamur
