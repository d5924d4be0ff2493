// Which material a face takes, seen in whole exports.

#include "appearance/FaceMarks.h"
#include "support/PaintedModel.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::ElementsAre;

/// A part whose body has faces of 1, 2, 3 and so on triangles, so that meshes tell which face took what.
struct FaceMaterials : testing::Test {
    static std::vector<FaceRecord> countingFaces(std::size_t count) {
        std::vector<FaceRecord> faces;
        for (std::size_t i = 1; i <= count; ++i) {
            faces.push_back(triangleFaces(i));
        }
        return faces;
    }

    nlohmann::json exported() {
        run.emplace(builder.take());
        return run->json();
    }

    static std::vector<HostRef<HostFace>> facesOf(HostApplication& host) {
        const auto bodies = host.activeDocument()->partInterface()->enumerateBodies(kSolidBody, -1);
        return bodies->nextBody()->bodyFaces(3);
    }

    ModelBuilder builder;
    std::optional<ExportRun> run;
};

TEST_F(FaceMaterials, TakeTheNearestAppearance) {
    ModelDocument& part = builder.part(u"p.tfgprt", countingFaces(4));
    part.bodies.push_back({.name = u"Body2", .faces = {triangleFaces(10)}});
    part.features = {{.name = u"Cut"}};
    part.bodies[0].faces[0].feature = part.bodies[0].faces[1].feature = 0;
    part.appearances = {painted("replaced", {onDocument(), onBody(0), onFeature(0), onFace(0, 1)}),
                        painted("document", {onDocument()}),
                        painted("body", {onBody(0)}),
                        painted("feature", {onFeature(0)}),
                        painted("face", {onFace(0, 1)}),
                        painted("unused", {})};
    EXPECT_THAT(meshTexts(exported()), ElementsAre("document:10 body:7 feature:1 face:2"));
}

TEST_F(FaceMaterials, TakeTheSeedOfAPatternThatPropagates) {
    ModelDocument& part = builder.part(u"p.tfgprt", countingFaces(4));
    part.features = {{.name = u"Seed"},
                     {.name = u"Pattern", .definition = FeatureDefinitionRecord{true, {-1, 3, 0}}},
                     {.name = u"Still", .definition = FeatureDefinitionRecord{false, {0}}},
                     {.name = u"Plain"}};
    for (std::int32_t i = 0; i < 4; ++i) {
        part.bodies[0].faces[static_cast<std::size_t>(i)].feature = i;
    }
    part.appearances = {painted("body", {onBody(0)}), painted("seed", {onFeature(0)})};
    EXPECT_THAT(meshTexts(exported()), ElementsAre("body:7 seed:3"));
}

TEST_F(FaceMaterials, TakeTheComponentBeforeEverythingElse) {
    ModelDocument& top = builder.assembly(u"top.tfgasm");
    ModelDocument& part = builder.part(u"p.tfgprt", countingFaces(2));
    part.appearances = {painted("face", {onFace(0, 0)}), painted("document", {onDocument()})};
    ComponentRecord group = ModelBuilder::component(u"group");
    group.components = {ModelBuilder::component(u"own", &part), ModelBuilder::component(u"below", &part)};
    top.components = {group, ModelBuilder::component(u"alone", &part),
                      ModelBuilder::component(u"again", &part)};
    top.appearances = {painted("group", {onComponent(u"group")}),
                       painted("own", {onComponent(u"group/own")})};
    const nlohmann::json gltf = exported();
    EXPECT_THAT(meshTexts(gltf), ElementsAre("own:3", "group:3", "face:1 document:2", "face:1 document:2"));
    EXPECT_THAT(materialNames(gltf), ElementsAre("-", "own", "group", "face", "document"))
        << "indices follow the first use";
}

TEST_F(FaceMaterials, ReachEverythingBelowTheRootByTheRootsName) {
    ModelDocument& top = builder.assembly(u"lamp.tfgasm");
    ModelDocument& part = builder.part(u"p.tfgprt");
    top.components = {ModelBuilder::component(u"lamp", &part), ModelBuilder::component(u"other", &part)};
    top.appearances = {painted("paint", {onComponent(u"lamp")})};
    EXPECT_THAT(meshTexts(exported()), ElementsAre("paint:1", "paint:1"));
}

TEST_F(FaceMaterials, AreGatheredAfreshForEachSceneOfAnAssembly) {
    for (const bool isPart : {false, true}) {
        builder = {};
        ModelDocument& opened = isPart ? builder.part(u"p.tfgprt") : builder.assembly(u"top.tfgasm");
        if (!isPart) {
            opened.components = {ModelBuilder::component(u"c", &builder.part(u"p.tfgprt"))};
        }
        opened.configurations = {ModelBuilder::configuration(u"A", {u"one", u"two"}),
                                 ModelBuilder::configuration(u"B", {u"one"})};
        const EntityRecord entity = isPart ? onBody(0) : onComponent(u"c");
        opened.appearances = {painted("a", {entity}), painted("two", {entity}), painted("b", {entity})};
        opened.appearances[0].configurations = {u"A"};
        opened.appearances[1].displayStates = {u"two"};
        opened.appearances[2].configurations = {u"B"};
        opened.appearances[2].displayStates = {u"two"}; // never: B has no state of that name
        const nlohmann::json gltf = exported();
        EXPECT_THAT(meshTexts(gltf), ElementsAre("a:1", "two:1", isPart ? "two:1" : "-:1"))
            << "a part keeps what was gathered before";
        EXPECT_THAT(materialNames(gltf), ElementsAre("-", "a", "two")) << "a-1 is made, but not used";
    }
}

TEST_F(FaceMaterials, KeepTheirAppearanceInLaterExportsOnly) {
    ModelDocument& part = builder.part(u"p.tfgprt", countingFaces(3));
    part.bodies[0].faces[2].userValue = 0x1234FACE;
    part.appearances = {painted("face", {onFace(0, 0)}), painted("body", {onBody(0)})};
    EXPECT_THAT(meshTexts(exported()), ElementsAre("face:1 body:5"));
    const auto faces = facesOf(*run->host);
    const std::int32_t mark = faces[0]->readFaceMark();
    EXPECT_EQ(mark & 0xFFFF, 0xFACE);
    EXPECT_EQ(faces[1]->readFaceMark(), 0) << "it only carried the body's appearance";
    EXPECT_EQ(faces[2]->readFaceMark(), 0) << "a value that only looked like a mark";
    EXPECT_THAT(meshTexts(run->json()), ElementsAre("face:1 body:5"));
    EXPECT_EQ(faces[0]->readFaceMark(), mark);
}

TEST_F(FaceMaterials, LoseTheirAppearanceBeyondTheLimitOfMarks) {
    // All marks once, so that tests behind this one find marks again.
    ModelDocument& part = builder.part(u"p.tfgprt", std::vector<FaceRecord>(0x10000, triangleFace()));
    part.appearances = {painted("paint", {onBody(0)})};
    EXPECT_THAT(meshTexts(exported()), ElementsAre("-:21666 -:11102 paint:21666 paint:11102"))
        << "21,666 triangles at most in each";
    EXPECT_THAT(run->exporter.report().warnings,
                testing::Contains(testing::StartsWith("more than 32,768 faces")).Times(1));
}

TEST_F(FaceMaterials, CountMarksUpAndHaveNoneBeyondTheirLimit) {
    builder.part(u"p.tfgprt");
    const HostRef<HostApplication> host = openEmbeddedHost(builder.take());
    const HostRef<HostFace> face = facesOf(*host).front();
    face->writeFaceMark(0x7531);
    EXPECT_EQ(appearance::faceMark(*face, false), appearance::kNoFaceMark);
    EXPECT_EQ(face->readFaceMark(), 0x7531);
    const std::int32_t first = appearance::faceMark(*face, true);
    EXPECT_EQ(face->readFaceMark(), first);
    EXPECT_EQ(appearance::faceMark(*face, true), first);
    face->writeFaceMark(0xFACF);
    EXPECT_EQ(appearance::faceMark(*face, false), 0xFACF) << "the pattern is covered";

    // Once around, so that tests behind this one find marks again.
    int negative = 0;
    std::uint32_t last = static_cast<std::uint32_t>(first);
    for (int i = 1; i < 0x10000; ++i) {
        face->writeFaceMark(0);
        const std::int32_t mark = appearance::faceMark(*face, true);
        ASSERT_EQ(static_cast<std::uint32_t>(mark), last + 0x10000u);
        last = static_cast<std::uint32_t>(mark);
        negative += mark < 0;
    }
    EXPECT_EQ(negative, 0x8000);
}

} // namespace
} // namespace orvane
