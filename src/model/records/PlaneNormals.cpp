#include "model/records/PlaneNormals.h"

#include "model/records/ModelRecords.h"

#include <cmath>

namespace orvane {

namespace {

template <typename Number>
Vector3 difference(const Number* to, const Number* from) {
    Vector3 out{};
    for (std::size_t i = 0; i < 3; ++i) {
        out[i] = static_cast<double>(to[i]) - static_cast<double>(from[i]);
    }
    return out;
}

template <typename Number>
std::vector<float> normalsOf(std::span<const Number> positions) {
    std::vector<float> out(positions.size());
    for (std::size_t at = 0; at < positions.size(); at += 9) {
        const Number* corners = &positions[at];
        const Vector3 ab = difference(corners + 3, corners);
        const Vector3 ac = difference(corners + 6, corners);
        const Vector3 n = {ab[1] * ac[2] - ab[2] * ac[1], ab[2] * ac[0] - ab[0] * ac[2],
                           ab[0] * ac[1] - ab[1] * ac[0]};
        const double length = std::sqrt(n[0] * n[0] + n[1] * n[1] + n[2] * n[2]);
        for (std::size_t i = 0; i < 9 && length > 0; ++i) {
            out[at + i] = static_cast<float>(n[i % 3] / length);
        }
    }
    return out;
}

} // namespace

std::vector<float> planeNormals(std::span<const float> positions) {
    return normalsOf(positions);
}

std::vector<float> planeNormals(std::span<const double> positions) {
    return normalsOf(positions);
}

} // namespace orvane
