#include "context.h"

#include <algorithm>
#include <utility>

namespace tamur::bench {

Row Ratio(std::string what, const Samples& above, const Samples& below)
{
    Row row;
    row.what = std::move(what);
    row.measured = above.Median() / below.Median();
    row.spread = std::max(above.Spread(), below.Spread());
    return row;
}

}  // namespace tamur::bench
