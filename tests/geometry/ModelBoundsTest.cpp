#include "geometry/ModelBounds.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

constexpr float kLargest = 3.40282347e+38f;
constexpr float kSmallestNormal = 1.17549435e-38f;

TEST(ModelBounds, CountsAFlatExtentAsOneInTheVolumeOnly) {
    const ModelBounds bounds = makeModelBounds({0, 0, 0, 0.00009, 0.0002, 0});
    EXPECT_EQ(bounds.volume, 0.0002f);
    EXPECT_EQ(bounds.maxExtent, 0.0002f);
}

TEST(ModelBounds, TakesCornersInAnyOrderAndReachesToZeroFromBelow) {
    const ModelBounds below = makeModelBounds({-2, -1, -8, -4, 1, -9});
    EXPECT_EQ(below.min, (FloatVector{-4, -1, -9}));
    EXPECT_EQ(below.max, (FloatVector{kSmallestNormal, 1, kSmallestNormal}));
    EXPECT_EQ(below.center, (FloatVector{-2, 0, -4.5f}));
    EXPECT_EQ(below.maxExtent, 9);
    EXPECT_EQ(below.volume, 72);
}

TEST(ModelBounds, HaveNoExtentWithoutNumbers) {
    const ModelBounds none;
    EXPECT_EQ(none.maxExtent, 0);
    EXPECT_EQ(none.min, (FloatVector{kLargest, kLargest, kLargest}));
    EXPECT_EQ(none.max, (FloatVector{kSmallestNormal, kSmallestNormal, kSmallestNormal}));
}

} // namespace
} // namespace orvane
