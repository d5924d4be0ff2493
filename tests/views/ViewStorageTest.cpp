#include "views/ViewStorage.h"
#include "views/ViewRun.h"

#include <gmock/gmock.h>

#include <cmath>

namespace orvane::views {
namespace {

using testing::ElementsAre;

/// A quarter turn about z at twice the size, and a picture that is twice as wide as it is high.
ViewRecord turnedView() {
    ViewRecord view;
    view.orientation = turned(7, 8, 9);
    view.transform = turned(1, 2, 3);
    view.transform[12] = 2;
    view.scale = 0.5;
    view.eyePoint = {1, 1, 4};
    view.planeDistance = 3;
    view.width = 800;
    view.height = 400;
    return view;
}

/// The records of the view alone, in a model of that box or an empty one.
struct BuiltView : ViewRun {
    explicit BuiltView(const ViewRecord& view, std::optional<HostBox> box = {}) : ViewRun(view, box) {
        build();
    }
};

TEST(ViewStorage, MakesAPerspectiveCameraAtTheEyePoint) {
    const BuiltView run(turnedView());
    ASSERT_THAT(run.nodeTexts(), ElementsAre("current:p"));
    const GltfCamera& camera = *run.document.cameras[0];
    EXPECT_EQ(camera.aspectRatio, 2);
    EXPECT_DOUBLE_EQ(camera.yfov, 2 * std::atan(50 / (0.75 * 200 * 2)));
    EXPECT_EQ(run.matrix(), (NodeMatrix{0, -1, 0, 1, 0, 0, 0, 0, 1, -0.5, 0, 0.5, 1}));
    EXPECT_EQ(run.document.nodes[0]->fullName, "");
    EXPECT_NE(run.screen()->hasPerspective(), 0) << "the host keeps the perspective";
}

TEST(ViewStorage, TakesNoiseOutOfTheOrientation) {
    ViewRecord view;
    view.orientation = {1, 1e-8, -9.9e-8, 1e-7, 1, 1.1e-7, -1e-7, -1.1e-7, 1, 0, 0, 0, 1e8, 0, 0, 0};
    EXPECT_EQ(BuiltView(view).matrix(), (NodeMatrix{1, 0, -1e-7, 0, 1, -1.1e-7, 0, 1.1e-7, 1, 0, 0, 0, 0}))
        << "turned back, the rows are columns; the scale is an entry as any other";
}

TEST(ViewStorage, StandsTenTimesTheModelAwayWithoutPerspective) {
    ViewRecord view;
    view.orientation = {0, 0, 1, 1, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0}; // along -x
    view.translation = {2, 4, 6};
    view.scale = 2;
    view.perspectiveAllowed = false;
    // In single precision ten times 0.7 is 7; in double precision ten times the single 0.7 is less.
    const BuiltView run(view, HostBox{0, 0, 0, 0.1, 0.7, 0.3});
    EXPECT_THAT(run.nodeTexts(), ElementsAre("current:o"));
    EXPECT_EQ(run.matrix(), (NodeMatrix{0, 1, 0, 0, 0, 1, 1, 0, 0, -3 + 7, -1, -2, 1}));
    EXPECT_EQ(run.document.cameras[0]->yfov, 0.7);
    EXPECT_EQ(run.document.cameras[0]->aspectRatio, static_cast<double>(1.44f));
    EXPECT_EQ(BuiltView({.perspectiveAllowed = false}).matrix()[11], 10) << "metres, of an empty model";
}

TEST(ViewStorage, PutsItsStateBack) {
    for (const bool perspective : {false, true}) {
        ViewRecord view = turnedView();
        view.mode = 5;
        view.translation = {1, 2, 3};
        view.perspective = perspective;
        Model model = ViewRun::partModel(view, {});
        model.documents[0]->namedViews = {{.name = u"Other", .mode = 9}};
        ViewRun run(std::move(model));
        run.build();
        const HostRef<HostView> screen = run.screen();
        ASSERT_EQ(screen->viewMode(), 9);
        ASSERT_NE(screen->hasPerspective(), 0);
        (*run.list->begin())->restore(*screen);
        EXPECT_EQ(screen->viewMode(), 5);
        EXPECT_EQ(screen->viewOrientation()->readArray(), turned(7, 8, 9));
        EXPECT_EQ(screen->viewScale(), 0.5);
        EXPECT_THAT(screen->viewTranslation()->readVector(), ElementsAre(1, 2, 3));
        EXPECT_THAT(screen->viewEyePoint(), ElementsAre(1, 1, 4));
        EXPECT_EQ(screen->hasPerspective() != 0, perspective);
    }
}

/// A view of a host that fails wherever it can.
class FailingView final : public HostView {
public:
    HostRef<HostCamera> activeCamera() const override { return {}; }
    void setActiveCamera(const HostRef<HostCamera>&) override {}
    std::int32_t viewMode() const override { return 0; }
    void setViewMode(std::int32_t) override {}
    HostRef<HostTransform> viewOrientation() const override { return {}; }
    void setViewOrientation(const HostRef<HostTransform>&) override {}
    double viewScale() const override { return 1; }
    void setViewScale(double) override {}
    HostRef<HostMathVector> viewTranslation() const override { return {}; }
    void setViewTranslation(const HostRef<HostMathVector>&) override {}
    std::array<double, 3> viewEyePoint() const override { return {1, 2, 3}; }
    bool setViewEyePoint(const std::array<double, 3>&) override { return false; }
    double viewPlaneDistance() const override { return 1; }
    std::int16_t hasPerspective() const override { return perspective; }
    void addPerspective() override {}
    void removePerspective() override {}
    HostRef<HostTransform> viewTransform() const override { return {}; }
    std::int32_t viewPixelWidth() const override { return 2; }
    std::int32_t viewPixelHeight() const override { return 2; }

    std::int16_t perspective = 0;
};

TEST(ViewStorage, BearsAHostThatGivesNoTransforms) {
    ViewRun run{ViewRecord{}};
    const auto view = makeHostObject<FailingView>();
    ViewStorage storage({*run.host, run.document}, "v", view);
    storage.createCameraNode(run.cameraNodes);
    view->perspective = 1;
    storage.createCameraNode(run.cameraNodes);
    EXPECT_THAT(run.nodeTexts(), ElementsAre("v:o", "v:p"));
    EXPECT_EQ(run.document.nodes[0]->matrix[11], 10);
    EXPECT_EQ(run.document.nodes[1]->matrix, kIdentityTransform);
    storage.restore(*view);
}

} // namespace
} // namespace orvane::views
