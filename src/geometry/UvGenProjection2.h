#pragma once

#include "geometry/UvGenBase2.h"

namespace orvane::geometry {

/// Projects the picture along the normal of one plane.
class UvGenProjection2 final : public UvGenBase2 {
public:
    UvGenProjection2(const GltfMaterial& material, const ModelBounds& bounds);
    void generate(FloatVector position, FloatVector normal, FloatVector& out) const override;

private:
    UvPlane plane_;
};

} // namespace orvane::geometry
