#include "accessors/host_copy.h"

namespace tamur {

TMR3DPlanarElement HostCopy::Polygon(const tamur::Polygon& polygon)
{
    static_assert(sizeof(Point) == sizeof(TMR3DPnt));
    return {polygon.count,
            Array(reinterpret_cast<const TMR3DPnt*>(polygon.corners), polygon.count)};
}

}  // namespace tamur
