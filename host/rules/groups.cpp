// Groups, and what names them.
#include <algorithm>
#include <map>
#include <set>

#include "host/rules/rule.h"

namespace tamur::host {
namespace {

// What a group gathers, as the numbers of its first column say; 0 for what has no groups.
int GroupKindOf(Kind kind)
{
    switch (kind) {
        case Kind::kPointSupport: return 1;
        case Kind::kBar: return 2;
        case Kind::kSurface: return 3;
        case Kind::kSurfaceSupport: return 4;
        case Kind::kLineSupport: return 5;
        default: return 0;
    }
}

struct Users {
    std::size_t count = 0;
    About first;  // that with the smallest identifier
};
// By kind and number of the group.
using UsersOfGroups = std::map<std::pair<int, int>, Users>;

template <class Elements>
void AddUsers(const Elements& elements, UsersOfGroups& groups)
{
    for (const auto& element : elements) {
        Users& users = groups[{GroupKindOf(element.kind), element.group}];
        if (users.count++ == 0 || element.identifier < users.first.identifier) {
            users.first = element;
        }
    }
}

UsersOfGroups UsersOf(const Structure& structure)
{
    UsersOfGroups groups;
    AddUsers(structure.bars, groups);
    AddUsers(structure.surfaces, groups);
    AddUsers(structure.supports, groups);
    return groups;
}

// The number that is missed may be one that was misread.
bool AreGroupsMisread(const Structure& structure, const Report& report)
{
    for (Index rank = 0; rank < structure.groups.size(); ++rank) {
        if (report.IsMisread({Kind::kGroup, rank, structure.groups[rank].number})) return true;
    }
    return false;
}

}  // namespace

void CheckGroups(const Model& model, Report& report)
{
    const Structure& structure = model.structure;
    // Without any group they are not in use.
    if (structure.groups.empty()) return;
    UsersOfGroups users = UsersOf(structure);
    std::map<std::pair<int, int>, std::vector<Index>> groups;
    for (Index rank = 0; rank < structure.groups.size(); ++rank) {
        const Group& group = structure.groups[rank];
        groups[{group.elements, group.number}].push_back(rank);
    }
    for (const auto& [group, ranks] : groups) {
        const bool isFull = users.erase(group) > 0;
        if (ranks.size() > 1) {
            report.Add(Code::kGroupTwice, {Kind::kGroup, ranks[1], group.second},
                       [count = ranks.size()] { return Values{std::to_string(count)}; });
        }
        // Groups of what the reader does not know are not judged.
        if (isFull || group.first < 1 || group.first > 5) continue;
        report.Add(Code::kUnusedGroup, {Kind::kGroup, ranks[0], group.second},
                   [&, rank = ranks[0]] { return Values{structure.groups[rank].title}; });
    }
    if (AreGroupsMisread(structure, report)) return;
    for (const auto& [group, missed] : users) {
        report.Add(Code::kGroupNotThere, missed.first, [number = group.second, &of = missed] {
            return Values{std::to_string(number), std::to_string(of.count)};
        });
    }
}

void CheckGroupsOfLoads(const Model& model, Report& report)
{
    const std::vector<Group>& groups = model.structure.groups;
    if (AreGroupsMisread(model.structure, report)) return;
    for (const GroupLoad& load : model.structure.groupLoads) {
        // Where the import found the group, its place has replaced its number.
        const bool isPlace =
            load.group >= 1 && static_cast<std::size_t>(load.group) <= groups.size() &&
            groups[static_cast<std::size_t>(load.group) - 1].elements == load.groupKind;
        if (isPlace) continue;
        report.Add(Code::kLoadOnMissingGroup, {load.kind, load.rank, load.identifier}, [&] {
            return Values{std::to_string(load.group), std::to_string(load.groupKind)};
        });
    }
}

}  // namespace tamur::host
