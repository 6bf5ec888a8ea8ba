#include "host/export/selection.h"

#include <algorithm>
#include <charconv>
#include <set>
#include <string_view>

namespace tamur::host {
namespace {

struct GroupKind {
    std::string_view word;
    int elements;  // the column of a group
    Kind kind;
};
constexpr GroupKind kGroupKinds[] = {
    {"point-supports", 1, Kind::kPointSupport},
    {"bars", 2, Kind::kBar},
    {"surfaces", 3, Kind::kSurface},
    {"surface-supports", 4, Kind::kSurfaceSupport},
    {"line-supports", 5, Kind::kLineSupport},
};

using GroupNumber = std::pair<Kind, int>;

// Of "bars:3", whether there is a record of that group or only elements that name it.
std::optional<GroupNumber> NumberIn(std::string_view name)
{
    const std::size_t colon = name.find(':');
    if (colon == std::string_view::npos) return std::nullopt;
    for (const GroupKind& each : kGroupKinds) {
        if (name.substr(0, colon) != each.word) continue;
        const std::string_view digits = name.substr(colon + 1);
        int number = 0;
        const auto end = digits.data() + digits.size();
        const auto [stop, error] = std::from_chars(digits.data(), end, number);
        if (error == std::errc() && stop == end) return GroupNumber(each.kind, number);
    }
    return std::nullopt;
}

class Groups {
 public:
    Groups(const Structure& structure, const std::vector<std::string>& names)
    {
        for (const std::string& name : names) Add(structure, name);
    }

    [[nodiscard]] bool Has(Kind kind, int number) const
    {
        return numbers_.contains({kind, number});
    }
    // By the place of a group in its table, from 1, as group loads have it.
    [[nodiscard]] bool HasPlace(int place) const { return places_.contains(place); }

 private:
    void Add(const Structure& structure, const std::string& name)
    {
        const auto number = NumberIn(name);
        if (number) numbers_.insert(*number);
        bool isThere = number && HasElements(structure, *number);
        for (std::size_t i = 0; i < structure.groups.size(); ++i) {
            const Group& group = structure.groups[i];
            for (const GroupKind& each : kGroupKinds) {
                if (each.elements != group.elements) continue;
                if (group.title != name && number != GroupNumber(each.kind, group.number)) continue;
                isThere = true;
                numbers_.insert({each.kind, group.number});
                places_.insert(static_cast<int>(i) + 1);
            }
        }
        if (!isThere) {
            throw NotInModel(
                "there is no group " + name +
                    "; a group is named by its title, or as bars:3, surfaces:3, "
                    "point-supports:3, line-supports:3, surface-supports:3",
                "il n'y a pas de groupe " + name +
                    " ; un groupe se donne par son titre, ou comme bars:3, surfaces:3, "
                    "point-supports:3, line-supports:3, surface-supports:3");
        }
    }

    static bool HasElements(const Structure& structure, const GroupNumber& number)
    {
        const auto isOfIt = [&number](const auto& element) {
            return GroupNumber(element.kind, element.group) == number;
        };
        return std::any_of(structure.bars.begin(), structure.bars.end(), isOfIt) ||
               std::any_of(structure.surfaces.begin(), structure.surfaces.end(), isOfIt) ||
               std::any_of(structure.supports.begin(), structure.supports.end(), isOfIt);
    }

    std::set<GroupNumber> numbers_;
    std::set<int> places_;
};

// The numbers of those cases and of all that they are made of.
std::set<int> WithParts(const LoadCases& cases, const std::vector<int>& numbers)
{
    std::set<int> all;
    std::vector<int> open = numbers;
    while (!open.empty()) {
        const int number = open.back();
        open.pop_back();
        if (!all.insert(number).second) continue;
        for (const auto* list : {&cases.combinations, &cases.envelopes}) {
            for (const Combined& combined : *list) {
                if (combined.number != number) continue;
                open.insert(open.end(), combined.cases.begin(), combined.cases.end());
            }
        }
    }
    return all;
}

}  // namespace

Selection::Selection(const Structure& structure, const LoadCases& cases, const Wanted& wanted)
    : isAll_(wanted.IsAll())
{
    if (!wanted.groups.empty()) TakeGroups(structure, wanted.groups);
    if (!wanted.cases.empty()) TakeCases(structure, cases, wanted.cases);
}

std::size_t Selection::LeavesOut(Kind kind) const
{
    const auto& left = left_[static_cast<std::size_t>(kind)];
    return static_cast<std::size_t>(std::count(left.begin(), left.end(), true));
}

void Selection::Drop(Kind kind, std::size_t rank)
{
    auto& left = left_[static_cast<std::size_t>(kind)];
    if (left.size() <= rank) left.resize(rank + 1);
    left[rank] = true;
}

template <class Elements, class IsTaken>
void Selection::LeaveOut(const Elements& elements, IsTaken isTaken)
{
    for (const auto& element : elements) {
        if (!isTaken(element)) Drop(element.kind, element.rank);
    }
}

void Selection::TakeGroups(const Structure& structure, const std::vector<std::string>& names)
{
    const Groups groups(structure, names);
    const auto isOfGroup = [&groups](const auto& element) {
        return groups.Has(element.kind, element.group);
    };
    LeaveOut(structure.bars, isOfGroup);
    LeaveOut(structure.surfaces, isOfGroup);
    LeaveOut(structure.supports, isOfGroup);

    std::vector<bool> isTaken(structure.points.size());
    for (std::size_t point = 0; point < isTaken.size(); ++point) {
        const auto members = structure.membersAt[point];
        isTaken[point] = std::any_of(members.begin(), members.end(), [&](const Member& member) {
            return Takes(member.kind, structure.ElementOf(member).rank);
        });
    }
    const auto touches = [&](const Element& element) {
        const auto corners = structure.CornersOf(element);
        return std::any_of(corners.begin(), corners.end(),
                           [&isTaken](Index corner) { return corner != kNone && isTaken[corner]; });
    };
    for (const Support& support : structure.supports) {
        if (!Takes(support.kind, support.rank)) continue;
        for (const Index corner : structure.CornersOf(support)) {
            if (corner != kNone) isTaken[corner] = true;
        }
    }
    LeaveOut(structure.nodes, touches);
    LeaveOut(structure.masses, touches);
    LeaveOut(structure.displacements, touches);
    LeaveOut(structure.cables, touches);
    LeaveOut(structure.innerLines, touches);
    LeaveOut(structure.walls, touches);
    LeaveOut(structure.cuts, touches);
    LeaveOut(structure.constructionLines, touches);
    LeaveOut(structure.openings, [&](const Surface& opening) {
        return opening.surface != kNone &&
               Takes(Kind::kSurface, structure.surfaces[opening.surface].rank);
    });
    for (std::size_t i = 0; i < structure.loads.size(); ++i) {
        const auto carriers = structure.carriers[i];
        const Load& load = structure.loads[i];
        if (!std::any_of(carriers.begin(), carriers.end(), [&](const Member& member) {
                return Takes(member.kind, structure.ElementOf(member).rank);
            })) {
            Drop(load.kind, load.rank);
        }
    }
    LeaveOut(structure.groupLoads,
             [&groups](const GroupLoad& load) { return groups.HasPlace(load.group); });
}

void Selection::TakeCases(const Structure& structure, const LoadCases& cases,
                          const std::vector<int>& numbers)
{
    for (const int number : numbers) {
        if (!cases.byNumber.contains(number)) {
            const std::string text = std::to_string(number);
            throw NotInModel("there is no load case " + text, "il n'y a pas de cas " + text);
        }
    }
    const std::set<int> taken = WithParts(cases, numbers);
    const auto isOfCase = [&taken](const auto& load) { return taken.contains(load.loadCase); };
    LeaveOut(structure.loads, isOfCase);
    LeaveOut(structure.groupLoads, isOfCase);
}

}  // namespace tamur::host
