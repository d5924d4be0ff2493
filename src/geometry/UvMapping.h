#pragma once

#include "document/GltfRecords.h"
#include "document/NearEquality.h"
#include "geometry/FloatVector.h"

/// The mapping of a material, as the UV generators read it.
///
/// All generators keep their numbers as single floats. An expression that has a double in it is evaluated in
/// double throughout, in the order written, and narrowed once.
namespace orvane::geometry {

inline constexpr float kRadiansPerDegree = 1.0f / 57.29578f;
inline constexpr float kPi = 3.1415927f;

inline FloatVector mappingCentre(const GltfMaterial& material) {
    return {material.cx, material.cy, material.cz};
}

inline FloatVector mappingAxisU(const GltfMaterial& material) {
    return {material.uDirx, material.uDiry, material.uDirz};
}

inline FloatVector mappingAxisV(const GltfMaterial& material) {
    return {material.vDirx, material.vDiry, material.vDirz};
}

inline bool isMappingRotated(const GltfMaterial& material) {
    return !isNear(material.rotation, 0);
}

} // namespace orvane::geometry
