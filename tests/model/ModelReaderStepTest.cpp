#include "support/ModelFiles.h"
#include "support/StepMaker.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(ModelReaderStep, StepFilesStandForDocumentsAndAreReadOnce) {
    ModelFiles files;
    step_maker::saveShape(files.folder() / "box.step", step_maker::box(1, 2, 3));
    files.write("sub.tfgasm", R"({"components": [{"name": "a", "document": "box.step"}]})");
    const Model model = files.readText("top.tfgasm", R"({
        "configurations": [{"name": "A", "hidden": ["s/a", "b"]}], "components": [
        {"name": "s", "document": "sub.tfgasm"}, {"name": "b", "document": "box.step"}, {"name": "b", "document": "./box.step"}]})");
    ASSERT_EQ(model.documents.size(), 3u);
    const ModelDocument& box = *model.documents[2];
    EXPECT_EQ(box.kind, DocumentKind::part);
    EXPECT_EQ(box.bodies.at(0).faces.size(), 6u);
    const auto& components = model.documents[0]->components;
    EXPECT_TRUE(components[1].document == &box && components[2].document == &box);
    EXPECT_EQ(model.documents[1]->components[0].document, &box);
    EXPECT_EQ(files.read("box.step").documents.size(), 1u);
}

TEST(ModelReaderStep, BodiesTakeTheirFacesFromStepAndStlFiles) {
    ModelFiles files;
    step_maker::saveShape(files.folder() / "box.STP", step_maker::box(1, 2, 3));
    files.write("one.stl",
                "solid s\nfacet normal 0 0 1\nouter loop\nvertex 0 0 0\nvertex 1 0 0\nvertex 0 1 0\n"
                "endloop\nendfacet\nendsolid s\n");
    const Model model = files.readText("a.tfgprt", R"({
        "bodies": [{"file": "one.stl"}, {"file": "box.STP"}, {"file": "./one.stl"}],
        "appearances": [{"appliedTo": [{"face": ["Body2", 5]}]}]})");
    const auto& bodies = model.documents.at(0)->bodies;
    const std::vector<float> triangle = {0, 0, 0, 1, 0, 0, 0, 1, 0};
    EXPECT_EQ(bodies.at(0).faces.at(0).positions, triangle);
    EXPECT_EQ(bodies.at(1).faces.size(), 6u);
    EXPECT_EQ(bodies.at(2).faces.at(0).positions, triangle);

    files.write("bad.stl", "solid s\nfacet");
    EXPECT_THAT(files.refusalOf("a.tfgprt", R"({"bodies": [{"file": "bad.stl"}]})"), StartsWith("bad.stl: "));
    files.write("bad.step", "ISO");
    EXPECT_THAT(files.refusalOf("top.tfgasm", R"({"components": [{"name": "a", "document": "bad.step"}]})"),
                testing::AllOf(StartsWith("bad.step: "), HasSubstr(", expected ")));
}

} // namespace
} // namespace orvane
