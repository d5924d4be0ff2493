#include "embedded/PlacementMath.h"

namespace orvane::embedded {

namespace {

/// One number of `row * R`, for the row vector that begins at `row`.
double dotColumn(const double* row, const Placement& r, std::size_t column) {
    return row[0] * r[column] + row[1] * r[3 + column] + row[2] * r[6 + column];
}

} // namespace

Placement multiplyPlacements(const Placement& a, const Placement& b) {
    Placement product{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            product[3 * row + column] = dotColumn(&a[3 * row], b, column);
        }
    }
    for (std::size_t column = 0; column < 3; ++column) {
        product[9 + column] = dotColumn(&a[9], b, column) * b[12] + b[9 + column];
    }
    product[12] = a[12] * b[12];
    return product;
}

Placement invertPlacement(const Placement& a) {
    Placement inverse{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            inverse[3 * row + column] = a[3 * column + row];
        }
    }
    for (std::size_t column = 0; column < 3; ++column) {
        inverse[9 + column] = -dotColumn(&a[9], inverse, column) / a[12];
    }
    inverse[12] = 1 / a[12];
    return inverse;
}

Vector3 transformPoint(const Placement& a, const Vector3& point) {
    Vector3 moved{};
    for (std::size_t column = 0; column < 3; ++column) {
        moved[column] = dotColumn(point.data(), a, column) * a[12] + a[9 + column];
    }
    return moved;
}

} // namespace orvane::embedded
