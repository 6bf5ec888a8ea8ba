// What a record copied for a host consists of.
#pragma once

#include <cstddef>
#include <cstring>

#include "TAMURReader.h"
#include "model/geometry.h"
#include "model/text.h"
#include "platform/platform.h"

namespace tamur {

// Makes the strings and blocks of one record, which belong to the host. What cannot be made is
// null, and noted.
class HostCopy {
 public:
    // A copy to be freed with SysFreeString; null stays null.
    [[nodiscard]] BSTR String(Text text)
    {
        if (text.IsNull()) return nullptr;
        return Checked(
            SysAllocStringByteLen(reinterpret_cast<const char*>(text.Data()), text.ByteLength()));
    }
    [[nodiscard]] BSTR String(WideView text)
    {
        return Checked(SysAllocStringLen(text.data(), static_cast<UINT>(text.size())));
    }

    // A copy to be freed with CoTaskMemFree: a block even when `count` is 0.
    template <class T>
    [[nodiscard]] T* Array(const T* values, std::int32_t count)
    {
        const std::size_t size = static_cast<std::size_t>(count) * sizeof(T);
        void* const block = Checked(CoTaskMemAlloc(size));
        if (block != nullptr && size != 0) std::memcpy(block, values, size);
        return static_cast<T*>(block);
    }

    // The block of pointers is a copy, null when there are no labels; the strings are lent.
    [[nodiscard]] TMRElementLabels Labels(tamur::Labels labels);
    [[nodiscard]] TMR3DPlanarElement Polygon(const tamur::Polygon& polygon);

    [[nodiscard]] bool HasFailed() const { return hasFailed_; }

 private:
    template <class Pointer>
    Pointer Checked(Pointer made)
    {
        if (made == nullptr) hasFailed_ = true;
        return made;
    }

    bool hasFailed_ = false;
};

// The public forms of what records hold by value.
inline TMR3DPnt ToPublic(const Point& point)
{
    return {point.x, point.y, point.z};
}
inline TMR3DLine ToPublic(const Segment& line)
{
    return {ToPublic(line.start), ToPublic(line.end)};
}

}  // namespace tamur
