#include "support/ExportRun.h"

#include <gmock/gmock.h>

#include <cmath>

namespace orvane {
namespace {

using testing::ElementsAre;

nlohmann::json exported(ModelBuilder& builder) {
    ExportRun run(builder.take());
    run.exporter.setOptions({.exportViews = kSwitchOn, .exportLights = kSwitchOn});
    return run.json();
}

TEST(ViewExport, LeavesTheCamerasOfAPartOutOfItsScenes) {
    ModelBuilder builder;
    ModelDocument& shelf = builder.part(u"shelf.tfgprt");
    shelf.namedViews = {{.name = u"Front", .mode = 4}};
    shelf.lights = {{.name = u"Lamp", .type = LightKind::point}};
    shelf.configurations = {ModelBuilder::configuration(u"C", {u"A", u"B"})};
    const nlohmann::json gltf = exported(builder);
    EXPECT_THAT(sceneTexts(gltf), ElementsAre("C - A = shelf.tfgprt:0 LightNode_Lamp",
                                              "C - B = shelf.tfgprt:1 LightNode_Lamp"));
    EXPECT_EQ(treeText(gltf, {0, 1}), "current Front");
    EXPECT_EQ(gltf["nodes"].size(), 6u);
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
        const Sight sight = sightOf(exported(builder), box);
        EXPECT_GT(sight.fill, 0.4) << box[0];
        EXPECT_LT(sight.fill, 1) << box[0];
        EXPECT_GT(sight.nearest, 0.01) << box[0];
        EXPECT_LT(sight.farthest, 100) << box[0];
    }
}

} // namespace
} // namespace orvane
