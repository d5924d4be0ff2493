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
};

TEST(CameraStorage, RebuildsSkewedAxesAlone) {
    const struct {
        CameraRecord camera;
        NodeMatrix matrix;
    } cases[] = {
        {{.up = {0, 1, 1}, .direction = {0, 0, -1}}, {-1, 0, 0, 0, -1, 0, 0, 0, 1, 0, 0, 0, 1}},
        {{.up = {0, 1, 0.00011}, .direction = {0, 0, -1}}, {-1, 0, 0, 0, -1, 0, 0, 0, 1, 0, 0, 0, 1}},
        {{.up = {0, 1, 0.00009}, .direction = {0, 0, -1}}, {-1, 0, 0, 0, 1, 0.00009, 0, 0, 1, 0, 0, 0, 1}},
        {{.up = {-2, 1, 0}, .direction = {1, 2, 3}},
         {0.358568583, 0.717137166, -0.597614305, -0.894427191, 0.447213595, 0, -0.267261242, -0.534522484,
          -0.801783726, 0, 0, 0, 1}},
        {{.position = {1, 2, 3}}, {0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 2, 3, 1}},
    };
    for (const auto& [camera, expected] : cases) {
        const NodeMatrix matrix = CameraRun(camera).matrix();
        EXPECT_THAT(matrix, Pointwise(DoubleNear(1e-7), expected));
        for (const double number : matrix) {
            EXPECT_EQ(number, static_cast<double>(static_cast<float>(number))) << "of single precision";
        }
    }
}

TEST(CameraStorage, KeepsTheCamerasProjection) {
    EXPECT_THAT(CameraRun({.perspective = true}).nodeTexts(), ElementsAre("current:p"));
    EXPECT_THAT(CameraRun({.perspective = false}).nodeTexts(), ElementsAre("current:o"));
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
