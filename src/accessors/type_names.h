// French names of element types, as hosts see them.
#pragma once

#include <cstdint>

#include "model/text.h"

namespace tamur {

// Bars: 1 to 5; empty for any other code.
[[nodiscard]] WideStringView BarTypeName(int code);

// Surfaces: 1 to 7; a shell for any other code.
[[nodiscard]] WideStringView SurfaceTypeName(int code);

enum class SupportKind { kPoint, kLine, kSurface };

// The kind of support and its condition: 1 rigid, 2 elastic, 3 stop, none for any other code.
[[nodiscard]] WideStringView SupportTypeText(SupportKind kind, int condition);

// A group's type: what it gathers (1 point supports, 2 bars, 3 surfaces, 4 surface supports,
// 5 line supports) decides what the code means; empty for anything else.
[[nodiscard]] WideStringView GroupTypeName(int elementKind, int code);

}  // namespace tamur
