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

    HostRef<HostApplication> host;
    GltfDocument document;
    GltfScene scene;
};

TEST(Lights, PassOverTypesThatHaveNoCounterpart) {
    const LightRun run({{.name = u"ambient", .type = ambient},
                        {.name = u"unknown", .type = LightKind{5}},
                        {.name = u"Spot1", .userName = u"Désk: left", .type = spot},
                        {.name = u"Point/2", .type = point, .on = false},
                        {.type = directional}});
    EXPECT_THAT(run.scene.nodes, ElementsAre(1, 2, 3));
    ASSERT_EQ(run.document.lights.size(), 3u);
    const char* const names[] = {"LightNode_Desk_ left", "LightNode_Point_2", "LightNode_"};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(run.document.lights[i]->enabled, i != 1) << "a light that is off is exported all the same";
        EXPECT_EQ(run.document.nodes[i + 1]->light, run.document.lights[i]->index);
        EXPECT_EQ(run.document.nodes[i + 1]->name, names[i]);
    }
}

TEST(Lights, LoseTheirAxesWhereTheyHaveNoneToTurnAbout) {
    const struct {
        LightRecord light;
        NodeMatrix matrix;
    } cases[] = {
        {{.type = spot, .position = {7, 8, 9}, .direction = {1, 2, 3}},
         {-2, -1, 0, 3, -6, -5, 1, -2, 3, 7, 8, 9, 1}},
        {{.type = spot, .direction = {0, 0, 5}}, {0, 0, 0, 0, 0, 0, 0, 0, 5, 0, 0, 0, 1}}, // no axes are left
        {{.type = directional, .direction = {1, 2, 3}}, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}},
    };
    for (const auto& [light, expected] : cases) {
        EXPECT_EQ(LightRun({light}).document.nodes[1]->matrix, expected);
    }
}

} // namespace
} // namespace orvane
