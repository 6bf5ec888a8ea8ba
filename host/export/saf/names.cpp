#include "host/export/saf/names.h"

#include <tamur/utf8.h>

#include <array>
#include <cstdio>

namespace tamur::host::saf {
namespace {

// Names stand in lists, and a cell has an end.
constexpr std::size_t kLongest = 60;

std::string Cleaned(std::string_view name)
{
    std::string out;
    for (std::size_t i = 0; i < kLongest && !name.empty(); ++i) {
        const std::uint32_t c = utf::Take(name);
        const bool separates = c == ';' || c == ',' || c == ':' || c == '|';
        utf::Append(out, separates || c < 0x20 || c == 0x7F ? '_' : c);
    }
    const std::size_t first = out.find_first_not_of(' ');
    if (first == std::string::npos) return "";
    return out.substr(first, out.find_last_not_of(' ') - first + 1);
}

}  // namespace

std::string Names::Take(std::string_view wanted, const std::string& otherwise)
{
    std::string name = Cleaned(wanted);
    if (!name.empty() && taken_.insert(name).second) return name;
    name = otherwise;
    if (taken_.insert(name).second) return name;
    int& number = lastNumbers_.try_emplace(otherwise, 1).first->second;
    do {
        name = otherwise + '-' + std::to_string(++number);
    } while (!taken_.insert(name).second);
    return name;
}

void AddToList(std::string& list, const std::string& name)
{
    if (!list.empty()) list += "; ";
    list += name;
}

std::string Ids::Take(Kind kind, std::int64_t identifier, int part)
{
    // Version 8: as its maker likes, here the kind, the part and the identifier.
    std::array<char, 40> text;
    (void)std::snprintf(text.data(), text.size(), "7a6d7572-%04x-8%03x-8%03x-0000%08x",
                        static_cast<unsigned>(kind), static_cast<unsigned>(part >> 12) & 0xFFF,
                        static_cast<unsigned>(part) & 0xFFF,
                        static_cast<unsigned>(identifier & 0xFFFFFFFF));
    std::string id(text.data());
    return taken_.insert(id).second ? id : std::string();
}

}  // namespace tamur::host::saf
