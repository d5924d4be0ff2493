#pragma once

#include "host/HostTransform.h"

namespace orvane {

/// The host's maker of mathematical objects.
class HostMathUtility : public HostObject {
public:
    /// Empty when the host fails.
    virtual HostRef<HostTransform> createTransform(const TransformNumbers& numbers) const = 0;
};

} // namespace orvane
