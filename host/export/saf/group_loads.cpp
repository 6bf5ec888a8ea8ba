#include <tamur/ranges.h>

#include <algorithm>
#include <array>
#include <set>

#include "host/export/saf/cross_sections.h"
#include "host/export/saf/labels.h"

namespace tamur::host::saf {
namespace {

constexpr LossText kComputed = {
    LossType::kAssumed,
    {"self-weight of the whole model is computed by the receiver, from unit masses and areas",
     "le poids propre de tout le modèle est calculé par le destinataire, par les masses et aires"}};
constexpr LossText kAsLoads = {
    LossType::kPartly,
    {"self-weight of some groups, or in a case with other loads, is written as loads",
     "le poids propre de certains groupes, ou dans un cas avec d'autres charges, est écrit en "
     "charges"}};
constexpr LossText kNoGroup = {LossType::kNot,
                               {"there is no such group of bars or surfaces",
                                "il n'y a pas de tel groupe de filaires ou de surfaciques"}};
constexpr LossText kNoCase = {LossType::kNot,
                              {"its case is no load case", "son cas n'est pas un cas de charge"}};
constexpr LossText kTooMany = {
    LossType::kPartly,
    {"more rows for loads on groups than a model of this size can need: the others are not written",
     "plus de lignes pour des charges sur groupes qu'un tel modèle n'en peut vouloir : les autres "
     "ne sont pas écrites"}};
constexpr LossText kNoHeight = {
    LossType::kPartly,
    {"gradients of bars whose section has no outline are not written",
     "les gradients de filaires dont la section n'a pas de contour ne sont pas écrits"}};
constexpr LossText kGradients = {
    LossType::kAssumed,
    {"gradients are kelvins per metre, warmer towards +y and +z",
     "les gradients sont en kelvins par mètre, plus chaud vers +y et +z"}};

constexpr int kOfBars = 2, kOfSurfaces = 3;  // kinds of groups

using GroupNumber = std::pair<int, int>;  // the kind that it gathers, and its number

// What a load on a group names.
std::optional<GroupNumber> GroupOf(const Structure& structure, const GroupLoad& load)
{
    if (load.group < 1 || static_cast<std::size_t>(load.group) > structure.groups.size()) {
        return std::nullopt;
    }
    const Group& group = structure.groups[static_cast<std::size_t>(load.group) - 1];
    if (group.elements != load.groupKind) return std::nullopt;
    return GroupNumber(group.elements, group.number);
}

class GroupLoads {
 public:
    explicit GroupLoads(Model& model)
        : model_(model),
          structure_(model.structure),
          sections_(Records<TMRSectionGeometry>(model.source.reader))
    {
        for (Index i = 0; i < structure_.bars.size(); ++i) {
            if (!model.bars[i].empty()) {
                members_[{kOfBars, structure_.bars[i].group}].push_back(i);
            }
        }
        for (Index i = 0; i < structure_.surfaces.size(); ++i) {
            if (!model.surfaces[i].empty()) {
                members_[{kOfSurfaces, structure_.surfaces[i].group}].push_back(i);
            }
        }
    }

    void Write()
    {
        for (const GroupLoad& load : structure_.groupLoads) {
            if (model_.source.selection.Takes(load.kind, load.rank)) WriteLoad(load);
        }
    }

 private:
    void Lose(const LossText& text) { model_.report.losses.Add(load_->kind, text); }

    void WriteLoad(const GroupLoad& load)
    {
        load_ = &load;
        part_ = 0;
        if (load.kind == Kind::kSelfWeight && model_.selfWeightCases.contains(load.loadCase)) {
            return Lose(kComputed);
        }
        const auto loadCase = model_.cases.find(load.loadCase);
        if (loadCase == model_.cases.end()) return Lose(kNoCase);
        case_ = loadCase->second;
        const auto group = GroupOf(structure_, load);
        const auto members = group ? members_.find(*group) : members_.end();
        if (members == members_.end()) return Lose(kNoGroup);
        if (load.kind == Kind::kSelfWeight) Lose(kAsLoads);
        const bool isOnBars = group->first == kOfBars;
        for (const Index member : members->second) {
            if (!model_.rows.Spend(1)) return Lose(kTooMany);
            model_.report.steps.StopIfAsked();
            if (load.kind == Kind::kSelfWeight) {
                isOnBars ? AddWeightOfBar(member) : AddWeightOfSurface(member);
            } else {
                isOnBars ? AddTemperatureOfBar(member) : AddTemperatureOfSurface(member);
            }
        }
    }

    std::string NextName(const char* letter)
    {
        const std::string first = letter + std::to_string(load_->identifier);
        return names_.Take("", first + '.' + std::to_string(++part_));
    }
    std::string NextId() { return model_.ids.Take(load_->kind, load_->identifier, part_); }

    [[nodiscard]] double WeightOf(Index material) const
    {
        return structure_.materials[material == kNone ? 0 : material].weight;
    }
    [[nodiscard]] double AreaOf(Index section) const
    {
        return structure_.sections[section == kNone ? 0 : section].constants[0];
    }

    void AddWeightOfBar(Index index)
    {
        const Bar& bar = structure_.bars[index];
        const double first = AreaOf(bar.startSection) * WeightOf(bar.material) * 1e-3;
        const double last = AreaOf(bar.endSection) * WeightOf(bar.material) * 1e-3;
        for (std::size_t i = 0; i < 3; ++i) {
            const double factor = load_->values[i];
            if (factor == 0) continue;
            Row row;
            row.Text(NextName("SW")).Text("Standard").Text("On beam");
            row.Text(first == last ? "Uniform" : "Trapez").Text(kDirections[i]);
            row.Number(factor * first);
            if (first == last) {
                row.Skip();
            } else {
                row.Number(factor * last);
            }
            row.Text(model_.bars[index]).Text(case_).Text("Global").Text("Length");
            row.Text("Relative").Text("From start").Text("Full").Number(0).Number(1);
            row.Number(0).Number(0).Skip().Text(NextId());
            model_.book.Add(model_.layouts.lineAction, row);
        }
    }

    void AddWeightOfSurface(Index index)
    {
        const Surface& surface = structure_.surfaces[index];
        const double weight = surface.thickness * WeightOf(surface.material) * 1e-3;
        for (std::size_t i = 0; i < 3; ++i) {
            if (load_->values[i] == 0) continue;
            Row row;
            row.Text(NextName("SW")).Text(kDirections[i]).Text("Standard").Text("On 2D member");
            row.Number(load_->values[i] * weight).Text(model_.surfaces[index]).Text(case_);
            row.Text("Global").Text("Length").Skip().Text(NextId());
            model_.book.Add(model_.layouts.surfaceAction, row);
        }
    }

    Box BoxOfBar(const Bar& bar)
    {
        const Index section = bar.startSection == kNone ? 0 : bar.startSection;
        const auto known = boxes_.find(section);
        if (known != boxes_.end()) return known->second;
        const Box box = BoxOf(*sections_.At(static_cast<LONG>(section)));
        return boxes_.emplace(section, box).first->second;
    }

    void AddTemperatureOfBar(Index index)
    {
        const Bar& bar = structure_.bars[index];
        const auto [mean, byY, byZ] = load_->values;
        const Box box = byY == 0 && byZ == 0 ? Box() : BoxOfBar(bar);
        const bool isLinear = (byY != 0 || byZ != 0) && box.height > 0;
        if (byY != 0 || byZ != 0) Lose(isLinear ? kGradients : kNoHeight);
        Row row;
        row.Text(NextName("LT")).Text("On beam").Text(isLinear ? "Linear" : "Constant");
        if (isLinear) {
            const double aside = byY * box.width / 2, above = byZ * box.height / 2;
            row.Skip().Number(mean + aside).Number(mean - aside);
            row.Number(mean + above).Number(mean - above);
        } else {
            row.Number(mean).Skip(4);
        }
        row.Text(model_.bars[index]).Text(case_);
        row.Text("Relative").Text("From start").Number(0).Number(1);
        row.Skip().Text(NextId());
        model_.book.Add(model_.layouts.barTemperature, row);
    }

    void AddTemperatureOfSurface(Index index)
    {
        const auto [mean, byY, byZ] = load_->values;
        const double above = byZ * structure_.surfaces[index].thickness / 2;
        if (byY != 0 || byZ != 0) Lose(kGradients);
        Row row;
        row.Text(NextName("ST")).Text(byZ == 0 ? "Constant" : "Linear").Number(mean + above);
        if (byZ == 0) {
            row.Skip();
        } else {
            row.Number(mean - above);
        }
        row.Text(model_.surfaces[index]).Text(case_).Skip().Text(NextId());
        model_.book.Add(model_.layouts.surfaceTemperature, row);
    }

    static constexpr std::array<const char*, 3> kDirections = {"X", "Y", "Z"};

    Model& model_;
    const Structure& structure_;
    Range<TMRSectionGeometry> sections_;
    std::map<Index, Box> boxes_;                         // of sections
    std::map<GroupNumber, std::vector<Index>> members_;  // that are written
    Names names_;
    const GroupLoad* load_ = nullptr;
    std::string case_;
    int part_ = 0;
};

}  // namespace

void FindSelfWeightCases(Model& model)
{
    const Structure& structure = model.structure;
    std::set<GroupNumber> groups;  // of what is written
    for (std::size_t i = 0; i < structure.bars.size(); ++i) {
        if (!model.bars[i].empty()) groups.insert({kOfBars, structure.bars[i].group});
    }
    for (std::size_t i = 0; i < structure.surfaces.size(); ++i) {
        if (!model.surfaces[i].empty()) groups.insert({kOfSurfaces, structure.surfaces[i].group});
    }
    std::set<int> others;
    for (const Load& load : structure.loads) others.insert(load.loadCase);
    std::map<int, std::set<GroupNumber>> covered;
    for (const GroupLoad& load : structure.groupLoads) {
        if (!model.source.selection.Takes(load.kind, load.rank)) continue;
        const auto group = GroupOf(structure, load);
        const bool isDown = load.values == std::array<double, 3>{0, 0, -1};
        const bool isWeight = load.kind == Kind::kSelfWeight && isDown && group;
        if (!isWeight || !covered[load.loadCase].insert(*group).second) {
            others.insert(load.loadCase);
        }
    }
    for (const auto& [loadCase, numbers] : covered) {
        if (!others.contains(loadCase) &&
            std::includes(numbers.begin(), numbers.end(), groups.begin(), groups.end())) {
            model.selfWeightCases.insert(loadCase);
        }
    }
}

void WriteGroupLoads(Model& model)
{
    GroupLoads(model).Write();
}

}  // namespace tamur::host::saf
