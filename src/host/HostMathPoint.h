#pragma once

#include "host/HostTransform.h"

#include <array>

namespace orvane {

/// An immutable point of the host, in metres.
class HostMathPoint : public HostObject {
public:
    /// The point where `transform` takes this one; empty when the host fails.
    virtual HostRef<HostMathPoint> transformBy(const HostTransform& transform) const = 0;
    /// Every coordinate times `factor`; empty when the host fails.
    virtual HostRef<HostMathPoint> scaleBy(double factor) const = 0;
    virtual std::array<double, 3> readPoint() const = 0;
};

} // namespace orvane
