// Values that no structure has, and those that are likely in another unit.
#include <algorithm>

#include "host/rules/rule.h"
#include "host/structure/tolerances.h"

namespace tamur::host {
namespace {

// Newtons and metres. Nothing that carries is softer; stiffer is what stands for rigid.
constexpr double kSoftest = 1e7;
// From concrete upwards nothing is as light as its mass in kg; nothing at all as in kN.
constexpr double kStiff = 1.9e10, kLightestOfStiff = 8000, kLightest = 1000;
constexpr double kLargestArea = 50, kThickest = 10, kLongest = 300;
constexpr double kGreatestValue = 1e30;

bool IsNot(bool isTrue)
{
    return !isTrue;
}

template <class Places>
std::vector<bool> UsedOf(std::size_t count, const Places& places)
{
    std::vector<bool> used(count);
    places([&](Index place) {
        if (place != kNone) used[place] = true;
    });
    return used;
}

struct Speaker {
    Report& report;
    About about;
    const std::string& name;

    void Say(Code code, double value) const
    {
        report.Add(code, about, [&] { return Values{name, Number(value)}; });
    }
};

void CheckMaterial(const Material& material, const Speaker& speaker)
{
    const double e = material.modulus, weight = material.weight;
    // Written so that what is not a number fails.
    const bool isStiff = e > 0 && std::isfinite(e);
    if (!isStiff) {
        speaker.Say(Code::kBadModulus, e);
    } else if (e < kSoftest) {
        speaker.Say(Code::kUnitOfModulus, e);
    }
    if (IsNot(material.poisson >= 0 && material.poisson < 0.5)) {
        speaker.Say(Code::kBadPoisson, material.poisson);
    }
    if (IsNot(weight >= 0 && std::isfinite(weight))) {
        speaker.Say(Code::kBadWeight, weight);
    } else if (weight > 0 && (weight < kLightest || (e >= kStiff && weight < kLightestOfStiff))) {
        speaker.Say(Code::kUnitOfWeight, weight);
    }
}

void CheckSection(const Section& section, const Speaker& speaker)
{
    const double area = section.constants[0];
    if (IsNot(area > 0 && std::isfinite(area))) {
        speaker.Say(Code::kBadArea, area);
    } else if (area > kLargestArea) {
        speaker.Say(Code::kUnitOfSection, area);
    }
    const auto* const end = section.constants.begin() + 6;
    const auto* const bad = std::find_if(section.constants.begin() + 1, end, [](double value) {
        return IsNot(value >= 0 && std::isfinite(value));
    });
    if (bad != end) speaker.Say(Code::kBadInertia, *bad);
}

template <class Elements>
void CheckCoordinatesOf(const Structure& structure, const Elements& elements, Report& report)
{
    for (const auto& element : elements) {
        if (element.isUsable) continue;
        report.Add(Code::kAbsurdCoordinate, element,
                   [&] { return Values{Number(structure.absurd.at(element.firstCorner))}; });
    }
}

template <class Numbers>
void CheckNumbers(const Numbers& numbers, const About& about, Report& report)
{
    for (const double value : numbers) {
        if (std::abs(value) <= kGreatestValue) continue;
        return report.Add(Code::kAbsurdValue, about, [&] { return Values{Number(value)}; });
    }
}

}  // namespace

void CheckMaterials(const Model& model, Report& report)
{
    const Structure& structure = model.structure;
    const auto used = UsedOf(structure.materials.size(), [&](const auto& mark) {
        for (const Bar& bar : structure.bars) mark(bar.material);
        for (const Surface& surface : structure.surfaces) mark(surface.material);
    });
    for (Index rank = 0; rank < structure.materials.size(); ++rank) {
        const Material& material = structure.materials[rank];
        const About about(Kind::kMaterial, rank, Finding::kNoIdentifier);
        if (used[rank]) CheckMaterial(material, {report, about, material.name});
    }
}

void CheckSections(const Model& model, Report& report)
{
    const Structure& structure = model.structure;
    const auto used = UsedOf(structure.sections.size(), [&](const auto& mark) {
        for (const Bar& bar : structure.bars) {
            mark(bar.startSection);
            mark(bar.endSection);
        }
    });
    for (Index rank = 0; rank < structure.sections.size(); ++rank) {
        const Section& section = structure.sections[rank];
        const About about(Kind::kSection, rank, Finding::kNoIdentifier);
        if (used[rank]) CheckSection(section, {report, about, section.name});
    }
}

void CheckThicknesses(const Model& model, Report& report)
{
    for (const Surface& surface : model.structure.surfaces) {
        const double thickness = surface.thickness;
        const auto values = [thickness] { return Values{LengthText(thickness)}; };
        if (IsNot(thickness > 0 && std::isfinite(thickness))) {
            report.Add(Code::kBadThickness, surface, values);
        } else if (thickness > kThickest) {
            report.Add(Code::kUnitOfThickness, surface, values);
        }
    }
}

void CheckCoordinates(const Model& model, Report& report)
{
    const Structure& s = model.structure;
    if (s.absurd.empty()) return;
    CheckCoordinatesOf(s, s.nodes, report);
    CheckCoordinatesOf(s, s.bars, report);
    CheckCoordinatesOf(s, s.surfaces, report);
    CheckCoordinatesOf(s, s.openings, report);
    CheckCoordinatesOf(s, s.walls, report);
    CheckCoordinatesOf(s, s.cables, report);
    CheckCoordinatesOf(s, s.innerLines, report);
    CheckCoordinatesOf(s, s.supports, report);
    CheckCoordinatesOf(s, s.loads, report);
    CheckCoordinatesOf(s, s.masses, report);
    CheckCoordinatesOf(s, s.displacements, report);
}

void CheckLoadValues(const Model& model, Report& report)
{
    const Structure& structure = model.structure;
    for (const auto* list : {&structure.loads, &structure.masses, &structure.displacements}) {
        for (const Load& load : *list) {
            CheckNumbers(load.values, load, report);
            CheckNumbers(std::array{load.intensity}, load, report);
        }
    }
    for (const Support& support : structure.supports) {
        CheckNumbers(support.stiffness, support, report);
    }
    for (const GroupLoad& load : structure.groupLoads) {
        CheckNumbers(load.values, {load.kind, load.rank, load.identifier}, report);
    }
}

void CheckUnitOfLength(const Model& model, Report& report)
{
    std::vector<double> lengths;
    for (const Bar& bar : model.structure.bars) {
        if (bar.isUsable) lengths.push_back(bar.length);
    }
    if (lengths.empty()) return;
    const auto middle = lengths.begin() + static_cast<std::ptrdiff_t>(lengths.size() / 2);
    std::nth_element(lengths.begin(), middle, lengths.end());
    if (*middle > kLongest) {
        report.Add(Code::kUnitOfLength, {}, [&] { return Values{LengthText(*middle)}; });
    }
}

}  // namespace tamur::host
