#include "host/export/saf/layouts.h"

namespace tamur::host::saf {

Headings Joined(std::initializer_list<Headings> parts)
{
    Headings all;
    for (const Headings& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
}

Headings PointHeadings()
{
    return {"Coordinate X [m]", "Coordinate Y [m]", "Coordinate Z [m]"};
}

Headings FreedomHeadings()
{
    return {"ux", "uy", "uz", "fix", "fiy", "fiz"};
}

Headings StiffnessHeadings()
{
    return {"Stiffness X [MN/m]",      "Stiffness Y [MN/m]",      "Stiffness Z [MN/m]",
            "Stiffness Fix [MNm/rad]", "Stiffness Fiy [MNm/rad]", "Stiffness Fiz [MNm/rad]"};
}

Headings LineStiffnessHeadings()
{
    return {"Stiffness X [MN/m2]",       "Stiffness Y [MN/m2]",       "Stiffness Z [MN/m2]",
            "Stiffness Fix [MNm/rad/m]", "Stiffness Fiy [MNm/rad/m]", "Stiffness Fiz [MNm/rad/m]"};
}

Headings RangeHeadings()
{
    return {"Coordinate definition", "Origin", "Start point [m]", "End point [m]"};
}

Headings Layouts::PointActionHeadings(const std::string& value)
{
    return {"Name",
            "Type",
            "Direction",
            "Force action",
            "Reference node",
            value,
            "Load case",
            "Coordinate system",
            "Id"};
}

Headings Layouts::LineActionHeadings(const std::string& first, const std::string& second)
{
    return {"Name",
            "Type",
            "Force action",
            "Distribution",
            "Direction",
            first,
            second,
            "Member",
            "Load case",
            "Coordinate system",
            "Location",
            "Coordinate definition",
            "Origin",
            "Extent",
            "Start point [m]",
            "End point [m]"};
}

}  // namespace tamur::host::saf
