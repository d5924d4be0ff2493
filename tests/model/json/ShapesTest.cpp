#include "model/json/Shapes.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <numbers>

namespace orvane::json {
namespace {

using Point = std::array<float, 3>;

Point pointAt(const std::vector<float>& values, std::size_t vertex) {
    return {values[vertex * 3] + 0.0f, values[vertex * 3 + 1] + 0.0f, values[vertex * 3 + 2] + 0.0f};
}

double dot(const Vector3& a, const Vector3& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}
Vector3 cross(const Vector3& a, const Vector3& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
Vector3 wide(const Point& p) {
    return {p[0], p[1], p[2]};
}

/// Checks that the faces close to a solid without degenerate triangles, that triangles and normals look
/// outward, and gives its volume.
double volumeOfSound(const std::vector<FaceRecord>& faces) {
    std::map<std::pair<Point, Point>, int> edges;
    double volume = 0;
    for (const FaceRecord& face : faces) {
        EXPECT_EQ(face.normals.size(), face.positions.size());
        EXPECT_EQ(face.texCoords.size() * 3, face.positions.size() * 2);
        for (const float coordinate : face.texCoords) {
            EXPECT_TRUE(coordinate >= 0 && coordinate <= 1);
        }
        for (std::size_t first = 0; first < face.positions.size() / 3; first += 3) {
            const Point points[] = {pointAt(face.positions, first), pointAt(face.positions, first + 1),
                                    pointAt(face.positions, first + 2)};
            const Vector3 a = wide(points[0]), b = wide(points[1]), c = wide(points[2]);
            const Vector3 plane =
                cross({b[0] - a[0], b[1] - a[1], b[2] - a[2]}, {c[0] - a[0], c[1] - a[1], c[2] - a[2]});
            volume += dot(a, cross(b, c)) / 6;
            for (std::size_t i = 0; i < 3; ++i) {
                ++edges[{points[i], points[(i + 1) % 3]}];
                --edges[{points[(i + 1) % 3], points[i]}];
                const Vector3 normal = wide(pointAt(face.normals, first + i));
                EXPECT_NEAR(dot(normal, normal), 1, 1e-6);
                EXPECT_GT(dot(normal, plane), 0);
            }
        }
    }
    for (const auto& [edge, balance] : edges) {
        EXPECT_EQ(balance, 0) << "an edge without its opposite";
    }
    return volume;
}

TEST(Shapes, AreClosedAndLookOutwardAlsoWhenMirrored) {
    Placement turned = {0, 1, 0, -1, 0, 0, 0, 0, 1, 1, 2, 3, 2, 0, 0, 0};
    Placement negative = kIdentityPlacement;
    negative[12] = -2;
    Placement mirrored = kIdentityPlacement;
    mirrored[0] = -1;
    mirrored[12] = 2;
    Placement twiceMirrored = mirrored;
    twiceMirrored[12] = -2;
    constexpr double kPi = std::numbers::pi;
    // 64 segments lose up to 0.5 % of the round volume.
    const auto expectVolume = [](const std::vector<FaceRecord>& faces, double round) {
        const double volume = volumeOfSound(faces);
        EXPECT_TRUE(volume <= round * 1.00001 && volume > round * 0.995) << volume << " of " << round;
    };
    for (const Placement& placement : {turned, negative, mirrored, twiceMirrored}) {
        EXPECT_NEAR(volumeOfSound(boxFaces({1, 2, 3}, placement)), 8 * 6, 1e-4);
        expectVolume(cylinderFaces(1, 2, 64, placement), 8 * 2 * kPi);
        expectVolume(sphereFaces(1, 64, placement), 8 * 4 * kPi / 3);
        expectVolume(coneFaces(1, 2, 64, placement), 8 * 2 * kPi / 3);
        expectVolume(torusFaces(2, 0.5, 64, placement), 8 * kPi * kPi);
        for (const int segments : {3, 4, 5}) {
            EXPECT_GT(volumeOfSound(sphereFaces(1, segments, placement)), 0);
            EXPECT_GT(volumeOfSound(coneFaces(0.01, 2, segments, placement)), 0);
        }
    }
}

TEST(Shapes, HaveOneFaceASideAndTrueNormals) {
    const auto counts = [](const std::vector<FaceRecord>& faces) {
        std::vector<std::size_t> triangles;
        for (const FaceRecord& face : faces) {
            triangles.push_back(face.positions.size() / 9);
        }
        return triangles;
    };
    using testing::ElementsAre;
    EXPECT_THAT(counts(boxFaces({1, 1, 1}, kIdentityPlacement)), ElementsAre(2, 2, 2, 2, 2, 2));
    EXPECT_THAT(counts(cylinderFaces(1, 1, 32, kIdentityPlacement)), ElementsAre(64, 32, 32));
    EXPECT_THAT(counts(coneFaces(1, 1, 32, kIdentityPlacement)), ElementsAre(32, 32));
    EXPECT_THAT(counts(torusFaces(2, 1, 32, kIdentityPlacement)), ElementsAre(2048));
    const auto sphere = sphereFaces(0.5, 32, kIdentityPlacement);
    EXPECT_THAT(counts(sphere),
                ElementsAre(2 * 32 * 15)); // 16 rows, the first and the last of single triangles
    for (std::size_t i = 0; i < sphere[0].positions.size(); ++i) {
        EXPECT_NEAR(sphere[0].normals[i], sphere[0].positions[i] * 2, 1e-6);
    }
    // The +y side of a box, seen from outside: u from +x to -x, v from -z to +z.
    const FaceRecord side = boxFaces({2, 4, 6}, kIdentityPlacement)[3];
    EXPECT_THAT(side.positions, ElementsAre(1, 2, -3, -1, 2, -3, -1, 2, 3, 1, 2, -3, -1, 2, 3, 1, 2, 3));
    EXPECT_THAT(side.texCoords, ElementsAre(0, 0, 1, 0, 1, 1, 0, 0, 1, 1, 0, 1));
}

} // namespace
} // namespace orvane::json
