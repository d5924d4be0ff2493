#pragma once

#include "geometry/FloatMatrix.h"
#include "geometry/UvGenBase2.h"

namespace orvane::geometry {

/// Wraps the picture around a sphere, turned by the mapping's two angles: u is the share of a full turn about
/// y, v the latitude from 0 at -y to 1 at +y, before rotation and then scale and offset. The cylinder scales
/// first; textures depend on the difference. Both poles have u = 0.5.
class UvGenSphere2 final : public UvGenBase2 {
public:
    UvGenSphere2(const GltfMaterial& material, const ModelBounds& bounds);
    void generate(FloatVector position, FloatVector normal, FloatVector& out) const override;

private:
    bool rotated_;
    float cosA_, sinA_;
    float scaleU_, scaleV_;
    float offU_, offV_;
    FloatMatrix3 turn_;
};

} // namespace orvane::geometry
