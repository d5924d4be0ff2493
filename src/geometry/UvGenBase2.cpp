#include "geometry/UvGenBase2.h"

#include <cmath>

namespace orvane::geometry {

UvGenBase2::UvGenBase2(const GltfMaterial& material, const ModelBounds& bounds)
    : material_(&material), scale_(bounds.maxExtent), signU_(material.MirrorHorizontal ? -1.0f : 1.0f),
      signV_(material.MirrorVertical ? -1.0f : 1.0f) {}

void UvGenBase2::applyPlane(const UvPlane& plane, FloatVector position, FloatVector& out) const {
    const FloatVector d = position + plane.origin;
    const double u = dot(d, plane.axisU), v = dot(d, plane.axisV);
    out.x = static_cast<float>(u * signU_ / material_->width);
    out.y = static_cast<float>(v * signV_ / material_->height);
}

float UvGenBase2::shareOfTurn(float y, float x) {
    const double angle = std::atan2(static_cast<double>(y), static_cast<double>(x));
    return static_cast<float>(angle / (2 * static_cast<double>(kPi)) + 0.5);
}

void UvGenBase2::rotate(FloatVector& out, float cosine, float sine) {
    const float u = out.x, v = out.y;
    out.x = u * cosine - v * sine;
    out.y = u * sine + v * cosine;
}

} // namespace orvane::geometry
