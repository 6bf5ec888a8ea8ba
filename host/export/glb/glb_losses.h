// What glTF files say otherwise than the model.
#pragma once

#include "host/export/drawing_losses.h"

namespace tamur::host {

inline constexpr LossText kMessages = {LossType::kNot,
                                       {"the version of the file, and messages of the import",
                                        "la version du fichier et les messages de l'importation"}};
inline constexpr LossText kNotDrawn = {LossType::kPartly,
                                       {"it has a place and its record, and no shape",
                                        "il a une place et son enregistrement, sans forme"}};
inline constexpr LossText kWithoutPlace = {LossType::kPartly,
                                           {"its record is in the extras of the root",
                                            "son enregistrement est dans les extras de la racine"}};
inline constexpr LossText kAbsurdShape = {
    LossType::kPartly,
    {"not drawn: a coordinate is no number, or beyond 1e9",
     "pas dessiné : une coordonnée n'est pas un nombre, ou dépasse 1e9"}};
inline constexpr LossText kUnknownOutline = {
    LossType::kPartly,
    {"only the axis is drawn: its section has neither an outline nor area and inertias",
     "seul l'axe est dessiné : sa section n'a ni contour, ni aire et inerties"}};
inline constexpr LossText kEvenSection = {
    LossType::kPartly,
    {"drawn with the section of its start: that of its end has another outline",
     "dessiné avec la section du début : celle de la fin a un autre contour"}};
inline constexpr LossText kCurved = {LossType::kPartly,
                                     {"PoutreC is drawn straight", "PoutreC est dessinée droite"}};
inline constexpr LossText kRectangle = {
    LossType::kAssumed,
    {"a section without an outline is a rectangle with its area and inertias",
     "une section sans contour est un rectangle de mêmes aire et inerties"}};
inline constexpr LossText kUpright = {
    LossType::kAssumed,
    {"sections stand upright at the angle 0; corners are sharp",
     "à l'angle 0 les sections sont debout ; les coins sont vifs"}};

}  // namespace tamur::host
