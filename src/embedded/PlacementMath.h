#pragma once

#include "model/records/ModelRecords.h"

namespace orvane::embedded {

/// Transforms of row vectors, `p' = p * R * s + t`. Numbers 13 to 15 of a result are zero.

/// The placement that applies `a` first and `b` after it.
Placement multiplyPlacements(const Placement& a, const Placement& b);

/// The placement that undoes `a`: its block transposed, its scale's reciprocal. A scale of 0 gives
/// infinities.
Placement invertPlacement(const Placement& a);

/// A point in the space that `a` leads to.
Vector3 transformPoint(const Placement& a, const Vector3& point);

} // namespace orvane::embedded
