#include "views/ViewRun.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

FeatureRecord feature(const std::u16string& name, std::int32_t parent, bool isCamera) {
    FeatureRecord made;
    made.name = name;
    made.parent = parent;
    if (isCamera) {
        made.camera = CameraRecord{};
    }
    return made;
}

/// Cameras at three levels of the feature tree, and named views with and without a camera.
Model manyViews(const ViewRecord& view) {
    Model model = ViewRun::partModel(view, {});
    ModelDocument& part = *model.documents[0];
    part.features = {
        feature(u"Top camera", -1, true), feature(u"Sketch", -1, false), feature(u"Cameras", -1, false),
        feature(u"Côte: 1", 2, true),     feature(u"Folder", 2, false),  feature(u"Deep camera", 4, true),
        feature(u"Second", 2, true),      feature(u"More", -1, false),   feature(u"Third", 7, true)};
    part.namedViews = {{.name = u"Front", .mode = 1},
                       {.name = u"Through", .mode = 2, .camera = CameraRecord{}},
                       {.name = u"Bäck/1", .mode = 3, .perspectiveAllowed = false}};
    return model;
}

std::vector<std::string> viewsOf(const ViewRecord& view, bool exportCameras, bool exportViews) {
    ViewRun run(manyViews(view));
    run.build(exportCameras, exportViews);
    std::vector<std::string> names;
    for (const auto& storage : *run.list) {
        names.push_back(storage->name());
    }
    EXPECT_EQ(names.size(), run.cameraNodes.size());
    EXPECT_EQ(run.document.nodes.size(), names.size());
    EXPECT_EQ(run.screen()->viewMode(), 3) << "each named view was shown, whatever the options";
    return run.nodeTexts();
}

TEST(ViewStorageList, HoldsTheScreenThenTreeCamerasThenNamedViews) {
    EXPECT_THAT(viewsOf({}, true, true),
                ElementsAre("current:p", "Cote_ 1:p", "Second:p", "Third:p", "Front:p", "Back_1:o"));
    EXPECT_THAT(viewsOf({}, false, true), ElementsAre("current:p", "Front:p", "Back_1:o"));
    EXPECT_THAT(viewsOf({}, true, false), ElementsAre("Cote_ 1:p", "Second:p", "Third:p"));
    EXPECT_THAT(viewsOf({}, false, false), IsEmpty());
}

TEST(ViewStorageList, TakesTheCameraOnTheScreenForACamera) {
    const ViewRecord view = {.camera = CameraRecord{.perspective = false}};
    EXPECT_THAT(viewsOf(view, true, true),
                ElementsAre("current:o", "Cote_ 1:p", "Second:p", "Third:p", "Front:p", "Back_1:o"));
    EXPECT_THAT(viewsOf(view, false, true), ElementsAre("Front:p", "Back_1:o"));
    EXPECT_THAT(viewsOf(view, true, false), ElementsAre("current:o", "Cote_ 1:p", "Second:p", "Third:p"));
}

} // namespace
} // namespace orvane
