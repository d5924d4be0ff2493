#include "geometry/UvGenCylinder2.h"

#include <cmath>

namespace orvane::geometry {

UvGenCylinder2::UvGenCylinder2(const GltfMaterial& material, const ModelBounds& bounds)
    : UvGenBase2(material, bounds), rotated_(isMappingRotated(material)), centre_(mappingCentre(material)),
      axisU_(mappingAxisU(material)), axisV_(mappingAxisV(material)), axisW_(cross(axisU_, axisV_)) {
    if (rotated_) {
        const double angle = -material.rotation * kRadiansPerDegree;
        sinA_ = static_cast<float>(std::sin(angle * signU_ * signV_));
        cosA_ = static_cast<float>(std::cos(angle));
    }
    const double scale = scale_, signV = signV_;
    scale2_ = {static_cast<float>(scale * signU_ / material.width),
               static_cast<float>(signV / material.height), 1};
    offset2_ = {static_cast<float>(material.offsetU * signU_ / material.width),
                static_cast<float>(material.offsetV * signV_ / material.height), 0};
}

void UvGenCylinder2::generate(FloatVector position, FloatVector, FloatVector& out) const {
    const FloatVector d = position - centre_;
    const float x = -dot(d, axisU_), y = dot(d, axisV_), z = dot(d, axisW_);
    const float u = x == 0 && z == 0 ? 0.5f : shareOfTurn(z, x); // on the axis no direction counts
    out = multiplyComponents({u, y, 0}, scale2_) + offset2_;
    if (rotated_) {
        rotate(out, cosA_, sinA_);
    }
    out.y = 1.0f - out.y;
    out.z = 0;
}

} // namespace orvane::geometry
