#include "host/export/saf/model.h"

#include "host/structure/contacts.h"

namespace tamur::host::saf {
namespace {

constexpr std::size_t kRowsAtLeast = 10000, kRowsOfEach = 50;

}  // namespace

Model::Model(const Source& from, ExportReport& to, Book& into)
    : source(from),
      structure(from.structure),
      report(to),
      book(into),
      rows(kRowsAtLeast +
           kRowsOfEach * (from.structure.bars.size() + from.structure.surfaces.size() +
                          from.structure.groupLoads.size())),
      steps(BudgetFor(from.structure.corners.size()))
{
    for (const Group& group : structure.groups) {
        layers_.try_emplace({group.elements, group.number}, group.title);
    }
    for (const Element& node : structure.nodes) {
        if (node.isUsable) {
            nodes_.try_emplace(node.identifier, structure.corners[node.firstCorner]);
        }
    }
}

const std::string& Model::LayerOf(int elements, int number) const
{
    static const std::string kNoTitle;
    const auto layer = layers_.find({elements, number});
    return layer == layers_.end() ? kNoTitle : layer->second;
}

const Point* Model::NodeAt(std::int64_t identifier) const
{
    const auto node = nodes_.find(identifier);
    return identifier == 0 || node == nodes_.end() ? nullptr : &structure.points[node->second];
}

}  // namespace tamur::host::saf
