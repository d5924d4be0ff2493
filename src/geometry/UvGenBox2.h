#pragma once

#include "geometry/UvGenBase2.h"

#include <array>

namespace orvane::geometry {

/// Projects the picture from six sides; the vertex's normal picks one, the first where two face it alike. A
/// vertex that none faces, because its normal or the axes are zeros, gets (0, 0). Unlike the other generators
/// it does not turn v upside down.
class UvGenBox2 final : public UvGenBase2 {
public:
    UvGenBox2(const GltfMaterial& material, const ModelBounds& bounds);
    void generate(FloatVector position, FloatVector normal, FloatVector& out) const override;

private:
    const UvPlane* planeFacing(FloatVector normal) const;

    std::array<UvPlane, 6> planes_;
};

} // namespace orvane::geometry
