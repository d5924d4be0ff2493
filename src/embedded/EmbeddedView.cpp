#include "embedded/EmbeddedView.h"

#include "embedded/EmbeddedObject.h"
#include "embedded/FittedView.h"
#include "embedded/HostAnswers.h"
#include "embedded/ShownBox.h"

#include <algorithm>

namespace orvane::embedded {

namespace {

/// The view on the screen, with what it showed when it was asked for.
class EmbeddedView final : public EmbeddedObject<HostView, ScreenState> {
public:
    using EmbeddedObject::EmbeddedObject;

    const ScreenState& shownAtFirst() const { return shownAtFirst_; }

    HostRef<HostCamera> activeCamera() const override { return makeCamera(session_, record_.camera); }
    void setActiveCamera(const HostRef<HostCamera>& camera) override {
        session_->screen.camera = cameraRecord(camera);
    }

    std::int32_t viewMode() const override { return values().mode; }
    void setViewMode(std::int32_t mode) override { values().mode = mode; }
    HostRef<HostTransform> viewOrientation() const override { return makeTransform(values().orientation); }
    void setViewOrientation(const HostRef<HostTransform>& orientation) override {
        if (orientation) {
            values().orientation = orientation->readArray();
        }
    }
    double viewScale() const override { return values().scale; }
    void setViewScale(double scale) override { values().scale = scale; }
    HostRef<HostMathVector> viewTranslation() const override { return makeVector(values().translation); }
    void setViewTranslation(const HostRef<HostMathVector>& translation) override {
        if (translation) {
            values().translation = translation->readVector();
        }
    }
    std::array<double, 3> viewEyePoint() const override { return values().eyePoint; }
    bool setViewEyePoint(const std::array<double, 3>& eyePoint) override {
        values().eyePoint = eyePoint;
        return true;
    }
    double viewPlaneDistance() const override { return values().planeDistance; }

    std::int16_t hasPerspective() const override { return toFlag(values().perspective); }
    void addPerspective() override { values().perspective = values().perspectiveAllowed; }
    void removePerspective() override { values().perspective = false; }

    HostRef<HostTransform> viewTransform() const override { return makeTransform(values().transform); }
    std::int32_t viewPixelWidth() const override { return values().width; }
    std::int32_t viewPixelHeight() const override { return values().height; }

private:
    /// A view that fits the model costs a walk over all triangles, so it is made when it is asked for.
    ViewRecord& values() const {
        std::optional<ViewRecord>& values = session_->screen.values;
        if (!values) {
            values = fittedView(shownBox(*session_, session_->opened()));
        }
        return *values;
    }

    const ScreenState shownAtFirst_ = session_->screen;
};

} // namespace

HostRef<HostView> makeView(const SessionRef& session) {
    return makeHostObject<EmbeddedView>(session, session->screen);
}

void showAgain(EmbeddedSession& session, const HostRef<HostView>& view) {
    if (const auto own = inRole<EmbeddedView>(view)) {
        session.screen = own->shownAtFirst();
    }
}

void showNamedView(EmbeddedSession& session, const std::u16string& name) {
    const std::vector<ViewRecord>& views = session.opened().namedViews;
    const auto view = std::ranges::find(views, name, &ViewRecord::name);
    if (view != views.end()) {
        session.screen.show(*view);
    }
}

} // namespace orvane::embedded
