#include "geometry/StretchDecomposition.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace orvane::geometry {

namespace {

constexpr double kSqrtHalf = 0.7071067811865476;

struct EigenSystem {
    DoubleVector values;
    DoubleMatrix3 vectors; ///< as columns; a rotation
};

/// The tangent of the angle, 45 degrees at most, by which a step turns. `h` is the difference of the two
/// diagonal entries.
double turnTangent(double h, double offDiagonal) {
    if (std::abs(h) + 100.0 * std::abs(offDiagonal) == std::abs(h)) {
        return offDiagonal / h;
    }
    const double theta = 0.5 * h / offDiagonal;
    const double t = 1 / (std::abs(theta) + std::sqrt(theta * theta + 1));
    return theta < 0 ? -t : t;
}

/// Jacobi's method: each step turns one pair of axes so that the entry between them vanishes.
EigenSystem eigenSystemOf(const DoubleMatrix3& s) {
    EigenSystem result = {{s[0][0], s[1][1], s[2][2]}, kDoubleIdentity3};
    DoubleVector& diagonal = result.values;
    DoubleVector offDiagonal = {s[1][2], s[2][0], s[0][1]}; // by the index that is left out
    for (int sweep = 0; sweep < 20; ++sweep) {
        if (std::abs(offDiagonal[0]) + std::abs(offDiagonal[1]) + std::abs(offDiagonal[2]) == 0) {
            break;
        }
        for (std::size_t i = 3; i-- > 0;) {
            const std::size_t p = (i + 1) % 3, q = (i + 2) % 3;
            if (!(std::abs(offDiagonal[i]) > 0)) {
                continue;
            }
            const double t = turnTangent(diagonal[q] - diagonal[p], offDiagonal[i]);
            const double cosine = 1 / std::sqrt(t * t + 1), sine = t * cosine;
            const double tau = sine / (cosine + 1);
            const double shift = t * offDiagonal[i];
            offDiagonal[i] = 0;
            diagonal[p] -= shift;
            diagonal[q] += shift;
            const double before = offDiagonal[q];
            offDiagonal[q] -= sine * (offDiagonal[p] + tau * offDiagonal[q]);
            offDiagonal[p] += sine * (before - tau * offDiagonal[p]);
            for (DoubleVector& row : result.vectors) {
                const double a = row[p], b = row[q];
                row[p] -= sine * (b + tau * a);
                row[q] += sine * (a - tau * b);
            }
        }
    }
    return result;
}

void cycle(DoubleVector& k, bool forward) {
    std::rotate(k.begin(), k.begin() + (forward ? 1 : 2), k.end());
}

/// The turn that brings `q` closest to no rotation where the factors of the two axes beside `single` are
/// equal: free about `single`, and by whole axes otherwise. Rearranges `k` to go with it.
Quaternion snuggleAboutAxis(Quaternion q, DoubleVector& k, std::size_t single) {
    Quaternion toZ;
    if (single == 0) {
        toZ = {0, kSqrtHalf, 0, kSqrtHalf};
    } else if (single == 1) {
        toZ = {kSqrtHalf, 0, 0, kSqrtHalf};
    }
    if (single != 2) {
        q = multiply(q, toZ);
        std::swap(k[single], k[2]);
    }
    q = conjugate(q);
    DoubleVector size = {q.z * q.z + q.w * q.w - 0.5, q.x * q.z - q.y * q.w, q.y * q.z + q.x * q.w};
    std::array<bool, 3> isNegative{};
    for (std::size_t i = 0; i < 3; ++i) {
        isNegative[i] = size[i] < 0;
        size[i] = isNegative[i] ? -size[i] : size[i];
    }
    Quaternion p;
    std::size_t best = 2;
    if (size[0] > size[1] && size[0] > size[2]) {
        best = 0;
        p = isNegative[0] ? Quaternion{1, 0, 0, 0} : Quaternion{0, 0, 0, 1};
    } else if (!(size[0] > size[1]) && size[1] > size[2]) {
        best = 1;
        p = isNegative[1] ? Quaternion{0.5, 0.5, -0.5, -0.5} : Quaternion{0.5, 0.5, 0.5, 0.5};
        cycle(k, false);
    } else {
        p = isNegative[2] ? Quaternion{-0.5, 0.5, -0.5, -0.5} : Quaternion{0.5, 0.5, 0.5, -0.5};
        cycle(k, true);
    }
    const Quaternion turned = multiply(q, p);
    const double t = std::sqrt(size[best] + 0.5);
    p = multiply(p, {0, 0, -turned.z / t, turned.w / t});
    return multiply(toZ, conjugate(p));
}

struct TwoLargest {
    std::size_t largest, second; ///< positions
};

TwoLargest twoLargestOf(const std::array<double, 4>& size) {
    std::size_t second = size[0] > size[1] ? 0 : 1;
    std::size_t largest = size[2] > size[3] ? 2 : 3;
    if (size[second] > size[largest]) {
        if (size[second ^ 1] > size[largest]) {
            largest = second;
            second ^= 1;
        } else {
            std::swap(largest, second);
        }
    } else if (size[largest ^ 1] > size[second]) {
        second = largest ^ 1;
    }
    return {largest, second};
}

/// The turn by whole axes that brings `q` closest to no rotation: one of the 24 rotations of the cube, picked
/// by the largest, the two largest or all components of `q`. Rearranges `k` to go with it.
Quaternion snuggleByAxes(const Quaternion& q, DoubleVector& k) {
    std::array<double, 4> size = {q.x, q.y, q.z, q.w};
    std::array<bool, 4> isNegative{};
    bool isOdd = false;
    for (std::size_t i = 0; i < 4; ++i) {
        isNegative[i] = size[i] < 0;
        size[i] = isNegative[i] ? -size[i] : size[i];
        isOdd = isOdd != isNegative[i];
    }
    const auto [largest, second] = twoLargestOf(size);
    const double all = (size[0] + size[1] + size[2] + size[3]) * 0.5;
    const double two = (size[largest] + size[second]) * kSqrtHalf;
    const double one = size[largest];

    std::array<double, 4> p{};
    const auto set = [&](std::size_t i, double value) { p[i] = isNegative[i] ? -value : value; };
    if (all > two && all > one) {
        for (std::size_t i = 0; i < 4; ++i) {
            set(i, 0.5);
        }
        cycle(k, isOdd);
    } else if (!(all > two) && two > one) {
        set(largest, kSqrtHalf);
        set(second, kSqrtHalf);
        // A quarter turn about an axis exchanges the other two; a half turn between two axes exchanges those.
        auto [low, high] = std::minmax({largest, second});
        if (high == 3) {
            high = (low + 1) % 3;
            low = 3 - high - low;
        }
        std::swap(k[high], k[low]);
    } else {
        set(largest, 1);
    }
    return {-p[0], -p[1], -p[2], p[3]};
}

/// The turn p for which `q * p` has the smallest angle and is as good a frame for the factors.
Quaternion snuggle(const Quaternion& q, DoubleVector& k) {
    if (k[0] == k[1]) {
        return k[0] == k[2] ? conjugate(q) : snuggleAboutAxis(q, k, 2);
    }
    if (k[0] == k[2]) {
        return snuggleAboutAxis(q, k, 1);
    }
    return k[1] == k[2] ? snuggleAboutAxis(q, k, 0) : snuggleByAxes(q, k);
}

} // namespace

StretchParts decomposeStretch(const DoubleMatrix3& stretch) {
    EigenSystem system = eigenSystemOf(stretch);
    DoubleVector& k = system.values;
    const Quaternion u = quaternionOf(system.vectors);
    const Quaternion turned = multiply(u, snuggle(u, k));
    return {turned, {k[0], k[1], k[2], 1}};
}

} // namespace orvane::geometry
