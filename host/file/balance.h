// The lines of a file, all of them, and what became of each.
#pragma once

#include <array>
#include <cstdint>
#include <map>

#include "host/findings/finding.h"
#include "import/file/section_header.h"

namespace tamur::host {

// The lines of one kind of record.
struct KindBalance {
    std::uint64_t lines = 0;
    std::uint64_t records = 0;
    std::map<Code, std::uint64_t> dropped;  // by the reason

    [[nodiscard]] bool AddsUp() const;
};

// The lines under one header, by the text of the file and by what the import read.
struct SectionBalance {
    std::uint64_t inFile = 0;
    std::uint64_t empty = 0;
    std::uint64_t data = 0;
    std::uint64_t notRead = 0;

    [[nodiscard]] bool AddsUp() const { return inFile == empty + data + notRead; }
};

struct Balance {
    std::uint64_t lines = 0;     // of the file
    std::uint64_t cutRests = 0;  // what is beyond 49999 characters is one more line each time
    std::uint64_t headers = 0;
    std::uint64_t beforeHeaders = 0;
    std::uint64_t foreign = 0;   // in sections that are unknown or there once more
    std::uint64_t afterEnd = 0;  // after Ctrl-Z
    std::array<SectionBalance, kSectionHeaders.size()> sections;
    // By the kind of record; the first has lines that are of no kind.
    std::array<KindBalance, kKindCount> kinds;

    [[nodiscard]] SectionBalance& Of(SectionHeader section)
    {
        return sections[static_cast<std::size_t>(section)];
    }
    [[nodiscard]] KindBalance& Of(Kind kind) { return kinds[static_cast<std::size_t>(kind)]; }
    [[nodiscard]] const KindBalance& Of(Kind kind) const
    {
        return kinds[static_cast<std::size_t>(kind)];
    }

    // Whether no line is unaccounted for.
    [[nodiscard]] bool AddsUp() const;
};

// "#Version" to "#Rigide": one line is read of each.
[[nodiscard]] constexpr bool IsSetting(SectionHeader section)
{
    return section <= SectionHeader::kRigidity;
}

}  // namespace tamur::host
