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

    ModelBuilder builder;
    std::optional<ExportRun> run;
};

TEST_F(FaceMaterials, TakeTheNearestAppearance) {
    ModelDocument& part = builder.part(u"p.tfgprt", countingFaces(4));
    part.bodies.push_back({.name = u"Body2", .faces = {triangleFaces(10)}});
    part.features = {{.name = u"Cut"}};
    part.bodies[0].faces[0].feature = part.bodies[0].faces[1].feature = 0;
    part.appearances = {painted("document", {onDocument()}),
                        painted("body", {onBody(0)}),
                        painted("feature", {onFeature(0)}),
                        painted("face", {onFace(0, 1)}),
                        painted("unused", {}),
                        painted("nowhere", {onFeature(0)})};
    part.appearances.pop_back();
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
    top.components = {group, ModelBuilder::component(u"alone", &part)};
    top.appearances = {painted("group", {onComponent(u"group")}),
                       painted("own", {onComponent(u"group/own")})};
    const nlohmann::json gltf = exported();
    EXPECT_THAT(meshTexts(gltf), ElementsAre("own:3", "group:3", "face:1 document:2"));
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
    const auto configurations = [] {
        return std::vector{ModelBuilder::configuration(u"A", {u"one", u"two"}),
                           ModelBuilder::configuration(u"B", {u"one"})};
    };
    const auto appearances = [](const EntityRecord& entity) {
        std::vector list = {painted("a", {entity}), painted("two", {entity}), painted("b", {entity})};
        list[0].configurations = {u"A"};
        list[1].displayStates = {u"two"};
        list[2].configurations = {u"B"};
        list[2].displayStates = {u"two"}; // never: B has no state of that name
        return list;
    };
    ModelDocument& top = builder.assembly(u"top.tfgasm");
    ModelDocument& part = builder.part(u"p.tfgprt");
    top.components = {ModelBuilder::component(u"c", &part)};
    top.configurations = configurations();
    top.appearances = appearances(onComponent(u"c"));
    const nlohmann::json assembly = exported();
    EXPECT_THAT(meshTexts(assembly), ElementsAre("a:1", "two:1", "-:1"));
    EXPECT_THAT(materialNames(assembly), ElementsAre("-", "a", "two")) << "a-1 is made, but not used";

    builder = {};
    ModelDocument& alone = builder.part(u"p.tfgprt");
    alone.configurations = configurations();
    alone.appearances = appearances(onBody(0));
    EXPECT_THAT(meshTexts(exported()), ElementsAre("a:1", "two:1", "two:1"))
        << "a part keeps what was gathered before";
}

TEST_F(FaceMaterials, KeepTheirAppearanceInLaterExportsOnly) {
    ModelDocument& part = builder.part(u"p.tfgprt", countingFaces(3));
    part.bodies[0].faces[2].userValue = 0x1234FACE;
    part.appearances = {painted("face", {onFace(0, 0)}), painted("body", {onBody(0)})};
    nlohmann::json gltf = exported();
    EXPECT_THAT(meshTexts(gltf), ElementsAre("face:1 body:5"));
    const auto faces = run->host->activeDocument()
                           ->partInterface()
                           ->enumerateBodies(kSolidBody, -1)
                           ->nextBody()
                           ->bodyFaces(3);
    const std::int32_t mark = faces[0]->readFaceMark();
    EXPECT_EQ(mark & 0xFFFF, 0xFACE);
    EXPECT_EQ(faces[1]->readFaceMark(), 0) << "it only carried the body's appearance";
    EXPECT_EQ(faces[2]->readFaceMark(), 0) << "a value that only looked like a mark";
    gltf = run->json();
    EXPECT_THAT(meshTexts(gltf), ElementsAre("face:1 body:5"));
    EXPECT_EQ(faces[0]->readFaceMark(), mark);
}

TEST_F(FaceMaterials, AreSharedByTheInstancesOfAPart) {
    ModelDocument& top = builder.assembly(u"top.tfgasm");
    ModelDocument& part = builder.part(u"p.tfgprt", countingFaces(2));
    part.appearances = {painted("body", {onBody(0)}), painted("face", {onFace(0, 1)})};
    top.components = {ModelBuilder::component(u"a", &part), ModelBuilder::component(u"b", &part)};
    EXPECT_THAT(meshTexts(exported()), ElementsAre("body:1 face:2", "body:1 face:2"));
}

TEST_F(FaceMaterials, LoseTheirAppearanceBeyondTheLimitOfMarks) {
    // All marks once, so that tests behind this one find marks again.
    ModelDocument& part = builder.part(u"p.tfgprt", std::vector<FaceRecord>(0x10000, triangleFace()));
    part.appearances = {painted("paint", {onBody(0)})};
    const nlohmann::json gltf = exported();
    EXPECT_THAT(gltf["meshes"][0]["primitives"], testing::SizeIs(4))
        << "two of each, 21,666 triangles at most";
    EXPECT_THAT(meshTexts(gltf), ElementsAre("-:21666 -:11102 paint:21666 paint:11102"));
    EXPECT_THAT(run->exporter.report().warnings,
                testing::Contains(testing::StartsWith("more than 32,768 faces")).Times(1));
}

/// A face that is nothing but its user value.
class MarkedFace : public HostFace {
public:
    explicit MarkedFace(std::int32_t initial) : value(initial) {}
    void faceTriangleCount(std::int32_t&) const override {}
    bool faceTrianglePositions(bool, std::span<float>) const override { return false; }
    bool faceTriangleNormals(std::span<float>) const override { return false; }
    bool faceTriangleTexCoords(std::span<float>) const override { return false; }
    HostRef<HostFeature> faceOwningFeature() const override { return {}; }
    std::int32_t readFaceMark() const override { return value; }
    void writeFaceMark(std::int32_t mark) override { value = mark; }
    std::int32_t value;
};

TEST(FaceMarks, CountUpAndAreNoneBeyondTheirLimit) {
    const auto face = makeHostObject<MarkedFace>(0x7531);
    EXPECT_EQ(appearance::faceMark(*face, false), appearance::kNoFaceMark);
    EXPECT_EQ(face->value, 0x7531);
    const std::int32_t first = appearance::faceMark(*face, true);
    EXPECT_EQ(face->value, first);
    EXPECT_EQ(appearance::faceMark(*face, true), first);
    EXPECT_EQ(appearance::faceMark(*makeHostObject<MarkedFace>(0xFACF), false), 0xFACF)
        << "the pattern is covered";

    // Once around, so that tests behind this one find marks again.
    int negative = 0;
    std::uint32_t last = static_cast<std::uint32_t>(first);
    for (int i = 1; i < 0x10000; ++i) {
        face->value = 0;
        const std::int32_t mark = appearance::faceMark(*face, true);
        ASSERT_EQ(static_cast<std::uint32_t>(mark), last + 0x10000u);
        last = static_cast<std::uint32_t>(mark);
        negative += mark < 0;
    }
    EXPECT_EQ(negative, 0x8000);
}

} // namespace
} // namespace orvane
