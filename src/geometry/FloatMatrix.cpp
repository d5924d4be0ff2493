#include "geometry/FloatMatrix.h"

#include <cstddef>

namespace orvane {

namespace {

FloatMatrix4 translationBy(FloatVector offset) {
    FloatMatrix4 result = kIdentity4;
    result[0][3] = offset.x;
    result[1][3] = offset.y;
    result[2][3] = offset.z;
    return result;
}

FloatMatrix4 withoutTranslation(const FloatMatrix3& a) {
    FloatMatrix4 result = kIdentity4;
    for (std::size_t i = 0; i < 3; ++i) {
        result[i] = {a[i].x, a[i].y, a[i].z, 0};
    }
    return result;
}

} // namespace

FloatMatrix3 transpose(const FloatMatrix3& a) {
    return {{{a[0].x, a[1].x, a[2].x}, {a[0].y, a[1].y, a[2].y}, {a[0].z, a[1].z, a[2].z}}};
}

FloatMatrix3 multiply(const FloatMatrix3& a, const FloatMatrix3& b) {
    const FloatMatrix3 columns = transpose(b);
    return {apply(columns, a[0]), apply(columns, a[1]), apply(columns, a[2])};
}

FloatMatrix4 multiply(const FloatMatrix4& a, const FloatMatrix4& b) {
    FloatMatrix4 result;
    for (std::size_t i = 0; i < 4; ++i) {
        for (std::size_t j = 0; j < 4; ++j) {
            result[i][j] = a[i][0] * b[0][j] + a[i][1] * b[1][j] + a[i][2] * b[2][j] + a[i][3] * b[3][j];
        }
    }
    return result;
}

FloatVector apply(const FloatMatrix3& a, FloatVector vector) {
    return {dot(a[0], vector), dot(a[1], vector), dot(a[2], vector)};
}

FloatVector applyToPoint(const FloatMatrix4& a, FloatVector point) {
    const auto row = [&](std::size_t i) {
        return a[i][0] * point.x + a[i][1] * point.y + a[i][2] * point.z + a[i][3];
    };
    return {row(0), row(1), row(2)};
}

FloatMatrix3 rotationAbout(double angle, FloatVector axis) {
    if (std::abs(angle) < 1e-8) {
        return kIdentity3;
    }
    const FloatVector unit = normalize(axis);
    const double x = unit.x, y = unit.y, z = unit.z;
    const double c = std::cos(angle), s = std::sin(angle), t = 1 - c;
    const auto row = [](double a, double b, double d) {
        return FloatVector{static_cast<float>(a), static_cast<float>(b), static_cast<float>(d)};
    };
    return {row(t * x * x + c, t * x * y - s * z, t * x * z + s * y),
            row(t * x * y + s * z, t * y * y + c, t * y * z - s * x),
            row(t * x * z - s * y, t * y * z + s * x, t * z * z + c)};
}

FloatMatrix4 rotationThrough(FloatVector point, double angle, FloatVector axis) {
    const FloatMatrix4 rotation = withoutTranslation(rotationAbout(angle, axis));
    return multiply(multiply(translationBy(point), rotation), translationBy(-point));
}

bool rowsAreOrthogonal(const FloatMatrix3& a) {
    const FloatVector x = normalize(a[0]), y = normalize(a[1]), z = normalize(a[2]);
    const auto isRightAngle = [](FloatVector v, FloatVector w) {
        return static_cast<double>(std::abs(dot(v, w))) < 0.0001;
    };
    return isRightAngle(x, y) && isRightAngle(x, z) && isRightAngle(y, z);
}

void orthonormalize(FloatMatrix3& a) {
    a[0] = normalize(a[0]);
    a[1] = normalize(cross(a[2], a[0]));
    a[2] = normalize(cross(a[0], a[1]));
}

} // namespace orvane
