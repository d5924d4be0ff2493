#include "support/PaintedModel.h"
#include "support/Pictures.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::ElementsAre;

struct Decals : testing::Test {
    Decals() {
        for (const char* name : {"a.png", "b.png", "mask.png"}) {
            writeFile(folder / name, pngPicture(name));
        }
    }

    /// Applied to `entities`, or to the component that lists it.
    DecalRecord decal(std::int32_t id, const std::string& picture, const std::string& mask = {},
                      std::vector<EntityRecord> entities = {}) {
        DecalRecord made;
        made.id = id;
        made.appearance.emplace();
        made.appearance->texture = folder / picture;
        made.appearance->file = "/" + std::to_string(id) + ".tfm";
        made.appearance->hasAppliedTo = !entities.empty();
        made.appearance->appliedTo = std::move(entities);
        made.maskFile = mask.empty() ? "" : folder / mask;
        return made;
    }

    nlohmann::json exported() {
        run.emplace(builder.take());
        return run->json();
    }

    TemporaryFolder folder;
    ModelBuilder builder;
    std::optional<ExportRun> run;
};

TEST_F(Decals, BringTheirMaterialsAndPicturesAheadOfTheModels) {
    ModelDocument& top = builder.assembly(u"top.tfgasm");
    ModelDocument& part = builder.part(u"p.tfgprt");
    part.appearances = {painted("paint", {onBody(0)})};
    top.components = {ModelBuilder::component(u"a", &part), ModelBuilder::component(u"b", &part)};
    top.components[0].decals = {decal(7, "a.png", "mask.png"), decal(8, "a.png", "gone.png")};
    top.components[1].decals = {decal(7, "b.png"), decal(9, "b.png", "mask.png")};
    const nlohmann::json gltf = exported();
    EXPECT_THAT(materialNames(gltf), ElementsAre("-", "7", "8", "9", "paint"));
    ASSERT_EQ(gltf["textures"].size(), 3u) << "a picture is one texture, and one that is gone is none";
    EXPECT_EQ(gltf["images"][1]["uri"], "mask.png");
    EXPECT_EQ(gltf["materials"][3]["pbrMetallicRoughness"]["baseColorTexture"]["index"], 2);
    EXPECT_THAT(meshTexts(gltf), ElementsAre("paint:1", "paint:1"));
    EXPECT_EQ(readFile(run->folder / "x/mask.png"), pngPicture("mask.png"));
}

TEST_F(Decals, ComeFromADocumentWhereItsComponentHasNone) {
    ModelDocument& top = builder.assembly(u"top.tfgasm");
    ModelDocument& part = builder.part(u"p.tfgprt");
    DecalRecord withoutAppearance = decal(4, "b.png");
    withoutAppearance.appearance.reset();
    part.decals = {decal(1, "a.png", "", {onBody(0)}), decal(2, "b.png"), withoutAppearance};
    top.decals = {decal(3, "b.png", "", {onComponent(u"a")})};
    top.components = {ModelBuilder::component(u"a", &part), ModelBuilder::component(u"b", &part)};
    top.components[1].decals = {decal(4, "a.png")};
    const nlohmann::json gltf = exported();
    EXPECT_THAT(materialNames(gltf), ElementsAre("-", "1", "4", "3")) << "the root component comes last";
}

TEST_F(Decals, OfAPartAloneLeaveNoTrace) {
    ModelDocument& part = builder.part(u"p.tfgprt");
    part.decals = {decal(1, "a.png", "", {onBody(0)})};
    EXPECT_THAT(materialNames(exported()), ElementsAre("-"));
}

} // namespace
} // namespace orvane
