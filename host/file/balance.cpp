#include "host/file/balance.h"

#include <algorithm>

namespace tamur::host {

bool KindBalance::AddsUp() const
{
    std::uint64_t accounted = records;
    for (const auto& [reason, count] : dropped) accounted += count;
    return lines == accounted;
}

bool Balance::AddsUp() const
{
    std::uint64_t inSections = 0, data = 0, ofKinds = 0;
    for (std::size_t i = 0; i < sections.size(); ++i) {
        inSections += sections[i].inFile;
        if (!IsSetting(static_cast<SectionHeader>(i))) data += sections[i].data;
    }
    for (const KindBalance& kind : kinds) ofKinds += kind.lines;
    const auto addsUp = [](const auto& part) { return part.AddsUp(); };
    return lines + cutRests == headers + beforeHeaders + foreign + afterEnd + inSections &&
           data == ofKinds && std::all_of(sections.begin(), sections.end(), addsUp) &&
           std::all_of(kinds.begin(), kinds.end(), addsUp);
}

}  // namespace tamur::host
