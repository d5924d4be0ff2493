#include "embedded/PlacementPath.h"

#include <algorithm>
#include <cmath>

namespace orvane::embedded {

namespace {

using Quaternion = std::array<double, 4>;

/// How far a block may be from orthonormal: documents are often written with six digits.
constexpr double kTolerance = 1e-4;

double determinant(const Placement& m) {
    return m[0] * (m[4] * m[8] - m[5] * m[7]) - m[1] * (m[3] * m[8] - m[5] * m[6]) +
           m[2] * (m[3] * m[7] - m[4] * m[6]);
}

bool isOrthonormal(const Placement& m) {
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t j = i; j < 3; ++j) {
            const double* a = &m[3 * i];
            const double* b = &m[3 * j];
            const double dot = a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
            if (!(std::abs(dot - (i == j ? 1 : 0)) <= kTolerance)) {
                return false;
            }
        }
    }
    return true;
}

double lengthOf(const Quaternion& q) {
    return std::sqrt(q[0] * q[0] + q[1] * q[1] + q[2] * q[2] + q[3] * q[3]);
}

Quaternion weighted(const Quaternion& a, double weightA, const Quaternion& b, double weightB) {
    Quaternion sum;
    for (std::size_t i = 0; i < 4; ++i) {
        sum[i] = a[i] * weightA + b[i] * weightB;
    }
    return sum;
}

Quaternion normalised(const Quaternion& q) {
    return weighted(q, 1 / lengthOf(q), q, 0);
}

/// The quaternion of a block times `sign`, by the largest of its four components (Shepperd, Quaternion from
/// Rotation Matrix, 1978).
Quaternion quaternionOf(const Placement& m, double sign) {
    const auto entry = [&](std::size_t row, std::size_t column) { return sign * m[3 * row + column]; };
    const double trace = entry(0, 0) + entry(1, 1) + entry(2, 2);
    const double sizes[4] = {entry(0, 0), entry(1, 1), entry(2, 2), trace};
    const auto largest = static_cast<std::size_t>(std::ranges::max_element(sizes) - sizes);
    if (largest == 3) {
        return normalised(
            {entry(2, 1) - entry(1, 2), entry(0, 2) - entry(2, 0), entry(1, 0) - entry(0, 1), 1 + trace});
    }
    const std::size_t i = largest, j = (i + 1) % 3, k = (i + 2) % 3;
    Quaternion q;
    q[i] = 1 + 2 * entry(i, i) - trace;
    q[j] = entry(i, j) + entry(j, i);
    q[k] = entry(i, k) + entry(k, i);
    q[3] = entry(k, j) - entry(j, k);
    return normalised(q);
}

void setBlock(Placement& m, const Quaternion& q, double sign) {
    const auto [x, y, z, w] = q;
    const double block[9] = {1 - 2 * (y * y + z * z), 2 * (x * y - z * w),     2 * (x * z + y * w),
                             2 * (x * y + z * w),     1 - 2 * (x * x + z * z), 2 * (y * z - x * w),
                             2 * (x * z - y * w),     2 * (y * z + x * w),     1 - 2 * (x * x + y * y)};
    std::ranges::transform(block, m.begin(), [&](double number) { return sign * number; });
}

} // namespace

PlacementPath::PlacementPath(const Placement& from, const Placement& to) : from_(&from), to_(&to) {
    if (std::equal(from.begin(), from.begin() + 9, to.begin())) {
        return;
    }
    turn_ = Turn::linear;
    sign_ = determinant(from) < 0 ? -1 : 1;
    if (!isOrthonormal(from) || !isOrthonormal(to) || determinant(to) * sign_ < 0) {
        return;
    }
    start_ = quaternionOf(from, sign_);
    end_ = quaternionOf(to, sign_);
    // The two quaternions of a rotation are opposite ones; the nearer one gives the shorter arc.
    if (lengthOf(weighted(start_, 1, end_, -1)) > lengthOf(weighted(start_, 1, end_, 1))) {
        end_ = weighted(end_, -1, end_, 0);
    }
    angle_ = 2 * std::atan2(lengthOf(weighted(start_, 1, end_, -1)), lengthOf(weighted(start_, 1, end_, 1)));
    turn_ = angle_ > 0 ? Turn::arc : Turn::linear;
}

PlacementPath::Quaternion PlacementPath::between(double fraction) const {
    const double whole = std::sin(angle_);
    return normalised(weighted(start_, std::sin((1 - fraction) * angle_) / whole, end_,
                               std::sin(fraction * angle_) / whole));
}

Placement PlacementPath::at(double fraction) const {
    Placement placement = *from_;
    for (std::size_t i = turn_ == Turn::linear ? 0 : 9; i < placement.size(); ++i) {
        placement[i] += ((*to_)[i] - placement[i]) * fraction;
    }
    if (turn_ == Turn::arc) {
        setBlock(placement, between(fraction), sign_);
    }
    return placement;
}

} // namespace orvane::embedded
