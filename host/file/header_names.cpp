#include "host/file/header_names.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>
#include <vector>

#include "host/file/texts.h"
#include "import/scan/characters.h"

namespace tamur::host {
namespace {

struct Spelling {
    std::string_view bytes;
    char letter;
};

// "é", "è" and "É" in UTF-8, Windows-1252 and code page 850.
constexpr Spelling kAccents[] = {
    {"\xC3\xA9", 'e'}, {"\xC3\xA8", 'e'}, {"\xC3\x89", 'e'}, {"\xE9", 'e'}, {"\xE8", 'e'},
    {"\xC9", 'e'},     {"\x82", 'e'},     {"\x8A", 'e'},     {"\x90", 'e'},
};

// The first word in lower case and without accents; blanks right after the "#" are passed over.
std::string Folded(std::string_view line)
{
    std::string folded;
    if (line.starts_with(kUtf8Mark)) line.remove_prefix(kUtf8Mark.size());
    while (!line.empty() && line[0] != '\0') {
        const auto accent = std::find_if(
            std::begin(kAccents), std::end(kAccents),
            [&](const Spelling& spelling) { return line.starts_with(spelling.bytes); });
        if (accent != std::end(kAccents)) {
            folded += accent->letter;
            line.remove_prefix(accent->bytes.size());
            continue;
        }
        const char c = line[0];
        line.remove_prefix(1);
        if (IsBlank(c) && (folded.empty() || folded == "#")) continue;
        if (IsBlank(c)) break;
        folded += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    }
    return folded;
}

// How many letters must be put in, left out or exchanged.
std::size_t Distance(std::string_view a, std::string_view b)
{
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t k = 0; k < b.size(); ++k) {
            const std::size_t exchanged = diagonal + (a[i] == b[k] ? 0 : 1);
            diagonal = row[k + 1];
            row[k + 1] = std::min({exchanged, row[k] + 1, row[k + 1] + 1});
        }
    }
    return row[b.size()];
}

// Short headers are like many words.
std::size_t MostLetters(std::string_view header)
{
    return header.size() >= 7 ? 2 : header.size() >= 4 ? 1 : 0;
}

constexpr std::size_t kLongestMeant = 24;

}  // namespace

SectionHeader PlainOf(SectionHeader header)
{
    switch (header) {
        case SectionHeader::kMaterialsAccented: return SectionHeader::kMaterials;
        case SectionHeader::kGeometriesAccented: return SectionHeader::kGeometries;
        case SectionHeader::kElementsAccented: return SectionHeader::kElements;
        default: return header;
    }
}

std::string DisplayOf(SectionHeader header)
{
    std::string display;
    for (const char c : TextOf(header)) {
        constexpr char kAccented = '\x82';
        display += c == kAccented ? std::string("é") : std::string(1, c);
    }
    return display;
}

std::string_view PlainTextOf(SectionHeader header)
{
    return tamur::TextOf(PlainOf(header));
}

std::optional<SectionHeader> HeaderMeantBy(std::string_view line)
{
    const std::string folded = Folded(line.substr(0, 4 * kLongestMeant));
    if (folded.size() > kLongestMeant || !folded.starts_with('#')) return std::nullopt;
    std::optional<SectionHeader> meant;
    std::size_t least = kLongestMeant;
    for (std::size_t i = 0; i < kSectionHeaders.size(); ++i) {
        const auto header = static_cast<SectionHeader>(i);
        if (PlainOf(header) != header) continue;
        const std::string wanted = Folded(tamur::TextOf(header));
        const std::size_t distance = Distance(folded, wanted);
        if (distance > MostLetters(wanted) || distance >= least) continue;
        least = distance;
        meant = header;
    }
    return meant;
}

}  // namespace tamur::host
