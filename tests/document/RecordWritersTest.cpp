// Rules of the writers. How the records are laid out is held by tests/golden.

#include "document/AnimationWriter.h"
#include "document/CameraLightWriters.h"
#include "document/ExtensionWriters.h"
#include "document/MaterialWriter.h"
#include "document/MeshWriters.h"
#include "document/NodeWriter.h"

#include <gmock/gmock.h>

namespace orvane::document {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

/// What `write` appends to an empty stream.
template <class Write>
std::string textOf(Write write) {
    TextStream out;
    write(out);
    return out.text();
}

/// The same without tabs and line feeds.
template <class Write>
std::string flatTextOf(Write write) {
    std::string text = textOf(write);
    std::erase_if(text, [](char character) { return character == '\t' || character == '\n'; });
    return text;
}

std::string nodeText(const GltfNode& node) {
    return flatTextOf([&](TextStream& out) { writeNode(out, {}, node); });
}

std::string materialText(const GltfMaterial& material) {
    return flatTextOf([&](TextStream& out) { writeMaterial(out, material); });
}

GltfNode namedNode() {
    GltfNode node;
    node.matrix = {1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0};
    node.name = "x";
    return node;
}

TEST(NodeWriter, LeavesOutAMatrixWithinTheToleranceOfTheIdentity) {
    GltfNode node = namedNode();
    node.matrix[4] = 1.0001;
    node.matrix[9] = -0.0001;
    EXPECT_EQ(nodeText(node), R"({"name": "x"})");
    node.matrix[9] = -0.00011;
    EXPECT_THAT(nodeText(node), HasSubstr("matrix"));
}

TEST(NodeWriter, LaysTheSixteenNumbersOutInColumns) {
    GltfNode node = namedNode();
    node.matrix = {0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 10, 11, 12, 13, 14, 15, 16};
    EXPECT_EQ(nodeText(node), R"({"matrix": [0.1,0.2,0.3,14,0.4,0.5,0.6,15,0.7,0.8,0.9,16,10,11,12,13])"
                              R"(,"name": "x"})");
}

TEST(NodeWriter, PrefersTheMeshToTheCamera) {
    GltfNode node = namedNode();
    node.camera = 4;
    EXPECT_EQ(nodeText(node), R"({"camera": 4,"name": "x"})");
    node.mesh = 3;
    EXPECT_EQ(nodeText(node), R"({"mesh": 3,"name": "x"})");
}

TEST(NodeWriter, CarriesItsSeparatorIntoTheExtensions) {
    const std::string comments = R"("Tessaforge_comments" : {"comments" : [{ "name": "n", "text": "t" }]}})"
                                 R"(,"name": "x"})";
    GltfNode node = namedNode();
    node.comments = {{"n", "t"}};
    EXPECT_EQ(nodeText(node), R"({"extensions" : {)" + comments);
    EXPECT_TRUE(isStrictJson(node));
    node.light = 2;
    EXPECT_EQ(nodeText(node), R"({"extensions" : {"KHR_lights_punctual" : {"light" : 2},)" + comments);
    EXPECT_TRUE(isStrictJson(node));
    node.mesh = 0;
    EXPECT_TRUE(isStrictJson(node)) << "the light stands between the commas";
    node.light = -1;
    EXPECT_EQ(nodeText(node), R"({"mesh": 0,"extensions" : {,)" + comments);
    EXPECT_FALSE(isStrictJson(node));
}

TEST(NodeWriter, WritesTheDisplayStatesOfItsComponent) {
    GltfDocument document;
    GltfNode node = namedNode();
    node.component = &document;
    document.displayStatesByComponent[node.component] = {
        {"b", {.hidden = 1, .transparent = 1, .displayMode = 3, .appearance = 7}},
        {"a", {.hidden = 0, .transparent = 0, .displayMode = 99, .appearance = -1}},
    };
    EXPECT_EQ(textOf([&](TextStream& out) { writeNode(out, document, node); }),
              "\t\t{\n\t\t\t\"name\": \"x\",\n"
              "\t\t\t\"extensions\": {\n"
              "\t\t\t\t\"TF_display_states\": {\n"
              "\t\t\t\t\t\"a\": { \"visible\":1, \"transparency\":0.75, \"display_mode\":\"unknown\" }\n"
              ",\n"
              "\t\t\t\t\t\"b\": { \"visible\":0, \"transparency\":0, \"appearance\":7, "
              "\"display_mode\":\"shaded\" }\n"
              "\t\t\t\t}\n"
              "\t\t\t}\n"
              "\t\t}\n");
}

TEST(MeshWriters, WriteOnlyWhatIsSet) {
    EXPECT_EQ(flatTextOf([](TextStream& out) { writeBuffer(out, {}); }), R"({"byteLength": 0})");
    EXPECT_EQ(flatTextOf([](TextStream& out) { writeMesh(out, {}); }), R"({"primitives" : []})");
    const GltfBufferView view{.buffer = 1, .byteOffset = 5'000'000'000, .byteLength = 36};
    EXPECT_EQ(flatTextOf([&](TextStream& out) { writeBufferView(out, view); }),
              R"({"buffer": 1,"byteOffset" : 5000000000,"byteLength" : 36})");
}

TEST(MaterialWriter, TakesAlphaFromTheColourAndNotFromTheTransparency) {
    GltfMaterial material;
    material.primaryColor = 0xFFFFFF;
    material.a_transparency = 0.001;
    EXPECT_THAT(materialText(material), AllOf(HasSubstr("[1, 1, 1, 0.2]"), HasSubstr("BLEND")));
    material.primaryColor = 0xFF8000FF;
    EXPECT_THAT(materialText(material), HasSubstr("[1, 0, 0.501961, 0.599477]"));
    material.primaryColor = 0;
    material.a_transparency = 0.9;
    EXPECT_THAT(materialText(material), AllOf(HasSubstr("[0, 0, 0, 1]"), Not(HasSubstr("BLEND"))));
}

TEST(MaterialWriter, TakesRoughnessFromSpreadOnlyWhenBlurry) {
    GltfMaterial material;
    material.a_specularSpread = 0.35;
    EXPECT_THAT(materialText(material), HasSubstr(R"("roughnessFactor": 1})"));
    material.a_reflectivity = 0.25;
    EXPECT_THAT(materialText(material), HasSubstr(R"("roughnessFactor": 0.15})"));
    material.a_reflectivity = 1;
    EXPECT_THAT(materialText(material), HasSubstr(R"("roughnessFactor": 0})"));
    material.blurry = true;
    EXPECT_THAT(materialText(material), HasSubstr(R"("roughnessFactor": 0.35})"));
}

TEST(MaterialWriter, TakesMetalFromTheClassOfTheShader) {
    GltfMaterial material;
    for (const auto& [shaderClass, factor] :
         std::vector<std::pair<std::int32_t, std::string>>{{0, "0"}, {4, "1"}, {11, "0.7"}}) {
        material.shaderClass = shaderClass;
        EXPECT_THAT(materialText(material), HasSubstr(R"("metallicFactor": )" + factor + ","));
    }
}

TEST(LightWriter, TakesAnUnknownTypeForAPositionalOne) {
    EXPECT_THAT(flatTextOf([](TextStream& out) { writeLight(out, {.index = 0, .type = LightType{9}}); }),
                AllOf(HasSubstr("positional"), HasSubstr(R"("type" : "")")));
}

TEST(AnimationWriter, NamesInterpolationsAndPaths) {
    const auto text = [](Interpolation interpolation, ChannelPath path) {
        GltfAnimation animation;
        animation.channels = {{.node = 5, .path = path, .interpolation = interpolation}};
        return flatTextOf([&](TextStream& out) { writeAnimation(out, animation); });
    };
    EXPECT_THAT(text(Interpolation::linear, ChannelPath::scale),
                AllOf(HasSubstr(R"("LINEAR","output" :-1)"), HasSubstr(R"("node" : 5,"path" : "scale")")));
    EXPECT_THAT(text(Interpolation::catmullRomSpline, ChannelPath::rotation),
                AllOf(HasSubstr(R"("CATMULLROMSPLINE")"), HasSubstr(R"("rotation")")));
    EXPECT_THAT(text(Interpolation::cubicSpline, ChannelPath::translation), HasSubstr(R"("CUBICSPLINE")"));
}

TEST(ExtensionWriters, NameTheTypesOfCustomProperties) {
    for (const auto& [type, name] : std::vector<std::pair<std::int32_t, std::string>>{
             {3, "Number"}, {5, "Double"}, {11, "YesNo"}, {30, "Text"}, {64, "Date"}, {7, "Unknown"}}) {
        const std::vector<CustomProperty> properties = {{"n", "\"", type}};
        EXPECT_EQ(flatTextOf([&](TextStream& out) { writeCustomProperties(out, properties); }),
                  R"("custom_properties": [{ "name": "n", "value": """, "type": ")" + name + R"(" }])");
    }
}

TEST(ExtensionWriters, GiveRowsAsManyCellsAsTheTableHasHeadersOrTheFirstRowCells) {
    const ExportedTable table{"T", {"h1", "h2"}, {{"a", "b", "c"}, {"d"}}};
    EXPECT_THAT(flatTextOf([&](TextStream& out) {
                    writeGeneralTables(out, std::vector{table, ExportedTable{}});
                }),
                AllOf(HasSubstr(R"("values": [[ "a", "b" ],[ "d", "" ]]},)"),
                      HasSubstr(R"({"title": "","headers": [],"values": []})")));
    EXPECT_THAT(flatTextOf([&](TextStream& out) { writeDesignTable(out, table); }),
                HasSubstr(R"("values": [[ "a", "b", "c" ],[ "d", "", "" ]])"));
}

} // namespace
} // namespace orvane::document
