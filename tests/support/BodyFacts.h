#pragma once

#include "model/records/ModelRecords.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <utility>
#include <vector>

namespace orvane {

/// What the triangles of a body's faces show of its shape.
struct BodyFacts {
    double volume = 0;      ///< by the divergence theorem: positive where the triangles are turned outward
    double worstNormal = 1; ///< smallest cosine between a corner's normal and its triangle's; -1 without area
    bool hasUnitNormals = true;
    bool isClosed = true; ///< every edge of a triangle has its opposite
    std::size_t triangles = 0;
    Vector3 extent{}; ///< of the box
};

inline Vector3 vectorAt(const std::vector<float>& numbers, std::size_t at) {
    return {numbers[at], numbers[at + 1], numbers[at + 2]};
}
inline Vector3 difference(const Vector3& a, const Vector3& b) {
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}
inline double dot(const Vector3& a, const Vector3& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}
inline Vector3 cross(const Vector3& a, const Vector3& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

inline BodyFacts factsOf(const std::vector<FaceRecord>& faces) {
    BodyFacts facts;
    std::map<std::pair<Vector3, Vector3>, int> edges;
    std::array<std::vector<double>, 3> coordinates;
    for (const FaceRecord& face : faces) {
        EXPECT_EQ(face.normals.size(), face.positions.size());
        EXPECT_EQ(face.texCoords.size() * 3, face.positions.size() * 2);
        for (std::size_t at = 0; at < face.positions.size(); ++at) {
            coordinates[at % 3].push_back(face.positions[at]);
        }
        for (std::size_t at = 0; at < face.positions.size(); at += 9, ++facts.triangles) {
            const Vector3 corners[] = {vectorAt(face.positions, at), vectorAt(face.positions, at + 3),
                                       vectorAt(face.positions, at + 6)};
            facts.volume += dot(corners[0], cross(corners[1], corners[2])) / 6;
            const Vector3 plane =
                cross(difference(corners[1], corners[0]), difference(corners[2], corners[0]));
            const double area = std::sqrt(dot(plane, plane));
            for (std::size_t i = 0; i < 3; ++i) {
                ++edges[{corners[i], corners[(i + 1) % 3]}];
                --edges[{corners[(i + 1) % 3], corners[i]}];
                const Vector3 normal = vectorAt(face.normals, at + 3 * i);
                facts.worstNormal = std::min(facts.worstNormal, area > 0 ? dot(normal, plane) / area : -1.0);
                facts.hasUnitNormals &= std::abs(std::sqrt(dot(normal, normal)) - 1) < 1e-6;
            }
        }
    }
    for (std::size_t axis = 0; axis < 3 && facts.triangles > 0; ++axis) {
        const auto [low, high] = std::ranges::minmax(coordinates[axis]);
        facts.extent[axis] = high - low;
    }
    facts.isClosed = std::ranges::all_of(edges, [](const auto& edge) { return edge.second == 0; });
    return facts;
}

} // namespace orvane
