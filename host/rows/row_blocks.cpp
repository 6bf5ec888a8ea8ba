#include "host/rows/row_blocks.h"

#include <algorithm>
#include <cstring>

namespace tamur::host {
namespace {

// How many of the values are stored. Minus zero is not left out.
template <class Value>
std::size_t StoredOf(std::span<const Value> values, std::size_t keptZeros)
{
    const Value zero = {};
    std::size_t end = values.size();
    while (end > 0 && std::memcmp(&values[end - 1], &zero, sizeof zero) == 0) --end;
    return std::min(values.size(), end + keptZeros);
}

template <class Value>
std::span<const Value> SpanOf(const Value* values, int count)
{
    return {values, values == nullptr || count < 0 ? 0 : static_cast<std::size_t>(count)};
}

template <class Value, class Kept>
TamurList Store(std::span<const Value> values, std::vector<Kept>& block)
{
    const std::size_t stored = StoredOf(values, kStoredZeros);
    const TamurList list = {block.size(), static_cast<std::uint32_t>(stored),
                            static_cast<std::int32_t>(values.size())};
    block.insert(block.end(), values.begin(), values.begin() + static_cast<std::ptrdiff_t>(stored));
    return list;
}

}  // namespace

TamurList RowBlocks::AddList(const double* values, int count)
{
    return Store(SpanOf(values, count), reals_);
}

TamurList RowBlocks::AddList(const int* values, int count)
{
    return Store(SpanOf(values, count), integers_);
}

TamurList RowBlocks::AddPoints(const TMR3DPlanarElement& polygon)
{
    const auto points = SpanOf<TMR3DPnt>(polygon.tabPoints, polygon.nbPoints);
    const auto stored = StoredOf(points, kStoredZeros);
    const TamurList list = {reals_.size(), static_cast<std::uint32_t>(stored),
                            static_cast<std::int32_t>(points.size())};
    for (const TMR3DPnt& point : points.first(stored)) {
        reals_.insert(reals_.end(), {point.x, point.y, point.z});
    }
    return list;
}

TamurList RowBlocks::AddLabels(const TMRElementLabels& labels)
{
    const auto texts = SpanOf<BSTR>(labels.tabLabels, labels.nbLabels);
    std::size_t end = texts.size();
    while (end > 0 && SysStringLen(texts[end - 1]) == 0) --end;
    const std::uint64_t start = BeginList();
    for (const BSTR text : texts.first(end)) AddToList(AddText(text));
    return EndList(start, static_cast<int>(texts.size()));
}

TamurList RowBlocks::EndList(std::uint64_t start, int announced) const
{
    return {start, static_cast<std::uint32_t>(integers_.size() - start), announced};
}

}  // namespace tamur::host
