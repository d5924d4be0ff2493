#include "geometry/ModelBounds.h"

#include "document/NearEquality.h"

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

float extentOrOne(float extent) {
    return isNear(extent, 0) ? 1.0f : extent;
}

} // namespace

ModelBounds makeModelBounds(const std::array<double, 6>& corners) {
    const auto corner = [&](std::size_t first) {
        return FloatVector{static_cast<float>(corners[first]), static_cast<float>(corners[first + 1]),
                           static_cast<float>(corners[first + 2])};
    };
    ModelBounds bounds;
    FloatVector& min = bounds.min;
    FloatVector& max = bounds.max;
    for (const FloatVector& point : {corner(0), corner(3)}) {
        min = {std::min(min.x, point.x), std::min(min.y, point.y), std::min(min.z, point.z)};
        max = {std::max(max.x, point.x), std::max(max.y, point.y), std::max(max.z, point.z)};
    }
    bounds.center = (min + max) * 0.5f;
    const FloatVector extent = {std::abs(max.x - min.x), std::abs(max.y - min.y), std::abs(max.z - min.z)};
    bounds.maxExtent = std::max({extent.x, extent.y, extent.z});
    bounds.volume = extentOrOne(extent.x) * extentOrOne(extent.y) * extentOrOne(extent.z);
    return bounds;
}

} // namespace orvane
