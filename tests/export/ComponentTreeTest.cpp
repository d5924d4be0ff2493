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

    /// The matrices of the exported nodes, each in one line; `null` for the identity.
    std::vector<std::string> matrices(std::vector<ComponentRecord> components) {
        std::vector<std::string> texts;
        const nlohmann::json gltf = exported(std::move(components));
        for (const auto& node : gltf["nodes"]) {
            texts.push_back(node.value("matrix", nlohmann::json()).dump());
        }
        return texts;
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

TEST_F(ComponentTree, PlacesNodesRelativeToTheirParentsAndTheRootInFrontOfAll) {
    assembly.root.placement = moved(100, 0, 0);
    Placement doubled = turned(1, 2, 3);
    doubled[12] = 2;
    ComponentRecord parent = component(u"parent", turned(1, 2, 3));
    parent.components = {component(u"child", moved(10, 0, 0))};
    EXPECT_THAT(matrices({parent, component(u"doubled", doubled)}),
                ElementsAre("[1,0,0,0,0,1,0,0,0,0,1,0,100,0,0,1]", "[0,1,0,0,-1,0,0,0,0,0,1,0,-99,102,3,1]",
                            "[1,0,0,0,0,1,0,0,0,0,1,0,10,0,0,1]", "[0,1,0,0,-1,0,0,0,0,0,1,0,-99,202,3,2]"))
        << "the root's 100 turned by 90 degrees, and then taken back by its inverse";
}

TEST_F(ComponentTree, TakesTheFallbackOrTheIdentityWherePlacementsAreMissing) {
    ComponentRecord none = component(u"none");
    none.placement.reset();
    none.components = {component(u"below", moved(1, 0, 0))};
    ComponentRecord fallback = component(u"fallback");
    fallback.placement.reset();
    fallback.placementFallback = moved(0, 0, 7);
    fallback.components = {component(u"below", moved(0, 1, 0))};
    EXPECT_THAT(matrices({none, fallback}),
                ElementsAre("null", "null", "[1,0,0,0,0,1,0,0,0,0,1,0,1,0,0,1]",
                            "[1,0,0,0,0,1,0,0,0,0,1,0,0,0,7,1]", "[1,0,0,0,0,1,0,0,0,0,1,0,0,1,-7,1]"))
        << "in the root's space the missing placement counts as the identity";
}

TEST_F(ComponentTree, ResolvesLightweightComponentsForTheTimeOfTheExport) {
    ComponentRecord light = component(u"b");
    light.state = kComponentLightweight;
    light.components = {component(u"c")};
    (*light.components)[0].state = kComponentLightweight;
    assembly.configurations.push_back(ModelBuilder::configuration(u"Two", {u"A"}));
    EXPECT_THAT(sceneTexts(exported({component(u"a"), light})),
                ElementsAre("Default - Display State 1 = top[a:0 b:1[c:2]]", "Two - A = top[a:3 b:4[c:5]]"));
    const HostRef<HostComponent> root =
        run->host->activeDocument()->getActiveConfiguration()->getRootComponent();
    EXPECT_EQ(root->getChildren()[0]->getState(), kComponentResolved);
    EXPECT_EQ(root->getChildren()[1]->getState(), kComponentLightweight);
    EXPECT_EQ(root->getChildren()[1]->getChildren()[0]->getState(), kComponentLightweight);
}

} // namespace
} // namespace orvane
