#include "model/labels.h"

namespace tamur {

LabelPlaces::LabelPlaces(const Labels& labels, Arena& arena) : counts_(labels.Counts())
{
    Text* const texts = arena.Array<Text>(counts_.held);
    if (texts == nullptr) return;
    std::size_t i = 0;
    labels.ForEach([&](Text label) { texts[i++] = label; });
    texts_ = texts;
}

}  // namespace tamur
