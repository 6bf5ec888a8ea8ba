// The import as one would write it without a thought for speed, as a reference to compare with:
// lines by fgets, a rewind for every header, a string stream for every line, and whole records
// copied into the bars. It reads what makes up the time of an import: materials, sections, releases
// and elements. It passes over the other tables, and over what walls have after their span.
#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "counts.h"

namespace tamur::bench::straightforward {

using Text = std::u16string;

struct Point {
    double x = 0, y = 0, z = 0;
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

struct Element {
    unsigned identifier = 0;
    std::vector<Text> labels;
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
    std::vector<Point> outline;
    double thickness = 0, slopeX = 0, slopeY = 0;
};
// Any other kind; supports have the most columns.
struct Other : Element {
    std::vector<Point> points;
    double columns[17] = {};
};

struct Model {
    std::string version;
    std::vector<Material> materials;
    std::vector<Section> sections;
    std::vector<Release> releases;
    std::vector<Node> nodes;
    std::vector<Bar> bars;
    std::vector<Surface> surfaces;
    std::array<std::vector<Other>, 23> others;  // by kind
};

// Throws std::runtime_error when the file cannot be read.
void Import(Model& model, const std::filesystem::path& path);

[[nodiscard]] Counts CountsOf(const Model& model);

}  // namespace tamur::bench::straightforward
