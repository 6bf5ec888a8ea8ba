// Models with bars on two materials, two sections and two releases.
#pragma once

#include "models/element_lines.h"

namespace tamur::test {

// The columns of a bar, in their order.
struct BarColumns {
    int group = 0;
    int type = 2;
    int orientationNode = 0;
    int angle = 0;
    int meshStep = 0;
    int material = 1;
    int startSection = 1;
    int endSection = 1;
    int startRelease = 1;
    int endRelease = 1;
    int offset = 5;
};

inline std::string Text(const BarColumns& bar)
{
    std::string text;
    for (const int column :
         {bar.group, bar.type, bar.orientationNode, bar.angle, bar.meshStep, bar.material,
          bar.startSection, bar.endSection, bar.startRelease, bar.endRelease, bar.offset}) {
        text += std::to_string(column) + " ";
    }
    return text;
}

// A bar 5 long.
inline ElementLine BarLine(const BarColumns& bar = {})
{
    return ElementLine(2).Points({"0 0 0", "3 4 0.5"}).Columns(Text(bar));
}

// A section line with eleven constants counted from `first`, and an outline of that code. The
// code that no outline has cannot be written with a letter: a NUL would end the line, so that a
// section that is read always has one.
inline std::string SectionLine(const std::string& name, int first, const std::string& outline)
{
    std::string text = name;
    for (int i = 0; i < 11; ++i) text += " " + std::to_string(first + i);
    return text + " " + outline;
}

// The tables that bars refer to; "#Elements" is still to come.
inline ModelText BarTables(std::string_view version = "12.1")
{
    return ModelText(version)
        .Section("#Materiaux", {"C25 1 2 3 4 5", "S235 6 7 8 9 10"})
        .Section("#Geometries",
                 {SectionLine("R1", 100, "2 X 1 2 3 4"), SectionLine("R2", 200, "2 S 1 2 3 4 5 6")})
        .Section("#Attaches", {"ART1 7 Rotule A B", "ENC2 0 Encastrement C D"});
}

inline ComPtr<ITAMURStructureReader> ImportedBars(const std::vector<std::string>& lines,
                                                  std::string_view version = "12.1")
{
    return Imported(BarTables(version).Elements(lines));
}

}  // namespace tamur::test
