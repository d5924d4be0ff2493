#pragma once

#include "host/HostMathPoint.h"
#include "host/HostTransform.h"

#include <array>

namespace orvane {

/// The host's maker of mathematical objects.
class HostMathUtility : public HostObject {
public:
    /// Empty when the host fails.
    virtual HostRef<HostTransform> createTransform(const TransformNumbers& numbers) const = 0;
    /// Empty when the host fails.
    virtual HostRef<HostMathPoint> createPoint(const std::array<double, 3>& coordinates) const = 0;
};

} // namespace orvane
