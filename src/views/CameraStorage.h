#pragma once

#include "views/ViewStorageBase.h"

namespace orvane::views {

/// A camera of the host.
class CameraStorage final : public ViewStorageBase {
public:
    /// Takes over the state of `camera`, which is not empty.
    CameraStorage(const ViewOwner& owner, std::string name, HostRef<HostCamera> camera);

    void createCameraNode(std::vector<std::int32_t>& cameraNodes) override;
    /// Makes the camera the one that the view looks through.
    void restore(HostView& view) const override;

private:
    HostRef<HostCamera> camera_;
    HostRef<HostMathPoint> position_;
    HostRef<HostMathVector> up_;
    HostRef<HostMathVector> direction_;
    double aspect_;
    double hfov_; ///< radians
    std::int16_t isPerspective_;
};

} // namespace orvane::views
