#include "support/StepFacts.h"
#include "support/StepMaker.h"

#include <BRepBuilderAPI_NurbsConvert.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>

#include <gmock/gmock.h>
#include <regex>

namespace orvane::step {
namespace {

using namespace step_facts;
using namespace step_maker;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

TopoDS_Shape splineCylinder() {
    return BRepBuilderAPI_NurbsConvert(BRepPrimAPI_MakeCylinder(5, 10).Shape()).Shape();
}

/// The kernel crashes over splines without knots.
std::string withoutKnots(const std::string& text) {
    return std::regex_replace(text, std::regex(R"((B_SPLINE_CURVE_WITH_KNOTS\()\([^)]*\),\([^)]*\))"),
                              "$1(),()");
}

using StepLoss = StepTest;

TEST_F(StepLoss, APartThatTheKernelDoesNotSurviveIsMissingAndTheOthersAreThere) {
    const TDF_Label cage = maker.assembly(u"Cage");
    maker.place(cage, maker.part(u"Part", splineCylinder()), u"Roller", moved(1));
    maker.place(root, cage, u"Left", moved(2));
    maker.place(root, maker.part(u"Part", box(1, 1, 1)), u"Block", moved(3));
    const fs::path file = maker.save(folder / "loss.step");
    const std::string good = readFile(file);
    const std::string bad = withoutKnots(good);
    ASSERT_NE(good, bad);
    const Model model = read(write("loss.step", bad));
    EXPECT_THAT(model.warnings,
                ElementsAre(AllOf(HasSubstr("loss.step: Left/Roller is missing: Open CASCADE "),
                                  testing::Not(HasSubstr("\n")))));
    EXPECT_EQ(model.documents.size(), 4u) << "its place in the tree stays";
    EXPECT_EQ(model.documents[2]->bodies.size(), 0u);
    EXPECT_EQ(model.documents[3]->bodies.size(), 1u);
}

TEST_F(StepLoss, AFileOfSuchAPartAloneIsRefused) {
    const std::string text = readFile(saveShape(folder / "alone.step", splineCylinder()));
    const fs::path file = write("alone.step", withoutKnots(text));
    EXPECT_THAT(errorOfReading(file),
                AllOf(HasSubstr("Open CASCADE "), HasSubstr("nothing else is in the file")));
    std::vector<std::string> warnings;
    EXPECT_THAT([&] { readShapeFile(file, {}, warnings); },
                testing::ThrowsMessage<ModelError>(HasSubstr("while it read the file")));
}

TEST_F(StepLoss, IsToldByThePathWherePartsShareTheirName) {
    maker.place(root, maker.part(u"Part", compoundOf({edge()})), u"Part", moved(1));
    maker.place(root, maker.part(u"Part", compoundOf({edge()})), u"Part", moved(2));
    EXPECT_THAT(read(maker.save(folder / "curves.step")).warnings,
                ElementsAre(HasSubstr("curves.step: Part: it holds curves"),
                            HasSubstr("curves.step: Part-1: it holds curves")));
}

TEST_F(StepLoss, TessellatedShapesAreReadOrRefusedInSoManyWords) {
    const std::string text = readFile(saveShape(folder / "tetra.step", box(1, 1, 1)));
    const std::string tessellated = std::regex_replace(
        text, std::regex("MANIFOLD_SOLID_BREP\\('[^']*',#\\d+\\)"), "TESSELLATED_SOLID('',(#90001),$)");
    const std::string whole = std::regex_replace(
        tessellated, std::regex("DATA;"),
        "DATA;\n#90000=COORDINATES_LIST('',4,((0.,0.,0.),(10.,0.,0.),(0.,10.,0.),(0.,0.,10.)));\n"
        "#90001=TRIANGULATED_FACE('',#90000,4,(),$,(),((1,3,2),(1,2,4),(2,3,4),(3,1,4)));\n");
    const std::string error = errorOfReading(write("tetra.step", whole));
    EXPECT_THAT(error, testing::AnyOf("no error", HasSubstr("found tessellated geometry (#")));
}

} // namespace
} // namespace orvane::step
