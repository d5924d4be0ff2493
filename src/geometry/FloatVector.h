#pragma once

#include <cmath>

namespace orvane {

/// Three single floats. All operations are single-precision, and sums go from left to right, so that texture
/// coordinates are the same bits on every machine.
struct FloatVector {
    float x = 0, y = 0, z = 0;

    friend constexpr bool operator==(const FloatVector&, const FloatVector&) = default;
};

constexpr FloatVector operator+(FloatVector a, FloatVector b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

constexpr FloatVector operator-(FloatVector a, FloatVector b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

constexpr FloatVector operator-(FloatVector a) {
    return {-a.x, -a.y, -a.z};
}

constexpr FloatVector operator*(FloatVector a, float factor) {
    return {a.x * factor, a.y * factor, a.z * factor};
}

constexpr FloatVector multiplyComponents(FloatVector a, FloatVector b) {
    return {a.x * b.x, a.y * b.y, a.z * b.z};
}

constexpr float dot(FloatVector a, FloatVector b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

constexpr FloatVector cross(FloatVector a, FloatVector b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

/// The vector times the reciprocal of its length; zeros for the length 0.
inline FloatVector normalize(FloatVector a) {
    const float length = std::sqrt(dot(a, a));
    return length == 0 ? FloatVector{} : a * (1.0f / length);
}

} // namespace orvane
