#include "host/export/saf/labels.h"

#include <algorithm>

namespace tamur::host::saf {
namespace {

constexpr LossText kFurther = {
    LossType::kPartly,
    {"an object has one name: further labels are not written",
     "un objet a un seul nom : les autres étiquettes ne sont pas écrites"}};
constexpr LossText kOtherName = {
    LossType::kPartly,
    {"the name is not the label, which is taken, too long, or has characters that lists have",
     "le nom n'est pas l'étiquette, déjà prise, trop longue ou avec des caractères de liste"}};

}  // namespace

std::string NameOfElement(Model& model, Names& names, const Element& element,
                          const TMRElementLabels& labels, const char* letter)
{
    const std::string label =
        labels.nbLabels > 0 ? ToUtf8(ViewOf(labels.tabLabels[0])) : std::string();
    std::string name = names.Take(label, letter + std::to_string(element.identifier));
    if (labels.nbLabels > 1) model.Lose(element, kFurther);
    if (!label.empty() && name != label) model.Lose(element, kOtherName);
    return name;
}

std::vector<Index> DistinctCorners(const Structure& structure, const Element& element)
{
    const auto corners = structure.CornersOf(element);
    std::vector<Index> distinct(corners.begin(), corners.end());
    distinct.erase(std::unique(distinct.begin(), distinct.end()), distinct.end());
    while (distinct.size() > 1 && distinct.front() == distinct.back()) distinct.pop_back();
    return distinct;
}

std::optional<Outline> OutlineOfCorners(Model& model, const Element& element)
{
    if (!element.isUsable) return std::nullopt;
    const std::vector<Index> corners = DistinctCorners(model.structure, element);
    if (corners.size() < 3) return std::nullopt;
    Outline outline;
    for (const Index corner : corners) {
        AddToList(outline.nodes, model.PointName(corner));
        AddToList(outline.edges, "Line");
    }
    // A cell has an end; names are short, so this takes hundreds of corners.
    if (outline.nodes.size() > Workbook::kLongestText) return std::nullopt;
    return outline;
}

}  // namespace tamur::host::saf
