#pragma once

#include "host/HostCamera.h"
#include "host/HostMathVector.h"
#include "host/HostTransform.h"

#include <array>
#include <cstdint>

namespace orvane {

/// A view of the model on the screen. What is set shows at once.
class HostView : public HostObject {
public:
    /// The camera that the view looks through; empty when it is none.
    virtual HostRef<HostCamera> activeCamera() const = 0;
    virtual void setActiveCamera(const HostRef<HostCamera>& camera) = 0;

    /// A number of the host's own.
    virtual std::int32_t viewMode() const = 0;
    virtual void setViewMode(std::int32_t mode) = 0;
    /// Turns the model's space into the view's: x to the right, y upward, z towards the eye. Empty when the
    /// host fails, as the transform and the translation below.
    virtual HostRef<HostTransform> viewOrientation() const = 0;
    virtual void setViewOrientation(const HostRef<HostTransform>& orientation) = 0;
    /// The zoom.
    virtual double viewScale() const = 0;
    virtual void setViewScale(double scale) = 0;
    /// The pan, zoomed.
    virtual HostRef<HostMathVector> viewTranslation() const = 0;
    virtual void setViewTranslation(const HostRef<HostMathVector>& translation) = 0;
    /// Where the eye stands in the view's space, once the view has perspective.
    virtual std::array<double, 3> viewEyePoint() const = 0;
    /// Answers whether it did.
    virtual bool setViewEyePoint(const std::array<double, 3>& eyePoint) = 0;
    virtual double viewPlaneDistance() const = 0;

    /// A flag: 0 is false, anything else true.
    virtual std::int16_t hasPerspective() const = 0;
    /// Without effect where the host allows the view no perspective.
    virtual void addPerspective() = 0;
    virtual void removePerspective() = 0;

    /// From the model's space to the view's, with its place and its scale.
    virtual HostRef<HostTransform> viewTransform() const = 0;
    /// Size on the screen.
    virtual std::int32_t viewPixelWidth() const = 0;
    virtual std::int32_t viewPixelHeight() const = 0;
};

} // namespace orvane
