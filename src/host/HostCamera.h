#pragma once

#include "host/HostMathVector.h"

#include <cstdint>

namespace orvane {

/// A camera that stands in a document.
class HostCamera : public HostObject {
public:
    /// Empty when the host fails, as the two below.
    virtual HostRef<HostMathPoint> cameraPosition() const = 0;
    /// The vectors may have any length and need not be at right angles.
    virtual HostRef<HostMathVector> cameraUp() const = 0;
    virtual HostRef<HostMathVector> cameraDirection() const = 0;
    /// Width divided by height.
    virtual double cameraAspect() const = 0;
    /// Radians.
    virtual double cameraFieldOfView() const = 0;
    /// A flag: 0 is false, anything else true.
    virtual std::int16_t cameraPerspective() const = 0;
};

} // namespace orvane
