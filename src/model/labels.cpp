#include "model/labels.h"

namespace tamur {

LabelPlaces::LabelPlaces(const Labels& labels, Arena& arena)
{
    counts_ = labels.Counts();
    if (counts_.held == 0) return;
    Text* const texts = arena.Array<Text>(counts_.held);
    std::size_t i = 0;
    labels.ForEach([&](Text label) { texts[i++] = label; });
    texts_ = texts;
}

}  // namespace tamur
