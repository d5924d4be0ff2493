#include "geometry/UvGenSphere2.h"

#include <algorithm>
#include <cmath>

namespace orvane::geometry {

UvGenSphere2::UvGenSphere2(const GltfMaterial& material, const ModelBounds& bounds)
    : UvGenBase2(material, bounds), rotated_(isMappingRotated(material)) {
    const double angle = material.rotation * kRadiansPerDegree;
    cosA_ = static_cast<float>(std::cos(angle));
    sinA_ = static_cast<float>(std::sin(angle));

    const double scale = scale_, signU = signU_, signV = signV_;
    scaleU_ = static_cast<float>(scale * signU / material.width);
    scaleV_ = static_cast<float>(scale * signV / material.height);
    const double u = material.offsetU, v = material.offsetV;
    offU_ = static_cast<float>(signU / material.width * (rotated_ ? u * cosA_ - v * sinA_ : u));
    offV_ = static_cast<float>(signV / material.height * (rotated_ ? u * sinA_ + v * cosA_ : v));

    const FloatMatrix3 first = rotationAbout(material.sphereAngleA * kRadiansPerDegree, {0, 0, 1});
    const FloatMatrix3 second = rotationAbout(material.sphereAngleB * kRadiansPerDegree, {0, 1, 0});
    turn_ = multiply(second, first);
}

void UvGenSphere2::generate(FloatVector position, FloatVector, FloatVector& out) const {
    const FloatVector d = normalize(apply(turn_, normalize(position - mappingCentre(*material_))));
    out.x = shareOfTurn(d.x, -d.z);
    // However the vector was rounded, its latitude is a number.
    const double sine = std::clamp(static_cast<double>(d.y), -1.0, 1.0);
    out.y = static_cast<float>(1 - (0.5 - std::asin(sine) / kPi));
    if (rotated_) {
        rotate(out, cosA_, sinA_);
    }
    out.x = out.x * scaleU_ + offU_;
    out.y = out.y * scaleV_ + offV_;
}

} // namespace orvane::geometry
