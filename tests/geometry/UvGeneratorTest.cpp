#include "geometry/UvGenerator.h"

#include "geometry/UvPlane.h"

#include <gtest/gtest.h>

#include <cmath>

namespace orvane::geometry {
namespace {

using enum MappingType;

/// A picture of 2 by 4 metres, its U along x and its V along y, mapped onto a model of 6 metres.
struct UvGeneratorTest : testing::Test {
    UvGeneratorTest() {
        material.width = 2;
        material.height = 4;
        material.uDirx = material.vDiry = 1;
        bounds.maxExtent = 6;
    }

    void expectUv(MappingType type, FloatVector position, float u, float v, FloatVector normal = {}) {
        material.mappingType = type;
        FloatVector uv = {-9, -9, 0};
        makeUvGenerator(material, bounds).generate(position, normal, uv);
        EXPECT_NEAR(uv.x, u, 1e-6f);
        EXPECT_NEAR(uv.y, v, 1e-6f);
    }

    void mirror(bool horizontal, bool vertical) {
        material.MirrorHorizontal = horizontal;
        material.MirrorVertical = vertical;
    }

    GltfMaterial material;
    ModelBounds bounds;
};

TEST_F(UvGeneratorTest, LeavesTheUvAloneForAnyOtherMapping) {
    for (const MappingType type : {MappingType{-1}, automatic, MappingType{5}}) {
        expectUv(type, {4, 5, 6}, -9, -9, {0, 0, 1});
    }
}

TEST_F(UvGeneratorTest, ProjectsAlongThePlane) {
    material.cx = 10;
    material.cy = 20;
    material.offsetU = 3;
    material.offsetV = -2;
    expectUv(projection, {11, 25, 9}, 2, 0.25f);
    mirror(true, false);
    expectUv(projection, {11, 25, 9}, -2, 0.25f);
    mirror(true, true);
    expectUv(projection, {11, 25, 9}, -2, 1.75f);
    material.width = 0;
    FloatVector uv;
    makeUvGenerator(material, bounds).generate({11, 0, 0}, {}, uv);
    EXPECT_EQ(uv.x, -INFINITY);
}

TEST_F(UvGeneratorTest, TurnsThePlanesAxesAsPoints) {
    material.rotation = 90;
    material.offsetU = 5;
    expectUv(projection, {0, 1, 0}, 0.5f, 1 - -5 / 4.0f);
    material.cx = 10;
    const UvPlane plane = makeUvPlane(material, {1, 0, 0}, {0, 1, 0});
    // (1, 0) and (0, 1) about (10, 0) are (10, -9) and (9, -10).
    const float length = std::sqrt(181.0f);
    EXPECT_NEAR(plane.axisU.y, -9 / length, 1e-6f);
    EXPECT_NEAR(plane.axisV.x, 9 / length, 1e-6f);
    EXPECT_NEAR(plane.normal.z, 19 / 181.0f, 1e-6f);
    EXPECT_EQ(plane.origin, (FloatVector{-5, 0, 0})) << "the offset goes along the axes before they turn";
}

TEST_F(UvGeneratorTest, TakesATinyRotationForNone) {
    material.uDirx = 3;
    material.rotation = -0.0001;
    expectUv(projection, {1, 0, 0}, 1.5f, 1);
    material.rotation = -0.00011;
    expectUv(projection, {1, 0, 0}, 0.5f, 1); // the axis is a unit vector now
}

TEST_F(UvGeneratorTest, PicksTheBoxSideThatFacesTheNormal) {
    material.width = material.height = 1;
    const FloatVector p = {1, 2, 3};
    expectUv(box, p, 1, 2, {0, 0, -1});
    expectUv(box, p, 1, -3, {0, -1, 0});
    expectUv(box, p, 2, -3, {1, 0, 0});
    expectUv(box, p, -1, -3, {0, 1, 0});
    expectUv(box, p, -2, -3, {-1, 0, 0});
    expectUv(box, p, 1, -2, {0, 0, 1});
    expectUv(box, p, 1, -3, {0.6f, -0.8f, 0});
    // Of two that face it alike the earlier one stays.
    expectUv(box, p, 2, -3, {1, 1, 1});
    expectUv(box, p, 1, 2, {-1, -1, -1});
    expectUv(box, p, 1, -3, {-1, -1, 0});
    // None faces it.
    expectUv(box, p, 0, 0, {0, 0, 0});
    expectUv(box, p, 0, 0, {0, 0, -1.17549435e-38f}); // the smallest normal number; the next one faces
    expectUv(box, p, 1, 2, {0, 0, -1.1754945e-38f});
    expectUv(box, p, 0, 0, {NAN, 0, 0});
    mirror(true, true);
    expectUv(box, p, -1, -2, {0, 0, -1});
}

TEST_F(UvGeneratorTest, WrapsTheCylinderAroundTheVAxis) {
    material.cx = 10;
    // Only u takes the model's extent, 3 pictures here.
    expectUv(cylinder, {12, 0, 0}, 3, 1);
    expectUv(cylinder, {10, -2, -2}, 0.25f * 3, 1.5f);
    material.offsetU = 1;
    material.offsetV = 3;
    expectUv(cylinder, {10, 2, 2}, 0.75f * 3 + 0.5f, 1 - 0.5f - 0.75f);
    mirror(true, true);
    expectUv(cylinder, {10, 2, 2}, -(0.75f * 3 + 0.5f), 1 + 0.5f + 0.75f);
}

TEST_F(UvGeneratorTest, GivesPointsOnTheAxisAnAngle) {
    for (const float zero : {0.0f, -0.0f}) {
        expectUv(cylinder, {zero, 2, -zero}, 1.5f, 0.5f);
        expectUv(cylinder, {zero, -2, zero}, 1.5f, 1.5f);
    }
    // At the poles of a sphere the angle is the one of (0, -0), half a turn.
    expectUv(sphere, {0, 2, 0}, 3, 1.5f);
    expectUv(sphere, {0, -2, 0}, 3, 0);
}

TEST_F(UvGeneratorTest, RotatesTheCylinderAfterItsScale) {
    material.rotation = 90;
    // (2.25, 0.5) before the rotation by -90 degrees.
    expectUv(cylinder, {0, 2, 2}, 0.5f, 1 + 2.25f);
    mirror(true, false);
    expectUv(cylinder, {0, 2, 2}, -0.5f, 1 + 2.25f);
    mirror(false, true);
    expectUv(cylinder, {0, 2, 2}, 0.5f, 1 - 2.25f);
}

TEST_F(UvGeneratorTest, RotatesTheSphereBeforeItsScale) {
    material.offsetU = 1;
    material.offsetV = 2;
    expectUv(sphere, {5, 0, 0}, 0.75f * 3 + 0.5f, 0.5f * 1.5f + 0.5f);
    // (0.75, 0.5) becomes (-0.5, 0.75), and the offset (1, 2) becomes (-2, 1).
    material.rotation = 90;
    expectUv(sphere, {5, 0, 0}, -0.5f * 3 - 2 / 2.0f, 0.75f * 1.5f + 1 / 4.0f);
    mirror(true, false);
    expectUv(sphere, {5, 0, 0}, 0.5f * 3 + 2 / 2.0f, 0.75f * 1.5f + 1 / 4.0f);
    mirror(false, true);
    expectUv(sphere, {5, 0, 0}, -0.5f * 3 - 2 / 2.0f, -0.75f * 1.5f - 1 / 4.0f);
}

} // namespace
} // namespace orvane::geometry
