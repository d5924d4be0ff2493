#include "support/Paths.h"
#include "support/StepFacts.h"
#include "support/StepMaker.h"

#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <TopExp_Explorer.hxx>
#include <gmock/gmock.h>

#include <numbers>

namespace orvane::step {
namespace {

using namespace step_facts;
using namespace step_maker;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST_F(StepTest, GivesTheSameNumbersEachTime) {
    const fs::path file = fs::path(sourceFolder()) / "examples" / "step" / "pulley_block.step";
    std::vector<std::string> warnings;
    const std::vector<FaceRecord> first = readShapeFile(file, {}, warnings);
    const std::vector<FaceRecord> second = readShapeFile(file, {}, warnings);
    EXPECT_TRUE(std::ranges::equal(first, second, [](const FaceRecord& a, const FaceRecord& b) {
        return a.positions == b.positions && a.normals == b.normals && a.texCoords == b.texCoords;
    }));
}

TEST_F(StepTest, ConvertsEveryUnitToMetres) {
    for (const auto& [unit, metres] : {std::pair{"MM", 0.001}, {"INCH", 0.0254}, {"M", 1.0}}) {
        const Model model = read(saveShape(folder / "box.step", box(2, 3, 4), unit));
        EXPECT_THAT(factsOf(facesOf(model)).extent, testing::Pointwise(testing::DoubleNear(1e-6 * metres),
                                                                       {2 * metres, 3 * metres, 4 * metres}));
        float widest = 0; // a plane's parameters are lengths
        for (const FaceRecord& face : facesOf(model)) {
            widest = std::max(widest, *std::ranges::max_element(face.texCoords));
        }
        EXPECT_NEAR(widest, 4 * metres, 1e-6 * metres) << unit;
    }
}

TEST_F(StepTest, TurnsTrianglesAndNormalsOutward) {
    const double pi = std::numbers::pi;
    const std::tuple<const char*, TopoDS_Shape, double> kSolids[] = {
        {"box", box(20, 30, 40), 24000},
        {"cylinder", BRepPrimAPI_MakeCylinder(10, 30).Shape(), pi * 3000},
        {"sphere", BRepPrimAPI_MakeSphere(10).Shape(), pi * 4000 / 3},
        {"cone", BRepPrimAPI_MakeCone(10, 0, 30).Shape(), pi * 1000},
        {"torus", BRepPrimAPI_MakeTorus(20, 5).Shape(), 2 * pi * pi * 500},
    };
    for (const auto& [name, shape, volume] : kSolids) {
        for (const TopoDS_Shape& turned : {shape, shape.Reversed()}) {
            const BodyFacts facts = factsOf(facesOf(read(saveShape(folder / "solid.step", turned))));
            EXPECT_NEAR(facts.volume * 1e9, volume, 0.02 * volume) << name;
            EXPECT_GT(facts.worstNormal, 0.9) << name;
            EXPECT_TRUE(facts.hasUnitNormals) << name;
        }
    }
}

TEST_F(StepTest, TakesNormalsFromTheSurfaceAlsoWhereItIsSingular) {
    const Model model = read(saveShape(folder / "cone.step", BRepPrimAPI_MakeCone(30, 0, 40).Shape()));
    std::size_t atApex = 0;
    for (const FaceRecord& face : facesOf(model)) {
        for (std::size_t at = 0; at < face.positions.size(); at += 3) {
            if (face.positions[at + 2] > 0.0399f) {
                ++atApex;
                EXPECT_NEAR(face.normals[at + 2], 0.6, 1e-5); // all along a cone's line
            }
        }
    }
    EXPECT_GT(atApex, 10u);
}

TEST_F(StepTest, LosesNothingThatIsNoSolid) {
    const TopoDS_Shape shell = TopExp_Explorer(box(1, 2, 3), TopAbs_SHELL).Current();
    const TopoDS_Shape face = TopExp_Explorer(BRepPrimAPI_MakeCylinder(5, 5).Shape(), TopAbs_FACE).Current();
    const Model mixed = read(
        saveShape(folder / "mixed.step", compoundOf({shell.Moved(moved(50)), box(4, 4, 4), face, edge()})));
    std::vector<std::size_t> faces;
    for (const auto& document : mixed.documents) {
        for (const BodyRecord& body : document->bodies) {
            EXPECT_EQ(body.kind, BodyKind::solid);
            faces.push_back(body.faces.size());
        }
    }
    EXPECT_THAT(faces, testing::UnorderedElementsAre(6, 6, 1));

    const Model shells = read(saveShape(folder / "shells.step", compoundOf({shell, shell.Moved(moved(50))})));
    EXPECT_EQ(shells.documents.front()->bodies.at(1).name, u"Body2");
    EXPECT_EQ(facesOf(read(saveShape(folder / "face.step", face))).size(), 1u);

    const Model curves = read(saveShape(folder / "curves.step", compoundOf({edge()})));
    EXPECT_EQ(curves.documents.front()->kind, DocumentKind::part);
    EXPECT_THAT(curves.documents.front()->bodies, IsEmpty());
    EXPECT_THAT(curves.warnings, ElementsAre(HasSubstr("curves")));
}

TEST_F(StepTest, MeshesAsFinelyAsItIsAsked) {
    const fs::path file = saveShape(folder / "ball.step", BRepPrimAPI_MakeSphere(100).Shape());
    MeshingOptions fine;
    fine.deflection = Metres{0.00005};
    EXPECT_GT(factsOf(facesOf(read(file, fine))).triangles, 3 * factsOf(facesOf(read(file))).triangles);
}

TEST_F(StepTest, ReadsShapesAsFaces) {
    const TDF_Label cube = maker.part(u"Box", box(1, 1, 1));
    maker.place(root, cube, u"one", moved(10));
    maker.place(root, cube, u"two", moved(20));
    std::vector<std::string> warnings;
    const std::vector<FaceRecord> faces = readShapeFile(maker.save(folder / "shapes.STP"), {}, warnings);
    EXPECT_EQ(faces.size(), 12u);
    EXPECT_NEAR(factsOf(faces).extent[0], 0.011, 1e-8); // from 10 to 21 mm: placed as in the file
    const fs::path curve = saveShape(folder / "edge.step", edge());
    EXPECT_THAT([&] { readShapeFile(curve, {}, warnings); },
                testing::ThrowsMessage<ModelError>(HasSubstr("found no face")));
}

} // namespace
} // namespace orvane::step
