// What a record copied for a host consists of.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "TAMURReader.h"
#include "model/geometry.h"
#include "model/labels.h"
#include "model/list.h"
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
    [[nodiscard]] BSTR String(WideStringView text)
    {
        return Checked(SysAllocStringLen(text.data(), static_cast<UINT>(text.size())));
    }

    // A copy to be freed with CoTaskMemFree: a block even when the count is 0 or below. What the
    // list announces and does not hold is zero.
    template <class T>
    [[nodiscard]] T* Array(const List<T>& list)
    {
        const std::size_t count = list.count > 0 ? static_cast<std::size_t>(list.count) : 0;
        const std::size_t held = static_cast<std::size_t>(list.held);
        T* const block = static_cast<T*>(Checked(CoTaskMemAlloc(count * sizeof(T))));
        if (block == nullptr) return nullptr;
        if (held != 0) std::memcpy(block, list.values, held * sizeof(T));
        if (held != count) std::memset(block + held, 0, (count - held) * sizeof(T));
        return block;
    }
    template <class T>
    [[nodiscard]] T* Array(const T* values, std::int32_t count)
    {
        return Array(List<T>{values, count, count});
    }

    // The block of pointers is a copy, null when there are no labels; the strings are lent.
    template <class LabelsOfRecord>
    [[nodiscard]] TMRElementLabels Labels(const LabelsOfRecord& labels)
    {
        const LabelCounts counts = labels.Counts();
        if (counts.announced == 0) return {0, nullptr};
        BSTR* const block =
            static_cast<BSTR*>(Checked(CoTaskMemAlloc(counts.announced * sizeof(BSTR))));
        if (block != nullptr) {
            BSTR* next = block;
            labels.ForEach([&](Text label) { *next++ = const_cast<BSTR>(label.Data()); });
            std::fill(next, block + counts.announced, const_cast<BSTR>(kEmptyText.Data()));
        }
        return {counts.announced, block};
    }
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
