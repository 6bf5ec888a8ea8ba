#include "accessors/host_copy.h"

namespace tamur {

TMR3DPlanarElement HostCopy::Polygon(const tamur::Polygon& polygon)
{
    static_assert(sizeof(Point) == sizeof(TMR3DPnt));
    const List<TMR3DPnt> corners = {reinterpret_cast<const TMR3DPnt*>(polygon.values), polygon.held,
                                    polygon.count};
    return {polygon.count, Array(corners)};
}

}  // namespace tamur
