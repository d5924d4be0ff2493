#pragma once

#include "model/records/ModelRecords.h"

namespace orvane::json {

class JsonCursor;

/// A placement: 16 numbers as they stand, or an object of translation, rotation and scale.
void readValue(const JsonCursor& value, Placement& out);

struct SineCosine {
    double sine = 0, cosine = 1;
};

/// Of any finite angle; exact for every multiple of 90.
SineCosine sineCosineOfDegrees(double degrees);

/// The rotation by `degrees` about `axis` (of any length above 0), row by row for row vectors. Multiples of
/// 90 degrees take their sine and cosine exactly, and no zero of the block is negative.
std::array<double, 9> rotationBlock(const Vector3& axis, double degrees);

} // namespace orvane::json
