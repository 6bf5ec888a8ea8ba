// A model as one structure: points that elements share, what touches what, which parts hold
// together, and what each support and load acts on. Exports, views and rules read it; what it
// assumes about the format is in docs/conventions.md.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "host/kinds.h"
#include "host/structure/geometry.h"

struct ITAMURStructureReader;
struct TMRFilaire;

namespace tamur::host {

// A place in a list: of points, of bars, ...
using Index = std::uint32_t;
inline constexpr Index kNone = ~Index{0};

// Lists of different lengths, end to end.
template <class Value>
struct Lists {
    std::vector<Index> starts = {0};  // one more than there are lists
    std::vector<Value> values;

    [[nodiscard]] std::size_t Size() const { return starts.size() - 1; }
    [[nodiscard]] std::span<const Value> operator[](std::size_t list) const
    {
        return std::span<const Value>(values).subspan(starts[list],
                                                      starts[list + 1] - starts[list]);
    }
    void EndList() { starts.push_back(static_cast<Index>(values.size())); }
};

// What each thing with a place has.
struct Element {
    std::int64_t identifier = 0;
    Index rank = 0;         // in its table
    Index firstCorner = 0;  // in Structure::corners
    Index cornerCount = 0;
    Kind kind = Kind::kNone;
    bool isUsable = true;  // false: a coordinate that cannot be meant
};

enum class BarType : std::uint8_t { kOther, kBarre, kPoutre, kPoutreV, kPoutreC, kTirant };

struct Bar : Element {
    Index start = kNone, end = kNone;  // points; kNone when it is not usable
    double length = 0;                 // as written, before points were merged
    int group = 0;
    BarType type = BarType::kOther;
    Index material = kNone;  // places in the tables, the first that equals what the bar has
    Index startSection = kNone, endSection = kNone;
    Index startRelease = kNone, endRelease = kNone;
    std::uint8_t releasedAtStart = 0, releasedAtEnd = 0;  // bits of Attache_type
    std::int64_t orientationNode = 0;
    double angle = 0;  // as the file writes it: without the quarter turn of the import

    // Works along its axis only, and neither bends nor turns what it meets.
    [[nodiscard]] bool IsTruss() const
    {
        return type == BarType::kBarre || type == BarType::kTirant;
    }
};

enum class SurfaceType : std::uint8_t {
    kOther,
    kMembrane,
    kPlaque,
    kCoque,
    kPlaqueE,
    kCoqueE,
    kDefPlane,
    kAxisym,
};

struct Surface : Element {
    Plane plane;
    double area = 0;  // without regard to openings
    double perimeter = 0;
    double outOfPlane = 0;
    bool isConvex = false;
    int group = 0;  // surfaces only, as are the next three
    SurfaceType type = SurfaceType::kOther;
    double thickness = 0;
    Index material = kNone;
    Index surface = kNone;  // openings only: the surface that they belong to

    // Has a plane, more or less, and an area in it.
    bool isPlane = false;
};

enum class SupportCondition : std::uint8_t { kVoid, kRigid, kElastic, kStop };

struct Support : Element {
    SupportCondition condition = SupportCondition::kVoid;
    int group = 0;
    std::array<double, 6> stiffness = {};
    double angle = 0;  // points and lines only
    std::int64_t orientationNode = 0;
};

// A point, line or surface load, a mass, or an imposed displacement.
struct Load : Element {
    int loadCase = 0;
    int frame = 0;                      // an enumTMRRepereForce
    double size = 1;                    // length or area as drawn
    double intensity = 1;               // mean over its size; see docs/conventions.md
    std::array<double, 6> values = {};  // Fx to Mz; of masses Mx to Iz, of displacements dX to Rz
};

// Self-weight or temperature on a group.
struct GroupLoad {
    Kind kind = Kind::kNone;
    Index rank = 0;
    std::int64_t identifier = 0;
    int loadCase = 0;
    int groupKind = 0;
    int group = 0;  // the place of the group in its table, from 1
    std::array<double, 3> values = {};
};

// A bar or a surface.
struct Member {
    Kind kind = Kind::kNone;
    Index index = 0;

    friend bool operator==(Member, Member) = default;
};

// A point on a bar.
struct Stop {
    Index point;
    double place;  // 0 at the start of the bar, 1 at its end
};

struct Material {
    std::string name;
    double modulus = 0, poisson = 0, weight = 0;
    double expansion = 0, damping = 0;
    bool isDefault = false;  // made by the import
};
struct Section {
    std::string name;
    std::array<double, 11> constants = {};  // Sx to V2z
    bool isDefault = false;
};
struct Release {
    std::string name;
    std::uint8_t released = 0;
    static constexpr bool isDefault = false;
};
struct Group {
    int elements = 0;  // the kind that it gathers
    int number = 0;
    std::string title;
};

struct Structure {
    // Points nearer to each other than `tolerance` are one; what is nearer than `reach` was
    // probably meant to touch.
    double tolerance = 0;
    double writtenTolerance = 0;  // in the file; taken when it can be meant
    double reach = 0;
    double extent = 0;  // the diagonal of the box around it
    // Whether all contacts were looked for: in a file where everything is near everything the
    // search ends early.
    bool isComplete = true;

    std::vector<Point> points;
    std::vector<Index> corners;      // points of all elements, kNone for those that cannot be meant
    std::map<Index, double> absurd;  // by the first corner of an element: what cannot be meant

    std::vector<Material> materials;
    std::vector<Section> sections;
    std::vector<Release> releases;
    std::vector<Group> groups;

    std::vector<Element> nodes;
    std::vector<Bar> bars;
    std::vector<Surface> surfaces, openings, walls;
    std::vector<Element> cables, innerLines;
    std::vector<int> cableCases;                   // of each cable
    std::vector<Element> cuts, constructionLines;  // without corners: nothing meets them
    std::vector<Support> supports;
    std::vector<Load> loads;
    std::vector<Load> masses, displacements;
    std::vector<GroupLoad> groupLoads;

    Lists<Stop> stops;        // of each bar, its ends included, in ascending order
    Lists<Member> membersAt;  // each point: bars and surfaces that it lies on
    Lists<Index> heldPoints;  // of each support: points of bars and surfaces on it
    // Of each load: bars and surfaces that it acts on; of one in a point the first of them.
    Lists<Member> carriers;
    static constexpr std::size_t kMostCarriersOfPoint = 32;
    std::vector<double> carried;  // of each load: which share of it lies on them, 0 to 1

    std::vector<Index> partOf;  // of each point: the part of the structure, or kNone
    Index partCount = 0;

    // Without any element.
    [[nodiscard]] bool IsEmpty() const { return corners.empty() && groupLoads.empty(); }
    [[nodiscard]] std::span<const Index> CornersOf(const Element& element) const
    {
        return std::span<const Index>(corners).subspan(element.firstCorner, element.cornerCount);
    }
    [[nodiscard]] Segment SegmentOf(const Element& line) const
    {
        return {points[corners[line.firstCorner]], points[corners[line.firstCorner + 1]]};
    }
    [[nodiscard]] const Element& ElementOf(Member member) const
    {
        if (member.kind == Kind::kBar) return bars[member.index];
        return surfaces[member.index];
    }
    // Where the part is that a member belongs to.
    [[nodiscard]] Index PartOf(const Element& member) const
    {
        return partOf[corners[member.firstCorner]];
    }
};

// The angle of a bar that the file wrote: the import turns those with an outline by a quarter.
[[nodiscard]] double AngleAsWritten(const TMRFilaire& bar);

// Takes time in proportion to the model, or to it times a logarithm. Throws ComponentError.
[[nodiscard]] Structure ReadStructure(ITAMURStructureReader& reader);

// The corners of a polygon as coordinates.
[[nodiscard]] std::vector<Point> OutlineOf(const Structure& structure, const Element& element);

// The same into a list that is used again and again.
void GetOutline(const Structure& structure, const Element& element, std::vector<Point>& outline);

}  // namespace tamur::host
