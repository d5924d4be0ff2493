#include "support/Paths.h"
#include "support/StepMaker.h"

#include <gmock/gmock.h>

namespace orvane::step {
namespace {

using namespace step_maker;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST_F(StepReaderTest, ReadsTheExampleAsATreeOfSharedDocuments) {
    const Model model = read(fs::path(sourceFolder()) / "examples" / "step" / "pulley_block.step");
    const ModelDocument& block = *model.documents.front();
    EXPECT_EQ(block.kind, DocumentKind::assembly);
    EXPECT_EQ(block.title, u"pulley_block.step");
    EXPECT_EQ(block.root.name, u"pulley_block");
    EXPECT_EQ(treeOf(block.components),
              "Base Plate Bearing Left(Housing Bushing) Bearing Right(Housing Bushing) Drive(Shaft Pulley) "
              "Fastener(Bolt Washer) Fastener-1(Bolt Washer) Fastener-2(Bolt Washer) Fastener-3(Bolt Washer) "
              "Guard Spare Washer");
    std::vector<std::string> titles;
    for (const auto& document : model.documents) {
        titles.push_back(toSystemNarrow(document->title));
        EXPECT_TRUE(document->path.starts_with(block.path));
        ASSERT_EQ(document->configurations.size(), 1u);
        EXPECT_EQ(document->configurations[0].displayStates.at(0).name, u"Display State 1");
        for (const BodyRecord& body : document->bodies) {
            const BodyFacts facts = factsOf(body);
            EXPECT_GT(facts.volume, 0) << titles.back();
            EXPECT_GT(facts.worstNormal, 0.9) << titles.back();
            EXPECT_TRUE(facts.unitNormals) << titles.back();
        }
    }
    EXPECT_THAT(titles,
                ElementsAre("pulley_block.step", "Base Plate", "Bearing Unit", "Housing", "Bushing", "Drive",
                            "Shaft", "Pulley", "Fastener", "Bolt M6x12", "Washer M6", "Guard"));
    EXPECT_EQ(block.components[1].document, block.components[2].document);
    EXPECT_EQ(block.components[9].document, &documentTitled(model, u"Washer M6"));
    EXPECT_FALSE(block.components[1].components.has_value());
    EXPECT_THAT(looksOf(block), ElementsAre("component 8000ff 0 -1/-1Spare Washer"));
    EXPECT_THAT(looksOf(documentTitled(model, u"Base Plate")),
                ElementsAre("document 6e5a46 0 -1/-1", "face 28c8fa 0 0/0"));
    EXPECT_THAT(looksOf(documentTitled(model, u"Guard")), ElementsAre("document e6c896 0.65 -1/-1"));
    EXPECT_THAT(model.warnings, IsEmpty());
}

TEST_F(StepReaderTest, GivesTheSameNumbersEachTime) {
    const fs::path file = fs::path(sourceFolder()) / "examples" / "step" / "pulley_block.step";
    const Model first = read(file);
    const Model second = read(file);
    ASSERT_EQ(first.documents.size(), second.documents.size());
    for (std::size_t i = 0; i < first.documents.size(); ++i) {
        for (std::size_t body = 0; body < first.documents[i]->bodies.size(); ++body) {
            const auto& faces = first.documents[i]->bodies[body].faces;
            for (std::size_t face = 0; face < faces.size(); ++face) {
                const FaceRecord& other = second.documents[i]->bodies[body].faces[face];
                EXPECT_EQ(faces[face].positions, other.positions);
                EXPECT_EQ(faces[face].normals, other.normals);
                EXPECT_EQ(faces[face].texCoords, other.texCoords);
            }
        }
    }
}

TEST_F(StepReaderTest, ConvertsEveryUnitToMetres) {
    const std::pair<const char*, double> kUnits[] = {{"MM", 0.001}, {"INCH", 0.0254}, {"M", 1}};
    for (const auto& [unit, metres] : kUnits) {
        const Model model = read(saveShape(folder / "box.step", box(2, 3, 4), unit));
        const BodyFacts facts = factsOf(model.documents.front()->bodies.at(0));
        EXPECT_NEAR(facts.extent[0], 2 * metres, 1e-6 * metres) << unit;
        EXPECT_NEAR(facts.extent[2], 4 * metres, 1e-6 * metres) << unit;
        // A plane's parameters are lengths.
        float widest = 0;
        for (const FaceRecord& face : model.documents.front()->bodies[0].faces) {
            widest = std::max(widest, *std::ranges::max_element(face.texCoords));
        }
        EXPECT_NEAR(static_cast<double>(widest), 4 * metres, 1e-6 * metres) << unit;
    }
}

TEST_F(StepReaderTest, TurnsTrianglesAndNormalsOutward) {
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
            const Model model = read(saveShape(folder / "solid.step", turned));
            const BodyFacts facts = factsOf(model.documents.front()->bodies.at(0));
            EXPECT_NEAR(facts.volume * 1e9, volume, 0.02 * volume) << name;
            EXPECT_GT(facts.worstNormal, 0.9) << name;
            EXPECT_TRUE(facts.unitNormals) << name;
        }
    }
}

TEST_F(StepReaderTest, TakesNormalsFromTheSurfaceAlsoWhereItIsSingular) {
    const Model model = read(saveShape(folder / "cone.step", BRepPrimAPI_MakeCone(30, 0, 40).Shape()));
    std::size_t atApex = 0;
    for (const FaceRecord& face : model.documents.front()->bodies.at(0).faces) {
        for (std::size_t at = 0; at < face.positions.size(); at += 3) {
            if (face.positions[at + 2] > 0.0399f) {
                ++atApex;
                EXPECT_NEAR(static_cast<double>(face.normals[at + 2]), 0.6, 1e-5); // all along a cone's line
            }
        }
    }
    EXPECT_GT(atApex, 10u);
}

TEST_F(StepReaderTest, LosesNothingThatIsNoSolid) {
    const TopoDS_Shape shell = firstOf(box(1, 2, 3), TopAbs_SHELL);
    const TopoDS_Shape face = firstOf(BRepPrimAPI_MakeCylinder(5, 5).Shape(), TopAbs_FACE);
    const TopoDS_Shape edge = BRepBuilderAPI_MakeEdge(gp_Pnt(0, 0, 0), gp_Pnt(1, 1, 1)).Shape();

    const Model mixed = read(
        saveShape(folder / "mixed.step", compoundOf({shell.Moved(moved(50)), box(4, 4, 4), face, edge})));
    std::vector<std::size_t> faces;
    for (const auto& document : mixed.documents) {
        for (const BodyRecord& body : document->bodies) {
            EXPECT_EQ(body.kind, BodyKind::solid);
            faces.push_back(body.faces.size());
        }
    }
    EXPECT_THAT(faces, testing::UnorderedElementsAre(6, 6, 1));

    const Model shells = read(saveShape(folder / "shells.step", compoundOf({shell, shell.Moved(moved(50))})));
    EXPECT_THAT(bodyNames(*shells.documents.front()), ElementsAre("Body1", "Body2"));
    const Model loose = read(saveShape(folder / "face.step", face));
    EXPECT_EQ(loose.documents.front()->bodies.at(0).faces.size(), 1u);

    const Model curves = read(saveShape(folder / "curves.step", compoundOf({edge})));
    EXPECT_EQ(curves.documents.front()->kind, DocumentKind::part);
    EXPECT_THAT(curves.documents.front()->bodies, IsEmpty());
    EXPECT_THAT(curves.warnings, ElementsAre(HasSubstr("curves")));
}

TEST_F(StepReaderTest, MakesNamesUniqueAmongSiblings) {
    StepMaker maker;
    const TDF_Label root = maker.assembly(u"Root");
    const TDF_Label nut = maker.part(u"Nut/M4", box(1, 1, 1));
    const TDF_Label nameless = maker.part(u"", box(2, 2, 2));
    const TDF_Label empty = maker.assembly(u"");
    maker.place(empty, nut, u"Mutter \u00e4\u03a9", moved(1));
    const std::pair<TDF_Label, const char16_t*> kInstances[] = {{nut, u"X"},     {nut, u"X"},  {nut, u"X-1"},
                                                                {nut, u"X"},     {nut, u""},   {nut, u""},
                                                                {nameless, u""}, {empty, u" "}};
    double x = 0;
    for (const auto& [product, name] : kInstances) {
        maker.place(root, product, name, moved(x += 5));
    }
    const Model model = read(maker.save(folder / "names.step"));
    EXPECT_EQ(treeOf(model.documents.front()->components),
              "X X-2 X-1 X-3 Nut_M4 Nut_M4-1 Part Assembly(Mutter \u00e4\u03a9)");
    EXPECT_TRUE(documentTitled(model, u"Nut/M4").path.ends_with(u"\\names.step\\Nut_M4"));
}

TEST_F(StepReaderTest, ChoosesTheNameThatAPersonGave) {
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
    EXPECT_FALSE(isInventedProductName(u"Open CASCADE STEP translator"
                                       u" box"));
    EXPECT_EQ(fromStepText("  Gr\xC3\xB6\xC3\x9F\x65 "), u"Gr\u00f6\u00dfe");
    EXPECT_EQ(fromStepText("Gr\xF6\xDF\x65"), u"Gr\u00f6\u00dfe"); // Latin-1
    EXPECT_EQ(fromStepText("\xF0\x9F\x94\xA7"), u"\U0001F527");
}

TEST_F(StepReaderTest, NamesInstancesByTheirParentNotByTheirPlace) {
    StepMaker maker;
    const TDF_Label bolt = maker.part(u"Bolt", box(1, 1, 1));
    const TDF_Label root = maker.assembly(u"Root");
    for (const char16_t* name : {u"A", u"B"}) {
        const TDF_Label unit = maker.assembly(name);
        maker.place(unit, bolt, u"", gp_Trsf());
        maker.place(root, unit, name, moved(*name));
    }
    // The writer leaves these names out; other programs do not.
    std::string text = contentOf(maker.save(folder / "parents.step"));
    for (const char* name : {"in A", "in B"}) {
        const std::size_t usage = text.find(",'','',", text.find("NEXT_ASSEMBLY_USAGE_OCCURRENCE"));
        ASSERT_NE(usage, std::string::npos);
        text.insert(usage + 2, name);
    }
    EXPECT_EQ(treeOf(read(write("parents.step", text)).documents.front()->components), "A(in A) B(in B)");
}

TEST_F(StepReaderTest, PlacesInstancesForRowVectors) {
    StepMaker maker;
    gp_Trsf turn;
    turn.SetRotation(gp_Ax1(gp_Pnt(), gp::DZ()), std::numbers::pi / 2);
    maker.place(maker.assembly(u"Root"), maker.part(u"Box", box(1, 1, 1)), u"Turned",
                moved(10, 20, 30) * turn);
    const Model model = read(maker.save(folder / "turned.step"));
    const Placement placement = model.documents.front()->components.at(0).placement.value();
    const Placement expected = {0, 1, 0, -1, 0, 0, 0, 0, 1, 0.01, 0.02, 0.03, 1, 0, 0, 0};
    for (std::size_t i = 0; i < 16; ++i) {
        EXPECT_NEAR(placement[i], expected[i], 1e-12) << i;
    }
}

TEST_F(StepReaderTest, TakesColoursAsTheFileWritesThem) {
    StepMaker maker;
    const TopoDS_Shape first = box(1, 1, 1);
    const TopoDS_Shape second = box(2, 2, 2).Moved(moved(5));
    const TDF_Label part = maker.part(u"Two", compoundOf({first, second}));
    maker.paint(part, 1, 2, 3);
    maker.paint(maker.shapes->AddSubShape(part, second), 128, 64, 32, 0.25f);
    TopExp_Explorer face(first, TopAbs_FACE);
    maker.paint(maker.shapes->AddSubShape(part, face.Current()), 255, 0, 127);
    face.Next();
    face.Next();
    maker.paint(maker.shapes->AddSubShape(part, face.Current()), 255, 0, 127);
    const TDF_Label root = maker.assembly(u"Root");
    maker.paint(maker.place(root, part, u"Painted", moved(9)), 10, 200, 30);
    maker.place(root, part, u"Plain", moved(19));
    const Model model = read(maker.save(folder / "colours.step"));
    EXPECT_THAT(looksOf(*model.documents.front()), ElementsAre("component 1ec80a 0 -1/-1Painted"));
    EXPECT_THAT(
        looksOf(documentTitled(model, u"Two")),
        testing::UnorderedElementsAre("body 30201 0 0/-1", "body 204080 0.75 1/-1", "face 7f00ff 0 0/0 0/2"));
}

TEST_F(StepReaderTest, PaintsOnlyTheInstanceThatTheFilePaints) {
    StepMaker maker;
    const TDF_Label part = maker.part(u"Box", box(1, 1, 1));
    const TDF_Label plain = maker.assembly(u"Plain");
    maker.place(plain, part, u"Inner", moved(1));
    const TDF_Label unit = maker.assembly(u"Unit");
    const TDF_Label inner = maker.place(unit, part, u"Inner", moved(1)); // as in the other one
    maker.paint(inner, 1, 2, 3);
    const TDF_Label root = maker.assembly(u"Root");
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
    EXPECT_THAT(looksOf(documentTitled(model, u"Plain")), IsEmpty());
    EXPECT_THAT(looksOf(documentTitled(model, u"Unit")), ElementsAre("component 30201 0 -1/-1Inner"));
    EXPECT_THAT(looksOf(documentTitled(model, u"Box")), IsEmpty());
}

TEST_F(StepReaderTest, ReadsTheFilesThatAFileRefersTo) {
    StepMaker maker;
    const TDF_Label root = maker.assembly(u"Root");
    const TDF_Label plate = maker.part(u"Plate", box(10, 10, 1));
    maker.place(root, plate, u"Lower", moved(0, 0, 1));
    maker.place(root, plate, u"Upper", moved(0, 0, 9));
    maker.place(root, maker.part(u"Pin", box(1, 1, 8)), u"Pin", moved(5));
    const fs::path file = maker.save(folder / "master.step", "MM", "sub_");
    ASSERT_TRUE(fs::exists(folder / "sub_Plate.stp"));
    saveShape(folder / "sub_Plate.stp", box(2, 2, 1), "INCH");

    const Model model = read(file);
    EXPECT_EQ(treeOf(model.documents.front()->components), "Lower Upper Pin");
    ASSERT_EQ(model.documents.size(), 3u);
    const ModelDocument& read = *model.documents[1];
    EXPECT_EQ(read.title, u"sub_Plate.stp");
    EXPECT_TRUE(read.path.ends_with(u"\\sub_Plate.stp"));
    EXPECT_NEAR(factsOf(read.bodies.at(0)).extent[0], 0.0508, 1e-7);
    EXPECT_EQ(model.documents.front()->components[1].document, &read);

    fs::remove(folder / "sub_Pin.stp");
    EXPECT_THAT(errorOfReading(file),
                testing::AllOf(HasSubstr("master.step"), HasSubstr("sub_Pin.stp, which is not there")));
    fs::copy_file(file, folder / "sub_Pin.stp");
    EXPECT_THAT(errorOfReading(file), HasSubstr("refers to itself"));
}

TEST_F(StepReaderTest, RefusesWhatIsNoReadableStepFile) {
    const std::string good = contentOf(saveShape(folder / "good.step", box(1, 1, 1)));
    const std::pair<std::string, const char*> kFiles[] = {
        {"", "found an empty file, expected a STEP file, which begins with 'ISO-10303-21;'"},
        {std::string("PK\3\4\0\0", 6), "found 'PK....', expected"},
        {good.substr(0, good.size() / 2), "the file is cut off"},
        {"ISO-10303-21;\nHEADER;\nENDSEC;\nDATA;\nENDSEC;\nEND-ISO-10303-21;\n", "expected"},
        {"ISO-10303-21;\nEND-ISO-10303-21;\n", "expected"},
        {"ISO-10303-21;\n" + std::string(200000, '(') + "\nEND-ISO-10303-21;\n", "expected"},
    };
    for (const auto& [bytes, message] : kFiles) {
        const std::string error = errorOfReading(write("bad.step", bytes));
        EXPECT_THAT(error, testing::AllOf(HasSubstr("bad.step: "), HasSubstr(message)));
        EXPECT_EQ(error.find('\n'), std::string::npos);
    }
    EXPECT_THAT(errorOfReading(folder / "none.step"), HasSubstr("found no file"));
    EXPECT_THAT(errorOfReading(folder), HasSubstr("found no file"));
}

TEST_F(StepReaderTest, RefusesDamageOnlyWhereSomethingShownNeedsIt) {
    const std::string good = contentOf(saveShape(folder / "good.step", box(1, 1, 1)));
    EXPECT_THAT(errorOfReading(write("hurt.step", replaced(good, "= PLANE('',#", "= PLANE('',$,#"))),
                HasSubstr("expected whole statements"));
    EXPECT_THAT(errorOfReading(write(
                    "far.step", replaced(good, "CARTESIAN_POINT('',(0.,", "CARTESIAN_POINT('',(1.E300,"))),
                HasSubstr("farther away"));
    const Model model =
        read(write("person.step", replaced(good, "DATA;", "DATA;\n#90000=PERSON(#90001,1.5);")));
    EXPECT_EQ(model.documents.front()->bodies.size(), 1u);
    EXPECT_THAT(model.warnings, testing::Contains(HasSubstr("person.step: #90000 ")));
}

TEST_F(StepReaderTest, SurvivesProductsAndShapesThatHoldThemselves) {
    StepMaker maker;
    maker.place(maker.assembly(u"Root"), maker.part(u"Box", box(1, 1, 1)), u"It", moved(1));
    const std::string text = contentOf(maker.save(folder / "cycle.step"));
    const std::size_t usage = text.find(",'It','',#");
    ASSERT_NE(usage, std::string::npos);
    const std::size_t parent = text.find('#', usage);
    const std::size_t comma = text.find(',', parent);
    const std::string own = text.substr(parent, comma - parent);
    std::string cycle = text;
    cycle.replace(comma + 1, text.find(',', comma + 1) - comma - 1, own);
    EXPECT_THAT(errorOfReading(write("cycle.step", cycle)), HasSubstr(own + " holds itself"));

    const std::size_t surface = text.find("= PLANE(");
    const std::size_t line = text.rfind('\n', surface) + 1;
    const std::string number = text.substr(line, text.find(' ', line) - line);
    std::string looped = text;
    looped.replace(surface, text.find(';', surface) - surface, "= OFFSET_SURFACE(''," + number + ",1.,.F.)");
    EXPECT_THAT(errorOfReading(write("cycle.step", looped)), HasSubstr(number + " holds itself"));
}

TEST_F(StepReaderTest, CountsComponentsWithoutExpandingThem) {
    // 21 levels, each of them two of the next.
    std::string text = contentOf(saveShape(folder / "box.step", box(1, 1, 1)));
    std::string levels;
    for (int level = 0; level <= 21; ++level) {
        const std::string number = std::to_string(90000 + level);
        levels += "#" + number + "=PRODUCT_DEFINITION('','',#6,#9);\n";
        for (int usage = 1; usage <= 2 && level > 0; ++usage) {
            levels += "#" + std::to_string(90000 + 100 * usage + level) +
                      "=NEXT_ASSEMBLY_USAGE_OCCURRENCE('','','',#" + number + ",#" +
                      std::to_string(90000 + level - 1) + ",$);\n";
        }
    }
    text.insert(text.rfind("ENDSEC;"), levels);
    EXPECT_THAT(errorOfReading(write("explode.step", text)), HasSubstr(" has more than 2000000 components"));
}

TEST_F(StepReaderTest, MeshesAsFinelyAsItIsAsked) {
    const fs::path file = saveShape(folder / "ball.step", BRepPrimAPI_MakeSphere(100).Shape());
    MeshingOptions fine;
    fine.deflection = 0.00002;
    const Model coarse = read(file);
    const Model better = read(file, fine);
    EXPECT_GT(factsOf(better.documents.front()->bodies.at(0)).triangles,
              3 * factsOf(coarse.documents.front()->bodies.at(0)).triangles);
}

TEST_F(StepReaderTest, ReadsShapesAsFaces) {
    StepMaker maker;
    const TDF_Label root = maker.assembly(u"Root");
    const TDF_Label cube = maker.part(u"Box", box(1, 1, 1));
    maker.place(root, cube, u"one", moved(10));
    maker.place(root, cube, u"two", moved(20));
    std::vector<std::string> warnings;
    BodyRecord body;
    body.faces = readShapeFile(maker.save(folder / "shapes.STP"), {}, warnings);
    EXPECT_EQ(body.faces.size(), 12u);
    EXPECT_NEAR(factsOf(body).extent[0], 0.011, 1e-8); // from 10 to 21 mm: placed as in the file
    EXPECT_THAT(errorOf([&] {
                    const TopoDS_Shape edge =
                        BRepBuilderAPI_MakeEdge(gp_Pnt(0, 0, 0), gp_Pnt(1, 1, 1)).Shape();
                    readShapeFile(saveShape(folder / "edge.step", edge), {}, warnings);
                }),
                HasSubstr("found no face"));
}

TEST_F(StepReaderTest, ReadsStlFilesOfBothKinds) {
    const std::string ascii =
        "solid a name with words\n facet normal 0 0 0\n  outer loop\n   vertex 0 0 0\n"
        "   vertex 2 0 0\n   VERTEX 0 +3.5e-1 0\n  endloop\n endfacet\nendsolid a\n"
        "solid\nfacet normal nan nan nan\nouter loop\nvertex 1 1 1\nvertex 1 1 1\nvertex 0 0 0\n"
        "endloop\nendfacet\nendsolid\n";
    std::vector<std::string> warnings;
    const auto faces = readShapeFile(write("a.stl", ascii), {}, warnings);
    ASSERT_EQ(faces.size(), 1u);
    EXPECT_THAT(faces[0].positions, ElementsAre(0, 0, 0, 2, 0, 0, 0, .35f, 0, 1, 1, 1, 1, 1, 1, 0, 0, 0));
    EXPECT_THAT(faces[0].normals, ElementsAre(0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0));
    EXPECT_THAT(faces[0].texCoords, IsEmpty());

    std::string binary = "solid, which this is not" + std::string(56, ' ') + std::string("\1\0\0\0", 4);
    for (const float number : {0.f, 0.f, 0.f, 0.f, 0.f, 0.f, 0.f, 4.f, 0.f, 0.f, 0.f, 4.f}) {
        binary.append(reinterpret_cast<const char*>(&number),
                      4); // as on the little-endian machines of the tests
    }
    binary += std::string(2, '\0');
    EXPECT_THAT(readShapeFile(write("b.STL", binary), {}, warnings)[0].normals,
                ElementsAre(1, 0, 0, 1, 0, 0, 1, 0, 0));

    const std::pair<std::string, const char*> kBad[] = {
        {"", "expected an STL file"},
        {"solid\nendsolid\n", "found no triangle"},
        {"solid\nfacet normal 0 0 1\nouter loop\nvertex 0 x 0\n", "line 4: found 'x', expected a number"},
        {"solid\nfacet normal 0 0 1\nouter loop\nvertex 0 0 0\n",
         "found the end of the file, expected vertex"},
        {binary.substr(0, binary.size() - 20).replace(0, 5, "SHELL"),
         "expected 134 by the number of triangles"},
    };
    for (const auto& [bytes, message] : kBad) {
        EXPECT_THAT(errorOf([&] { readShapeFile(write("c.stl", bytes), {}, warnings); }), HasSubstr(message));
    }
}

} // namespace
} // namespace orvane::step
