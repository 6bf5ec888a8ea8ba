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
// Heavier than soil, or as heavy as wood, and softer than either: stiffness in kN.
constexpr double kHeavy = 22500, kSoftestHeavy = 1e9;
constexpr double kLightestWood = 3000, kHeaviestWood = 9000, kSoftestWood = 1e8;
// Of metal nothing has an area that concrete has.
constexpr double kMetal = 6e10, kLargestAreaOfMetal = 1;
// Iy + Iz over the square of the area: 0.16 of a disc, which has the least, a few thousand of
// chords far apart. Units that do not agree are off by 1e8.
constexpr double kLeastSpread = 1e-4, kMostSpread = 1e6;
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

bool IsSoftForWeight(double modulus, double weight)
{
    const bool isWood = weight >= kLightestWood && weight <= kHeaviestWood;
    return (weight >= kHeavy && modulus < kSoftestHeavy) || (isWood && modulus < kSoftestWood);
}

void CheckMaterial(const Material& material, const Speaker& speaker)
{
    const double e = material.modulus, weight = material.weight;
    // Written so that what is not a number fails.
    const bool isStiff = e > 0 && std::isfinite(e);
    if (!isStiff) {
        speaker.Say(Code::kBadModulus, e);
    } else if (e < kSoftest || IsSoftForWeight(e, weight)) {
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

// The inertias against the area, where there are any.
bool IsSpreadPossible(const Section& section)
{
    const double spread = (section.constants[4] + section.constants[5]) /
                          (section.constants[0] * section.constants[0]);
    return spread == 0 || (spread >= kLeastSpread && spread <= kMostSpread);
}

void CheckSection(const Section& section, bool isMetal, const Speaker& speaker)
{
    const double area = section.constants[0];
    if (IsNot(area > 0 && std::isfinite(area))) {
        speaker.Say(Code::kBadArea, area);
    } else if (area > (isMetal ? kLargestAreaOfMetal : kLargestArea)) {
        speaker.Say(Code::kUnitOfSection, area);
    }
    const auto* const end = section.constants.begin() + 6;
    const auto* const bad = std::find_if(section.constants.begin() + 1, end, [](double value) {
        return IsNot(value >= 0 && std::isfinite(value));
    });
    if (bad != end) {
        speaker.Say(Code::kBadInertia, *bad);
    } else if (area > 0 && area <= kLargestAreaOfMetal && !IsSpreadPossible(section)) {
        const double inertia = section.constants[4] + section.constants[5];
        speaker.report.Add(Code::kUnitOfInertia, speaker.about, [&] {
            return Values{section.name, Number(inertia), Number(area)};
        });
    }
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
    const auto ofMetal = UsedOf(structure.sections.size(), [&](const auto& mark) {
        for (const Bar& bar : structure.bars) {
            if (bar.material == kNone || structure.materials[bar.material].modulus < kMetal)
                continue;
            mark(bar.startSection);
            mark(bar.endSection);
        }
    });
    for (Index rank = 0; rank < structure.sections.size(); ++rank) {
        const Section& section = structure.sections[rank];
        const About about(Kind::kSection, rank, Finding::kNoIdentifier);
        if (used[rank]) CheckSection(section, ofMetal[rank], {report, about, section.name});
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

void CheckTolerance(const Model& model, Report& report)
{
    const Structure& structure = model.structure;
    if (structure.extent == 0 || structure.tolerance == structure.writtenTolerance) return;
    // Without the setting, or where it was misread, the cause has been said.
    for (const Code code : {Code::kSettingMissing, Code::kSettingMisspelt, Code::kSettingEmpty,
                            Code::kMisspeltHeader, Code::kDecimalComma, Code::kUnreadableColumn}) {
        if (structure.writtenTolerance == 0 && report.WasSaid(code)) return;
    }
    report.Add(Code::kToleranceReplaced, {}, [&] {
        return Values{LengthText(structure.writtenTolerance), LengthText(structure.tolerance)};
    });
}

}  // namespace tamur::host
