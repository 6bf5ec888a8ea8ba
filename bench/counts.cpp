#include "counts.h"

#include <tamur/ranges.h>

#include <stdexcept>

#include "host/kinds.h"

namespace tamur::bench {
namespace {

// 0 for a table that is not compared.
std::size_t PlaceOf(host::Kind kind)
{
    switch (kind) {
        case host::Kind::kMaterial: return kMaterials;
        case host::Kind::kSection: return kSections;
        case host::Kind::kRelease: return kReleases;
        default: return static_cast<std::size_t>(host::ElementNumberOf(kind));
    }
}

std::string NameOf(std::size_t place)
{
    for (int i = 1; i < host::kKindCount; ++i) {
        const auto kind = static_cast<host::Kind>(i);
        if (PlaceOf(kind) == place) return std::string(host::TableNameOf(kind));
    }
    return "what has no table";
}

}  // namespace

Counts CountsOf(ITAMURStructureReader& reader)
{
    Counts counts = {};
    ForEachTable(reader, [&](const auto& table) {
        const std::size_t place = PlaceOf(host::KindOfTable(table.Name()));
        if (place != 0) counts[place] = table.Size();
    });
    return counts;
}

void RequireSame(const Counts& component, const Counts& reference, const std::string& name)
{
    for (std::size_t place = 0; place < component.size(); ++place) {
        if (reference[place] == component[place]) continue;
        throw std::runtime_error(name + " reads " + std::to_string(reference[place]) + " of " +
                                 NameOf(place) + ", the component " +
                                 std::to_string(component[place]));
    }
}

}  // namespace tamur::bench
