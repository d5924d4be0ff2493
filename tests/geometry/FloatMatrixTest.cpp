#include "geometry/FloatMatrix.h"

#include <gtest/gtest.h>

#include <numbers>

namespace orvane {
namespace {

void expectNear(FloatVector actual, FloatVector expected) {
    EXPECT_NEAR(actual.x, expected.x, 1e-6f);
    EXPECT_NEAR(actual.y, expected.y, 1e-6f);
    EXPECT_NEAR(actual.z, expected.z, 1e-6f);
}

constexpr double kQuarterTurn = std::numbers::pi / 2;

TEST(FloatVector, NormalizesByTheReciprocalOfItsLength) {
    EXPECT_EQ(normalize({0, 0, 41}), (FloatVector{0, 0, 0.99999994f})) << "41 * (1 / 41) is not 1";
    EXPECT_EQ(normalize({0, -0.0f, 0}), FloatVector{});
    EXPECT_EQ(normalize({0, 1e-30f, 0}), FloatVector{}) << "its square is 0";
}

TEST(FloatMatrix, MultipliesSoThatTheSecondFactorIsAppliedFirst) {
    const FloatMatrix3 a = {{{1, 2, 3}, {4, 5, 6}, {7, 8, 10}}};
    const FloatMatrix3 b = {{{0, 1, 0}, {2, 0, -1}, {1, 1, 3}}};
    EXPECT_EQ(multiply(a, b), (FloatMatrix3{{{7, 4, 7}, {16, 10, 13}, {26, 17, 22}}}));
}

TEST(FloatMatrix, TurnsRightHandedAboutAnAxisOfAnyLength) {
    expectNear(apply(rotationAbout(kQuarterTurn, {0, 0, 5}), {1, 0, 2}), {0, 1, 2});
    expectNear(apply(rotationAbout(4 * kQuarterTurn / 3, {1, 1, 1}), {1, 2, 3}), {3, 1, 2});
    EXPECT_EQ(rotationAbout(-1e-9, {0, 0, 1}), kIdentity3);
    EXPECT_NE(rotationAbout(1e-8, {0, 0, 1}), kIdentity3);
}

TEST(FloatMatrix, TellsRowsAtRightAnglesByTheirDirections) {
    EXPECT_TRUE(rowsAreOrthogonal({{{0, 5, 0}, {0, 0, 1e-3f}, {-7, 0, 0}}}));
    EXPECT_FALSE(rowsAreOrthogonal({{{1, 0, 0}, {-0.00011f, 1, 0}, {0, 0, 1}}}));
    EXPECT_FALSE(rowsAreOrthogonal({{{1, 0, 0}, {0, 1, 0}, {0.001f, 0, 1}}}));
    EXPECT_FALSE(rowsAreOrthogonal({{{1, 0, 0}, {0, 1, 0}, {0, -0.001f, 1}}}));
}

TEST(FloatMatrix, OrthonormalizesFromItsFirstAndItsLastRow) {
    FloatMatrix3 a = {{{0, 0, 2}, {8, 8, 8}, {1, 0, 1}}};
    orthonormalize(a);
    EXPECT_EQ(a, (FloatMatrix3{{{0, 0, 1}, {0, -1, 0}, {1, 0, 0}}}));
    a = {{{0, 3, 0}, {1, 0, 0}, {0, 2, 0}}};
    orthonormalize(a);
    EXPECT_EQ(a, (FloatMatrix3{{{0, 1, 0}, {0, 0, 0}, {0, 0, 0}}}))
        << "the last row has no direction of its own";
}

} // namespace
} // namespace orvane
