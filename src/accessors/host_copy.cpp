#include "accessors/host_copy.h"

namespace tamur {

TMRElementLabels HostCopy::Labels(tamur::Labels labels)
{
    const std::uint32_t count = labels.Count();
    if (count == 0) return {0, nullptr};
    BSTR* const block = static_cast<BSTR*>(Checked(CoTaskMemAlloc(count * sizeof(BSTR))));
    if (block != nullptr) {
        Text label = labels.First();
        for (std::uint32_t i = 0; i < count; ++i) {
            block[i] = const_cast<BSTR>(label.Data());
            label = TextAt(EndOf(label));
        }
    }
    return {static_cast<int>(count), block};
}

TMR3DPlanarElement HostCopy::Polygon(const tamur::Polygon& polygon)
{
    static_assert(sizeof(Point) == sizeof(TMR3DPnt));
    return {polygon.count,
            Array(reinterpret_cast<const TMR3DPnt*>(polygon.corners), polygon.count)};
}

}  // namespace tamur
