// Lists whose length a line announces.
#pragma once

#include <cstdint>

namespace tamur {

// The largest count that a line can announce and mean: a line has no more characters than that.
inline constexpr std::int32_t kLargestCount = 49999;

// A list as its line gives it: the number that the line announces, and the values that it holds.
// Only the latter take memory. What is announced and not there is zero, and is made where the list
// is copied for a host; a count below 0 stays as it is and announces nothing.
template <class T>
struct List {
    const T* values = nullptr;  // in an arena; null when there are none
    std::int32_t held = 0;
    std::int32_t count = 0;
};

}  // namespace tamur
