#include "support/ExportRun.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::ElementsAre;

/// An assembly of the given components that show a part of one triangle.
class ComponentTree : public testing::Test {
protected:
    ComponentRecord component(const std::u16string& name, const Placement& placement = kIdentityPlacement) {
        return ModelBuilder::component(name, &part, placement);
    }

    nlohmann::json exported(std::vector<ComponentRecord> components) {
        assembly.components = std::move(components);
        run.emplace(builder.take());
        return run->json();
    }

    std::vector<double> matrixOf(const nlohmann::json& gltf, std::size_t node) {
        return gltf["nodes"][node].contains("matrix")
                   ? gltf["nodes"][node]["matrix"].get<std::vector<double>>()
                   : std::vector<double>();
    }

    ModelBuilder builder;
    ModelDocument& assembly = builder.assembly(u"top.tfgasm");
    ModelDocument& part = builder.part(u"part.tfgprt");
    std::optional<ExportRun> run;
};

TEST_F(ComponentTree, GivesEveryComponentANodeAndShownOnesAMesh) {
    ComponentRecord hidden = component(u"hidden");
    hidden.hidden = true;
    hidden.components = {component(u"inside")};
    ComponentRecord suppressed = component(u"suppressed");
    suppressed.suppressed = true;
    ComponentRecord unloaded = component(u"unloaded");
    unloaded.loaded = false;
    const nlohmann::json gltf = exported({component(u"shown"), hidden, suppressed, unloaded,
                                          ModelBuilder::component(u"empty"), component(u"last")});
    EXPECT_THAT(
        sceneTexts(gltf),
        ElementsAre(
            "Default - Display State 1 = top[shown:0 hidden[inside:1] suppressed unloaded empty last:2]"));
}

TEST_F(ComponentTree, NumbersParentsBeforeTheirChildren) {
    ComponentRecord a = component(u"a");
    a.components = {component(u"a1"), component(u"a2")};
    const nlohmann::json gltf = exported({a, component(u"b")});
    EXPECT_EQ(gltf["scenes"][0]["nodes"].dump(), "[0]");
    EXPECT_EQ(gltf["nodes"][0]["children"].dump(), "[1,4]");
    EXPECT_EQ(gltf["nodes"][1]["children"].dump(), "[2,3]");
}

TEST_F(ComponentTree, WritesNamesBehindTheLastSlash) {
    ComponentRecord parent = component(u"Großteil:1");
    parent.components = {component(u"Ø\\x \"q\""), component(u"ȯ x"), component(u"")};
    const nlohmann::json gltf = exported({parent});
    EXPECT_THAT(sceneTexts(gltf),
                ElementsAre("Default - Display State 1 = top[GroBteil_1:0[O_x _q_:1  x:2 :3]]"))
        << "a character cut to a slash separates too";
    EXPECT_EQ(run->folder.names("x"),
              (std::set<std::string>{"x.gltf", "GroBteil_1.bin", "O_x__q_.bin", "_x.bin", ".bin"}));
}

TEST_F(ComponentTree, PlacesNodesRelativeToTheirParents) {
    assembly.root.placement = moved(100, 0, 0);
    ComponentRecord parent = component(u"parent", turned(1, 2, 3));
    parent.components = {component(u"child", moved(10, 0, 0))};
    const nlohmann::json gltf = exported({parent});
    EXPECT_THAT(matrixOf(gltf, 0), ElementsAre(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 100, 0, 0, 1));
    // The root's own placement goes in front of every other: 100 turned by 90 degrees, and then taken back by
    // the root's inverse.
    EXPECT_THAT(matrixOf(gltf, 1), ElementsAre(0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1, 0, 1 - 100, 102, 3, 1));
    EXPECT_THAT(matrixOf(gltf, 2), ElementsAre(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 10, 0, 0, 1));
}

TEST_F(ComponentTree, ScalesAndTurnsByTheHostsRowVectors) {
    Placement scaled = turned(0, 0, 0);
    scaled[12] = 2;
    ComponentRecord parent = component(u"parent", scaled);
    parent.components = {component(u"child", moved(1, 0, 0))};
    const nlohmann::json gltf = exported({parent});
    EXPECT_THAT(matrixOf(gltf, 1), ElementsAre(0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 2));
    EXPECT_THAT(matrixOf(gltf, 2), ElementsAre(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 1, 0, 0, 1));
}

TEST_F(ComponentTree, TakesTheFallbackOrTheIdentityWherePlacementsAreMissing) {
    ComponentRecord none = component(u"none");
    none.placement.reset();
    none.components = {component(u"below", moved(1, 0, 0))};
    ComponentRecord fallback = component(u"fallback");
    fallback.placement.reset();
    fallback.placementFallback = moved(0, 0, 7);
    fallback.components = {component(u"below", moved(0, 1, 0))};
    const nlohmann::json gltf = exported({none, fallback});
    EXPECT_THAT(matrixOf(gltf, 1), ElementsAre());
    EXPECT_THAT(matrixOf(gltf, 2), ElementsAre(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 1, 0, 0, 1));
    EXPECT_THAT(matrixOf(gltf, 3), ElementsAre(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 7, 1));
    EXPECT_THAT(matrixOf(gltf, 4), ElementsAre(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 1, -7, 1))
        << "in the root's space the missing placement counts as the identity";
}

TEST_F(ComponentTree, WritesASceneOfItsOwnMeshForEveryInstance) {
    const nlohmann::json gltf = exported({component(u"a"), component(u"a"), component(u"b")});
    EXPECT_EQ(gltf["meshes"].size(), 3u);
    EXPECT_EQ(gltf["buffers"][1]["uri"], "a-1.bin");
    EXPECT_EQ(readFile(run->folder / "x/a.bin"), readFile(run->folder / "x/b.bin"));
}

/// An assembly whose second component is lightweight, in two configurations.
Model lightweightModel() {
    ModelBuilder builder;
    ModelDocument& assembly = builder.assembly(u"top.tfgasm");
    ModelDocument& part = builder.part(u"part.tfgprt");
    assembly.configurations.push_back(ModelBuilder::configuration(u"Two", {u"A"}));
    assembly.components = {ModelBuilder::component(u"a", &part), ModelBuilder::component(u"b", &part)};
    assembly.components[1].state = 1;
    assembly.components[1].components = {ModelBuilder::component(u"c", &part)};
    (*assembly.components[1].components)[0].state = 1;
    return builder.take();
}

TEST(LightweightComponents, AreResolvedForTheTimeOfTheExport) {
    ExportRun run(lightweightModel());
    EXPECT_THAT(sceneTexts(run.json()),
                ElementsAre("Default - Display State 1 = top[a:0 b:1[c:2]]", "Two - A = top[a:3 b:4[c:5]]"));
    const HostRef<HostComponent> root =
        run.host->activeDocument()->getActiveConfiguration()->getRootComponent();
    EXPECT_EQ(root->getChildren()[0]->getState(), 3);
    EXPECT_EQ(root->getChildren()[1]->getState(), 1);
    EXPECT_EQ(root->getChildren()[1]->getChildren()[0]->getState(), 1);
}

TEST(LightweightComponents, HaveNoGeometryWhenTheyAreLeftAlone) {
    ExportRun run(lightweightModel());
    run.exporter.setOption(&ExportOptions::resolveComponents, 0);
    EXPECT_THAT(sceneTexts(run.json()),
                ElementsAre("Default - Display State 1 = top[a:0 b[c]]", "Two - A = top[a:1 b[c]]"));
}

} // namespace
} // namespace orvane
