#include "host/diff/tolerance.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace tamur::host {
namespace {

// Below it, logarithms are not exact enough for cells.
constexpr double kSmallestCells = 1e-9;
// Above it, quotients are not exact enough for cells.
constexpr double kMostCells = 1e12;

// Keeps the cells of reals apart from the bits of 0, infinities and NaN.
constexpr std::uint64_t kRealCell = 0x5DEECE66D15A4E31;

std::uint64_t BitsOf(double number)
{
    if (std::isnan(number)) number = std::numeric_limits<double>::quiet_NaN();
    return std::bit_cast<std::uint64_t>(number + 0.0);  // -0 becomes 0
}

std::uint64_t CellAt(double place)
{
    return static_cast<std::uint64_t>(static_cast<std::int64_t>(std::floor(place + 0.5)));
}

bool AreIdentical(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

}  // namespace

// Cells are half as wide as the tolerance, so that rounding cannot put too much into one.
Tolerance::Tolerance(double tolerance)
    : tolerance_(tolerance), step_(tolerance < kSmallestCells ? 0 : std::log1p(tolerance) / 2)
{
}

bool Tolerance::AreSameCoordinates(double a, double b) const
{
    return AreIdentical(a, b) || (tolerance_ > 0 && std::abs(a - b) <= tolerance_);
}

bool Tolerance::AreSameReals(double a, double b) const
{
    if (AreIdentical(a, b)) return true;
    if (tolerance_ <= 0 || std::isinf(a) || std::isinf(b)) return false;
    return std::abs(a - b) <= tolerance_ * std::max(std::abs(a), std::abs(b));
}

std::uint64_t Tolerance::CellOfCoordinate(double number) const
{
    if (tolerance_ <= 0) return BitsOf(number);
    const double place = number / (tolerance_ / 2);
    return std::abs(place) < kMostCells ? CellAt(place) : BitsOf(number);
}

std::uint64_t Tolerance::CellOfReal(double number) const
{
    if (step_ == 0 || number == 0 || !std::isfinite(number)) return BitsOf(number);
    const std::uint64_t cell = CellAt(std::log(std::abs(number)) / step_);
    return kRealCell ^ (cell << 1) ^ (number < 0 ? 1 : 0);
}

}  // namespace tamur::host
