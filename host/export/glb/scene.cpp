#include "host/export/glb/scene.h"

#include <cmath>

namespace tamur::host {

std::array<float, 4> QuaternionOf(const Frame& frame)
{
    // Columns of the matrix; whichever of the four is largest is found first, the others by it.
    const Point &x = frame.x, &y = frame.y, &z = frame.z;
    std::array<double, 4> q = {};
    const double trace = x.x + y.y + z.z;
    if (trace > 0) {
        q = {y.z - z.y, z.x - x.z, x.y - y.x, 1 + trace};
    } else if (x.x >= y.y && x.x >= z.z) {
        q = {1 + x.x - y.y - z.z, x.y + y.x, x.z + z.x, y.z - z.y};
    } else if (y.y >= z.z) {
        q = {x.y + y.x, 1 + y.y - x.x - z.z, y.z + z.y, z.x - x.z};
    } else {
        q = {x.z + z.x, y.z + z.y, 1 + z.z - x.x - y.y, x.y - y.x};
    }
    const double length = std::sqrt(q[0] * q[0] + q[1] * q[1] + q[2] * q[2] + q[3] * q[3]);
    std::array<float, 4> normalized = {};
    for (std::size_t i = 0; i < 4; ++i) normalized[i] = static_cast<float>(q[i] / length);
    return normalized;
}

}  // namespace tamur::host
