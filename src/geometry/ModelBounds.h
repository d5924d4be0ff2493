#pragma once

#include "geometry/FloatVector.h"

#include <array>

namespace orvane {

/// The box around a model, in metres. By default the box of nothing.
struct ModelBounds {
    float maxExtent = 0;
    float volume = 0; ///< cubic metres; an extent within 0.0001 of 0 counts as 1
    FloatVector center;
    FloatVector min = {3.4028235e38f, 3.4028235e38f, 3.4028235e38f};
    FloatVector max = {1.1754944e-38f, 1.1754944e-38f, 1.1754944e-38f};
};

/// The box of two opposite corners (x0 y0 z0 x1 y1 z1, metres), in any order. The largest values start from
/// 1.1754944e-38 rather than from below all numbers, so that a box reaches up to there where both corners are
/// negative: textures scaled by the box depend on it.
ModelBounds makeModelBounds(const std::array<double, 6>& corners);

} // namespace orvane
