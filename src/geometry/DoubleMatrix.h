#pragma once

#include <array>

namespace orvane::geometry {

/// Matrices of doubles, row by row, that turn column vectors.
using DoubleVector = std::array<double, 3>;
using DoubleMatrix3 = std::array<DoubleVector, 3>;

inline constexpr DoubleMatrix3 kDoubleIdentity3 = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};

} // namespace orvane::geometry
