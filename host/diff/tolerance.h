// When two numbers are the same.
#pragma once

#include <TAMURReader.h>

#include <cstdint>

namespace tamur::host {

// Coordinates may be apart by the tolerance, in the unit of the file; other reals by that part of
// the larger one: sections have constants that are smaller than any useful length. NaN is the same
// as NaN, and 0 as -0.
class Tolerance {
 public:
    explicit Tolerance(double tolerance = 0);

    [[nodiscard]] bool AreSameCoordinates(double a, double b) const;
    [[nodiscard]] bool AreSamePoints(const TMR3DPnt& a, const TMR3DPnt& b) const
    {
        return AreSameCoordinates(a.x, b.x) && AreSameCoordinates(a.y, b.y) &&
               AreSameCoordinates(a.z, b.z);
    }
    [[nodiscard]] bool AreSameReals(double a, double b) const;

    // Numbers with equal cells are the same; the same numbers may have cells side by side.
    [[nodiscard]] std::uint64_t CellOfCoordinate(double number) const;
    [[nodiscard]] std::uint64_t CellOfReal(double number) const;

 private:
    double tolerance_;
    double step_;  // of the logarithms of reals; 0 when cells are single numbers
};

}  // namespace tamur::host
