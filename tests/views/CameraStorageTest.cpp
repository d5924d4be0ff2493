#include "views/ViewRun.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::DoubleNear;
using testing::ElementsAre;
using testing::Pointwise;

/// The records of one camera through which the view on the screen looks.
struct CameraRun : ViewRun {
    explicit CameraRun(const CameraRecord& camera) : ViewRun(ViewRecord{.camera = camera}) { build(); }

    const NodeMatrix& matrix() const { return document.nodes.at(0)->matrix; }
};

TEST(CameraStorage, TakesTheCamerasOwnNumbers) {
    const CameraRun run({.position = {0.1, -2, 1e10},
                         .up = {0, 2, 0},
                         .direction = {0, 0, -3},
                         .aspect = 0.1,
                         .fieldOfView = 0.3});
    EXPECT_THAT(run.nodeTexts(), ElementsAre("current:p"));
    EXPECT_EQ(run.document.cameras[0]->aspectRatio, 0.1);
    EXPECT_EQ(run.document.cameras[0]->yfov, 0.3);
    EXPECT_EQ(run.matrix(), (NodeMatrix{-1, 0, 0, 0, 1, 0, 0, 0, 1, 0.1, -2, 1e10, 1}))
        << "axes at right angles are left-handed";
    EXPECT_THAT(CameraRun({.perspective = false}).nodeTexts(), ElementsAre("current:o"));
}

TEST(CameraStorage, RebuildsSkewedAxes) {
    const NodeMatrix skewed = CameraRun({.up = {0, 1, 1}, .direction = {0, 0, -1}}).matrix();
    EXPECT_THAT(skewed, Pointwise(DoubleNear(1e-7), NodeMatrix{-1, 0, 0, 0, -1, 0, 0, 0, 1, 0, 0, 0, 1}));
    const NodeMatrix below = CameraRun({.up = {0, 1, 0.00009}, .direction = {0, 0, -1}}).matrix();
    EXPECT_EQ(below[5], static_cast<double>(0.00009f)) << "skewed by too little";
    EXPECT_EQ(CameraRun({.up = {0, 1, 0.00011}, .direction = {0, 0, -1}}).matrix()[4], -1);
}

TEST(CameraStorage, ReckonsItsAxesInSinglePrecision) {
    const NodeMatrix matrix = CameraRun({.up = {-2, 1, 0}, .direction = {1, 2, 3}}).matrix();
    EXPECT_THAT(matrix, Pointwise(DoubleNear(1e-7), NodeMatrix{0.358568583, 0.717137166, -0.597614305,
                                                               -0.894427191, 0.447213595, 0, -0.267261242,
                                                               -0.534522484, -0.801783726, 0, 0, 0, 1}));
    for (const double number : matrix) {
        EXPECT_EQ(number, static_cast<double>(static_cast<float>(number)));
    }
}

TEST(CameraStorage, HasNoAxesWithoutDirections) {
    EXPECT_EQ(CameraRun({.position = {1, 2, 3}}).matrix(),
              (NodeMatrix{0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 2, 3, 1}));
}

TEST(CameraStorage, MakesItsCameraTheActiveOne) {
    Model model = ViewRun::partModel({.camera = CameraRecord{}}, {});
    model.documents[0]->namedViews = {{.name = u"Other"}};
    ViewRun run(std::move(model));
    const HostRef<HostCamera> camera = run.screen()->activeCamera();
    ASSERT_TRUE(camera);
    run.build();
    ASSERT_FALSE(run.screen()->activeCamera());
    (*run.list->begin())->restore(*run.screen());
    EXPECT_TRUE(run.screen()->activeCamera() == camera);
}

} // namespace
} // namespace orvane
