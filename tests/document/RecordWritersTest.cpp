// Rules of the writers. How the records are laid out is held by tests/golden.

#include "document/ExtensionWriters.h"
#include "document/MaterialWriter.h"
#include "document/NodeWriter.h"

#include <gmock/gmock.h>

#include <map>

namespace orvane::document {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

/// What `write` appends to an empty stream, without tabs and line feeds.
template <class Write>
std::string flatTextOf(Write write) {
    TextStream out;
    write(out);
    std::string text = out.text();
    std::erase_if(text, [](char character) { return character == '\t' || character == '\n'; });
    return text;
}

std::string nodeText(const GltfNode& node, const GltfDocument& document = {}) {
    return flatTextOf([&](TextStream& out) { writeNode(out, document, node); });
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

TEST(NodeWriter, CarriesItsSeparatorIntoTheExtensions) {
    const std::string light = R"("KHR_lights_punctual" : {"light" : 2})";
    const std::string rest = R"("Tessaforge_comments" : {"comments" : [{ "name": "n", "text": "t" }]}})"
                             R"(,"name": "x"})";
    GltfNode node = namedNode();
    node.comments = {{"n", "t"}};
    const auto expect = [&](const std::string& text, bool isStrict) {
        EXPECT_EQ(nodeText(node), text + rest);
        EXPECT_EQ(isStrictJson(node), isStrict) << text;
    };
    expect(R"({"extensions" : {)", true);
    node.light = 2;
    expect(R"({"extensions" : {)" + light + ",", true);
    node.mesh = 0;
    expect(R"({"mesh": 0,"extensions" : {)" + light + ",", true);
    node.light = -1;
    expect(R"({"mesh": 0,"extensions" : {,)", false);
}

TEST(NodeWriter, WritesTheDisplayStatesOfItsComponent) {
    GltfDocument document;
    GltfNode node = namedNode();
    node.component = &document;
    document.displayStatesByComponent[node.component] = {
        {"b", {.hidden = 1, .transparent = 1, .displayMode = 3, .appearance = 7}},
        {"a", {.hidden = 0, .transparent = 0, .displayMode = 99, .appearance = -1}},
    };
    EXPECT_EQ(nodeText(node, document),
              R"({"name": "x","extensions": {"TF_display_states": {)"
              R"("a": { "visible":1, "transparency":0.75, "display_mode":"unknown" },)"
              R"("b": { "visible":0, "transparency":0, "appearance":7, "display_mode":"shaded" }}}})");
}

TEST(MaterialWriter, TakesAlphaFromTheColourAndNotFromTheTransparency) {
    EXPECT_THAT(materialText({.primaryColor = 0xFFFFFF, .a_transparency = 0.001}),
                AllOf(HasSubstr("[1, 1, 1, 0.2]"), HasSubstr("BLEND")));
    EXPECT_THAT(materialText({.primaryColor = 0xFF8000FF, .a_transparency = 0.001}),
                HasSubstr("[1, 0, 0.501961, 0.599477]"));
    EXPECT_THAT(materialText({.primaryColor = 0, .a_transparency = 0.9}),
                AllOf(HasSubstr("[0, 0, 0, 1]"), Not(HasSubstr("BLEND"))));
}

TEST(MaterialWriter, TakesMetalAndRoughnessFromTheShader) {
    const std::pair<GltfMaterial, std::string> materials[] = {
        {{.shaderClass = 0, .a_specularSpread = 0.35}, R"("metallicFactor": 0,"roughnessFactor": 1})"},
        {{.shaderClass = 4, .a_reflectivity = 0.25}, R"("metallicFactor": 1,"roughnessFactor": 0.15})"},
        {{.shaderClass = 11, .a_reflectivity = 1}, R"("metallicFactor": 0.7,"roughnessFactor": 0})"},
        {{.a_reflectivity = 1, .a_specularSpread = 0.35, .blurry = true}, R"("roughnessFactor": 0.35})"}};
    for (const auto& [material, text] : materials) {
        EXPECT_THAT(materialText(material), HasSubstr(text));
    }
}

TEST(ExtensionWriters, NameTheTypesOfCustomProperties) {
    for (const auto& [type, name] : std::map<std::int32_t, std::string>{
             {3, "Number"}, {5, "Double"}, {11, "YesNo"}, {30, "Text"}, {64, "Date"}, {7, "Unknown"}}) {
        const std::vector<CustomProperty> properties = {{"n", "\"", type}};
        EXPECT_EQ(flatTextOf([&](TextStream& out) { writeCustomProperties(out, properties); }),
                  R"("custom_properties": [{ "name": "n", "value": """, "type": ")" + name + R"(" }])");
    }
}

} // namespace
} // namespace orvane::document
