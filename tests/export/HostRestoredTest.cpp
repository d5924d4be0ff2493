#include "host/HostMotionStudyManager.h"
#include "support/ExportRun.h"
#include "support/RefusedAllocation.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::Each;
using testing::HasSubstr;

/// An assembly that an export changes in every way: two configurations, a lightweight component, a study that
/// moves one, an exploded view, a named view. The second configuration is the active one.
Model changingModel() {
    ModelBuilder builder;
    ModelDocument& press = builder.assembly(u"press.tfgasm");
    ModelDocument& ram = builder.part(u"ram.tfgprt");
    press.components = {ModelBuilder::component(u"frame, with a name that needs memory", &ram),
                        ModelBuilder::component(u"ram", &ram, moved(0, 1, 0))};
    press.components[0].state = kComponentLightweight;
    ram.features = {{.name = u"Comments", .type = u"CommentsFolder", .comments = {{u"n", u"for a warning"}}}};
    press.configurations = {ModelBuilder::configuration(u"Open, with a name that needs memory", {u"A"}),
                            ModelBuilder::configuration(u"Closed, with a name that needs memory", {u"A"})};
    press.configurations[1].placements = {{u"ram", moved(0, 2, 0)}};
    press.activeConfiguration = 1;
    press.namedViews = {{.name = u"Front", .mode = 4}};
    press.view = {.name = u"", .mode = 7};
    press.motionStudies = {{.name = u"Stroke", .duration = 2, .frameRate = 1}};
    press.motionStudies[0].tracks = {
        {.component = u"ram", .keys = {{0, moved(0, 3, 0)}, {2, moved(0, 4, 0)}}}};
    press.explodedViews = {{.name = u"Taken apart, with a name that needs memory"}};
    press.explodedViews[0].steps = {{.components = {u"ram"}, .translate = {0, 5, 0}}};
    return builder.take();
}

/// All that an export might leave otherwise than it was.
std::string standing(HostApplication& host) {
    const HostRef<HostModelDoc> document = host.activeDocument();
    const HostRef<HostConfiguration> configuration = document->getActiveConfiguration();
    const auto manager = inRole<HostMotionStudyManager>(document->extension()->studyManagerObject());
    std::u16string text = configuration->getConfigurationName();
    for (const HostRef<HostComponent>& component : configuration->getRootComponent()->getChildren()) {
        text += u", " + component->componentName().substr(0, 5) + u" at ";
        text += static_cast<char16_t>(u'0' + component->getPlacement(0)->readArray()[10]);
        text += u" in state ";
        text += static_cast<char16_t>(u'0' + component->getState());
    }
    for (const std::u16string& study : manager->listStudyNames()) {
        text += u", study " + study;
    }
    text += u", view mode ";
    text += static_cast<char16_t>(u'0' + document->activeView()->viewMode());
    return {text.begin(), text.end()};
}

constexpr const char* kAtFirst =
    "Closed, with a name that needs memory, frame at 0 in state 1, ram at 2 in state 3, study "
    "Stroke, view mode 7";

struct HostRestored : testing::TestWithParam<const char*> {
    HostRestored() {
        run.exporter.setOptions({.exportViews = kSwitchOn,
                                 .exportCameras = kSwitchOn,
                                 .exportLights = kSwitchOn,
                                 .exportAnimations = kSwitchOn,
                                 .exportExplodedViews = kSwitchOn});
    }

    ExportRun run{changingModel()};
};

INSTANTIATE_TEST_SUITE_P(, HostRestored, testing::Values("x.glb", "x.gltf"));

TEST_P(HostRestored, WhenAnExportSucceeds) {
    ASSERT_EQ(standing(*run.host), kAtFirst);
    EXPECT_FALSE(run.run(GetParam()).empty());
    EXPECT_EQ(standing(*run.host), kAtFirst);
}

TEST_P(HostRestored, WheneverMemoryIsRefused) {
    std::int64_t refused = 0;
    for (bool happened = true; happened; ++refused) {
        std::filesystem::remove_all(run.folder / "x");
        run.exporter.setRequest({.exportPath = run.folder / GetParam()});
        {
            const RefusedAllocation refusal(refused);
            EXPECT_NO_THROW(run.exporter.exportActiveDocument()) << "at " << refused;
            happened = refusal.happened();
        }
        ASSERT_EQ(standing(*run.host), kAtFirst) << "at " << refused;
        const ExportReport& report = run.exporter.report();
        EXPECT_NE(report.hasFailed(), !report.writtenFile.empty()) << "at " << refused;
        EXPECT_THAT(report.errors, Each(HasSubstr("not enough memory"))) << "at " << refused;
    }
    EXPECT_GT(refused, 500) << "the export did what it should";
}

} // namespace
} // namespace orvane
