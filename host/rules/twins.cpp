// What is there twice under different identifiers, and numbers that are given twice.
#include <algorithm>
#include <map>

#include "host/rules/rule.h"

namespace tamur::host {
namespace {

struct Outline {
    std::uint64_t hash;
    std::int64_t identifier;
    Index place;
};

std::vector<Index> SortedCorners(const Structure& structure, const Element& element)
{
    const auto corners = structure.CornersOf(element);
    std::vector<Index> sorted(corners.begin(), corners.end());
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

// The same for the same corners, in whatever order, of elements of a kind.
std::uint64_t HashOf(const Structure& structure, const Element& element)
{
    std::uint64_t hash = static_cast<std::uint64_t>(element.kind);
    for (const Index corner : structure.CornersOf(element)) {
        const std::uint64_t mixed = (corner + std::uint64_t{1}) * 0x9E3779B97F4A7C15;
        hash += mixed ^ mixed >> 29;
    }
    return hash;
}

// Elements of a kind that have the same corners as one with a smaller identifier.
template <class Elements>
void ReportTwins(const Structure& structure, const Elements& elements, Code code, Report& report)
{
    std::vector<Outline> outlines;
    outlines.reserve(elements.size());
    for (Index i = 0; i < elements.size(); ++i) {
        if (!elements[i].isUsable || elements[i].cornerCount == 0) continue;
        outlines.push_back({HashOf(structure, elements[i]), elements[i].identifier, i});
    }
    std::sort(outlines.begin(), outlines.end(), [](const Outline& a, const Outline& b) {
        return a.hash != b.hash ? a.hash < b.hash : a.identifier < b.identifier;
    });
    std::size_t first = 0;
    for (std::size_t i = 1; i < outlines.size(); ++i) {
        if (outlines[i].hash != outlines[first].hash) {
            first = i;
            continue;
        }
        // Of the same record twice the identifier is said.
        if (outlines[i].identifier == outlines[i - 1].identifier) continue;
        const auto& element = elements[outlines[i].place];
        const auto& other = elements[outlines[first].place];
        if (element.kind != other.kind ||
            SortedCorners(structure, element) != SortedCorners(structure, other)) {
            continue;
        }
        report.Add(code, element, [&other] { return Values{std::to_string(other.identifier)}; });
    }
}

}  // namespace

void CheckSameSurfaces(const Model& model, Report& report)
{
    ReportTwins(model.structure, model.structure.surfaces, Code::kDuplicateSurface, report);
}

void CheckSameSupports(const Model& model, Report& report)
{
    ReportTwins(model.structure, model.structure.supports, Code::kDuplicateSupport, report);
}

void CheckCaseNumbers(const Model& model, Report& report)
{
    std::map<int, std::vector<Index>> ranks;
    for (Index rank = 0; rank < model.cases.cases.size(); ++rank) {
        ranks[model.cases.cases[rank].number].push_back(rank);
    }
    for (const auto& [number, of] : ranks) {
        if (of.size() < 2) continue;
        report.Add(Code::kCaseNumberTwice, {Kind::kCase, of[1], number},
                   [count = of.size()] { return Values{std::to_string(count)}; });
    }
}

}  // namespace tamur::host
