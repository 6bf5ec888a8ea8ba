#include "host/export/saf/cross_sections.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tamur::host::saf {
namespace {

constexpr LossText kShearAndFibres = {
    LossType::kPartly,
    {"areas in shear and constants of the fibres have no columns",
     "les aires de cisaillement et les modules des fibres n'ont pas de colonnes"}};
constexpr LossText kSharp = {
    LossType::kPartly,
    {"radii and third values of outlines are not written: corners are sharp",
     "les rayons et troisièmes valeurs des contours ne sont pas écrits : les angles sont vifs"}};
constexpr LossText kStandIn = {
    LossType::kPartly,
    {"a section without an outline is the rectangle that has its area and inertias",
     "une section sans contour est le rectangle qui a son aire et ses inerties"}};
constexpr LossText kByName = {LossType::kPartly,
                              {"a section without a shape is given by its name and its constants",
                               "une section sans forme est donnée par son nom et ses constantes"}};
constexpr LossText kOffAxis = {
    LossType::kPartly,
    {"the centroid of the outline is not on the axis of the bar, but the format has it there",
     "le centre de gravité du contour n'est pas sur l'axe du filaire, mais le format l'y met"}};

std::string ContourOf(const std::vector<PlanePoint>& points)
{
    std::string contour;
    for (const PlanePoint& point : points) {
        if (!contour.empty()) contour += '|';
        contour += Plain(point.u * 1000) + "; " + Plain(point.v * 1000);
    }
    return contour;
}

struct Bounds {
    PlanePoint low, high;
};
Bounds BoundsOf(const std::vector<PlanePoint>& points)
{
    Bounds bounds{points[0], points[0]};
    for (const PlanePoint& point : points) {
        bounds.low = {std::min(bounds.low.u, point.u), std::min(bounds.low.v, point.v)};
        bounds.high = {std::max(bounds.high.u, point.u), std::max(bounds.high.v, point.v)};
    }
    return bounds;
}

bool IsRectangle(const std::vector<PlanePoint>& points, const Bounds& bounds)
{
    return points.size() == 4 && std::all_of(points.begin(), points.end(), [&](PlanePoint point) {
               return (point.u == bounds.low.u || point.u == bounds.high.u) &&
                      (point.v == bounds.low.v || point.v == bounds.high.v);
           });
}

// Whether the centroid is where the axis is, as near as outlines are drawn.
bool IsCentred(const std::vector<PlanePoint>& points, const Bounds& bounds)
{
    double area = 0, u = 0, v = 0;
    PlanePoint last = points.back();
    for (const PlanePoint& point : points) {
        const double part = last.u * point.v - last.v * point.u;
        area += part;
        u += part * (last.u + point.u);
        v += part * (last.v + point.v);
        last = point;
    }
    const double size = std::max(bounds.high.u - bounds.low.u, bounds.high.v - bounds.low.v);
    constexpr double kNear = 0.01;
    return std::hypot(u, v) <= kNear * size * std::abs(3 * area);
}

// Rolled ones that every library has; 0, for which the receiver looks at the constants, for others.
int FormCodeOf(std::string_view name)
{
    for (const std::string_view profile : {"IPE", "IPN", "HEA", "HEB", "HEM"}) {
        if (name.starts_with(profile)) return 1;
    }
    for (const std::string_view profile : {"UPN", "UPE", "UAP"}) {
        if (name.starts_with(profile)) return 5;
    }
    return 0;
}

}  // namespace

Box BoxOf(const TMRSectionGeometry& section)
{
    const SectionOutline outline = OutlineOfSection(section);
    if (outline.points.empty()) return {};
    const Bounds bounds = BoundsOf(outline.points);
    return {bounds.high.u - bounds.low.u, bounds.high.v - bounds.low.v};
}

CrossSections::CrossSections(Model& model)
    : model_(model), records_(Records<TMRSectionGeometry>(model.source.reader))
{
}

CrossSections::Shape CrossSections::MakeShape(const TMRSectionGeometry& section)
{
    using Source = SectionOutline::Source;
    Losses& losses = model_.report.losses;
    const SectionOutline outline = OutlineOfSection(section);
    losses.Add(Kind::kSection, kShearAndFibres);
    if (outline.source == Source::kNothing) {
        losses.Add(Kind::kSection, kByName);
        return {};
    }
    const Bounds bounds = BoundsOf(outline.points);
    if (outline.source == Source::kCircle) {
        return {Shape::Type::kCircle, Plain(2000 * section.epureSec.dfRadius), 0};
    }
    if (outline.source == Source::kStandIn && section.epureSec.Code != 0) {
        losses.Add(Kind::kSection, kStandIn);
    }
    if (section.epureSec.Code == 'S' || section.epureSec.dfRadius != 0) {
        losses.Add(Kind::kSection, kSharp);
    }
    if (!IsCentred(outline.points, bounds)) losses.Add(Kind::kSection, kOffAxis);
    if (IsRectangle(outline.points, bounds)) {
        const Box box = BoxOf(section);
        return {Shape::Type::kRectangle, Plain(box.height * 1000) + ";" + Plain(box.width * 1000),
                0};
    }
    std::string contour = ContourOf(outline.points);
    if (contour.size() > Workbook::kLongestText) {
        losses.Add(Kind::kSection, kByName);
        return {Shape::Type::kNamed, "", 0};
    }
    return {Shape::Type::kGeneral, std::move(contour), outline.points.size()};
}

const CrossSections::Shape& CrossSections::ShapeOf(Index section)
{
    auto shape = shapes_.find(section);
    if (shape == shapes_.end()) {
        shape = shapes_.emplace(section, MakeShape(*records_.At(static_cast<LONG>(section)))).first;
    }
    return shape->second;
}

const std::string& CrossSections::NameOf(Index section, Index material)
{
    const std::pair key(section, material);
    const auto known = names_.find(key);
    if (known != names_.end()) return known->second;
    const Section& values = model_.structure.sections[section];
    const std::string otherwise = "CS" + std::to_string(names_.size() + 1);
    const std::string name = taken_.Take(values.name + ' ' + model_.materials[material], otherwise);
    const Shape& shape = ShapeOf(section);
    Row row;
    row.Text(name).Text(model_.materials[material]);
    switch (shape.type) {
        case Shape::Type::kCircle:
            row.Text("Parametric").Text("Circle").Text(shape.parameters).Skip(2);
            break;
        case Shape::Type::kRectangle:
            row.Text("Parametric").Text("Rectangle").Text(shape.parameters).Skip(2);
            break;
        case Shape::Type::kGeneral:
            model_.book.Add(
                model_.layouts.shape,
                Row().Text(name).Text(model_.materials[material]).Text(shape.parameters).Skip());
            row.Text("General").Skip(2).Text(name).Skip();
            break;
        case Shape::Type::kNamed:
            row.Text("Manufactured").Skip(2);
            row.Text(values.name.empty() ? name : values.name).Whole(FormCodeOf(values.name));
            break;
    }
    // Sx, Iy, Iz, Ix
    for (const std::size_t place : {0u, 4u, 5u, 3u}) row.Number(values.constants[place]);
    row.Text(model_.ids.Take(Kind::kSection, section, static_cast<int>(material)));
    model_.book.Add(model_.layouts.crossSection, row);
    return names_.emplace(key, name).first->second;
}

std::optional<std::string> CrossSections::NameOfVarying(Index start, Index end, Index material)
{
    const Shape& from = ShapeOf(start);
    const Shape& to = ShapeOf(end);
    if (from.type != to.type || from.corners != to.corners || from.type == Shape::Type::kNamed) {
        return std::nullopt;
    }
    const std::array key = {start, end, material};
    const auto known = varying_.find(key);
    if (known != varying_.end()) return known->second;
    const std::string name = takenByVarying_.Take("", "AD" + std::to_string(varying_.size() + 1));
    Row row;
    row.Text(name).Text(NameOf(start, material) + ',' + NameOf(end, material));
    row.Number(1).Text("Centre").Skip();
    model_.book.Add(model_.layouts.varying, row);
    return varying_.emplace(key, name).first->second;
}

}  // namespace tamur::host::saf
