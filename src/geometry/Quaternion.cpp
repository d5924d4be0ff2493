#include "geometry/Quaternion.h"

#include <cmath>
#include <cstddef>

namespace orvane::geometry {

// The order of the sums is that of Shoemake's routines (Graphics Gems IV, "Polar Matrix Decomposition").

Quaternion multiply(const Quaternion& a, const Quaternion& b) {
    return {.x = a.w * b.x + a.x * b.w + a.y * b.z - a.z * b.y,
            .y = a.w * b.y + a.y * b.w + a.z * b.x - a.x * b.z,
            .z = a.w * b.z + a.z * b.w + a.x * b.y - a.y * b.x,
            .w = a.w * b.w - a.x * b.x - a.y * b.y - a.z * b.z};
}

Quaternion quaternionOf(const DoubleMatrix3& rotation) {
    const DoubleMatrix3& m = rotation;
    const double trace = m[0][0] + m[1][1] + m[2][2];
    if (trace >= 0) {
        const double twiceLargest = std::sqrt(trace + 1);
        const double s = 0.5 / twiceLargest;
        return {.x = (m[2][1] - m[1][2]) * s,
                .y = (m[0][2] - m[2][0]) * s,
                .z = (m[1][0] - m[0][1]) * s,
                .w = twiceLargest * 0.5};
    }
    std::size_t i = m[1][1] > m[0][0] ? 1 : 0;
    if (m[2][2] > m[i][i]) {
        i = 2;
    }
    const std::size_t j = (i + 1) % 3, k = (i + 2) % 3;
    const double twiceLargest = std::sqrt((m[i][i] - (m[j][j] + m[k][k])) + 1);
    const double s = 0.5 / twiceLargest;
    DoubleVector xyz;
    xyz[i] = twiceLargest * 0.5;
    xyz[j] = (m[i][j] + m[j][i]) * s;
    xyz[k] = (m[k][i] + m[i][k]) * s;
    return {.x = xyz[0], .y = xyz[1], .z = xyz[2], .w = (m[k][j] - m[j][k]) * s};
}

} // namespace orvane::geometry
