#include "model/json/PlacementJson.h"

#include "model/json/JsonCursor.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace orvane::json {

namespace {

Vector3 readAxis(const JsonCursor& value) {
    const auto axis = valueAs<Vector3>(value);
    if (axis == Vector3{}) {
        value.fail("an axis of length 0", "a direction");
    }
    return axis;
}

void readRotation(const JsonCursor& rotate, Placement& out) {
    Vector3 axis = {0, 0, 1};
    double degrees = 0;
    rotate.readObject(key("axis", axis, readAxis), key("degrees", degrees));
    std::ranges::copy(rotationBlock(axis, degrees), out.begin());
}

Vector3 scaledBy(const Vector3& v, double divisor) {
    return {v[0] / divisor, v[1] / divisor, v[2] / divisor};
}

double lengthOf(const Vector3& v) {
    return std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
}

Vector3 normalised(const Vector3& v) {
    const double length = lengthOf(v);
    if (std::isnormal(length)) {
        return scaledBy(v, length);
    }
    // The squares of a very long or very short axis are out of range.
    const Vector3 scaled = scaledBy(v, std::max({std::abs(v[0]), std::abs(v[1]), std::abs(v[2])}));
    return scaledBy(scaled, lengthOf(scaled));
}

} // namespace

SineCosine sineCosineOfDegrees(double degrees) {
    const double turn = std::fmod(degrees, 360.0); // exact
    if (std::fmod(turn, 90.0) == 0) {
        constexpr SineCosine kQuarters[] = {{0, 1}, {1, 0}, {0, -1}, {-1, 0}};
        return kQuarters[(static_cast<int>(turn / 90.0) + 4) % 4];
    }
    const double radians = turn * std::numbers::pi / 180.0;
    return {std::sin(radians), std::cos(radians)};
}

std::array<double, 9> rotationBlock(const Vector3& axis, double degrees) {
    const Vector3 k = normalised(axis);
    const auto [s, c] = sineCosineOfDegrees(degrees);
    // Rodrigues' formula, c I + (1 - c) k k^T + s [k]x, transposed for row vectors: the last term changes its
    // sign.
    const std::array<double, 9> cross = {0, k[2], -k[1], -k[2], 0, k[0], k[1], -k[0], 0};
    std::array<double, 9> out{};
    for (std::size_t i = 0; i < 9; ++i) {
        const double diagonal = i % 4 == 0 ? c : 0.0;
        out[i] = diagonal + (1 - c) * k[i / 3] * k[i % 3] + s * cross[i] + 0.0; // + 0.0 makes -0 a 0
    }
    return out;
}

void readValue(const JsonCursor& value, Placement& out) {
    if (value.isList()) {
        value.numbers(out);
        return;
    }
    if (!value.isObject()) {
        value.mismatch("a list of 16 numbers or an object");
    }
    out = kIdentityPlacement;
    Vector3 translation{};
    value.readObject(key("translate", translation),
                     key("rotate", [&](const JsonCursor& rotate) { readRotation(rotate, out); }),
                     key("scale", out[12]));
    std::ranges::copy(translation, out.begin() + 9);
}

} // namespace orvane::json
