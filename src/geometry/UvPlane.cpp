#include "geometry/UvPlane.h"

#include "geometry/FloatMatrix.h"

namespace orvane::geometry {

UvPlane makeUvPlane(const GltfMaterial& material, FloatVector axisU, FloatVector axisV) {
    const FloatVector centre = mappingCentre(material);
    UvPlane plane = {.axisU = axisU, .axisV = axisV, .normal = {}, .origin = {}};
    if (isMappingRotated(material)) {
        const double angle = material.rotation * kRadiansPerDegree;
        const FloatMatrix4 turn = rotationThrough(centre, angle, cross(axisU, axisV));
        plane.axisU = normalize(applyToPoint(turn, axisU));
        plane.axisV = normalize(applyToPoint(turn, axisV));
    }
    const auto shift = [&](float u, float v, float c) {
        return static_cast<float>(material.offsetU * u + material.offsetV * v - c);
    };
    plane.origin = {shift(axisU.x, axisV.x, centre.x), shift(axisU.y, axisV.y, centre.y),
                    shift(axisU.z, axisV.z, centre.z)};
    plane.normal = -cross(plane.axisU, plane.axisV);
    return plane;
}

} // namespace orvane::geometry
