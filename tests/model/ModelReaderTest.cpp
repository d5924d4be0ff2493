#include "embedded/EmbeddedHost.h"
#include "model/FullDocuments.h"
#include "support/ModelFiles.h"

#include "model/records/HostPath.h"

#include <cmath>
#include <gmock/gmock.h>
#include <limits>

namespace orvane {
namespace {

using testing::ElementsAre;

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

    const Model assembly = files.readText("Top.TFGASM", R"({"components": [{"name": ""}]})");
    EXPECT_EQ(assembly.documents.at(0)->kind, DocumentKind::assembly);
    EXPECT_EQ(assembly.documents[0]->root.name, u"Top");
    EXPECT_EQ(assembly.documents[0]->components.at(0).name, u"");
    EXPECT_EQ(files.readText("Top.tfgasm", R"({"title": "Pump"})").documents[0]->root.name, u"Pump");
}

TEST(ModelReader, FacesKeepThePrecisionOfTheirNumbers) {
    ModelFiles files;
    const auto faceOf = [&](const std::string& positions) {
        return files.readText("a.tfgprt", R"({"bodies": [{"faces": [{"positions": [)" + positions + "]}]}]}")
            .documents[0]
            ->bodies[0]
            .faces[0];
    };
    const FaceRecord widest = faceOf("3.4028235e38, -3.4028235e38, -0, 0, 0, 0, 0, 0, 0");
    EXPECT_EQ(widest.positions[0], std::numeric_limits<float>::max());
    EXPECT_TRUE(std::signbit(widest.positions[2]));
    // In floats all three points fall on one line; in doubles they span a triangle that looks along z.
    EXPECT_THAT(faceOf("1,1,0, 1.000000001,1,0, 1,1.000000001,0").normals,
                ElementsAre(0, 0, 1, 0, 0, 1, 0, 0, 1));
}

TEST(ModelReader, Placements) {
    ModelFiles files;
    const auto placementOf = [&](const std::string& text) {
        return files.readText("a.tfgasm", R"({"root": {"placement": )" + text + "}}")
            .documents[0]
            ->root.placement;
    };
    EXPECT_EQ(placementOf("[1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16]"),
              (Placement{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}));
    EXPECT_TRUE(std::signbit(placementOf("[1,-0,-0.0,0,1,0,0,0,1,0,0,0,1,0,0,0]")[1]))
        << "a written sign stays";
    EXPECT_EQ(placementOf("{}"), kIdentityPlacement);
    EXPECT_EQ(placementOf(R"({"translate": [1, -2, 3], "scale": 0.5})"),
              (Placement{1, 0, 0, 0, 1, 0, 0, 0, 1, 1, -2, 3, 0.5, 0, 0, 0}));

    const struct {
        const char *axis, *degrees;
        std::array<double, 9> rotation;
    } turns[] = {{"[0, 0, 1]", "90", {0, 1, 0, -1, 0, 0, 0, 0, 1}},
                 {"[0, 0, 1e300]", "-90", {0, -1, 0, 1, 0, 0, 0, 0, 1}},
                 {"[3, 0, 0]", "450", {1, 0, 0, 0, 0, 1, 0, -1, 0}},
                 {"[0, -5e-324, 0]", "270", {0, 0, -1, 0, 1, 0, 1, 0, 0}},
                 {"[0, 1, 0]", "720180", {-1, 0, 0, 0, 1, 0, 0, 0, -1}},
                 {"[0, 1, 0]", "-0.0", {1, 0, 0, 0, 1, 0, 0, 0, 1}},
                 {"[2, 2, 2]", "120", {0, 1, 0, 0, 0, 1, 1, 0, 0}}}; // x to y, y to z and z to x
    for (const auto& [axis, degrees, rotation] : turns) {
        const Placement placement =
            placementOf(std::string(R"({"rotate": {"axis": )") + axis + R"(, "degrees": )" + degrees + "}}");
        const double tolerance = std::string(degrees) == "120" ? 1e-15 : 0; // quarter turns are exact
        for (std::size_t i = 0; i < 9; ++i) {
            EXPECT_NEAR(placement[i], rotation[i], tolerance) << axis << ' ' << degrees;
            EXPECT_FALSE(placement[i] == 0 && std::signbit(placement[i])) << axis << ' ' << degrees;
        }
    }
}

TEST(ModelReader, BodiesAndFaces) {
    ModelFiles files;
    const Model model = files.readText("a.tfgprt", kFullPart);
    EXPECT_EQ(model.documents[0]->title, u"Lid");
    const auto& bodies = model.documents[0]->bodies;
    EXPECT_TRUE(bodies[0].name == u"Named" && bodies[0].kind == BodyKind::wire && !bodies[0].visible);
    EXPECT_TRUE(bodies[1].name == u"Body2" && bodies[1].kind == BodyKind::solid && bodies[1].visible);
    EXPECT_TRUE(bodies[2].name == u"Body3" && bodies[2].kind == BodyKind::surface);
    const auto& faces = bodies[1].faces;
    EXPECT_TRUE(faces[0].positions.empty());
    EXPECT_TRUE(faces[0].userValue == -1 && faces[1].userValue == -5 && faces[2].userValue == 0);
    // Of two features of one name the first of the flattened tree.
    EXPECT_TRUE(faces[0].feature == -1 && faces[1].feature == 1 && faces[2].feature == 3);
    std::vector<float> normals(27, 0.0f); // the second triangle is degenerate
    normals[2] = normals[5] = normals[8] = normals[18] = normals[21] = normals[24] = 1;
    EXPECT_EQ(faces[1].normals, normals);
    EXPECT_THAT(faces[2].normals, ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9));
    // What each shape takes: a box has no segments, the others as many as are given.
    std::vector<std::size_t> triangles;
    for (std::size_t i = 3; i < bodies.size(); ++i) {
        triangles.push_back(bodies[i].faces.at(0).positions.size() / 9);
    }
    EXPECT_THAT(triangles, ElementsAre(2, 8, 10, 6, 98));
    EXPECT_EQ(bodies[3].faces[0].positions[0], 0.5f); // -x of a box that is moved by 1
}

TEST(ModelReader, FeaturesAndAppearances) {
    ModelFiles files;
    const Model model = files.readText("sub/a.tfgprt", kFullPart);
    const ModelDocument& document = *model.documents[0];
    const auto& features = document.features;
    ASSERT_EQ(features.size(), 4u);
    EXPECT_TRUE(features[0].parent == -1 && features[1].parent == 0 && features[3].parent == -1);
    EXPECT_EQ(features[0].type, u"Feature");
    EXPECT_THAT(features[0].definition.value().seeds, ElementsAre(3, -1, 1));
    EXPECT_FALSE(features[3].camera.value().perspective);
    EXPECT_THAT(document.configurations.at(1).bodies.value(), ElementsAre(u"Body2", u"Named"));

    const AppearanceRecord& plain = document.appearances.at(0);
    EXPECT_TRUE(plain.file.empty() && !plain.hasAppliedTo && plain.primaryColor == 0x7F7F7F);
    const AppearanceRecord& full = document.appearances.at(1);
    EXPECT_EQ(full.file, (files.folder() / "lib/steel.tfm").string());
    EXPECT_EQ(full.texture, (files.folder() / "sub/wood/a.png").string());
    EXPECT_EQ(full.bumpTexture, "/abs/b.png");
    EXPECT_TRUE(full.primaryColor == 0xFFAB12 && full.secondaryColor == 0x030201 &&
                full.tertiaryColor == 0x000100 && full.specularColor == 0x010000);
    EXPECT_TRUE(full.emission == 0.25 && full.transparency == 0.5 && full.specular == 3);
    EXPECT_TRUE(full.reflectivity == 0.75 && full.specularSpread == 2);
    const MappingRecord& mapping = full.mapping;
    EXPECT_TRUE(mapping.type == MappingKind::cylinder && mapping.width == 0.5 && mapping.height == 0.25 &&
                mapping.offsetU == 1 && mapping.offsetV == 2 && mapping.rotation == 30);
    EXPECT_TRUE(mapping.center[1] == 2 && mapping.uDirection[0] == 1 && mapping.vDirection[2] == 1 &&
                mapping.sphereAngleA == 4 && mapping.sphereAngleB == 5);
    EXPECT_TRUE(!mapping.mirrorVertical && mapping.mirrorHorizontal);
    ASSERT_EQ(full.appliedTo.size(), 4u);
    EXPECT_EQ(full.appliedTo[0].kind, EntityKind::document);
    EXPECT_TRUE(full.appliedTo[1].kind == EntityKind::body && full.appliedTo[1].body == 0);
    EXPECT_TRUE(full.appliedTo[2].kind == EntityKind::feature && full.appliedTo[2].feature == 1);
    const EntityRecord& face = full.appliedTo[3];
    EXPECT_TRUE(face.kind == EntityKind::face && face.body == 1 && face.face == 2);
    EXPECT_TRUE(document.decals.at(0).maskInvert && document.decals[0].appearance->hasAppliedTo);
    EXPECT_THAT(document.decals[0].ids, ElementsAre(1, -2));
}

TEST(ModelReader, WhatAssembliesHave) {
    ModelFiles files;
    files.write("part.tfgprt", "{}");
    const Model model = files.readText("a.tfgasm", kFullAssembly);
    const ModelDocument& document = *model.documents[0];
    EXPECT_TRUE(document.root.name == u"R\u00e4\U0001F600" && document.root.id == -7);
    const ConfigurationRecord& a = document.configurations.at(0);
    const ConfigurationRecord& b = document.configurations.at(1);
    EXPECT_TRUE(a.displayStates.empty() && a.explodeSteps == 3 && !b.explodeSteps && !b.bodies);
    std::vector<std::int32_t> types;
    for (const auto& property : a.customProperties) {
        types.push_back(property.type);
    }
    EXPECT_THAT(types, ElementsAre(30, 64, 11, 3, 5, 77));
    EXPECT_THAT(b.suppressed, ElementsAre(u"x"));
    EXPECT_THAT(b.hidden, ElementsAre(u"x/y"));
    EXPECT_THAT(b.shown, ElementsAre(u"x", u"x"));
    EXPECT_EQ(b.displayStates.at(0).name, u"S1");
    EXPECT_THAT(b.displayStates.at(1).hidden, ElementsAre(u"x"));
    EXPECT_THAT(b.displayStates[1].shown, ElementsAre(u"x/y"));

    const ComponentRecord& x = document.components.at(0);
    EXPECT_TRUE(x.id == 9 && !x.placement && !x.loaded && x.suppressed && x.hidden && x.state == 1);
    const ComponentRecord& y = x.components.value().at(0);
    EXPECT_TRUE(!y.document && !y.id && y.loaded && !y.suppressed && !y.hidden && !y.components);
    EXPECT_TRUE(y.state == 3 && y.placement == kIdentityPlacement && y.placementFallback.value()[12] == 3);

    const ViewRecord& plain = document.view.value();
    EXPECT_TRUE(plain.scale == 1 && plain.planeDistance == 1 && plain.perspectiveAllowed && !plain.camera);
    const ViewRecord& view = document.namedViews.at(0);
    EXPECT_TRUE(view.mode == 2 && view.scale == 3 && view.translation[2] == 3 && view.eyePoint[0] == 4);
    EXPECT_TRUE(view.planeDistance == 7 && view.perspective && view.transform[12] == 8);
    EXPECT_TRUE(view.width == 9 && view.height == 10 && view.camera.value().aspect == 1.5);
    const LightRecord& light = document.lights.at(0);
    EXPECT_TRUE(light.name == u"L" && light.userName == u"U" && light.level == 0.5 && !light.on &&
                light.intensity == 11 && light.coneAngle == 30 && light.attenuation[0] == 7);
    EXPECT_TRUE(light.color[1] == 0.5 && light.position[0] == 1 && light.direction[0] == 4);
    std::vector<LightKind> kinds;
    for (const LightRecord& one : document.lights) {
        kinds.push_back(one.type);
    }
    EXPECT_THAT(kinds, ElementsAre(LightKind::spot, LightKind{1234}, LightKind::point, LightKind::directional,
                                   LightKind::ambient));
    const MotionStudyRecord& study = document.motionStudies.at(0);
    EXPECT_TRUE(study.duration == -2.5 && study.frameRate == 30 && study.time == 1);
    ASSERT_EQ(study.tracks.size(), 1u); // the two that move nothing are left out
    EXPECT_EQ(study.tracks[0].interpolation, TrackInterpolation::step);

    const TableRecord& table = document.designTable.value();
    EXPECT_TRUE(table.startRow == 4 && table.startColumn == 5 && !table.attach);
    EXPECT_THAT(table.headers, ElementsAre(u"h", std::nullopt));
    const TableRecord& note = document.annotations.at(0).table.value();
    EXPECT_TRUE(!note.title && !note.rows.at(0).at(0) && note.attach);
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
