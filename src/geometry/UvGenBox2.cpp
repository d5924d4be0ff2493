#include "geometry/UvGenBox2.h"

namespace orvane::geometry {

namespace {

std::array<UvPlane, 6> makeBoxPlanes(const GltfMaterial& material) {
    const FloatVector a = mappingAxisU(material), b = mappingAxisV(material), n = -cross(a, b);
    return {makeUvPlane(material, a, b),  makeUvPlane(material, a, n),  makeUvPlane(material, b, n),
            makeUvPlane(material, -a, n), makeUvPlane(material, -b, n), makeUvPlane(material, a, -b)};
}

} // namespace

UvGenBox2::UvGenBox2(const GltfMaterial& material, const ModelBounds& bounds)
    : UvGenBase2(material, bounds), planes_(makeBoxPlanes(material)) {}

/// The first of those that face the normal most; null if none faces it.
const UvPlane* UvGenBox2::planeFacing(FloatVector normal) const {
    const UvPlane* best = nullptr;
    float bestDot = 1.1754944e-38f;
    for (const UvPlane& plane : planes_) {
        const float facing = dot(normal, plane.normal);
        if (facing > bestDot) {
            bestDot = facing;
            best = &plane;
        }
    }
    return best;
}

void UvGenBox2::generate(FloatVector position, FloatVector normal, FloatVector& out) const {
    if (const UvPlane* plane = planeFacing(normal)) {
        applyPlane(*plane, position, out);
    } else {
        out.x = 0;
        out.y = 0;
    }
}

} // namespace orvane::geometry
