#pragma once

#include "views/ViewStorageBase.h"

#include <array>

namespace orvane::views {

/// A view through no camera.
class ViewStorage final : public ViewStorageBase {
public:
    /// Takes over the state of `view`, which is not empty.
    ViewStorage(const ViewOwner& owner, std::string name, HostRef<HostView> view);

    /// The view gets perspective for this, and keeps it.
    void createCameraNode(std::vector<std::int32_t>& cameraNodes) override;
    void restore(HostView& view) const override;

private:
    NodeMatrix turnedBack() const;
    std::array<double, 3> eyePosition(const HostRef<HostTransform>& transform) const;
    std::array<double, 3> orthographicPosition(const NodeMatrix& orientData) const;

    HostRef<HostView> view_;
    std::int32_t viewMode_;
    HostRef<HostTransform> viewOrientation_;
    double scale2_; ///< the zoom
    HostRef<HostMathVector> translator_;
    std::array<double, 3> eyePoint_;
    std::int16_t hadPerspective_;
};

} // namespace orvane::views
