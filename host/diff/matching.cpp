#include "host/diff/matching.h"

#include <algorithm>
#include <tuple>

namespace tamur::host {
namespace {

using Agreement = std::tuple<std::uint64_t, std::uint64_t>;

Agreement AgreementOf(By by, const Entry& entry)
{
    switch (by) {
        case By::kKey: return {entry.key, 0};
        case By::kContent: return {entry.content, 0};
        default: return {entry.key, entry.content};
    }
}

void Sort(By by, Entries& entries)
{
    std::sort(entries.begin(), entries.end(), [by](const Entry& a, const Entry& b) {
        return std::tuple(AgreementOf(by, a), a.key, a.content, a.rank) <
               std::tuple(AgreementOf(by, b), b.key, b.content, b.rank);
    });
}

}  // namespace

void TakePairs(By by, Entries& before, Entries& after,
               const std::function<void(const Entry&, const Entry&)>& use)
{
    Sort(by, before);
    Sort(by, after);
    std::size_t i = 0, j = 0, leftBefore = 0, leftAfter = 0;
    while (i < before.size() && j < after.size()) {
        const Agreement a = AgreementOf(by, before[i]);
        const Agreement b = AgreementOf(by, after[j]);
        if (a < b) {
            before[leftBefore++] = before[i++];
        } else if (b < a) {
            after[leftAfter++] = after[j++];
        } else {
            use(before[i++], after[j++]);
        }
    }
    before.erase(before.begin() + static_cast<std::ptrdiff_t>(leftBefore),
                 before.begin() + static_cast<std::ptrdiff_t>(i));
    after.erase(after.begin() + static_cast<std::ptrdiff_t>(leftAfter),
                after.begin() + static_cast<std::ptrdiff_t>(j));
}

bool HasDoubles(Entries& entries)
{
    Sort(By::kKey, entries);
    return std::adjacent_find(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
               return a.key == b.key;
           }) != entries.end();
}

}  // namespace tamur::host
