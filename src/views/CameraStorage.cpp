#include "views/CameraStorage.h"

#include "geometry/FloatMatrix.h"
#include "views/CameraRecords.h"

#include <algorithm>

namespace orvane::views {

namespace {

FloatVector directionOf(const HostRef<HostMathVector>& vector) {
    const std::array<double, 3> numbers = vector ? vector->readVector() : std::array<double, 3>{};
    return normalize(
        {static_cast<float>(numbers[0]), static_cast<float>(numbers[1]), static_cast<float>(numbers[2])});
}

/// The axes of a camera as rows: a glTF camera looks along its -z. Axes at right angles stay left-handed, and
/// only skewed ones become right-handed, y downward (docs/output-format.md, "Cameras").
FloatMatrix3 cameraAxes(FloatVector up, FloatVector direction) {
    const FloatVector back = direction * -1.0f;
    FloatMatrix3 axes = {cross(back, up), up, back};
    if (!rowsAreOrthogonal(axes)) {
        orthonormalize(axes);
    }
    return axes;
}

} // namespace

CameraStorage::CameraStorage(const ViewOwner& owner, std::string name, HostRef<HostCamera> camera)
    : ViewStorageBase(owner, std::move(name)), camera_(std::move(camera)),
      position_(camera_->cameraPosition()), up_(camera_->cameraUp()), direction_(camera_->cameraDirection()),
      aspect_(camera_->cameraAspect()), hfov_(camera_->cameraFieldOfView()),
      isPerspective_(camera_->cameraPerspective()) {}

void CameraStorage::createCameraNode(std::vector<std::int32_t>& cameraNodes) {
    const auto [camera, node] = addCameraRecords(owner_.document, name_, cameraNodes);
    camera.aspectRatio = aspect_;
    camera.isPerspective = isPerspective_ != 0 ? 1 : 0;
    camera.yfov = hfov_;
    const FloatMatrix3 axes = cameraAxes(directionOf(up_), directionOf(direction_));
    for (std::size_t row = 0; row < 3; ++row) {
        node.matrix[3 * row] = axes[row].x;
        node.matrix[3 * row + 1] = axes[row].y;
        node.matrix[3 * row + 2] = axes[row].z;
    }
    if (position_) {
        std::ranges::copy(position_->readPoint(), node.matrix.begin() + 9);
    }
    node.matrix[12] = 1.0;
}

void CameraStorage::restore(HostView& view) const {
    view.setActiveCamera(camera_);
}

} // namespace orvane::views
