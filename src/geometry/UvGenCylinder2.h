#pragma once

#include "geometry/UvGenBase2.h"

namespace orvane::geometry {

/// Wraps the picture around the mapping's V axis: u is the share of a full turn, v the height in metres,
/// before scale, offset and then rotation.
class UvGenCylinder2 final : public UvGenBase2 {
public:
    UvGenCylinder2(const GltfMaterial& material, const ModelBounds& bounds);
    /// Sets `out.z` to 0 as well.
    void generate(FloatVector position, FloatVector normal, FloatVector& out) const override;

private:
    bool rotated_;
    float sinA_ = 0, cosA_ = 1;
    FloatVector centre_;
    FloatVector axisU_, axisV_, axisW_; ///< W stands on U and V
    FloatVector scale2_, offset2_;
};

} // namespace orvane::geometry
