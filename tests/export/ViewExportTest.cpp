#include "support/ExportRun.h"

#include <gmock/gmock.h>

#include <cmath>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

void exportAll(ExportRun& run) {
    run.exporter.setOption(&ExportOptions::exportViews, -1);
    run.exporter.setOption(&ExportOptions::exportCameras, -1);
    run.exporter.setOption(&ExportOptions::exportLights, -1);
}

/// Gives a document two lights, a named view and two display states.
ModelDocument& scenery(ModelDocument& document) {
    document.namedViews = {{.name = u"Front", .mode = 4}};
    document.lights = {
        {.name = u"Lamp",
         .type = LightKind::point,
         .color = {1, 0.5, 0},
         .position = {1, 2, 3},
         .intensity = 2},
        {.name = u"Sun", .type = LightKind::directional, .position = {1, 0, 0}, .intensity = 1}};
    document.configurations = {ModelBuilder::configuration(u"C", {u"A", u"B"})};
    return document;
}

TEST(ViewExport, PutsCamerasFirstAndLightsLastInEverySceneOfAnAssembly) {
    ModelBuilder builder;
    ModelDocument& rack = scenery(builder.assembly(u"rack.tfgasm"));
    rack.components = {ModelBuilder::component(u"shelf", &builder.part(u"shelf.tfgprt"))};
    ExportRun run(builder.take());
    exportAll(run);
    const nlohmann::json gltf = run.json();
    EXPECT_THAT(sceneTexts(gltf),
                ElementsAre("C - A = current Front rack[shelf:0] LightNode_Lamp LightNode_Sun",
                            "C - B = current Front rack[shelf:1] LightNode_Lamp LightNode_Sun"));
    EXPECT_EQ(gltf["scenes"][0]["nodes"].dump(), "[0,1,2,4,5]");
    EXPECT_EQ(gltf["scenes"][1]["nodes"].dump(), "[0,1,6,8,9]");
    EXPECT_EQ(gltf["nodes"][1]["camera"], 1);
    EXPECT_EQ(gltf["cameras"].size(), 2u) << "views are the same in all scenes";
    EXPECT_EQ(gltf["extensions"]["KHR_lights_punctual"]["lights"].size(), 4u) << "lights are read for each";
    EXPECT_EQ(gltf["nodes"][9]["extensions"]["KHR_lights_punctual"]["light"], 3);
    EXPECT_EQ(gltf["nodes"][4]["matrix"].dump(), "[0,0,0,0,0,0,0,0,0,0,0,0,1,2,3,1]");
}

TEST(ViewExport, LeavesTheCamerasOfAPartOutOfItsScenes) {
    ModelBuilder builder;
    scenery(builder.part(u"shelf.tfgprt"));
    ExportRun run(builder.take());
    exportAll(run);
    const nlohmann::json gltf = run.json();
    EXPECT_THAT(sceneTexts(gltf), ElementsAre("C - A = shelf.tfgprt:0 LightNode_Lamp LightNode_Sun",
                                              "C - B = shelf.tfgprt:1 LightNode_Lamp LightNode_Sun"));
    EXPECT_EQ(treeText(gltf, nlohmann::json::parse("[0, 1]")), "current Front");
    EXPECT_EQ(gltf["nodes"].size(), 8u);
}

TEST(ViewExport, MakesNothingWithoutItsOptions) {
    ModelBuilder builder;
    scenery(builder.part(u"shelf.tfgprt"));
    ExportRun run(builder.take());
    const std::string text = run.run("x.gltf");
    const nlohmann::json gltf = nlohmann::json::parse(text);
    EXPECT_EQ(gltf["nodes"].size(), 2u);
    EXPECT_FALSE(gltf.contains("cameras") || gltf.contains("extensions"));
}

TEST(ViewExport, WritesTheIntensityIntoColoursAndAttenuations) {
    ModelBuilder builder;
    scenery(builder.part(u"shelf.tfgprt"));
    ExportRun run(builder.take());
    exportAll(run);
    const nlohmann::json lights = run.json()["extensions"]["KHR_lights_punctual"]["lights"];
    EXPECT_EQ(lights[0].dump(), R"({"color":[2,1,0],"positional":{"constantAttenuation":2,)"
                                R"("linearAttenuation":2,"quadraticAttenuation":2},"type":"point"})");
    EXPECT_EQ(lights[1].dump(), R"({"color":[1,1,1],"type":"directional"})");
}

/// How an exported camera sees the corners of a box.
struct Sight {
    double fill = 0; ///< part of the picture, from its middle to a side, that the corners take
    double nearest = 0, farthest = 0;
};

Sight sightOf(const nlohmann::json& gltf, const HostBox& box) {
    const nlohmann::json& matrix = gltf["nodes"][0]["matrix"];
    const nlohmann::json& lens = gltf["cameras"][0]["perspective"];
    const auto number = [&](std::size_t i) { return matrix[i].get<double>(); };
    const double up = std::tan(lens["yfov"].get<double>() / 2);
    const double across = up * lens["aspectRatio"].get<double>();
    Sight sight{.nearest = 1e9};
    for (std::size_t corner = 0; corner < 8; ++corner) {
        std::array<double, 3> seen{};
        for (std::size_t i = 0; i < 3; ++i) {
            const double offset = box[(corner >> i & 1) * 3 + i] - number(12 + i);
            for (std::size_t axis = 0; axis < 3; ++axis) {
                seen[axis] += offset * number(4 * axis + i);
            }
        }
        const double depth = -seen[2];
        sight.fill =
            std::max({sight.fill, std::abs(seen[0]) / depth / across, std::abs(seen[1]) / depth / up});
        sight.nearest = std::min(sight.nearest, depth);
        sight.farthest = std::max(sight.farthest, depth);
    }
    return sight;
}

TEST(ViewExport, ShowsTheWholeModelFromAnIsometricView) {
    const HostBox boxes[] = {
        {-0.5, -0.5, -0.5, 0.5, 0.5, 0.5},  {10, -3, 2, 12, -2.5, 7},     {0, 0, 0, 0.001, 0.002, 0.001},
        {0.3, 0.3, 0.3, -0.2, -0.1, 0.299}, {-1, 0, -1, 1, 0, 1},         {0, 0, 0, 0, 0, 3},
        {-30, 0, -20, 30, 12, 20},          {-1e-4, 0, 0, 1e-4, 0, 1e-4},
    };
    for (const HostBox& box : boxes) {
        ModelBuilder builder;
        builder.part(u"p.tfgprt").box = box;
        ExportRun run(builder.take());
        exportAll(run);
        const Sight sight = sightOf(run.json(), box);
        EXPECT_GT(sight.fill, 0.4) << box[0];
        EXPECT_LT(sight.fill, 1) << box[0];
        EXPECT_GT(sight.nearest, 0.01) << box[0];
        EXPECT_LT(sight.farthest, 100) << box[0];
    }
}

TEST(ViewExport, WritesInfinitiesAsTheyCome) {
    ModelBuilder builder;
    builder.part(u"shelf.tfgprt").view = ViewRecord{.height = 0};
    ExportRun run(builder.take());
    exportAll(run);
    EXPECT_THAT(run.run("x.gltf"), HasSubstr("\"aspectRatio\": inf,\n"));
}

} // namespace
} // namespace orvane
