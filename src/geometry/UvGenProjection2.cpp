#include "geometry/UvGenProjection2.h"

namespace orvane::geometry {

UvGenProjection2::UvGenProjection2(const GltfMaterial& material, const ModelBounds& bounds)
    : UvGenBase2(material, bounds),
      plane_(makeUvPlane(material, mappingAxisU(material), mappingAxisV(material))) {}

void UvGenProjection2::generate(FloatVector position, FloatVector, FloatVector& out) const {
    applyPlane(plane_, position, out);
    out.y = 1.0f - out.y;
}

} // namespace orvane::geometry
