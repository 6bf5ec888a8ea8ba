// Which records of two tables are the same, by numbers that stand for them.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace tamur::host {

struct Entry {
    std::uint64_t key;      // what it is called
    std::uint64_t content;  // a digest of all else, or of a part
    std::int32_t rank;
};
using Entries = std::vector<Entry>;

enum class By : std::uint8_t { kKey, kContent, kKeyAndContent };

// Takes pairs that agree out of both, and calls use(before, after) for each. Where several agree
// they are paired in the order of their keys and contents: the order of the tables does not matter,
// unless records are equal.
void TakePairs(By by, Entries& before, Entries& after,
               const std::function<void(const Entry&, const Entry&)>& use);

// Whether some key is there twice. Leaves the entries in another order.
[[nodiscard]] bool HasDoubles(Entries& entries);

}  // namespace tamur::host
