// What exports of drawings say otherwise than the model.
#pragma once

#include <optional>

#include "host/export/losses.h"
#include "host/geometry/surface_cutter.h"

namespace tamur::host {

inline constexpr LossText kAbsurdCoordinates = {
    LossType::kNot,
    {"a coordinate is no number, or beyond 1e9",
     "une coordonnée n'est pas un nombre, ou dépasse 1e9"}};
inline constexpr LossText kWithoutArea = {LossType::kNot,
                                          {"it has no area", "sa surface est nulle"}};
inline constexpr LossText kNoPlace = {
    LossType::kNot,
    {"it has no place of its own in the structure", "n'a pas de place propre dans la structure"}};
inline constexpr LossText kNotCut = {
    LossType::kNot,
    {"its edges cross too often for triangles", "ses bords se croisent trop pour des triangles"}};
inline constexpr LossText kNoHoles = {LossType::kPartly,
                                      {"it has too many openings: they are not cut out",
                                       "elle a trop d'ouvertures : elles ne sont pas découpées"}};
inline constexpr LossText kAreaDiffers = {
    LossType::kPartly,
    {"edges cross, or openings lie on each other or reach out of it: its triangles are what is "
     "inside and not open",
     "des bords se croisent, ou des ouvertures se recouvrent ou dépassent : ses triangles sont ce "
     "qui est dedans et non ouvert"}};
inline constexpr LossText kOpensNothing = {
    LossType::kPartly,
    {"it lies in no surface: nothing is cut out",
     "elle n'est dans aucun surfacique : rien n'est découpé"}};
inline constexpr LossText kLocalAsGlobal = {
    LossType::kAssumed,
    {"local loads in points are along the axes of the model",
     "les charges locales en des points suivent les axes du modèle"}};

// What is to be said of a polygon that was cut; null when nothing is.
[[nodiscard]] inline const LossText* LossOf(const std::optional<SurfaceCutter::Cut>& cut)
{
    if (!cut) return &kWithoutArea;
    if (!cut->triangles.isComplete) return cut->triangles.corners.empty() ? &kNotCut : &kNoHoles;
    return cut->triangles.isAsDrawn ? nullptr : &kAreaDiffers;
}

}  // namespace tamur::host
