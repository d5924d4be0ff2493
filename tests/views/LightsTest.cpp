#include "views/Lights.h"

#include "embedded/EmbeddedHost.h"
#include "support/ModelBuilder.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::ElementsAre;
using enum LightKind;

/// The lights of a part as they are exported.
struct LightRun {
    explicit LightRun(std::vector<LightRecord> lights) {
        ModelBuilder builder;
        builder.part(u"p.tfgprt").lights = std::move(lights);
        host = openEmbeddedHost(builder.take());
        addRecord(document.nodes); // stands for the model
        exportLights(*host, document, scene);
    }

    const NodeMatrix& matrix(std::size_t light) const { return document.nodes.at(light + 1)->matrix; }

    HostRef<HostApplication> host;
    GltfDocument document;
    GltfScene scene;
};

TEST(Lights, PassOverTypesThatHaveNoCounterpart) {
    const LightRun run({{.name = u"ambient", .type = ambient},
                        {.name = u"spot", .type = spot},
                        {.name = u"unknown", .type = LightKind{5}},
                        {.name = u"point", .type = point, .on = false},
                        {.name = u"sun", .type = directional}});
    EXPECT_THAT(run.scene.nodes, ElementsAre(1, 2, 3));
    ASSERT_EQ(run.document.lights.size(), 3u);
    for (std::size_t i = 0; i < 3; ++i) {
        const GltfLight& light = *run.document.lights[i];
        const GltfNode& node = *run.document.nodes[i + 1];
        EXPECT_EQ(light.index, static_cast<std::int32_t>(i));
        EXPECT_EQ(static_cast<std::size_t>(light.type), i + 2);
        EXPECT_EQ(light.enabled, i != 1) << "a light that is off is exported all the same";
        EXPECT_EQ(node.light, light.index);
    }
}

TEST(Lights, AreNamedByThePersonFirst) {
    const LightRun run({{.name = u"Spot1", .userName = u"Désk: left", .type = spot},
                        {.name = u"Spot/2", .type = spot},
                        {.type = spot}});
    EXPECT_EQ(run.document.nodes[1]->name, "LightNode_Desk_ left");
    EXPECT_EQ(run.document.nodes[2]->name, "LightNode_Spot_2");
    EXPECT_EQ(run.document.nodes[3]->name, "LightNode_");
}

TEST(Lights, KeepTheHostsValues) {
    const LightRecord record = {
        .type = spot, .level = 0.25, .color = {1, 0.5, 0.1}, .coneAngle = 90, .intensity = 2};
    LightRecord other = record;
    other.type = point;
    const LightRun run({record, other});
    const GltfLight& light = *run.document.lights[0];
    EXPECT_EQ(light.intensity, 2.25);
    EXPECT_EQ(light.color, record.color);
    EXPECT_EQ(light.spotAngle, 1.5707963267948966);
    EXPECT_EQ(run.document.lights[1]->spotAngle, 0) << "only spot lights have a cone";
}

TEST(Lights, TurnASpotIntoItsMirroredDirection) {
    const LightRun run({{.type = spot, .position = {7, 8, 9}, .direction = {1, 2, 3}},
                        {.type = spot, .direction = {0, 0, 5}}});
    EXPECT_EQ(run.matrix(0), (NodeMatrix{-2, -1, 0, 3, -6, -5, 1, -2, 3, 7, 8, 9, 1}));
    EXPECT_EQ(run.matrix(1), (NodeMatrix{0, 0, 0, 0, 0, 0, 0, 0, 5, 0, 0, 0, 1}))
        << "along z no axes are left";
}

TEST(Lights, TurnADirectionalLightFromItsPositionToTheOrigin) {
    const LightRun run({{.type = directional, .position = {2, 0, 0}, .direction = {9, 9, 9}},
                        {.type = directional, .position = {0, 0.25, 0}},
                        {.type = directional, .direction = {1, 2, 3}}});
    EXPECT_EQ(run.matrix(0), (NodeMatrix{0, 1, 0, 0, 0, -1, -1, 0, 0, 2, 0, 0, 1}));
    EXPECT_EQ(run.matrix(1), (NodeMatrix{1, 0, 0, 0, 0, -1, 0, 1, 0, 0, 0.25, 0, 1}));
    EXPECT_EQ(run.matrix(2), (NodeMatrix{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1})) << "at the origin";
}

TEST(Lights, LeaveAPointLightWithoutRotation) {
    EXPECT_EQ(LightRun({{.type = point, .position = {4, 5, 6}, .direction = {1, 2, 3}}}).matrix(0),
              (NodeMatrix{0, 0, 0, 0, 0, 0, 0, 0, 0, 4, 5, 6, 1}));
}

} // namespace
} // namespace orvane
