#pragma once

#include "host/HostMathPoint.h"

#include <array>

namespace orvane {

/// An immutable vector of the host.
class HostMathVector : public HostObject {
public:
    /// The point that the vector leads to from the origin; empty when the host fails.
    virtual HostRef<HostMathPoint> asPoint() const = 0;
    virtual std::array<double, 3> readVector() const = 0;
};

} // namespace orvane
