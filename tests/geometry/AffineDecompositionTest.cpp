#include "geometry/AffineDecomposition.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <random>
#include <vector>

namespace orvane::geometry {
namespace {

AffineMatrix affine(const DoubleMatrix3& block) {
    AffineMatrix result{};
    for (std::size_t i = 0; i < 3; ++i) {
        result[i] = {block[i][0], block[i][1], block[i][2], 0};
    }
    result[3][3] = 1;
    return result;
}

AffineParts partsOf(const DoubleMatrix3& block) {
    AffineParts parts;
    decomposeAffine(affine(block), false, parts);
    return parts;
}

Quaternion turned(const Quaternion& by, const Quaternion& vector) {
    return multiply(multiply(by, vector), conjugate(by));
}

double length(const Quaternion& q) {
    return std::sqrt(q.x * q.x + q.y * q.y + q.z * q.z + q.w * q.w);
}

/// Expects unit quaternions and parts that give the matrix back: F * R * U * K * transpose(U).
void expectSplit(const DoubleMatrix3& block, const AffineParts& p) {
    EXPECT_NEAR(length(p.q), 1, 1e-9);
    EXPECT_NEAR(length(p.u), 1, 1e-9);
    for (std::size_t i = 0; i < 3; ++i) {
        const Quaternion axis = {i == 0 ? 1.0 : 0, i == 1 ? 1.0 : 0, i == 2 ? 1.0 : 0, 0};
        const Quaternion a = turned(conjugate(p.u), axis);
        const Quaternion stretched = {p.f * p.k[0] * a.x, p.f * p.k[1] * a.y, p.f * p.k[2] * a.z, 0};
        const Quaternion column = turned(p.q, turned(p.u, stretched));
        EXPECT_NEAR(column.x, block[0][i], 1e-8);
        EXPECT_NEAR(column.y, block[1][i], 1e-8);
        EXPECT_NEAR(column.z, block[2][i], 1e-8);
    }
}

/// The 24 turns of a cube onto itself, each with both its quaternions.
std::vector<Quaternion> cubeTurns() {
    std::vector<Quaternion> turns;
    for (int i = 0; i < 81; ++i) {
        Quaternion q = {i % 3 - 1.0, i / 3 % 3 - 1.0, i / 9 % 3 - 1.0, i / 27 - 1.0};
        const double n = length(q);
        if (n == 1 || n == std::sqrt(2) || n == 2) {
            turns.push_back({q.x / n, q.y / n, q.z / n, q.w / n});
        }
    }
    return turns;
}

TEST(AffineDecomposition, GivesBackAnyMatrixWithTheSmallestTurnOfItsStretch) {
    std::mt19937 random(1);
    const auto number = [&] { return static_cast<double>(random()) / 1e9 - 2; };
    const std::vector<Quaternion> turns = cubeTurns();
    ASSERT_EQ(turns.size(), 48u);
    int mirrors = 0;
    for (int run = 0; run < 2000; ++run) {
        const DoubleMatrix3 block = {
            {{number(), number(), number()}, {number(), number(), number()}, {number(), number(), number()}}};
        const AffineParts parts = partsOf(block);
        expectSplit(block, parts);
        mirrors += parts.f < 0;
        EXPECT_GT(std::min({parts.k[0], parts.k[1], parts.k[2]}), 0);
        for (const Quaternion& turn : turns) {
            EXPECT_LE(std::abs(multiply(parts.u, turn).w), std::abs(parts.u.w) + 1e-9);
        }
        ASSERT_FALSE(HasFailure()) << "run " << run;
    }
    EXPECT_NEAR(mirrors, 1000, 150);
}

TEST(AffineDecomposition, TurnsFreelyWhereTwoFactorsAreEqual) {
    for (std::size_t a = 0; a < 3; ++a) {
        const std::size_t b = (a + 1) % 3, c = (a + 2) % 3;
        for (const double other : {1.0, 3.0}) {
            // The factors are 1 and 3 along the diagonals of the plane of a and b.
            DoubleMatrix3 block{};
            block[a][a] = block[b][b] = 2;
            block[a][b] = block[b][a] = 1;
            block[c][c] = other;
            const AffineParts parts = partsOf(block);
            expectSplit(block, parts);
            EXPECT_NEAR(std::abs(parts.u.w), std::cos(std::acos(-1) / 8), 1e-12) << "half of 45 degrees";
        }
    }
}

TEST(AffineDecomposition, SplitsKnownMatrices) {
    AffineMatrix matrix = affine({{{0, -3, 0}, {2, 0, 0}, {0, 0, 5}}});
    matrix[0][3] = 7;
    matrix[1][3] = 8;
    matrix[2][3] = 9;
    AffineParts parts;
    decomposeAffine(matrix, false, parts);
    EXPECT_EQ(parts.t, (Quaternion{7, 8, 9, 0}));
    EXPECT_NEAR(parts.k[1], 3, 1e-12) << "factors stay with their axes";
    EXPECT_EQ(parts.k[3], 1);
    EXPECT_NEAR(std::abs(partsOf({{{2, 0, 0}, {0, 2, 0}, {0, 0, -2}}}).q.z), 1, 1e-12)
        << "a mirror in z is a half turn about z and an inversion";
    EXPECT_EQ(partsOf(kDoubleIdentity3).q, Quaternion{});
    EXPECT_EQ(partsOf(kDoubleIdentity3).u, Quaternion{});
}

TEST(AffineDecomposition, EndsForSingularMatrices) {
    const DoubleMatrix3 flat = {{{0, -2, 0}, {3, 0, 0}, {0, 0, 0}}};
    expectSplit(flat, partsOf(flat));
    const AffineParts mirrored = partsOf({{{0, 2, 0}, {3, 0, 0}, {0, 0, 0}}});
    EXPECT_EQ(mirrored.f, 1);
    EXPECT_NEAR(mirrored.k[0] + mirrored.k[1] + mirrored.k[2], 5, 1e-12)
        << "2 and 3, though no rotation makes them";
    const DoubleMatrix3 line = {{{2, 4, 6}, {1, 2, 3}, {-1, -2, -3}}};
    for (const DoubleMatrix3& block : {{{{1, 2, 3}, {4, 5, 6}, {5, 7, 9}}}, line, DoubleMatrix3{}}) {
        const AffineParts p = partsOf(block);
        EXPECT_EQ(p.f, 1);
        EXPECT_TRUE(std::isfinite(length(p.q) + length(p.u) + p.k[0] + p.k[1] + p.k[2]));
    }
    EXPECT_EQ(partsOf(line).q, Quaternion{});
    EXPECT_EQ(partsOf({}).k, (std::array<double, 4>{0, 0, 0, 1}));
}

TEST(AffineDecomposition, LeavesTheStretchAloneWhenOnlyTheRotationIsAskedFor) {
    const DoubleMatrix3 block = {{{1, 2, 0}, {0, -3, 1}, {2, 0, 4}}};
    AffineParts parts = {.u = {1, 2, 3, 4}, .k = {5, 6, 7, 8}};
    decomposeAffine(affine(block), true, parts);
    EXPECT_EQ(parts.u, (Quaternion{1, 2, 3, 4}));
    EXPECT_EQ(parts.k[0], 5);
    EXPECT_EQ(parts.q, partsOf(block).q);
}

} // namespace
} // namespace orvane::geometry
