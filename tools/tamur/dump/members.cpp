#include "members.h"

#include <tamur/ranges.h>

#include <algorithm>
#include <stdexcept>

#include <host/row_names.h>

namespace tamur::tool {
namespace {

// What a member is called in the dump, as the contract has it, and where tables are handed over
// whole.
struct Name {
    const char* published;
    const char* row;
};

std::vector<Name> AllNames()
{
    std::vector<Name> names;
    ForEachTableType([&names](auto table) {
        using Table = decltype(table);
        names.push_back({Table::kName, host::kRowName<typename Table::PublicRecord>});
    });
    names.push_back({Members::kSettings, host::kRowName<TMRStructureData>});
    names.push_back({Members::kSkipped, "skipped_combinations"});
    names.push_back({Members::kModes, host::kRowName<TMRModes>});
    names.push_back({Members::kMessages, "messages"});
    return names;
}

bool IsSame(const std::string& name, const std::string& known)
{
    const auto plain = [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    };
    return std::equal(name.begin(), name.end(), known.begin(), known.end(),
                      [plain](char a, char b) { return plain(a) == plain(b); });
}

std::string PublishedName(const std::string& name)
{
    std::string known;
    for (const Name& each : AllNames()) {
        if (IsSame(name, each.published) || IsSame(name, each.row)) return each.published;
        known += (known.empty() ? "" : ", ") + std::string(each.row);
    }
    throw std::runtime_error("--select: " + name + " is none of: " + known);
}

}  // namespace

Members::Members(const std::vector<std::string>& names)
{
    for (const std::string& name : names) wanted_.insert(PublishedName(name));
}

}  // namespace tamur::tool
