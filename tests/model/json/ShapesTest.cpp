#include "model/json/Shapes.h"
#include "support/BodyFacts.h"

#include <gmock/gmock.h>
#include <numbers>

namespace orvane::json {
namespace {

using testing::ElementsAre;

/// Checks that the faces close to a solid without degenerate triangles, that triangles and normals look
/// outward, and gives its volume.
double volumeOfSound(const std::vector<FaceRecord>& faces) {
    const BodyFacts facts = factsOf(faces);
    EXPECT_TRUE(facts.isClosed && facts.hasUnitNormals);
    EXPECT_GT(facts.worstNormal, 0);
    for (const FaceRecord& face : faces) {
        EXPECT_THAT(face.texCoords, testing::Each(testing::AllOf(testing::Ge(0), testing::Le(1))));
    }
    return facts.volume;
}

TEST(Shapes, AreClosedAndLookOutwardAlsoWhenMirrored) {
    const Placement placements[] = {{0, 1, 0, -1, 0, 0, 0, 0, 1, 1, 2, 3, 2, 0, 0, 0},
                                    {1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, -2, 0, 0, 0},
                                    {-1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 2, 0, 0, 0},
                                    {-1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, -2, 0, 0, 0}};
    constexpr double kPi = std::numbers::pi;
    for (const Placement& placement : placements) {
        const std::pair<std::vector<FaceRecord>, double> kRound[] = {
            {cylinderFaces(1, 2, 64, placement), 8 * 2 * kPi},
            {sphereFaces(1, 64, placement), 8 * 4 * kPi / 3},
            {coneFaces(1, 2, 64, placement), 8 * 2 * kPi / 3},
            {torusFaces(2, 0.5, 64, placement), 8 * kPi * kPi}};
        for (const auto& [faces, volume] : kRound) {
            // 64 segments lose up to 0.5 % of the round volume.
            EXPECT_NEAR(volumeOfSound(faces) / volume, 0.9975, 0.0025);
        }
        EXPECT_NEAR(volumeOfSound(boxFaces({1, 2, 3}, placement)), 8 * 6, 1e-4);
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
    EXPECT_THAT(counts(cylinderFaces(1, 1, 32, kIdentityPlacement)), ElementsAre(64, 32, 32));
    EXPECT_THAT(counts(coneFaces(1, 1, 32, kIdentityPlacement)), ElementsAre(32, 32));
    EXPECT_THAT(counts(torusFaces(2, 1, 32, kIdentityPlacement)), ElementsAre(2048));
    const auto sphere = sphereFaces(0.5, 32, kIdentityPlacement);
    // 16 rows, the first and the last of single triangles
    EXPECT_THAT(counts(sphere), ElementsAre(2 * 32 * 15));
    for (std::size_t i = 0; i < sphere[0].positions.size(); ++i) {
        EXPECT_NEAR(sphere[0].normals[i], sphere[0].positions[i] * 2, 1e-6);
    }
    const auto box = boxFaces({2, 4, 6}, kIdentityPlacement);
    EXPECT_THAT(counts(box), ElementsAre(2, 2, 2, 2, 2, 2));
    // The +y side, seen from outside: u from +x to -x, v from -z to +z.
    EXPECT_THAT(box[3].positions, ElementsAre(1, 2, -3, -1, 2, -3, -1, 2, 3, 1, 2, -3, -1, 2, 3, 1, 2, 3));
    EXPECT_THAT(box[3].texCoords, ElementsAre(0, 0, 1, 0, 1, 1, 0, 0, 1, 1, 0, 1));
}

} // namespace
} // namespace orvane::json
