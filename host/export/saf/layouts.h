// The headings of the sheets, in the order in which rows have their cells. The format goes by their
// names. Of columns that may be left out there are those that are filled.
#pragma once

#include "host/export/saf/book.h"

namespace tamur::host::saf {

using Headings = std::vector<std::string>;

// All of them, one after the other.
[[nodiscard]] Headings Joined(std::initializer_list<Headings> parts);

[[nodiscard]] Headings PointHeadings();
[[nodiscard]] Headings FreedomHeadings();
// Of a node, and per length.
[[nodiscard]] Headings StiffnessHeadings();
[[nodiscard]] Headings LineStiffnessHeadings();
// From where to where on a bar or an edge.
[[nodiscard]] Headings RangeHeadings();

struct Layouts {
    const Layout material = {
        "StructuralMaterial",
        {"Name", "Type", "Quality", "Unit mass [kg/m3]", "E modulus [MPa]", "G modulus [MPa]",
         "Poisson coefficient", "Thermal expansion [1/K]", "Id"}};
    const Layout crossSection = {
        "StructuralCrossSection",
        {"Name", "Material", "Cross-section Type", "Shape", "Parameters [mm]", "Profile",
         "Form code", "A [m2]", "Iy [m4]", "Iz [m4]", "It [m4]", "Id"}};
    const Layout shape = {"CompositeShapeDef",
                          {"Name", "Material name 1", "Polygon contour 1", "Id"}};
    const Layout point = {"StructuralPointConnection", Joined({{"Name"}, PointHeadings(), {"Id"}})};
    const Layout bar = {
        "StructuralCurveMember",
        Joined({{"Name", "Type", "Cross section", "Arbitrary definition", "Nodes", "Segments",
                 "Internal nodes", "Length [m]", "Geometrical shape", "LCS", "LCS Rotation [deg]"},
                PointHeadings(),
                {"System line", "Analysis Y Eccentricity of Beg Node [mm]",
                 "Analysis Z Eccentricity of Beg Node [mm]",
                 "Analysis Y Eccentricity of End Node [mm]",
                 "Analysis Z Eccentricity of End Node [mm]", "Layer", "Behaviour in analysis",
                 "Parent ID", "Id"}})};
    const Layout varying = {"StructuralCurveMemberVarying",
                            {"Name", "Cross sections 1", "Span 1", "Alignment 1", "Id"}};
    const Layout innerEdge = {"StructuralCurveEdge",
                              {"Name", "2D Member", "Nodes", "Segments", "Parent ID", "Id"}};
    const Layout surface = {
        "StructuralSurfaceMember",
        Joined({{"Name", "Type", "Material", "Thickness type", "Thickness [mm]", "System plane at",
                 "Nodes", "Internal nodes", "Edges", "Area [m2]", "Layer", "LCS Type"},
                PointHeadings(),
                {"LCS Rotation [deg]", "Analysis Z Eccentricity [mm]", "Shape",
                 "Behavior in analysis", "Parent ID", "Id"}})};
    const Layout opening = {
        "StructuralSurfaceMemberOpening",
        {"Name", "2D Member", "Nodes", "Edges", "Area [m2]", "Parent ID", "Id"}};
    const Layout wall = {"StructuralSurfaceActionDistri",
                         Joined({{"Name", "Type", "Nodes", "Edges", "LCS Type"},
                                 PointHeadings(),
                                 {"LCS Rotation [deg]", "Distribution to", "Id"}})};
    const Layout hinge = {"RelConnectsStructuralMember", Joined({{"Name", "Member", "Position"},
                                                                 FreedomHeadings(),
                                                                 StiffnessHeadings(),
                                                                 {"Parent ID", "Id"}})};
    const Layout pointSupport = {"StructuralPointSupport",
                                 Joined({{"Name", "Type", "Boundary condition", "Node"},
                                         FreedomHeadings(),
                                         StiffnessHeadings(),
                                         {"Id"}})};
    const Layout barSupport = {"StructuralCurveConnection", Joined({{"Name", "Type", "Member"},
                                                                    FreedomHeadings(),
                                                                    LineStiffnessHeadings(),
                                                                    {"Coordinate system"},
                                                                    RangeHeadings(),
                                                                    {"Parent ID", "Id"}})};
    const Layout edgeSupport = {
        "StructuralEdgeConnection",
        Joined({{"Name", "Type", "Boundary condition", "2D Member", "Edge", "Internal edge"},
                FreedomHeadings(),
                LineStiffnessHeadings(),
                {"Coordinate system"},
                RangeHeadings(),
                {"Parent ID", "Id"}})};
    const Layout surfaceSupport = {"StructuralSurfaceConnection",
                                   {"Name", "2D Member", "2D Member Region", "Subsoil",
                                    "Description", "C1x [MN/m3]", "C1y [MN/m3]", "C1z Spring",
                                    "C1z [MN/m3]", "C2x [MN/m]", "C2y [MN/m]", "Parent ID", "Id"}};
    const Layout loadGroup = {"StructuralLoadGroup",
                              {"Name", "Load group type", "Relation", "Load type", "Id"}};
    const Layout loadCase = {
        "StructuralLoadCase",
        {"Name", "Description", "Action type", "Load group", "Load type", "Duration", "Id"}};
    const Layout pointAction = {"StructuralPointAction", PointActionHeadings("Value [kN]")};
    const Layout pointMoment = {"StructuralPointMoment", PointActionHeadings("Value [kNm]")};
    const Layout lineAction = {
        "StructuralCurveAction",
        Joined({LineActionHeadings("Value 1 [kN/m]", "Value 2 [kN/m]"),
                {"Eccentricity ey [mm]", "Eccentricity ez [mm]", "Parent ID", "Id"}})};
    const Layout lineMoment = {
        "StructuralCurveMoment",
        Joined({LineActionHeadings("Value 1 [kNm/m]", "Value 2 [kNm/m]"), {"Parent ID", "Id"}})};
    const Layout freeLineAction = {"StructuralCurveActionFree",
                                   Joined({{"Name", "Type", "Distribution", "Direction",
                                            "Value 1 [kN/m]", "Value 2 [kN/m]", "Load case"},
                                           PointHeadings(),
                                           {"Segments", "Coordinate system", "Location", "Id"}})};
    const Layout surfaceAction = {
        "StructuralSurfaceAction",
        {"Name", "Direction", "Type", "Force action", "Value [kN/m2]", "2D Member", "Load case",
         "Coordinate system", "Location", "Parent ID", "Id"}};
    const Layout freeSurfaceAction = {
        "StructuralSurfaceActionFree",
        Joined({{"Name", "Direction", "Type", "Distribution", "q [kN/m2]", "Load case"},
                PointHeadings(),
                {"Edges", "Coordinate system", "Location", "Id"}})};
    const Layout barTemperature = {
        "StructuralCurveActionThermal",
        Joined({{"Name", "Force action", "Variation", "deltaT [°C]", "TempL [°C]", "TempR [°C]",
                 "TempT [°C]", "TempB [°C]", "Member", "Load case"},
                RangeHeadings(),
                {"Parent ID", "Id"}})};
    const Layout surfaceTemperature = {"StructuralSurfaceActionThermal",
                                       {"Name", "Variation", "TempT [°C]", "TempB [°C]",
                                        "2D Member", "Load case", "Parent ID", "Id"}};

 private:
    static Headings PointActionHeadings(const std::string& value);
    static Headings LineActionHeadings(const std::string& first, const std::string& second);
};

}  // namespace tamur::host::saf
