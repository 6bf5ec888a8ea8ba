// The import as one would write it without a thought for speed, as a reference to compare with:
// lines by fgets, a rewind for every header, a string stream for every element line, sscanf for
// every table line, and whole records copied into the bars.
#pragma once

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "counts.h"

namespace tamur::bench::straightforward {

using Text = std::u16string;
using Labels = std::vector<Text>;

struct Point {
    double x = 0, y = 0, z = 0;
};
struct Line {
    Point start, end;
};
using Polygon = std::vector<Point>;

struct Group {
    int kind = 0, number = 0, type = 0;
    Text title, typeName;
    bool isShown = false;
};
struct Material {
    Text name;
    double e = 0, nu = 0, weight = 0, alpha = 0, damping = 0;
};
struct Section {
    Text name;
    double properties[11] = {};
    char code = 'F';
    std::vector<double> outline;
    double radius = 0;
};
struct Release {
    Text name;
    int code = 0;
    Text title, geometry, definition;
};
struct LoadCase {
    int number = 0, type = 0;
    Text title, code;
};
struct Combination {
    int number = 0;
    std::vector<int> cases;
    std::vector<double> factors;
};
struct Envelope {
    int number = 0, parameters[9] = {};
    bool keepsCase = false;
    std::vector<int> cases;
};
struct SeismicCase {
    int number = 0, direction = 0, sign = 0, mode = 0, site = 0, work = 0, soil = 0, zone = 0;
    double displacements = 0, forces = 0, ductility = 0, layer = 0, topography = 0;
    bool calculates = false, risk = false, limits = false;
    std::vector<double> periods, accelerations;
};
struct Modes {
    int count = 0, massChoice = 0, cases[8] = {}, method = 0;
    double percents[3] = {}, factors[8] = {};
    bool computesDampings = false, residual = false;
    std::vector<double> dampings;
};

struct Element {
    unsigned identifier = 0;
    Labels labels;
};
struct Node : Element {
    Point position;
    int fixity = 0;
};
struct Bar : Element {
    int group = 0, meshStep = 0, length = 0, orientationNode = 0, offset = 4;
    Text type, error, cog;
    Section startSection, endSection;
    Release startRelease, endRelease;
    Material material;
    double angle = 0;
    Point start, end;
};
struct Surface : Element {
    int group = 0, meshType = 0, meshX = 0, meshY = 0;
    Text type;
    Material material;
    Polygon outline;
    double thickness = 0, slopeX = 0, slopeY = 0;
};
struct Support : Element {
    int group = 0, orientationNode = 0;
    Text type;
    double stiffness[6] = {}, damping[6] = {}, area = 0, angle = 0;
    Polygon points;
};
struct Opening : Element {
    Polygon outline;
    int meshX = 0, meshY = 0;
};
struct Wall : Element {
    Polygon outline;
    int span = 0, accumulationMode = 0, windType = 0, statuses[4] = {};
    bool snow = false, accumulation = false, wind = false;
    double coefficients[5] = {}, permeability = 0, zones[4][3] = {};
    std::vector<double> spans;
};
struct Load {
    unsigned identifier = 0;
    int caseNumber = 0, frame = 0, elementKind = 0, group = 0;
    double values[8] = {};
    Polygon points;
};
struct Mass : Element {
    double values[6] = {};
    Point position;
};
struct Displacement {
    unsigned identifier = 0;
    int group = 0;
    double values[6] = {};
    Point position;
};
struct LineElement : Element {
    int group = 0, numbers[3] = {};
    double size = 0, factor = 0;
    Text type;
    Line line;
};

struct Model {
    std::string version;
    int servicePack = -1, space = 0, rigid = 0;
    double tolerance = 0;
    std::vector<Group> groups;
    std::vector<Material> materials;
    std::vector<Section> sections;
    std::vector<Release> releases;
    std::vector<LoadCase> cases;
    std::vector<Combination> combinations;
    std::vector<Envelope> envelopes;
    std::vector<SeismicCase> seismicCases;
    Modes modes;

    std::vector<Node> nodes;
    std::vector<Bar> bars;
    std::vector<Surface> surfaces;
    std::vector<Support> pointSupports, lineSupports, surfaceSupports;
    std::vector<Opening> openings;
    std::vector<Wall> walls;
    std::vector<Load> pointLoads, lineLoads, surfaceLoads, selfWeightLoads, thermalLoads;
    std::vector<Mass> masses;
    std::vector<Displacement> displacements;
    std::vector<LineElement> surfaceSections, innerLines, cables, constructionLines;
};

// Throws std::runtime_error when the file cannot be read.
void Import(Model& model, const std::filesystem::path& path);

[[nodiscard]] Counts CountsOf(const Model& model);

// Of import, by its parts.
Text Widen(const std::string& text);
void ParseElementLine(Model& model, const char* line);

}  // namespace tamur::bench::straightforward
