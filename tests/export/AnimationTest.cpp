#include "support/ExportRun.h"

#include <gmock/gmock.h>

#include <cstring>
#include <optional>
#include <string>
#include <vector>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

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

    nlohmann::json exported(bool animations = true, bool explodedViews = true) {
        run.emplace(builder.take());
        run->exporter.setOption(&ExportOptions::exportAnimations, animations ? kSwitchOn : kSwitchOff);
        run->exporter.setOption(&ExportOptions::exportExplodedViews, explodedViews ? kSwitchOn : kSwitchOff);
        return run->json();
    }

    std::vector<float> floats(const nlohmann::json& gltf, const nlohmann::json& accessorIndex) {
        const auto& accessor = gltf["accessors"][accessorIndex.get<std::size_t>()];
        const auto& view = gltf["bufferViews"][accessor["bufferView"].get<std::size_t>()];
        const std::string uri = gltf["buffers"][view["buffer"].get<std::size_t>()]["uri"];
        const std::string bytes = readFile(run->folder / ("x/" + uri));
        const std::size_t width = accessor["type"] == "SCALAR" ? 1 : accessor["type"] == "VEC3" ? 3 : 4;
        std::vector<float> values(width * accessor["count"].get<std::size_t>());
        std::memcpy(values.data(),
                    bytes.data() + view.value("byteOffset", 0) + accessor.value("byteOffset", 0),
                    values.size() * sizeof(float));
        return values;
    }

    /// One line for each channel: animation, node, path, times and values.
    std::vector<std::string> channelTexts(const nlohmann::json& gltf) {
        std::vector<std::string> texts;
        for (const auto& animation : gltf.value("animations", nlohmann::json::array())) {
            for (const auto& channel : animation["channels"]) {
                const auto& sampler = animation["samplers"][channel["sampler"].get<std::size_t>()];
                const std::size_t node = channel["target"]["node"];
                std::string text = animation["name"].get<std::string>() + " " +
                                   gltf["nodes"][node]["name"].get<std::string>() + " " +
                                   channel["target"]["path"].get<std::string>() + " " +
                                   sampler["interpolation"].get<std::string>() + " at";
                for (const char* end : {"input", "output"}) {
                    for (const float value : floats(gltf, sampler[end])) {
                        text += " " + nlohmann::json(value).dump();
                    }
                    text += end[0] == 'i' ? ":" : "";
                }
                texts.push_back(text);
            }
        }
        return texts;
    }

    ModelBuilder builder;
    ModelDocument& assembly = builder.assembly(u"top.tfgasm");
    std::optional<ExportRun> run;
};

TEST_F(Animation, WritesExplodedViewsThenStudies) {
    assembly.motionStudies = {study(u"Slide arm", u"base/arm", {0, 1, 3})};
    assembly.explodedViews = {{.name = u"Apart", .frameRate = 1, .steps = {{{u"base"}, {0, 8, 0}}}}};
    const nlohmann::json gltf = exported();
    EXPECT_THAT(
        channelTexts(gltf),
        ElementsAre("Apart base translation STEP at 0.0 1.0 2.0 3.0 4.0:"
                    " 1.0 0.0 -50.0 1.0 2.0 -50.0 1.0 4.0 -50.0 1.0 6.0 -50.0 1.0 8.0 -50.0",
                    "Slide arm arm translation STEP at 0.0 1.0 2.0: 0.0 1.0 0.0 1.0 1.0 0.0 3.0 1.0 0.0"))
        << "the root's placement counts twice for what stands directly below it";
    EXPECT_EQ(gltf["buffers"].back()["uri"], "Slide_arm.bin");
    EXPECT_EQ(gltf["buffers"].back()["byteLength"], 48);
    EXPECT_THAT(run->exporter.report().warnings, IsEmpty());
}

TEST_F(Animation, FollowsTheOptions) {
    assembly.motionStudies = {study(u"S", u"base/arm")};
    assembly.explodedViews = {{.name = u"E", .steps = {{{u"base"}, {0, 8, 0}}}}};
    const nlohmann::json neither = exported(false, false);
    EXPECT_FALSE(neither.contains("animations"));
    EXPECT_THAT(neither["buffers"], IsEmpty());
    run->exporter.setOption(&ExportOptions::exportExplodedViews, 1);
    const nlohmann::json views = run->json();
    ASSERT_EQ(views["animations"].size(), 1u);
    EXPECT_EQ(views["animations"][0]["name"], "E");
    run->exporter.setOption(&ExportOptions::exportExplodedViews, 0);
    run->exporter.setOption(&ExportOptions::exportAnimations, 1);
    const nlohmann::json studies = run->json();
    ASSERT_EQ(studies["animations"].size(), 1u);
    EXPECT_EQ(studies["animations"][0]["name"], "S");
}

TEST_F(Animation, LeavesOutWhatDoesNotMoveAndSkipsViewsWithoutSteps) {
    assembly.motionStudies = {
        study(u"Still", u"base/arm", {4, 4, 4}), {.name = u"Empty", .duration = 0}, study(u"", u"base/arm")};
    assembly.explodedViews = {{.name = u"E", .steps = {{{u"base"}, {0, 8, 0}}}}};
    assembly.configurations[0].explodeSteps = 0;
    const nlohmann::json gltf = exported();
    ASSERT_EQ(gltf["animations"].size(), 1u);
    EXPECT_EQ(gltf["animations"][0]["name"], "");
    EXPECT_THAT(run->folder.names("x"), ElementsAre(".bin", "x.gltf"));
}

TEST_F(Animation, GoesOnWithoutAStudyOfTooManyFrames) {
    assembly.motionStudies = {study(u"Long", u"base/arm"), study(u"Short", u"base/arm")};
    assembly.motionStudies[0].duration = 1e12;
    const nlohmann::json gltf = exported();
    ASSERT_EQ(gltf["animations"].size(), 1u);
    EXPECT_EQ(gltf["animations"][0]["name"], "Short");
    EXPECT_THAT(run->exporter.report().warnings, ElementsAre(HasSubstr("Long is left out")));
}

TEST_F(Animation, FeedsTheTrackOfTheFirstNodeOfAName) {
    assembly.components.push_back(ModelBuilder::component(u"base", nullptr, moved(2, 0, 0)));
    assembly.components.push_back(ModelBuilder::component(u"top", nullptr, moved(3, 0, 0)));
    assembly.motionStudies = {study(u"S", u"top")};
    const nlohmann::json gltf = exported();
    std::vector<std::string> channels;
    for (const std::string& text : channelTexts(gltf)) {
        channels.push_back(text.substr(0, text.find(':')));
    }
    EXPECT_THAT(channels, ElementsAre("S base translation STEP at 0.0 0.0 1.0 1.0 2.0 2.0",
                                      "S top translation STEP at 0.0 1.0 2.0"))
        << "a component named like the root moves the root's node";
}

TEST_F(Animation, SamplesEveryScene) {
    assembly.configurations[0].displayStates.push_back({.name = u"Other"});
    assembly.configurations.push_back(ModelBuilder::configuration(u"Far", {u"A"}));
    assembly.configurations[1].placements = {{u"base", moved(90, 0, 0)}};
    assembly.motionStudies = {study(u"S", u"base/arm")};
    assembly.explodedViews = {{.name = u"E", .frameRate = 1, .steps = {{{u"base"}, {0, 8, 0}}}}};
    const nlohmann::json gltf = exported();
    std::vector<std::string> animated;
    for (const auto& animation : gltf["animations"]) {
        animated.push_back(animation["name"].get<std::string>() +
                           animation["channels"][0]["target"]["node"].dump());
    }
    EXPECT_THAT(animated, ElementsAre("E1", "S2", "E4", "S5", "E7", "S8"));
    EXPECT_THAT(run->exporter.report().warnings, ElementsAre(HasSubstr("E.bin")))
        << "the view of the other configuration took the file; equal files lose nothing";
}

TEST_F(Animation, StandsInABinaryExportToo) {
    assembly.motionStudies = {study(u"a b", u"base/arm"), study(u"a:b", u"base/arm", {0, 0, 5})};
    exported();
    const std::string glb = run->run("x.glb");
    const std::size_t jsonEnd = 20 + static_cast<unsigned char>(glb[12]) +
                                256 * static_cast<std::size_t>(static_cast<unsigned char>(glb[13]));
    const nlohmann::json gltf = nlohmann::json::parse(glb.substr(20, jsonEnd - 20));
    EXPECT_EQ(gltf["buffers"].size(), 1u);
    EXPECT_EQ(gltf["buffers"][0]["byteLength"], 96);
    EXPECT_EQ(gltf["bufferViews"][2]["byteOffset"], 48);
    const std::string binary = glb.substr(jsonEnd + 8);
    EXPECT_EQ(binary.substr(0, 48), binary.substr(48)) << "the later file of a name stands for both";
    EXPECT_THAT(run->folder.names(), ElementsAre("x", "x.glb"));
}

} // namespace
} // namespace orvane
