// Nodes, and identifiers of all that have one.
#include <algorithm>
#include <unordered_set>

#include "host/rules/rule.h"

namespace tamur::host {
namespace {

// How many elements, other than nodes, have a corner in each point.
std::vector<Index> UsesOf(const Structure& structure)
{
    std::vector<Index> uses(structure.points.size());
    for (const Index corner : structure.corners) {
        if (corner != kNone) ++uses[corner];
    }
    for (const Element& node : structure.nodes) {
        if (node.isUsable) --uses[structure.CornersOf(node)[0]];
    }
    return uses;
}

// Bars and supports may be turned towards a node that is nowhere else.
std::unordered_set<std::int64_t> OrientationNodes(const Structure& structure)
{
    std::unordered_set<std::int64_t> nodes;
    for (const Bar& bar : structure.bars) {
        if (bar.orientationNode != 0) nodes.insert(bar.orientationNode);
    }
    for (const Support& support : structure.supports) {
        if (support.orientationNode != 0) nodes.insert(support.orientationNode);
    }
    return nodes;
}

// As files are usually numbered.
template <class Elements>
bool AreAscending(const Elements& elements)
{
    return std::adjacent_find(elements.begin(), elements.end(), [](const auto& a, const auto& b) {
               return a.kind == b.kind && a.identifier >= b.identifier;
           }) == elements.end();
}

template <class Elements>
void CheckIdentifiersOf(const Elements& elements, Kind kind, Report& report)
{
    if (AreAscending(elements)) return;
    std::vector<std::pair<std::int64_t, Index>> used;
    for (const auto& element : elements) {
        if (kind != Kind::kNone && element.kind != kind) continue;
        used.emplace_back(element.identifier, element.rank);
    }
    std::sort(used.begin(), used.end());
    for (std::size_t i = 0, end = 0; i < used.size(); i = end) {
        while (end < used.size() && used[end].first == used[i].first) ++end;
        if (end - i < 2) continue;
        const Kind of = kind != Kind::kNone ? kind : elements[0].kind;
        report.Add(Code::kDuplicateIdentifier, {of, used[i + 1].second, used[i].first},
                   [&] { return Values{std::to_string(end - i)}; });
    }
}

}  // namespace

void CheckFreeNodes(const Model& model, Report& report)
{
    const Structure& structure = model.structure;
    if (!structure.isComplete || structure.nodes.empty()) return;
    std::vector<Element> lonely;
    for (const Element& node : structure.nodes) {
        if (node.isUsable && structure.membersAt[structure.CornersOf(node)[0]].empty()) {
            lonely.push_back(node);
        }
    }
    if (lonely.empty()) return;
    const std::vector<Index> uses = UsesOf(structure);
    const auto orientation = OrientationNodes(structure);
    for (const Element& node : lonely) {
        if (uses[structure.CornersOf(node)[0]] > 0) continue;
        if (!orientation.contains(node.identifier)) report.Add(Code::kFreeNode, node);
    }
}

void CheckCoincidentNodes(const Model& model, Report& report)
{
    const Structure& structure = model.structure;
    // The node of each point with the smallest identifier.
    std::vector<Index> firsts(structure.points.size(), kNone);
    const auto forEach = [&](const auto& use) {
        for (Index i = 0; i < structure.nodes.size(); ++i) {
            const Element& node = structure.nodes[i];
            if (node.isUsable) use(i, firsts[structure.CornersOf(node)[0]]);
        }
    };
    forEach([&](Index node, Index& first) {
        if (first == kNone ||
            structure.nodes[node].identifier < structure.nodes[first].identifier) {
            first = node;
        }
    });
    forEach([&](Index node, const Index& first) {
        // Of the same record twice the identifier is said.
        if (structure.nodes[node].identifier == structure.nodes[first].identifier) return;
        report.Add(Code::kCoincidentNodes, structure.nodes[node],
                   [&] { return Values{std::to_string(structure.nodes[first].identifier)}; });
    });
}

void CheckIdentifiers(const Model& model, Report& report)
{
    const Structure& s = model.structure;
    CheckIdentifiersOf(s.nodes, Kind::kNone, report);
    CheckIdentifiersOf(s.bars, Kind::kNone, report);
    CheckIdentifiersOf(s.surfaces, Kind::kNone, report);
    CheckIdentifiersOf(s.openings, Kind::kNone, report);
    CheckIdentifiersOf(s.walls, Kind::kNone, report);
    CheckIdentifiersOf(s.cables, Kind::kNone, report);
    CheckIdentifiersOf(s.innerLines, Kind::kNone, report);
    CheckIdentifiersOf(s.cuts, Kind::kNone, report);
    CheckIdentifiersOf(s.constructionLines, Kind::kNone, report);
    CheckIdentifiersOf(s.masses, Kind::kNone, report);
    CheckIdentifiersOf(s.displacements, Kind::kNone, report);
    for (const Kind kind : {Kind::kPointSupport, Kind::kLineSupport, Kind::kSurfaceSupport}) {
        CheckIdentifiersOf(s.supports, kind, report);
    }
    for (const Kind kind : {Kind::kPointLoad, Kind::kLineLoad, Kind::kSurfaceLoad}) {
        CheckIdentifiersOf(s.loads, kind, report);
    }
    for (const Kind kind : {Kind::kSelfWeight, Kind::kThermalLoad}) {
        CheckIdentifiersOf(s.groupLoads, kind, report);
    }
}

}  // namespace tamur::host
