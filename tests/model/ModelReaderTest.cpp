#include "embedded/EmbeddedHost.h"
#include "model/FullDocuments.h"
#include "support/ModelFiles.h"

#include "model/records/HostPath.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ModelReader, EmptyDocumentsHaveTheirDefaults) {
    ModelFiles files;
    const Model part = files.readText("Gear.v2.tfgprt", "\xEF\xBB\xBF{}");
    const ModelDocument& document = *part.documents.at(0);
    EXPECT_EQ(document.kind, DocumentKind::part);
    EXPECT_EQ(document.title, u"Gear.v2.tfgprt");
    EXPECT_EQ(document.path, toHostPath(files.folder() / "Gear.v2.tfgprt"));
    ASSERT_EQ(document.configurations.size(), 1u);
    EXPECT_EQ(document.configurations[0].name, u"Default");
    EXPECT_EQ(document.configurations[0].displayStates.at(0).name, u"Display State 1");

    const Model assembly = files.readText("Top.TFGASM", "{}");
    EXPECT_EQ(assembly.documents.at(0)->kind, DocumentKind::assembly);
    EXPECT_EQ(assembly.documents[0]->root.name, u"Top");
    EXPECT_EQ(files.readText("Top.tfgasm", R"({"title": "Pump"})").documents[0]->root.name, u"Pump");
}

TEST(ModelReader, TakesTheLargestSinglePrecisionNumberAndEmptyNames) {
    ModelFiles files;
    const Model part = files.readText("a.tfgprt", R"({"bodies": [{"faces": [{"positions":
        [3.4028235e38, -3.4028235e38, -0, 0, 0, 0, 0, 0, 0]}]}]})");
    const std::vector<float>& positions = part.documents[0]->bodies[0].faces[0].positions;
    EXPECT_EQ(positions[0], std::numeric_limits<float>::max());
    EXPECT_TRUE(std::signbit(positions[2]));
    EXPECT_EQ(
        files.readText("a.tfgasm", R"({"components": [{"name": ""}]})").documents[0]->components[0].name,
        u"");
}

TEST(ModelReader, Placements) {
    ModelFiles files;
    const auto placementOf = [&](const std::string& text) {
        const Model model =
            files.readText("a.tfgasm", R"({"components": [{"name": "c", "placement": )" + text + "}]}");
        return model.documents[0]->components[0].placement.value();
    };
    const auto rotation = [&](const std::string& axis, double degrees) {
        const Placement p = placementOf(R"({"rotate": {"axis": )" + axis + R"(, "degrees": )" +
                                        std::to_string(degrees) + "}}");
        return std::vector<double>(p.begin(), p.begin() + 9);
    };
    EXPECT_EQ(placementOf("[1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16]"),
              (Placement{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}));
    EXPECT_TRUE(std::signbit(placementOf("[1,-0,-0.0,0,1,0,0,0,1,0,0,0,1,0,0,0]")[1]))
        << "a written sign stays";
    EXPECT_EQ(placementOf("{}"), kIdentityPlacement);
    EXPECT_EQ(placementOf(R"({"translate": [1, -2, 3], "scale": 0.5})"),
              (Placement{1, 0, 0, 0, 1, 0, 0, 0, 1, 1, -2, 3, 0.5, 0, 0, 0}));
    EXPECT_THAT(rotation("[0, 0, 1]", 90), ElementsAre(0, 1, 0, -1, 0, 0, 0, 0, 1));
    EXPECT_THAT(rotation("[0, 0, 1e300]", -90), ElementsAre(0, -1, 0, 1, 0, 0, 0, 0, 1));
    EXPECT_THAT(rotation("[3, 0, 0]", 450), ElementsAre(1, 0, 0, 0, 0, 1, 0, -1, 0));
    EXPECT_THAT(rotation("[0, -5e-324, 0]", 270), ElementsAre(0, 0, -1, 0, 1, 0, 1, 0, 0));
    EXPECT_THAT(rotation("[0, 1, 0]", 720180), ElementsAre(-1, 0, 0, 0, 1, 0, 0, 0, -1));
    for (const double turn : {-90.0, 0.0, 90.0, 180.0, 360.0, 630.0}) {
        for (const double value : rotation("[0, 1, 0]", turn)) {
            EXPECT_FALSE(value == 0 && std::signbit(value)) << turn;
        }
    }
    // A third of a turn about the diagonal sends x to y, y to z and z to x.
    const auto diagonal = rotation("[2, 2, 2]", 120);
    for (std::size_t i = 0; i < 9; ++i) {
        EXPECT_NEAR(diagonal[i], i == 1 || i == 5 || i == 6 ? 1 : 0, 1e-15) << i;
    }
}

TEST(ModelReader, BodiesAndFaces) {
    ModelFiles files;
    const Model model = files.readText("a.tfgprt", kFullPart);
    EXPECT_EQ(model.documents[0]->title, u"Lid");
    const auto& bodies = model.documents[0]->bodies;
    EXPECT_TRUE(bodies[0].name == u"Named" && bodies[0].kind == BodyKind::wire && !bodies[0].visible &&
                bodies[0].faces.empty());
    EXPECT_TRUE(bodies[1].name == u"Body2" && bodies[1].kind == BodyKind::solid && bodies[1].visible);
    EXPECT_TRUE(bodies[2].name == u"Body3" && bodies[2].kind == BodyKind::surface);
    const auto& faces = bodies[1].faces;
    EXPECT_THAT(faces[0].positions, IsEmpty());
    EXPECT_TRUE(faces[0].userValue == -1 && faces[1].userValue == -5 && faces[2].userValue == 0);
    // Of two features of one name the first of the flattened tree.
    EXPECT_TRUE(faces[0].feature == -1 && faces[1].feature == 1 && faces[2].feature == 3);
    std::vector<float> normals(27, 0.0f); // the second triangle is degenerate
    normals[2] = normals[5] = normals[8] = normals[18] = normals[21] = normals[24] = 1;
    EXPECT_EQ(faces[1].normals, normals);
    EXPECT_THAT(faces[1].texCoords, IsEmpty());
    EXPECT_THAT(faces[2].normals, ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9));
    EXPECT_THAT(faces[2].texCoords, ElementsAre(0, 0.5f, 1, 1.5f, 2, 2.5f));
    // What each shape takes: a box has no segments, the others as many as are given.
    std::vector<std::size_t> numbers;
    for (std::size_t i = 3; i < bodies.size(); ++i) {
        numbers.push_back(bodies[i].faces.at(0).positions.size() / 9);
    }
    EXPECT_THAT(numbers, ElementsAre(2, 8, 10, 6, 98));
    EXPECT_EQ(bodies[3].faces[0].positions[0], 0.5f); // -x of a box that is moved by 1
}

TEST(ModelReader, NormalsComeFromTheDoubles) {
    // In floats all three points fall on one line; in doubles they span a triangle that looks along z.
    ModelFiles files;
    const Model model = files.readText(
        "a.tfgprt", R"({"bodies": [{"faces": [{"positions": [1,1,0, 1.000000001,1,0, 1,1.000000001,0]}]}]})");
    EXPECT_THAT(model.documents[0]->bodies[0].faces[0].normals, ElementsAre(0, 0, 1, 0, 0, 1, 0, 0, 1));
}

TEST(ModelReader, ConfigurationsAndComponents) {
    ModelFiles files;
    files.write("part.tfgprt", "{}");
    const Model model = files.readText("a.tfgasm", kFullAssembly);
    const ModelDocument& document = *model.documents[0];
    EXPECT_EQ(document.activeConfiguration, 1u);
    EXPECT_EQ(document.root.name, u"R\u00e4\U0001F600");
    EXPECT_EQ(document.root.id, -7);
    EXPECT_EQ(document.root.placement[12], 2);
    const ConfigurationRecord& a = document.configurations[0];
    const ConfigurationRecord& b = document.configurations[1];
    EXPECT_THAT(a.displayStates, IsEmpty());
    EXPECT_EQ(a.explodeSteps, 3);
    EXPECT_FALSE(b.explodeSteps.has_value());
    EXPECT_FALSE(b.bodies.has_value());
    std::vector<std::int32_t> types;
    for (const auto& property : a.customProperties) {
        types.push_back(property.type);
    }
    EXPECT_THAT(types, ElementsAre(30, 64, 11, 3, 5, 77));
    EXPECT_EQ(a.customProperties[0].value, u"v");
    EXPECT_THAT(b.suppressed, ElementsAre(u"x"));
    EXPECT_THAT(b.hidden, ElementsAre(u"x/y"));
    EXPECT_THAT(b.shown, ElementsAre(u"x", u"x"));
    EXPECT_EQ(b.placements.at(0).component, u"x/y");
    EXPECT_EQ(b.placements[0].placement, (Placement{0, 1, 0, -1, 0, 0, 0, 0, 1, 1, 2, 3, 1, 0, 0, 0}));
    EXPECT_EQ(b.displayStates.at(0).name, u"S1");
    EXPECT_THAT(b.displayStates.at(1).hidden, ElementsAre(u"x"));
    EXPECT_THAT(b.displayStates[1].shown, ElementsAre(u"x/y"));

    const ComponentRecord& x = document.components.at(0);
    EXPECT_EQ(x.document, model.documents.at(1).get());
    EXPECT_TRUE(x.id == 9 && !x.placement && !x.placementFallback && !x.loaded && x.suppressed && x.hidden);
    EXPECT_EQ(x.state, 1);
    EXPECT_EQ(x.decals.at(0).id, 3);
    ASSERT_EQ(x.components.value().size(), 2u);
    const ComponentRecord& y = (*x.components)[0];
    EXPECT_TRUE(!y.document && !y.id && y.loaded && !y.suppressed && !y.hidden && !y.components);
    EXPECT_EQ(y.state, 3);
    EXPECT_EQ(y.placement, kIdentityPlacement);
    EXPECT_EQ(y.placementFallback.value()[12], 3);
}

TEST(ModelReader, AppearancesDecalsAndFeatures) {
    ModelFiles files;
    const Model model = files.readText("sub/a.tfgprt", kFullPart);
    const ModelDocument& document = *model.documents[0];
    const AppearanceRecord& plain = document.appearances.at(0);
    const AppearanceRecord& full = document.appearances.at(1);
    EXPECT_TRUE(plain.file.empty() && !plain.hasAppliedTo && plain.primaryColor == 0x7F7F7F &&
                plain.specularColor == 0);
    EXPECT_EQ(full.file, (files.folder() / "lib/steel.tfm").string());
    EXPECT_EQ(full.texture, (files.folder() / "sub/wood/a.png").string());
    EXPECT_EQ(full.bumpTexture, "/abs/b.png");
    EXPECT_EQ(full.primaryColor, 0xFFAB12u);
    EXPECT_EQ(full.secondaryColor, 0x030201u);
    EXPECT_EQ(full.specularColor, 0x010000u);
    EXPECT_TRUE(full.emission == 0.25 && full.transparency == 0.5 && full.specular == 3);
    EXPECT_TRUE(full.reflectivity == 0.75 && full.specularSpread == 2 && full.tertiaryColor == 0x000100);
    const MappingRecord& mapping = full.mapping;
    EXPECT_TRUE(mapping.type == MappingKind::cylinder && mapping.width == 0.5 && mapping.height == 0.25 &&
                mapping.rotation == 30);
    EXPECT_TRUE(mapping.offsetU == 1 && mapping.offsetV == 2 && mapping.center[1] == 2);
    EXPECT_TRUE(mapping.uDirection[0] == 1 && mapping.vDirection[2] == 1 && mapping.sphereAngleA == 4 &&
                mapping.sphereAngleB == 5);
    EXPECT_TRUE(!mapping.mirrorVertical && mapping.mirrorHorizontal);
    ASSERT_EQ(full.appliedTo.size(), 4u);
    EXPECT_EQ(full.appliedTo[0].kind, EntityKind::document);
    EXPECT_TRUE(full.appliedTo[1].kind == EntityKind::body && full.appliedTo[1].body == 0);
    EXPECT_TRUE(full.appliedTo[2].kind == EntityKind::feature && full.appliedTo[2].feature == 1);
    EXPECT_TRUE(full.appliedTo[3].kind == EntityKind::face && full.appliedTo[3].body == 1 &&
                full.appliedTo[3].face == 2);
    EXPECT_THAT(full.configurations, ElementsAre(u"A"));
    EXPECT_THAT(full.displayStates, ElementsAre(u"T"));
    const DecalRecord& decal = document.decals.at(0);
    EXPECT_TRUE(decal.id == 4 && decal.maskInvert && decal.appearance->hasAppliedTo);
    EXPECT_EQ(decal.maskFile, (files.folder() / "sub/m.png").string());
    EXPECT_THAT(decal.ids, ElementsAre(1, -2));

    const auto& features = document.features;
    ASSERT_EQ(features.size(), 4u);
    EXPECT_TRUE(features[0].parent == -1 && features[1].parent == 0 && features[3].parent == -1);
    EXPECT_EQ(features[0].type, u"Feature");
    EXPECT_EQ(features[1].type, u"CommentsFolder");
    EXPECT_EQ(features[1].comments.at(0).text, u"t");
    EXPECT_TRUE(features[0].definition.value().propagate);
    EXPECT_THAT(features[0].definition->seeds, ElementsAre(3, -1, 1));
    const CameraRecord& camera = features[3].camera.value();
    EXPECT_TRUE(camera.position[2] == 3 && camera.up[1] == 1 && camera.direction[2] == 1 &&
                camera.fieldOfView == 0.5 && !camera.perspective && camera.aspect == 2);
}

TEST(ModelReader, ViewsLightsMotionAndTables) {
    ModelFiles files;
    files.write("part.tfgprt", "{}");
    const Model model = files.readText("a.tfgasm", kFullAssembly);
    const ModelDocument& document = *model.documents[0];
    EXPECT_THAT(document.box.value(), ElementsAre(0, 1, 2, 3, 4, 5));
    const ViewRecord& plain = document.view.value();
    EXPECT_TRUE(plain.scale == 1 && plain.planeDistance == 1 && plain.perspectiveAllowed && !plain.camera);
    EXPECT_TRUE(plain.width == 1024 && plain.height == 768 && plain.transform == kIdentityPlacement);
    const ViewRecord& view = document.namedViews.at(0);
    EXPECT_TRUE(view.name == u"V" && view.mode == 2 && view.orientation[1] == 1 && view.scale == 3);
    EXPECT_TRUE(view.translation[2] == 3 && view.eyePoint[0] == 4 && view.planeDistance == 7);
    EXPECT_TRUE(view.perspective && !view.perspectiveAllowed && view.transform[12] == 8);
    EXPECT_TRUE(view.width == 9 && view.height == 10 && view.camera.value().aspect == 1.5 &&
                view.camera->perspective);
    const LightRecord& light = document.lights.at(0);
    EXPECT_TRUE(light.name == u"L" && light.userName == u"U" && light.type == LightKind::spot &&
                light.level == 0.5 && !light.on);
    EXPECT_TRUE(light.color[1] == 0.5 && light.position[0] == 1 && light.direction[0] == 4);
    EXPECT_TRUE(light.coneAngle == 30 && light.attenuation[0] == 7 && light.intensity == 11);
    EXPECT_TRUE(document.lights[1].type == LightKind{1234} && document.lights[1].on &&
                document.lights[1].color[2] == 1);
    EXPECT_EQ(document.lights[2].type, LightKind::point);
    EXPECT_EQ(document.lights[3].type, LightKind::directional);
    EXPECT_EQ(document.lights[4].type, LightKind::ambient);

    const MotionStudyRecord& study = document.motionStudies.at(0);
    EXPECT_TRUE(study.name == u"M" && study.duration == -2.5 && study.frameRate == 30 && study.time == 1);
    ASSERT_EQ(study.tracks.size(), 1u); // the two that move nothing are left out
    EXPECT_TRUE(study.tracks[0].component == u"x" &&
                study.tracks[0].interpolation == TrackInterpolation::step);
    EXPECT_TRUE(study.tracks[0].keys.at(0).time == -1 && study.tracks[0].keys.at(1).placement[9] == 1);
    EXPECT_EQ(document.motionStudies[1].frameRate, 0);
    const ExplodedViewRecord& exploded = document.explodedViews.at(0);
    EXPECT_TRUE(exploded.name == u"E" && exploded.frameRate == 12 && exploded.steps.at(0).translate[2] == 1);
    EXPECT_THAT(exploded.steps[0].components, ElementsAre(u"x"));
    EXPECT_THAT(exploded.steps.at(1).components, IsEmpty());

    const TableRecord& table = document.designTable.value();
    EXPECT_TRUE(table.title == u"T" && table.startRow == 4 && table.startColumn == 5 && !table.attach);
    EXPECT_THAT(table.headers, ElementsAre(u"h", std::nullopt));
    EXPECT_EQ(table.rows.at(0).at(0), u"1");
    EXPECT_THAT(table.rows.at(1), IsEmpty());
    const TableRecord& note = document.annotations.at(0).table.value();
    EXPECT_TRUE(document.annotations[0].type == 14 && !note.title && !note.rows.at(0).at(0) && note.attach);
    EXPECT_TRUE(document.annotations.at(1).type == 3 && !document.annotations[1].table);
}

TEST(ModelReader, AppearancesWithEmptyListsAreAlwaysListed) {
    ModelFiles files;
    const auto host = openEmbeddedHost(files.readText("a.tfgprt", R"({
        "configurations": [{"name": "A", "displayStates": ["S"]}, {"name": "B", "displayStates": []}],
        "appearances": [{"configurations": [], "displayStates": []}, {"configurations": ["A"], "displayStates": []},
                        {"configurations": [], "displayStates": ["S"]}]})"));
    const auto document = host->activeDocument();
    EXPECT_EQ(document->appearances().size(), 3u);
    document->showConfiguration(u"B");
    EXPECT_EQ(document->appearances().size(), 1u);
}

} // namespace
} // namespace orvane
