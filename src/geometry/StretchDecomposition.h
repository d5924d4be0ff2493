#pragma once

#include "geometry/Quaternion.h"

#include <array>

namespace orvane::geometry {

/// A symmetric matrix as U * K * transpose(U), with U a rotation and K the diagonal of the factors.
struct StretchParts {
    Quaternion u;
    std::array<double, 4> k{}; ///< along U's axes; the fourth is 1
};

/// Splits a symmetric matrix by Jacobi's sweeps (Golub and Van Loan, Matrix Computations, 1983). Of all U
/// that do, gives one with the smallest angle: axes may be exchanged, and turned where factors are equal to
/// the bit (Shoemake and Duff, Matrix Animation and Polar Decomposition, Graphics Interface 1992). These are
/// spect_decomp and snuggle of Graphics Gems IV.
StretchParts decomposeStretch(const DoubleMatrix3& stretch);

} // namespace orvane::geometry
