#pragma once

#include "host/HostObject.h"
#include "host/HostRef.h"

#include <array>

namespace orvane {

/// A transform as the host lays it out: 0 to 8 the 3x3 rotation row by row, 9 to 11 the translation in
/// metres, 12 the uniform scale, 13 to 15 the three remaining numbers of a 4x4 matrix.
using TransformNumbers = std::array<double, 16>;

inline constexpr TransformNumbers kIdentityTransform = {1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0};

/// An immutable transform of the host.
class HostTransform : public HostObject {
public:
    /// The transform that applies this one first and `other` after it; empty when the host fails.
    virtual HostRef<HostTransform> multiply(const HostTransform& other) const = 0;
    /// Empty when the host fails.
    virtual HostRef<HostTransform> inverse() const = 0;
    virtual TransformNumbers readArray() const = 0;
};

} // namespace orvane
