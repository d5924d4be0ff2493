#pragma once

#include "geometry/Quaternion.h"

#include <array>

namespace orvane {

/// A 3x3 block that turns column vectors, with the translation beside it, in the fourth column. The fourth
/// row is 0, 0, 0, 1 and is not looked at.
using AffineMatrix = std::array<std::array<double, 4>, 4>;

/// An affine matrix as T * F * R * U * K * transpose(U): a point is stretched along U's axes, turned,
/// mirrored through the origin, and moved. Unlike other splits, none of the parts depends on the axes of the
/// frame.
struct AffineParts {
    Quaternion t = {0, 0, 0, 0};         ///< translation, in the matrix's unit; w is 0
    Quaternion q;                        ///< rotation R
    Quaternion u;                        ///< rotation U of the stretch
    std::array<double, 4> k{1, 1, 1, 1}; ///< stretch K along U's axes; the fourth is 1
    double f = 1; ///< -1 for a matrix of negative determinant, which mirrors; otherwise 1
};

/// Splits a matrix by the polar decomposition of Shoemake and Duff (Matrix Animation and Polar Decomposition,
/// Graphics Interface 1992), as Shoemake's decomp_affine does (Graphics Gems IV), in doubles throughout. With
/// `rotationOnly`, only t, q and f are set, and the stretch stays as it was. A singular matrix has f = 1 and
/// some finite parts, which need not give the matrix back; q is then no unit quaternion where the matrix of
/// rank 2 mirrors.
void decomposeAffine(const AffineMatrix& matrix, bool rotationOnly, AffineParts& parts);

} // namespace orvane
