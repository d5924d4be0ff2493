#pragma once

#include "geometry/DoubleMatrix.h"

namespace orvane {

/// A rotation that turns column vectors, when it is of unit length; without one it is just four numbers.
struct Quaternion {
    double x = 0, y = 0, z = 0, w = 1;

    friend constexpr bool operator==(const Quaternion&, const Quaternion&) = default;
};

} // namespace orvane

namespace orvane::geometry {

constexpr Quaternion conjugate(const Quaternion& q) {
    return {-q.x, -q.y, -q.z, q.w};
}

/// The rotation that applies `b` first and `a` after it.
Quaternion multiply(const Quaternion& a, const Quaternion& b);

/// The unit quaternion of a rotation matrix. Of the two that there are: w is positive where the trace is not
/// negative, and the component of the largest diagonal entry otherwise. A matrix that is no rotation gives
/// some quaternion of another length.
Quaternion quaternionOf(const DoubleMatrix3& rotation);

} // namespace orvane::geometry
