#include "views/ViewRun.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Cameras at three levels of the feature tree, and named views with and without a camera.
Model manyViews(const ViewRecord& view) {
    Model model = ViewRun::partModel(view, {});
    ModelDocument& part = *model.documents[0];
    const CameraRecord camera;
    part.features = {{.name = u"Top camera", .camera = camera},
                     {.name = u"Sketch"},
                     {.name = u"Cameras"},
                     {.name = u"Côte: 1", .parent = 2, .camera = camera},
                     {.name = u"Folder", .parent = 2},
                     {.name = u"Deep camera", .parent = 4, .camera = camera},
                     {.name = u"More"},
                     {.name = u"Second", .parent = 6, .camera = camera}};
    part.namedViews = {{.name = u"Front", .mode = 1},
                       {.name = u"Through", .mode = 2, .camera = camera},
                       {.name = u"Bäck/1", .mode = 3, .perspectiveAllowed = false}};
    return model;
}

std::vector<std::string> viewsOf(const ViewRecord& view, bool exportCameras, bool exportViews) {
    ViewRun run(manyViews(view));
    run.build(exportCameras, exportViews);
    EXPECT_EQ(run.screen()->viewMode(), 3) << "each named view was shown, whatever the options";
    return run.nodeTexts();
}

TEST(ViewStorageList, HoldsTheScreenThenTreeCamerasThenNamedViews) {
    EXPECT_THAT(viewsOf({}, true, true),
                ElementsAre("current:p", "Cote_ 1:p", "Second:p", "Front:p", "Back_1:o"));
    EXPECT_THAT(viewsOf({}, false, true), ElementsAre("current:p", "Front:p", "Back_1:o"));
    EXPECT_THAT(viewsOf({}, true, false), ElementsAre("Cote_ 1:p", "Second:p"));
    EXPECT_THAT(viewsOf({}, false, false), IsEmpty());
}

TEST(ViewStorageList, TakesTheCameraOnTheScreenForACamera) {
    const ViewRecord view = {.camera = CameraRecord{.perspective = false}};
    EXPECT_THAT(viewsOf(view, true, true),
                ElementsAre("current:o", "Cote_ 1:p", "Second:p", "Front:p", "Back_1:o"));
    EXPECT_THAT(viewsOf(view, false, true), ElementsAre("Front:p", "Back_1:o"));
    EXPECT_THAT(viewsOf(view, true, false), ElementsAre("current:o", "Cote_ 1:p", "Second:p"));
}

} // namespace
} // namespace orvane
