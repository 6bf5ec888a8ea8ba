#include <tamur/ranges.h>

#include "host/export/saf/labels.h"

namespace tamur::host::saf {
namespace {

constexpr LossText kFixity = {LossType::kNot,
                              {"fixity codes of nodes (blocage) are not documented",
                               "les codes de blocage des nœuds ne sont pas documentés"}};
constexpr LossText kSamePlace = {
    LossType::kPartly,
    {"nodes in the same place are one, with the name of the first",
     "les nœuds au même endroit n'en font qu'un, avec le nom du premier"}};
constexpr LossText kUnusable = {
    LossType::kNot, {"the coordinates cannot be meant", "les coordonnées sont impossibles"}};
constexpr LossText kMerged = {LossType::kAssumed,
                              {"points nearer to each other than the tolerance are one node",
                               "les points plus proches que la tolérance sont un seul nœud"}};

}  // namespace

void NamePoints(Model& model)
{
    const Structure& structure = model.structure;
    model.points.resize(structure.points.size());
    model.isPointUsed.resize(structure.points.size());
    model.report.losses.Add(Kind::kNone, kMerged);
    Names names;
    const auto records = Records<TMRNode>(model.source.reader);
    for (const Element& node : structure.nodes) {
        if (!model.Takes(node)) continue;
        if (!node.isUsable) {
            model.Lose(node, kUnusable);
            continue;
        }
        const auto record = records.At(static_cast<LONG>(node.rank));
        if (record->blocage != 0) model.Lose(node, kFixity);
        const Index point = structure.corners[node.firstCorner];
        if (!model.points[point].empty()) {
            model.Lose(node, kSamePlace);
            continue;
        }
        model.points[point] = NameOfElement(model, names, node, record->ElemLabels, "N");
        model.isPointUsed[point] = true;
    }
    for (std::size_t i = 0; i < model.points.size(); ++i) {
        if (model.points[i].empty()) model.points[i] = names.Take("", "P" + std::to_string(i + 1));
    }
}

void WritePoints(Model& model)
{
    const Structure& structure = model.structure;
    std::vector<const Element*> nodes(structure.points.size());
    for (const Element& node : structure.nodes) {
        if (!node.isUsable || !model.Takes(node)) continue;
        const Element*& first = nodes[structure.corners[node.firstCorner]];
        if (first == nullptr) first = &node;
    }
    for (std::size_t i = 0; i < model.points.size(); ++i) {
        if (!model.isPointUsed[i]) continue;
        Row row;
        row.Text(model.points[i]).Point(structure.points[i]);
        row.Text(nodes[i] == nullptr ? std::string()
                                     : model.ids.Take(Kind::kNode, nodes[i]->identifier));
        model.book.Add(model.layouts.point, row);
    }
}

}  // namespace tamur::host::saf
