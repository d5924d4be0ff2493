#include "support/ExportRun.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

TEST(ProgressPhase, GoesFromBuildingToWritingInEveryExport) {
    ModelBuilder builder;
    builder.part(u"plate.tfgprt");
    ExportRun plate(builder.take());
    using enum Progress::Phase;
    std::vector<Progress::Phase> phases;
    plate.exporter.progress().onChange = [&](const Progress& progress) {
        if (phases.empty() || phases.back() != progress.phase) {
            phases.push_back(progress.phase);
            EXPECT_EQ(progress.doneWork > 0, progress.phase == writing) << "records come before files";
        }
    };
    plate.run("x.glb");
    plate.run("x.gltf");
    EXPECT_THAT(phases, testing::ElementsAre(building, writing, building, writing));
}

} // namespace
} // namespace orvane
