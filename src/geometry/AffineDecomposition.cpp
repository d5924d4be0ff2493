#include "geometry/AffineDecomposition.h"

#include "geometry/PolarDecomposition.h"
#include "geometry/StretchDecomposition.h"

#include <cstddef>

namespace orvane {

void decomposeAffine(const AffineMatrix& matrix, bool rotationOnly, AffineParts& parts) {
    parts.t = {matrix[0][3], matrix[1][3], matrix[2][3], 0};
    geometry::DoubleMatrix3 block;
    for (std::size_t i = 0; i < 3; ++i) {
        block[i] = {matrix[i][0], matrix[i][1], matrix[i][2]};
    }
    geometry::PolarFactors factors = geometry::polarDecompose(block);
    parts.f = factors.determinant < 0 ? -1 : 1;
    if (parts.f < 0) {
        for (geometry::DoubleVector& row : factors.orthogonal) {
            row = {-row[0], -row[1], -row[2]};
        }
    }
    parts.q = geometry::quaternionOf(factors.orthogonal);
    if (!rotationOnly) {
        const geometry::StretchParts stretch = geometry::decomposeStretch(factors.stretch);
        parts.u = stretch.u;
        parts.k = stretch.k;
    }
}

} // namespace orvane
