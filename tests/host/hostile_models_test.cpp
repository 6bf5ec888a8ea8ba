// Models made to be slow or large end soon, and in memory that is in proportion.
#include <gmock/gmock.h>

#include <chrono>
#include <cmath>

#include "host/structure/structure.h"
#include "model_findings.h"
#include "models/element_lines.h"

namespace tamur::host {
namespace {

constexpr int kMany = 20000;
constexpr const char* kBar = " 0 0 0 1 2 0 0 0 1 1 1 1 1 5";
constexpr const char* kSurface = " 0 0 0 1 3 1 1 4 4 0.2 0 0";

std::string Line(int kind, int identifier, int points, const std::string& at,
                 const std::string& columns)
{
    return std::to_string(kind) + " " + std::to_string(identifier) + " 0 " +
           std::to_string(points) + " 0 " + at + columns;
}
std::string At(double x, double y, double z)
{
    return std::to_string(x) + " " + std::to_string(y) + " " + std::to_string(z) + " ";
}

// What a check of `lines` takes is in proportion to them: a thousandth of a second each is far more
// than any needs, and far less than comparing all with all.
void ExpectSoon(const std::vector<std::string>& lines)
{
    const auto reader = test::Imported(test::ModelText().Elements(lines));
    const auto start = std::chrono::steady_clock::now();
    Findings findings(100);
    CheckModel(*reader, {}, findings);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    EXPECT_LT(taken.count(), 1 + 0.001 * static_cast<double>(lines.size()));
    const Structure structure = ReadStructure(*reader);
    EXPECT_LT(structure.membersAt.values.size(), 10001 + 9 * structure.corners.size());
    EXPECT_LT(structure.carriers.values.size(), 10001 + 32 * structure.corners.size());
}

TEST(HostileModels, EverythingInOnePlace)
{
    std::vector<std::string> lines;
    for (int i = 0; i < kMany; ++i) {
        lines.push_back(Line(1, i, 1, "1 1 1", " 0 0 0 0"));
        lines.push_back(Line(2, i, 2, "0 0 0 2 2 2", kBar));
        lines.push_back(Line(3, i, 4, "0 0 0 4 0 0 4 4 0 0 4 0", kSurface));
        lines.push_back(Line(5, i, 1, "0 0 0", " 0 0 0 1 1 0 0 1 0 0 0"));
        lines.push_back(Line(6, i, 2, "0 0 0 9 0 0", " 0 0 0 1 1 1 1 0 0 1 0 0 0"));
        lines.push_back(Line(17, i, 4, "1 1 0 2 1 0 2 2 0 1 2 0", " 0 0 0 4 4"));
    }
    ExpectSoon(lines);
}

TEST(HostileModels, PointsJustApart)
{
    std::vector<std::string> lines;
    for (int i = 0; i < kMany; ++i) {
        const std::string at = At(0.00101 * (i % 27), 0.00101 * (i / 27 % 27), 0.00101 * (i / 729));
        lines.push_back(Line(1, i, 1, at, " 0 0 0 0"));
    }
    lines.push_back(Line(2, 1, 2, "-50 0 0 50 0 0", kBar));
    ExpectSoon(lines);
}

TEST(HostileModels, BarsThroughEachOther)
{
    std::vector<std::string> lines;
    for (int i = 0; i < kMany; ++i) {
        const double angle = 3.14159 * i / kMany;
        const double x = 50 * std::cos(angle), y = 50 * std::sin(angle);
        lines.push_back(Line(2, i, 2, At(x, y, 0.00001 * i) + At(-x, -y, 0.00001 * i), kBar));
    }
    ExpectSoon(lines);
}

TEST(HostileModels, OneBarAcrossManySmallOnes)
{
    std::vector<std::string> lines;
    lines.push_back(Line(2, 1, 2, "-1e8 -1e8 -1e8 1e8 1e8 1e8", kBar));
    for (int i = 0; i < kMany; ++i) {
        const double x = 0.1 * i;
        lines.push_back(Line(2, i + 2, 2, At(x, x, x) + At(x, x + 0.1, x), kBar));
    }
    ExpectSoon(lines);
    const auto reader = test::Imported(test::ModelText().Elements(lines));
    EXPECT_EQ(ReadStructure(*reader).stops[0].size(), kMany + 2u) << "and is split by all of them";
}

TEST(HostileModels, CornersWithoutEnd)
{
    // As many as a line holds: teeth that reach across the whole.
    std::vector<std::string> lines;
    constexpr int kCorners = 4000;
    std::string teeth;
    for (int i = 0; i < kCorners; ++i) {
        teeth += std::to_string(i) + (i % 2 == 0 ? " 0 0 " : " 9999 0 ");
    }
    for (int i = 0; i < 5; ++i) lines.push_back(Line(3, i, kCorners, teeth, kSurface));
    for (int i = 0; i < kMany; ++i) {
        lines.push_back(Line(1, i, 1, At(i * 0.2, 5000, 0), " 0 0 0 0"));
        lines.push_back(Line(7, i, 4,
                             At(i, 0, 0) + At(i + 1, 0, 0) + At(i + 1, 9000, 0) + At(i, 9000, 0),
                             " 0 0 0 1 1 1 1 1 0 0 1"));
    }
    ExpectSoon(lines);
}

TEST(HostileModels, CoordinatesBeyondAllMeaning)
{
    std::vector<std::string> lines;
    for (const char* huge : {"1e300", "-1e300", "1e308", "1e10", "1e9", "-1e9", "1e-300"}) {
        const std::string at = std::string(huge) + " 0 0 0 " + huge + " 1 ";
        lines.push_back(Line(2, 1, 2, at, kBar));
        lines.push_back(Line(3, 1, 3, at + "1 1 1", kSurface));
        lines.push_back(Line(6, 1, 2, at, " 0 0 0 1 1 1 1 0 0 1 0 0 0"));
        lines.push_back(Line(17, 1, 3, at + "1 1 1", " 0 0 0 4 4"));
        lines.push_back(Line(10, 1, 2, at, " 0 0 0 1 1 0 0 1 1 1 0 0 0 0 0 0 0 0 0 0"));
        lines.push_back(Line(1, 1, 1, std::string(huge) + " 0 0", " 0 0 0 0"));
    }
    for (int i = 0; i < kMany; ++i) {
        lines.push_back(Line(2, i, 2, At(i, 0, 0) + At(i + 1, 0, 0), kBar));
    }
    ExpectSoon(lines);
}

TEST(HostileModels, NothingAtAll)
{
    EXPECT_TRUE(ModelFindings(test::ModelText().Text()).empty());
    ExpectSoon({Line(3, 1, 0, "", kSurface), Line(7, 1, 0, "", " 0 0 0 1 1 1 1 1 0 0 1"),
                Line(11, 1, 0, "", " 0 0 0 1 1 0 0 0"), Line(17, 1, 0, "", " 0 0 0 1 1")});
}

}  // namespace
}  // namespace tamur::host
