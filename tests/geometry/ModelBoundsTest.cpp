#include "geometry/ModelBounds.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

constexpr float kLargest = 3.40282347e+38f;
constexpr float kSmallestNormal = 1.17549435e-38f;

TEST(ModelBounds, TakesCornersInAnyOrder) {
    const ModelBounds bounds = makeModelBounds({3, -1, 0.5, 1, 4, -1.5});
    EXPECT_EQ(bounds.min, (FloatVector{1, -1, -1.5f}));
    EXPECT_EQ(bounds.max, (FloatVector{3, 4, 0.5f}));
    EXPECT_EQ(bounds.center, (FloatVector{2, 1.5f, -0.5f}));
    EXPECT_EQ(bounds.maxExtent, 5);
    EXPECT_EQ(bounds.volume, 20);
}

TEST(ModelBounds, CountsAFlatExtentAsOneInTheVolumeOnly) {
    const ModelBounds bounds = makeModelBounds({0, 0, 0, 0.00009, 0.0002, 0});
    EXPECT_EQ(bounds.volume, 0.0002f);
    EXPECT_EQ(bounds.maxExtent, 0.0002f);
}

TEST(ModelBounds, ReachesToZeroFromBelowAndHasNoExtentWithoutNumbers) {
    const ModelBounds below = makeModelBounds({-4, -1, -9, -2, 1, -8});
    EXPECT_EQ(below.max, (FloatVector{kSmallestNormal, 1, kSmallestNormal}));
    EXPECT_EQ(below.center, (FloatVector{-2, 0, -4.5f}));
    EXPECT_EQ(below.maxExtent, 9);
    const ModelBounds none;
    EXPECT_EQ(none.maxExtent, 0);
    EXPECT_EQ(none.min, (FloatVector{kLargest, kLargest, kLargest}));
    EXPECT_EQ(none.max, (FloatVector{kSmallestNormal, kSmallestNormal, kSmallestNormal}));
}

} // namespace
} // namespace orvane
