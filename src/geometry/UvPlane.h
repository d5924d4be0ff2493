#pragma once

#include "geometry/UvMapping.h"

namespace orvane::geometry {

/// A plane that a picture lies in.
struct UvPlane {
    FloatVector axisU;
    FloatVector axisV;
    FloatVector normal;
    FloatVector origin; ///< added to a point, metres: minus the mapping's centre, plus the picture's offset
};

/// The plane of two axes of a material's mapping, with the mapping's rotation and offset. The axes turn about
/// the axis through the mapping's centre that stands on both: they are turned as points, not as directions,
/// and made unit vectors afterwards. Without a rotation they stay as given, of any length. The offset goes
/// along the axes as given.
UvPlane makeUvPlane(const GltfMaterial& material, FloatVector axisU, FloatVector axisV);

} // namespace orvane::geometry
