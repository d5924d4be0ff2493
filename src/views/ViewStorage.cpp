#include "views/ViewStorage.h"

#include "geometry/DocumentBoundingBox.h"
#include "views/CameraRecords.h"

#include <algorithm>
#include <cmath>

namespace orvane::views {

namespace {

using Numbers3 = std::array<double, 3>;

HostRef<HostTransform> inverseOf(const HostRef<HostTransform>& transform) {
    return transform ? transform->inverse() : HostRef<HostTransform>();
}

NodeMatrix numbersOf(const HostRef<HostTransform>& transform) {
    return transform ? transform->readArray() : kIdentityTransform;
}

/// Rounding noise of the host's matrices; the upper limit is the nearest single float.
bool isNoise(double value) {
    return value > -1e-07 && value < 1.0000000116860974e-07;
}

} // namespace

ViewStorage::ViewStorage(const ViewOwner& owner, std::string name, HostRef<HostView> view)
    : ViewStorageBase(owner, std::move(name)), view_(std::move(view)), viewMode_(view_->viewMode()),
      viewOrientation_(view_->viewOrientation()), scale2_(view_->viewScale()),
      translator_(view_->viewTranslation()), eyePoint_(view_->viewEyePoint()),
      hadPerspective_(view_->hasPerspective()) {}

/// The orientation from the view's space to the model's, without noise.
NodeMatrix ViewStorage::turnedBack() const {
    NodeMatrix orientData = numbersOf(inverseOf(viewOrientation_));
    std::replace_if(orientData.begin(), orientData.begin() + 13, isNoise, 0.0);
    return orientData;
}

/// The present eye point in the model's space; `transform` leads there from the view's.
Numbers3 ViewStorage::eyePosition(const HostRef<HostTransform>& transform) const {
    const HostRef<HostMathUtility> math = owner_.host.mathUtility();
    const HostRef<HostMathPoint> mpoint =
        math ? math->createPoint(view_->viewEyePoint()) : HostRef<HostMathPoint>();
    const HostRef<HostMathPoint> tpoint =
        mpoint && transform ? mpoint->transformBy(*transform) : HostRef<HostMathPoint>();
    return tpoint ? tpoint->readPoint() : Numbers3{};
}

/// Where the pan puts the middle of the screen, and from there well out of the model towards the eye.
Numbers3 ViewStorage::orthographicPosition(const NodeMatrix& orientData) const {
    const HostRef<HostTransform> iorient = inverseOf(viewOrientation_);
    const HostRef<HostMathPoint> translator = translator_ ? translator_->asPoint() : HostRef<HostMathPoint>();
    const HostRef<HostMathPoint> itranslator =
        translator ? translator->scaleBy(-1.0 / scale2_) : HostRef<HostMathPoint>();
    const HostRef<HostMathPoint> ittranslator =
        itranslator && iorient ? itranslator->transformBy(*iorient) : HostRef<HostMathPoint>();
    const Numbers3 translatorData = ittranslator ? ittranslator->readPoint() : Numbers3{};

    const float maxExtent = documentBoundingBox(owner_.host).maxExtent;
    const double distance = maxExtent > 0.0f ? static_cast<float>(maxExtent * 10.0) : 10.0;
    Numbers3 position{};
    for (std::size_t i = 0; i < 3; ++i) {
        position[i] = translatorData[i] + orientData[6 + i] * distance;
    }
    return position;
}

void ViewStorage::createCameraNode(std::vector<std::int32_t>& cameraNodes) {
    const auto [camera, node] = addCameraRecords(owner_.document, name_, cameraNodes);
    const HostRef<HostTransform> transform = inverseOf(view_->viewTransform());
    const double s = numbersOf(transform)[12];
    if (view_->hasPerspective() == 0) {
        view_->addPerspective();
    }
    Numbers3 position{};
    if (view_->hasPerspective() != 0) {
        camera.isPerspective = 1;
        const double planeDistance = view_->viewPlaneDistance() * s * scale2_;
        position = eyePosition(transform);
        const double viewWidth = view_->viewPixelWidth() * s * scale2_;
        const double viewHeight = view_->viewPixelHeight() * s * scale2_;
        camera.aspectRatio = viewWidth / viewHeight;
        // The host's plane distance is for a width and an aspect of 1, so both stretch it.
        const double d = planeDistance * viewWidth * camera.aspectRatio;
        camera.yfov = 2.0 * std::atan(0.5 * viewHeight / d);
        node.matrix = turnedBack();
    } else {
        node.matrix = turnedBack();
        position = orthographicPosition(node.matrix);
    }
    std::ranges::copy(position, node.matrix.begin() + 9);
}

void ViewStorage::restore(HostView& view) const {
    view.setViewMode(viewMode_);
    view.setViewOrientation(viewOrientation_);
    view.setViewScale(scale2_);
    view.setViewTranslation(translator_);
    view.setViewEyePoint(eyePoint_);
    if (hadPerspective_ != 0) {
        view.addPerspective();
    } else {
        view.removePerspective();
    }
}

} // namespace orvane::views
