#include "model/step/StepText.h"
#include "support/Paths.h"
#include "support/StepFacts.h"
#include "support/StepMaker.h"

#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <XCAFDoc_GraphNode.hxx>
#include <gmock/gmock.h>
#include <gp_Ax1.hxx>

#include <numbers>

namespace orvane::step {
namespace {

using namespace step_facts;
using namespace step_maker;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST_F(StepTest, ReadsTheExampleAsATreeOfSharedDocuments) {
    const Model model = read(fs::path(sourceFolder()) / "examples" / "step" / "pulley_block.step");
    const ModelDocument& block = *model.documents.front();
    EXPECT_EQ(block.kind, DocumentKind::assembly);
    EXPECT_EQ(block.root.name, u"pulley_block");
    EXPECT_EQ(treeOf(block.components),
              "Base Plate Bearing Left(Housing Bushing) Bearing Right(Housing Bushing) Drive(Shaft Pulley) "
              "Fastener(Bolt Washer) Fastener-1(Bolt Washer) Fastener-2(Bolt Washer) Fastener-3(Bolt Washer) "
              "Guard Spare Washer");
    std::vector<std::string> titles;
    for (const auto& document : model.documents) {
        titles.push_back(toSystemNarrow(document->title));
        EXPECT_TRUE(document->path.starts_with(block.path));
        EXPECT_EQ(document->configurations.at(0).displayStates.at(0).name, u"Display State 1");
    }
    EXPECT_THAT(titles,
                ElementsAre("pulley_block.step", "Base Plate", "Bearing Unit", "Housing", "Bushing", "Drive",
                            "Shaft", "Pulley", "Fastener", "Bolt M6x12", "Washer M6", "Guard"));
    EXPECT_EQ(block.components[1].document, block.components[2].document);
    EXPECT_EQ(block.components[9].document, &documentTitled(model, u"Washer M6"));
    EXPECT_THAT(looksOf(documentTitled(model, u"Guard")), ElementsAre("document e6c896 0.65 -1/-1"));
    EXPECT_THAT(model.warnings, IsEmpty());
}

TEST_F(StepTest, MakesNamesUniqueAmongSiblings) {
    const TDF_Label nut = maker.part(u"Nut/M4", box(1, 1, 1));
    for (const char16_t* name : {u"X", u"X", u"X-1", u"X", u"", u""}) {
        maker.place(root, nut, name, moved(1));
    }
    maker.place(root, maker.part(u"", box(2, 2, 2)), u"", moved(1));
    const TDF_Label empty = maker.assembly(u"");
    maker.place(empty, nut, u"Mutter \u00e4\u03a9", moved(1));
    maker.place(root, empty, u" ", moved(1));
    const Model model = read(maker.save(folder / "names.step"));
    EXPECT_EQ(treeOf(model.documents.front()->components),
              "X X-2 X-1 X-3 Nut_M4 Nut_M4-1 Part Assembly(Mutter \u00e4\u03a9)");
    EXPECT_TRUE(documentTitled(model, u"Nut/M4").path.ends_with(u"\\names.step\\Nut_M4"));
}

TEST_F(StepTest, ChoosesTheNameThatAPersonGave) {
    const std::array<std::u16string, 5> kCases[] = {
        // description, name, id, product -> the instance's own name
        {u"", u"Left", u"1", u"Bolt", u"Left"},
        {u"Left", u"Next assembly relationship", u"1", u"Bolt", u"Left"},
        {u"", u"", u"NAUO12", u"Bolt", u""},
        {u"", u"NAUO12", u"12", u"Bolt", u""},
        {u"", u"=>[0:1:1:2]", u"3", u"Bolt", u""},
        {u"", u"", u"Bolt:2", u"Bolt", u"Bolt:2"},
        {u"", u"NONE", u"42", u"", u""},
    };
    for (const auto& [description, name, id, product, expected] : kCases) {
        EXPECT_EQ(instanceName(description, name, id, product), expected) << toSystemNarrow(id);
    }
    EXPECT_TRUE(isInventedProductName(u"Open CASCADE STEP translator 7.6 1.2"));
    EXPECT_FALSE(isInventedProductName(u"Open CASCADE STEP translator box"));
    EXPECT_EQ(fromStepText("  Gr\xC3\xB6\xC3\x9F\x65 "), u"Gr\u00f6\u00dfe");
    EXPECT_EQ(fromStepText("Gr\xF6\xDF\x65"), u"Gr\u00f6\u00dfe"); // Latin-1
    EXPECT_EQ(fromStepText("\xF0\x9F\x94\xA7"), u"\U0001F527");
}

TEST_F(StepTest, NamesInstancesByTheirParentNotByTheirPlace) {
    const TDF_Label bolt = maker.part(u"Bolt", box(1, 1, 1));
    for (const char16_t* name : {u"A", u"B"}) {
        const TDF_Label unit = maker.assembly(name);
        maker.place(unit, bolt, u"", gp_Trsf());
        maker.place(root, unit, name, moved(*name));
    }
    // The writer leaves these names out; other programs do not.
    std::string text = readFile(maker.save(folder / "parents.step"));
    for (const char* name : {"in A", "in B"}) {
        const std::size_t usage = text.find(",'','',", text.find("NEXT_ASSEMBLY_USAGE_OCCURRENCE"));
        ASSERT_NE(usage, std::string::npos);
        text.insert(usage + 2, name);
    }
    EXPECT_EQ(treeOf(read(write("parents.step", text)).documents.front()->components), "A(in A) B(in B)");
}

TEST_F(StepTest, PlacesInstancesForRowVectors) {
    gp_Trsf turn;
    turn.SetRotation(gp_Ax1(gp_Pnt(), gp::DZ()), std::numbers::pi / 2);
    maker.place(root, maker.part(u"Box", box(1, 1, 1)), u"Turned", moved(10, 20, 30) * turn);
    const Model model = read(maker.save(folder / "turned.step"));
    EXPECT_THAT(model.documents.front()->components.at(0).placement.value(),
                testing::Pointwise(testing::DoubleNear(1e-12),
                                   Placement{0, 1, 0, -1, 0, 0, 0, 0, 1, 0.01, 0.02, 0.03, 1, 0, 0, 0}));
}

TEST_F(StepTest, TakesColoursAsTheFileWritesThem) {
    const TopoDS_Shape first = box(1, 1, 1);
    const TopoDS_Shape second = box(2, 2, 2).Moved(moved(5));
    const TDF_Label part = maker.part(u"Two", compoundOf({first, second}));
    maker.paint(part, 1, 2, 3);
    maker.paint(maker.shapes->AddSubShape(part, second), 128, 64, 32, 0.25f);
    TopTools_IndexedMapOfShape faces;
    TopExp::MapShapes(first, TopAbs_FACE, faces);
    maker.paint(maker.shapes->AddSubShape(part, faces(1)), 255, 0, 127);
    maker.paint(maker.shapes->AddSubShape(part, faces(3)), 255, 0, 127);
    maker.paint(maker.place(root, part, u"Painted", moved(9)), 10, 200, 30);
    maker.place(root, part, u"Plain", moved(19));
    const Model model = read(maker.save(folder / "colours.step"));
    EXPECT_THAT(looksOf(*model.documents.front()), ElementsAre("component 1ec80a 0 -1/-1Painted"));
    EXPECT_THAT(
        looksOf(documentTitled(model, u"Two")),
        testing::UnorderedElementsAre("body 30201 0 0/-1", "body 204080 0.75 1/-1", "face 7f00ff 0 0/0 0/2"));
}

TEST_F(StepTest, PaintsOnlyTheInstanceThatTheFilePaints) {
    const TDF_Label part = maker.part(u"Box", box(1, 1, 1));
    const TDF_Label plain = maker.assembly(u"Plain");
    maker.place(plain, part, u"Inner", moved(1));
    const TDF_Label unit = maker.assembly(u"Unit");
    const TDF_Label inner = maker.place(unit, part, u"Inner", moved(1)); // as in the other one
    maker.paint(inner, 1, 2, 3);
    maker.place(root, plain, u"First", moved(10));
    maker.place(root, unit, u"Second", moved(20));
    const TDF_Label third = maker.place(root, unit, u"Third", moved(30));
    TDF_LabelSequence path;
    path.Append(third);
    path.Append(inner);
    Handle(XCAFDoc_GraphNode) usage;
    ASSERT_TRUE(maker.shapes->SetSHUO(path, usage));
    maker.paint(usage->Label(), 0, 255, 0);
    const Model model = read(maker.save(folder / "paths.step"));
    EXPECT_THAT(looksOf(*model.documents.front()), ElementsAre("component ff00 0 -1/-1Third/Inner"));
    EXPECT_THAT(looksOf(documentTitled(model, u"Unit")), ElementsAre("component 30201 0 -1/-1Inner"));
    EXPECT_THAT(looksOf(documentTitled(model, u"Plain")), IsEmpty());
    EXPECT_THAT(looksOf(documentTitled(model, u"Box")), IsEmpty());
}

TEST_F(StepTest, ReadsTheFilesThatAFileRefersTo) {
    const TDF_Label plate = maker.part(u"Plate", box(10, 10, 1));
    maker.place(root, plate, u"Lower", moved(0, 0, 1));
    maker.place(root, plate, u"Upper", moved(0, 0, 9));
    maker.place(root, maker.part(u"Pin", box(1, 1, 8)), u"Pin", moved(5));
    const fs::path file = maker.save(folder / "master.step", "MM", "sub_");
    saveShape(folder / "sub_Plate.stp", box(2, 2, 1), "INCH");

    const Model model = read(file);
    EXPECT_EQ(treeOf(model.documents.front()->components), "Lower Upper Pin");
    ASSERT_EQ(model.documents.size(), 3u);
    const ModelDocument& read = *model.documents[1];
    EXPECT_EQ(read.title, u"sub_Plate.stp");
    EXPECT_TRUE(read.path.ends_with(u"\\sub_Plate.stp"));
    EXPECT_NEAR(factsOf(read.bodies.at(0).faces).extent[0], 0.0508, 1e-7);
    EXPECT_EQ(model.documents.front()->components[1].document, &read);

    fs::remove(folder / "sub_Pin.stp");
    EXPECT_THAT(errorOfReading(file),
                testing::AllOf(HasSubstr("master.step"), HasSubstr("sub_Pin.stp, which is not there")));
    fs::copy_file(file, folder / "sub_Pin.stp");
    EXPECT_THAT(errorOfReading(file), HasSubstr("refers to itself"));
}

} // namespace
} // namespace orvane::step
