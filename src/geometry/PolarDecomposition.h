#pragma once

#include "geometry/DoubleMatrix.h"

namespace orvane::geometry {

/// A matrix M as `orthogonal * stretch`.
struct PolarFactors {
    DoubleMatrix3 orthogonal; ///< rotation, or rotation and mirror where M mirrors
    DoubleMatrix3 stretch;    ///< symmetric
    double determinant; ///< as the last step saw it: its sign is that of M's, and it is 0 for a singular M
};

/// Splits a matrix by Newton's iteration with the scaling of Higham and Schreiber (Fast Polar Decomposition
/// of an Arbitrary Matrix, 1988), in the form of Shoemake's polar_decomp (Graphics Gems IV). A singular
/// matrix has factors too. Of rank 2: the orthogonal one is a rotation or a mirrored rotation. Of rank 1 or
/// 0: it is the identity, and the stretch no more than the symmetric part of the matrix.
PolarFactors polarDecompose(const DoubleMatrix3& matrix);

} // namespace orvane::geometry
