#pragma once

#include "geometry/FloatVector.h"

#include <array>

namespace orvane {

/// Matrices of single floats, row by row, that turn column vectors: the product `a * b` applies `b` first.
/// Sums go from left to right in single precision.
using FloatMatrix3 = std::array<FloatVector, 3>;
using FloatMatrix4 = std::array<std::array<float, 4>, 4>;

inline constexpr FloatMatrix3 kIdentity3 = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
inline constexpr FloatMatrix4 kIdentity4 = {{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}}};

FloatMatrix3 transpose(const FloatMatrix3& a);
FloatMatrix3 multiply(const FloatMatrix3& a, const FloatMatrix3& b);
FloatMatrix4 multiply(const FloatMatrix4& a, const FloatMatrix4& b);
FloatVector apply(const FloatMatrix3& a, FloatVector vector);
/// Takes the vector for a point: the fourth column is added. The fourth row is not looked at.
FloatVector applyToPoint(const FloatMatrix4& a, FloatVector point);

/// The right-handed rotation by `angle` radians about `axis`, by Rodrigues' formula. The axis need not be a
/// unit vector. The identity for an angle below 1e-8 either way; for a zero axis the cosine of the angle
/// times the identity.
FloatMatrix3 rotationAbout(double angle, FloatVector axis);
/// The same about the axis through `point`.
FloatMatrix4 rotationThrough(FloatVector point, double angle, FloatVector axis);

/// Whether the directions of the three rows are at right angles: the dot product of each two is below 0.0001
/// either way. A row of zeros is at right angles to all.
bool rowsAreOrthogonal(const FloatMatrix3& a);

/// Makes the rows unit vectors at right angles, right-handed, in place. Row 0 keeps its direction; row 1 is
/// taken from rows 2 and 0, and row 2 from the new rows 0 and 1. Rows without a direction become zeros.
void orthonormalize(FloatMatrix3& a);

} // namespace orvane
