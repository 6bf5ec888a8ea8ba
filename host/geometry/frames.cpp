#include "host/geometry/frames.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "host/structure/tolerances.h"

namespace tamur::host {
namespace {

struct Turn {
    double cosine, sine;
};

Turn TurnOf(double degrees)
{
    const double angle = std::fmod(degrees, 360);
    if (!std::isfinite(angle)) return {1, 0};
    const double quarters = angle / 90;
    if (quarters == std::round(quarters)) {
        // -3 to 3 quarters.
        constexpr Turn kQuarters[] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}};
        return kQuarters[(static_cast<int>(quarters) + 4) % 4];
    }
    const double radians = angle * std::numbers::pi / 180;
    return {std::cos(radians), std::sin(radians)};
}

Point Normalized(Point vector)
{
    return vector * (1 / Length(vector));
}

Point PointOf(const TMR3DPnt& point)
{
    return {point.x, point.y, point.z};
}

// The part of it that is at right angles to a direction of length 1.
Point Across(Point vector, Point direction)
{
    return vector - direction * Dot(vector, direction);
}

}  // namespace

Frame TurnedAboutX(const Frame& frame, double degrees)
{
    const auto [cosine, sine] = TurnOf(degrees);
    return {frame.x, frame.y * cosine + frame.z * sine, frame.z * cosine - frame.y * sine};
}

Frame TurnedAboutZ(const Frame& frame, double degrees)
{
    const auto [cosine, sine] = TurnOf(degrees);
    return {frame.x * cosine + frame.y * sine, frame.y * cosine - frame.x * sine, frame.z};
}

std::optional<Frame> FrameOfAxis(const Segment& axis, const Point* orientation)
{
    if (!IsSensible(axis.start) || !IsSensible(axis.end)) return std::nullopt;
    const Point along = axis.end - axis.start;
    // Below the smallest length whose square is not rounded to 0, there is no direction.
    if (!(Length(along) > 1e-150)) return std::nullopt;
    Frame frame;
    frame.x = Normalized(along);
    if (orientation != nullptr && IsSensible(*orientation)) {
        const Point aside = *orientation - axis.start;
        const Point up = Across(aside, frame.x);
        if (Length(up) > kVertical * Length(aside)) {
            frame.z = Normalized(up);
            frame.y = Cross(frame.z, frame.x);
            return frame;
        }
    }
    const bool isVertical = std::hypot(frame.x.x, frame.x.y) < kVertical;
    // z is nearest to the vertical, and of a vertical bar nearest to x, away from where it leads.
    const Point up = isVertical ? Point{frame.x.z > 0 ? -1.0 : 1.0, 0, 0} : Point{0, 0, 1};
    frame.z = Normalized(Across(up, frame.x));
    frame.y = Cross(frame.z, frame.x);
    return frame;
}

std::optional<Frame> FrameOfBar(const TMRFilaire& bar, const Point* orientation)
{
    const Segment axis = {PointOf(bar.startPoint), PointOf(bar.endPoint)};
    const std::optional<Frame> frame = FrameOfAxis(axis, orientation);
    if (!frame) return frame;
    return TurnedAboutX(*frame, AngleAsWritten(bar));
}

std::optional<Frame> FrameOfPolygon(std::span<const Point> corners)
{
    if (!std::all_of(corners.begin(), corners.end(), IsSensible)) return std::nullopt;
    const Polygon polygon(corners);
    if (!(polygon.Area() > 0)) return std::nullopt;
    Frame frame;
    frame.z = polygon.ThePlane().normal;
    for (std::size_t i = 0; i < polygon.Size(); ++i) {
        const Segment edge = polygon.Edge(i);
        const Point side = Across(edge.end - edge.start, frame.z);
        // Not one that is rounding, or leads out of the plane.
        if (!(Length(side) > kVertical * edge.Length())) continue;
        if (!(Length(side) > 1e-9 * polygon.Perimeter())) continue;
        frame.x = Normalized(side);
        frame.y = Cross(frame.z, frame.x);
        return frame;
    }
    return std::nullopt;
}

Frame FrameOfSupport(const TMRAppuiPonctuel& support, const Point* orientation)
{
    if (orientation != nullptr) {
        const auto frame = FrameOfAxis({PointOf(support.Geometrie), *orientation});
        if (frame) return TurnedAboutX(*frame, support.Angle);
    }
    return TurnedAboutZ({}, support.Angle);
}

Frame FrameOfLoad(int repere, const std::optional<Frame>& local)
{
    return repere == TMR_FORCE_LOCAL && local ? *local : Frame{};
}

}  // namespace tamur::host
