#include "support/ExportRun.h"

#include <gmock/gmock.h>

#include <optional>
#include <string>
#include <vector>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// An assembly of a base and an arm on it, in a root that stands elsewhere.
struct Animation : testing::Test {
    Animation() {
        assembly.root.placement = moved(0, 0, 50);
        assembly.components = {ModelBuilder::component(u"base", nullptr, moved(1, 0, 0))};
        assembly.components[0].components = {ModelBuilder::component(u"arm", nullptr, moved(0, 1, 0))};
    }

    /// A study of two seconds and one frame a second, in which `component` moves along x.
    static MotionStudyRecord study(const std::u16string& name, const std::u16string& component,
                                   const std::vector<double>& xs = {0, 1, 2}) {
        MotionStudyRecord made{.name = name, .duration = 2, .frameRate = 1};
        TrackRecord& track = made.tracks.emplace_back();
        track.component = component;
        for (const double x : xs) {
            track.keys.push_back({static_cast<double>(track.keys.size()), moved(x, 1, 0)});
        }
        return made;
    }

    nlohmann::json exported() {
        run.emplace(builder.take());
        run->exporter.setOptions({.exportAnimations = kSwitchOn, .exportExplodedViews = kSwitchOn});
        return run->json();
    }

    /// One line for each channel: its animation, node and number of keys.
    std::vector<std::string> channelTexts(const nlohmann::json& gltf) {
        std::vector<std::string> texts;
        for (const auto& animation : gltf["animations"]) {
            for (const auto& channel : animation["channels"]) {
                const auto& sampler = animation["samplers"][channel["sampler"].get<std::size_t>()];
                const auto& times = gltf["accessors"][sampler["input"].get<std::size_t>()];
                texts.push_back(animation["name"].get<std::string>() + " " +
                                channel["target"]["node"].dump() + " " + times["count"].dump());
            }
        }
        return texts;
    }

    ModelBuilder builder;
    ModelDocument& assembly = builder.assembly(u"top.tfgasm");
    std::optional<ExportRun> run;
};

TEST_F(Animation, LeavesOutWhatDoesNotMoveOrNeverEndsAndViewsWithoutSteps) {
    assembly.motionStudies = {study(u"Still", u"base/arm", {4, 4, 4}),
                              {.name = u"Empty", .duration = 0},
                              study(u"", u"base/arm"),
                              study(u"Long", u"base/arm")};
    assembly.motionStudies[3].duration = 1e12;
    assembly.explodedViews = {{.name = u"E", .steps = {{{u"base"}, {0, 8, 0}}}}};
    assembly.configurations[0].explodeSteps = 0;
    const nlohmann::json gltf = exported();
    ASSERT_EQ(gltf["animations"].size(), 1u);
    EXPECT_EQ(gltf["animations"][0]["name"], "");
    EXPECT_THAT(run->folder.names("x"), ElementsAre(".bin", "x.gltf"));
    EXPECT_THAT(run->exporter.report().warnings, ElementsAre(HasSubstr("Long is left out")));
}

TEST_F(Animation, FeedsTheTrackOfTheFirstNodeOfAName) {
    assembly.components.push_back(ModelBuilder::component(u"base", nullptr, moved(2, 0, 0)));
    assembly.components.push_back(ModelBuilder::component(u"top", nullptr, moved(3, 0, 0)));
    assembly.motionStudies = {study(u"S", u"top")};
    EXPECT_THAT(channelTexts(exported()), ElementsAre("S 1 6", "S 0 3"))
        << "a component named like the root moves the root's node";
}

TEST_F(Animation, SamplesEveryScene) {
    assembly.configurations[0].displayStates.push_back({.name = u"Other"});
    assembly.configurations.push_back(ModelBuilder::configuration(u"Far", {u"A"}));
    assembly.configurations[1].placements = {{u"base", moved(90, 0, 0)}};
    assembly.motionStudies = {study(u"S", u"base/arm")};
    assembly.explodedViews = {{.name = u"E", .frameRate = 1, .steps = {{{u"base"}, {0, 8, 0}}}}};
    EXPECT_THAT(channelTexts(exported()), ElementsAre("E 1 5", "S 2 3", "E 4 5", "S 5 3", "E 7 5", "S 8 3"));
    EXPECT_THAT(run->exporter.report().warnings, ElementsAre(HasSubstr("E.bin")))
        << "the view of the other configuration took the file; equal files lose nothing";
}

} // namespace
} // namespace orvane
