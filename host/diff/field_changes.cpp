#include "host/diff/field_changes.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace tamur::host {
namespace {

// Corners at one place are rare in outlines of engineers: so few starts are enough, and an outline
// of a hundred thousand equal corners takes no longer than others.
constexpr int kMostStarts = 4;

const TMR3DPnt* PointIn(const Value& value)
{
    return std::get_if<TMR3DPnt>(&value.is);
}

std::optional<Movement> MovementOf(const FieldChange& change)
{
    const TMR3DPnt* const a = PointIn(change.before);
    const TMR3DPnt* const b = PointIn(change.after);
    if (a == nullptr || b == nullptr) return std::nullopt;
    return Movement{*a, *b, std::hypot(b->x - a->x, b->y - a->y, b->z - a->z)};
}

}  // namespace

Value ToValue(BSTR text)
{
    if (text == nullptr) return {};
    return {ToUtf8(ViewOf(text))};
}

std::optional<Movement> MovementIn(const std::vector<FieldChange>& changes)
{
    const auto isMovement = [](const FieldChange& change) {
        return MovementOf(change).has_value();
    };
    if (changes.empty() || !std::all_of(changes.begin(), changes.end(), isMovement)) {
        return std::nullopt;
    }
    return MovementOf(changes.front());
}

bool IsTurned(const TMR3DPnt* before, const TMR3DPnt* after, int count, const Tolerance& tolerance)
{
    const auto areSame = [&](const TMR3DPnt& a, const TMR3DPnt& b) {
        return tolerance.AreSamePoints(a, b);
    };
    if (count < 2 || std::equal(before, before + count, after, areSame)) return false;
    int starts = 0;
    for (int start = 1; start < count && starts < kMostStarts; ++start) {
        if (!areSame(before[0], after[start])) continue;
        ++starts;
        if (std::equal(before, before + (count - start), after + start, areSame) &&
            std::equal(before + (count - start), before + count, after, areSame)) {
            return true;
        }
    }
    return false;
}

void FieldComparison::ForgetCounts(std::size_t first, const std::string& path)
{
    const auto isCount = [&](const FieldChange& change) {
        return change.field.starts_with(path) &&
               IsCount(std::string_view(change.field).substr(path.size()));
    };
    changes_.erase(std::remove_if(changes_.begin() + static_cast<std::ptrdiff_t>(first),
                                  changes_.end(), isCount),
                   changes_.end());
}

}  // namespace tamur::host
