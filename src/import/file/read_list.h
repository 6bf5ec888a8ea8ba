// Lists of values: their number in one column, the values in the following ones.
#pragma once

#include <algorithm>
#include <cstddef>

#include "import/file/model_file.h"
#include "import/scan/stream_scanner.h"
#include "model/arena.h"
#include "model/list.h"

namespace tamur {

// The count of a list as it is kept: as read, negative ones too, but 0 for one that no line can
// mean.
[[nodiscard]] inline std::int32_t ListCount(std::int32_t read, const ModelFile& file)
{
    if (read < 0 || read > kLargestCount) file.Report(Finding::kListCountIgnored);
    return read > kLargestCount ? 0 : read;
}

// The most values that so many characters hold: each but the first takes two, one of them a blank,
// a sign or a point.
constexpr std::size_t MostValues(std::size_t characters)
{
    return (characters + 1) / 2;
}

// The next values of the line, `count` of them or as many as it holds. Takes memory only for those.
template <class T>
[[nodiscard]] List<T> ReadList(StreamScanner& tokens, std::int32_t count, Arena& arena)
{
    List<T> list;
    list.count = count;
    if (count <= 0) return list;
    const std::size_t most = std::min(static_cast<std::size_t>(count), MostValues(tokens.Left()));
    T* const values = arena.ReserveArray<T>(most);
    for (; list.held < count; ++list.held) {
        T value = {};
        tokens >> value;
        if (tokens.Failed()) break;
        values[list.held] = value;
    }
    arena.CommitArray(values + list.held);
    if (list.held > 0) list.values = values;
    return list;
}

}  // namespace tamur
