#pragma once

#include <array>

namespace orvane {

/// Matrices of doubles, row by row, that turn column vectors.
using DoubleVector = std::array<double, 3>;
using DoubleMatrix3 = std::array<DoubleVector, 3>;

inline constexpr DoubleMatrix3 kDoubleIdentity3 = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};

/// A 3x3 block with the translation beside it, in the fourth column. The fourth row is 0, 0, 0, 1 and is not
/// looked at.
using AffineMatrix = std::array<std::array<double, 4>, 4>;

} // namespace orvane
