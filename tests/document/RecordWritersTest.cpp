#include "document/RecordWriters.h"

#include "document/ExtensionWriters.h"
#include "document/MaterialWriter.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

/// What `write` appends to an empty stream.
template <class Write>
std::string textOf(Write write) {
    TextStream out;
    write(out);
    return out.text();
}

std::string nodeText(const GltfNode& node, const GltfDocument& document = {}) {
    return textOf([&](TextStream& out) { writeNode(out, document, node); });
}

std::string materialText(const GltfMaterial& material) {
    return textOf([&](TextStream& out) { writeMaterial(out, material); });
}

GltfNode namedNode() {
    GltfNode node;
    node.matrix = {1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0, 1, 0, 0, 0};
    node.name = "x";
    return node;
}

TEST(NodeWriter, WritesABareNodeOnTwoLines) {
    EXPECT_EQ(nodeText(namedNode()), "\t\t{\n\t\t\t\"name\": \"x\"\t\t}\n");
}

TEST(NodeWriter, LeavesOutAMatrixWithinTheToleranceOfTheIdentity) {
    GltfNode node = namedNode();
    node.matrix[4] = 1.0001;
    node.matrix[9] = -0.0001;
    EXPECT_EQ(nodeText(node), nodeText(namedNode()));
    node.matrix[9] = -0.00011;
    EXPECT_NE(nodeText(node), nodeText(namedNode()));
}

TEST(NodeWriter, LaysTheSixteenNumbersOutInColumns) {
    GltfNode node = namedNode();
    node.children = {1, 2};
    node.matrix = {0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 10, 11, 12, 13, 14, 15, 16};
    EXPECT_EQ(nodeText(node), "\t\t{\n"
                              "\t\t\t\"children\": [\n"
                              "\t\t\t\t1, 2\n"
                              "\t\t\t]\n"
                              "\t\t\t,\"matrix\": [\n"
                              "\t\t\t\t0.1,\t\t\t\t\t0.2,\t\t\t\t\t0.3,\t\t\t\t\t14,\n"
                              "\t\t\t\t0.4,\t\t\t\t\t0.5,\t\t\t\t\t0.6,\t\t\t\t\t15,\n"
                              "\t\t\t\t0.7,\t\t\t\t\t0.8,\t\t\t\t\t0.9,\t\t\t\t\t16,\n"
                              "\t\t\t\t10,\t\t\t\t\t11,\t\t\t\t\t12,\t\t\t\t\t13\n"
                              "\t\t\t]\n"
                              "\t\t\t,\"name\": \"x\"\t\t}\n");
}

TEST(NodeWriter, PrefersTheMeshToTheCamera) {
    GltfNode node = namedNode();
    node.camera = 4;
    EXPECT_EQ(nodeText(node), "\t\t{\n\t\t\t\"camera\": 4\n\t\t\t,\"name\": \"x\"\t\t}\n");
    node.mesh = 3;
    EXPECT_EQ(nodeText(node), "\t\t{\n\t\t\t\"mesh\": 3\n\t\t\t,\"name\": \"x\"\t\t}\n");
}

TEST(NodeWriter, CarriesItsSeparatorIntoTheExtensions) {
    const std::string comments = "\"Tessaforge_comments\" : {\n"
                                 "\t\t\t\t\t\"comments\" : [\n"
                                 "\t\t\t\t\t{ \"name\": \"n\", \"text\": \"t\" },\n"
                                 "\t\t\t\t\t{ \"name\": \"m\", \"text\": \"\" }\n"
                                 "\t\t\t\t\t]\n"
                                 "\t\t\t\t}\n"
                                 "\t\t\t}\n"
                                 "\t\t\t,\"name\": \"x\"\t\t}\n";
    GltfNode node = namedNode();
    node.comments = {{"n", "t"}, {"m", ""}};
    EXPECT_EQ(nodeText(node), "\t\t{\n\t\t\t\"extensions\" : {\n\t\t\t\t" + comments);
    node.mesh = 0;
    EXPECT_EQ(nodeText(node), "\t\t{\n\t\t\t\"mesh\": 0\n\t\t\t,\"extensions\" : {\n\t\t\t\t," + comments);
    node.mesh = -1;
    node.light = 2;
    EXPECT_EQ(nodeText(node), "\t\t{\n\t\t\t\"extensions\" : {\n"
                              "\t\t\t\t\"KHR_lights_punctual\" : {\n"
                              "\t\t\t\t\t\"light\" : 2\n"
                              "\t\t\t\t}\n"
                              "\t\t\t\t," +
                                  comments);
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

TEST(CameraWriter, WritesBothKinds) {
    GltfCamera camera{.index = 0, .isPerspective = 1, .yfov = 0.785398163, .aspectRatio = 1.5};
    EXPECT_EQ(textOf([&](TextStream& out) { writeCamera(out, camera); }), "\t\t{\n"
                                                                          "\t\t\t\"type\": \"perspective\",\n"
                                                                          "\t\t\t\"perspective\" : {\n"
                                                                          "\t\t\t\t\"aspectRatio\": 1.5,\n"
                                                                          "\t\t\t\t\"yfov\" : 0.785398,\n"
                                                                          "\t\t\t\t\"zfar\" : 100,\n"
                                                                          "\t\t\t\t\"znear\" : 0.01\n"
                                                                          "\t\t\t}\n"
                                                                          "\t\t}\n");
    camera.isPerspective = 0;
    EXPECT_EQ(textOf([&](TextStream& out) { writeCamera(out, camera); }),
              "\t\t{\n"
              "\t\t\t\"type\": \"orthographic\",\n"
              "\t\t\t\"orthographic\" : {\n"
              "\t\t\t\t\"xmag\": 1,\n"
              "\t\t\t\t\"ymag\" : 1,\n"
              "\t\t\t\t\"zfar\" : 100,\n"
              "\t\t\t\t\"znear\" : 0.01\n"
              "\t\t\t}\n"
              "\t\t}\n");
}

TEST(BufferWriters, WriteOnlyWhatIsSet) {
    EXPECT_EQ(
        textOf([](TextStream& out) { writeBuffer(out, {.index = 0, .uri = "a.bin", .byteLength = 12}); }),
        "\t\t\t{\n\t\t\t\t\"byteLength\": 12\n\t\t\t\t,\"uri\" : \"a.bin\"\n\t\t\t}");
    EXPECT_EQ(textOf([](TextStream& out) { writeBuffer(out, {}); }),
              "\t\t\t{\n\t\t\t\t\"byteLength\": 0\n\t\t\t}");
    GltfBufferView view{.buffer = 1, .byteOffset = 5'000'000'000, .byteLength = 36};
    EXPECT_EQ(textOf([&](TextStream& out) { writeBufferView(out, view); }),
              "\t\t\t{\n"
              "\t\t\t\t\"buffer\": 1\n"
              "\t\t\t\t,\"byteOffset\" : 5000000000\n"
              "\t\t\t\t,\"byteLength\" : 36\n"
              "\t\t\t}");
    view.byteStride = 12;
    view.target = BufferTarget::vertices;
    EXPECT_EQ(textOf([&](TextStream& out) { writeBufferView(out, view); }),
              "\t\t\t{\n"
              "\t\t\t\t\"buffer\": 1\n"
              "\t\t\t\t,\"byteOffset\" : 5000000000\n"
              "\t\t\t\t,\"byteLength\" : 36\n"
              "\t\t\t\t,\"byteStride\" : 12\n"
              "\t\t\t\t,\"target\" : 34962\n"
              "\t\t\t}");
}

TEST(AccessorWriter, WritesBoundsInTheirOwnFormat) {
    const GltfAccessor accessor{.byteOffset = 8,
                                .count = 3,
                                .bufferView = 2,
                                .type = AccessorType::vec3,
                                .bounds = AccessorBounds{-1, 0, 0.5f, 1, 2, 3}};
    EXPECT_EQ(textOf([&](TextStream& out) { writeAccessor(out, accessor); }),
              "\t\t\t{\n"
              "\t\t\t\t\"bufferView\": 2\n"
              "\t\t\t\t,\"byteOffset\" : 8\n"
              "\t\t\t\t,\"componentType\" : 5126\n"
              "\t\t\t\t,\"count\" : 3\n"
              "\t\t\t\t,\"type\" : \"VEC3\"\n"
              "\t\t\t\t,\"min\" : [-1.00000000e+00, 0.00000000e+00, 5.00000000e-01]\n"
              "\t\t\t\t,\"max\" : [1.00000000e+00, 2.00000000e+00, 3.00000000e+00]\n"
              "\t\t\t}");
}

TEST(MeshWriter, WritesItsPrimitives) {
    GltfMesh mesh;
    EXPECT_EQ(textOf([&](TextStream& out) { writeMesh(out, mesh); }),
              "\t\t{\n\t\t\t\"primitives\" : [\n\t\t\t]\n\t\t}");
    mesh.primitives = {{.indices = 0, .position = 1, .normal = 2, .texcoord = 3, .material = 4}};
    EXPECT_EQ(textOf([&](TextStream& out) { writeMesh(out, mesh); }), "\t\t{\n"
                                                                      "\t\t\t\"primitives\" : [\n"
                                                                      "\t\t\t\t{\n"
                                                                      "\t\t\t\t\t\"attributes\" : {\n"
                                                                      "\t\t\t\t\t\"POSITION\" : 1,\n"
                                                                      "\t\t\t\t\t\"NORMAL\" : 2,\n"
                                                                      "\t\t\t\t\t\"TEXCOORD_0\" : 3\n"
                                                                      "\t\t\t\t\t},\n"
                                                                      "\t\t\t\t\t\"indices\" : 0,\n"
                                                                      "\t\t\t\t\t\"mode\": 4,\n"
                                                                      "\t\t\t\t\t\"material\" : 4\n"
                                                                      "\t\t\t\t}\n"
                                                                      "\t\t\t]\n"
                                                                      "\t\t}");
}

TEST(MaterialWriter, WritesTheDefaultMaterial) {
    EXPECT_EQ(materialText({}), "\t\t\t{\n"
                                "\t\t\t\t\"pbrMetallicRoughness\": {\n"
                                "\t\t\t\t\t\"baseColorFactor\": [\n"
                                "\t\t\t\t\t\t0.498039, 0.498039, 0.498039, 1\n"
                                "\t\t\t\t\t]\n"
                                "\t\t\t\t\t,\"metallicFactor\": 0\n"
                                "\t\t\t\t\t,\"roughnessFactor\": 1\n"
                                "\t\t\t\t}\n"
                                "\t\t\t}");
}

TEST(MaterialWriter, WritesEverythingThatAMaterialCanHave) {
    GltfMaterial material;
    material.mname = "glass";
    material.shaderClass = 11;
    material.primaryColor = 0xFF8000FF;
    material.a_transparency = 0.5;
    material.a_emission = 3;
    material.a_reflectivity = 0.25;
    material.baseColorTexture = 1;
    material.normalTexture = 2;
    EXPECT_EQ(materialText(material), "\t\t\t{\n"
                                      "\t\t\t\t\"name\": \"glass\"\n"
                                      "\t\t\t\t\t,\"normalTexture\": {\n"
                                      "\t\t\t\t\t\t\"index\": 2\n"
                                      "\t\t\t\t\t\t,\"scale\": 0.3\n"
                                      "\t\t\t\t\t}\n"
                                      "\t\t\t\t,\"pbrMetallicRoughness\": {\n"
                                      "\t\t\t\t\t\"baseColorTexture\": {\n"
                                      "\t\t\t\t\t\t\"index\": 1\n"
                                      "\t\t\t\t\t}\n"
                                      "\t\t\t\t\t,\"baseColorFactor\": [\n"
                                      "\t\t\t\t\t\t1, 0, 0.501961, 0.599477\n"
                                      "\t\t\t\t\t]\n"
                                      "\t\t\t\t\t,\"metallicFactor\": 0.7\n"
                                      "\t\t\t\t\t,\"roughnessFactor\": 0.15\n"
                                      "\t\t\t\t}\n"
                                      "\t\t\t\t,\"emissiveFactor\": [\n"
                                      "\t\t\t\t\t1, 0, 0.501961\n"
                                      "\t\t\t\t]\n"
                                      "\t\t\t\t,\"alphaMode\": \"BLEND\"\n"
                                      "\t\t\t}");
}

TEST(MaterialWriter, TakesAlphaFromTheColourAndNotFromTheTransparency) {
    GltfMaterial material;
    material.primaryColor = 0xFFFFFF;
    material.a_transparency = 0.001;
    EXPECT_NE(materialText(material).find("1, 1, 1, 0.2\n"), std::string::npos);
    EXPECT_NE(materialText(material).find("BLEND"), std::string::npos);
    material.primaryColor = 0;
    material.a_transparency = 0.9;
    EXPECT_NE(materialText(material).find("0, 0, 0, 1\n"), std::string::npos);
    EXPECT_EQ(materialText(material).find("BLEND"), std::string::npos);
}

TEST(MaterialWriter, TakesRoughnessFromSpreadOnlyWhenBlurry) {
    GltfMaterial material;
    material.a_specularSpread = 0.35;
    material.a_reflectivity = 1;
    EXPECT_NE(materialText(material).find("\"roughnessFactor\": 0\n"), std::string::npos);
    material.blurry = true;
    EXPECT_NE(materialText(material).find("\"roughnessFactor\": 0.35\n"), std::string::npos);
    material.shaderClass = 4;
    EXPECT_NE(materialText(material).find("\"metallicFactor\": 1\n"), std::string::npos);
}

TEST(LightWriter, WritesTheIntensityInEveryAttenuation) {
    GltfLight light{.index = 0, .type = LightType::spot, .color = {1, 0.5, 0}, .intensity = 2};
    EXPECT_EQ(textOf([&](TextStream& out) { writeLight(out, light); }),
              "\t\t\t\t{\n"
              "\t\t\t\t\t\"positional\": {\n"
              "\t\t\t\t\t\t\"constantAttenuation\": 2,\n"
              "\t\t\t\t\t\t\"linearAttenuation\": 2,\n"
              "\t\t\t\t\t\t\"quadraticAttenuation\": 2\n"
              "\t\t\t\t\t},\n"
              "\t\t\t\t\t\"color\" : [\n"
              "\t\t\t\t\t\t2,\n"
              "\t\t\t\t\t\t1,\n"
              "\t\t\t\t\t\t0\n"
              "\t\t\t\t\t],\n"
              "\t\t\t\t\t\"type\" : \"spot\"\n"
              "\t\t\t\t}");
    light.type = LightType::directional;
    const std::string directional = textOf([&](TextStream& out) { writeLight(out, light); });
    EXPECT_EQ(directional.find("positional"), std::string::npos);
    EXPECT_NE(directional.find("\"type\" : \"directional\"\n"), std::string::npos);
    light.type = LightType{9};
    const std::string unknown = textOf([&](TextStream& out) { writeLight(out, light); });
    EXPECT_NE(unknown.find("positional"), std::string::npos);
    EXPECT_NE(unknown.find("\"type\" : \"\"\n"), std::string::npos);
}

TEST(AnimationWriter, WritesSamplersAndChannelsInStep) {
    GltfAnimation animation;
    animation.name = "a";
    animation.channels = {
        {.node = 4,
         .path = ChannelPath::rotation,
         .interpolation = Interpolation::step,
         .input = 7,
         .output = 9},
        {.node = 5, .path = ChannelPath::scale, .interpolation = Interpolation::cubicSpline}};
    EXPECT_EQ(textOf([&](TextStream& out) { writeAnimation(out, animation); }),
              "\t\t\t\t{\n"
              "\t\t\t\t\t\"name\" : \"a\",\n"
              "\t\t\t\t\t\"samplers\" : [\n"
              "\t\t\t\t\t{\n"
              "\t\t\t\t\t\t\"input\" : 7,\n"
              "\t\t\t\t\t\t\"interpolation\" : \"STEP\",\n"
              "\t\t\t\t\t\t\"output\" :9\n"
              "\t\t\t\t\t},\n"
              "\t\t\t\t\t{\n"
              "\t\t\t\t\t\t\"input\" : -1,\n"
              "\t\t\t\t\t\t\"interpolation\" : \"CUBICSPLINE\",\n"
              "\t\t\t\t\t\t\"output\" :-1\n"
              "\t\t\t\t\t}\n"
              "\t\t\t\t\t],\n"
              "\t\t\t\t\t\"channels\" : [\n"
              "\t\t\t\t\t{\n"
              "\t\t\t\t\t\t\"sampler\" : 0,\n"
              "\t\t\t\t\t\t\"target\" : {\n"
              "\t\t\t\t\t\t\t\"node\" : 4,\n"
              "\t\t\t\t\t\t\t\"path\" : \"rotation\"\n"
              "\t\t\t\t\t\t}\n"
              "\t\t\t\t\t},\n"
              "\t\t\t\t\t{\n"
              "\t\t\t\t\t\t\"sampler\" : 1,\n"
              "\t\t\t\t\t\t\"target\" : {\n"
              "\t\t\t\t\t\t\t\"node\" : 5,\n"
              "\t\t\t\t\t\t\t\"path\" : \"scale\"\n"
              "\t\t\t\t\t\t}\n"
              "\t\t\t\t\t}\n"
              "\t\t\t\t\t]\n"
              "\t\t\t\t}");
}

TEST(TextureWriter, BringsALoosePictureAndKeepsItsNewName) {
    GltfDocument document;
    addRecord(document.images).name = "bumps.dds";
    document.images[0]->sourcePath = "C:\\lib\\bumps.dds";
    GltfTexture& texture = addRecord(document.textures);
    texture.isNormalMap = true;
    std::string asked;
    const PictureCopier copier = [&](const std::string& source, std::string& name, bool isNormalMap) {
        asked = source + "|" + name + "|" + (isNormalMap ? "normal" : "colour");
        name = "n_bumps.png";
    };
    const auto write = [&](TextStream& out) { writeTexture(out, document, texture, copier); };
    EXPECT_EQ(textOf(write), "") << "neither sampler nor picture";
    texture.source = 0;
    EXPECT_EQ(textOf(write), "") << "no sampler";
    EXPECT_EQ(asked, "");
    texture.sampler = 5;
    EXPECT_EQ(textOf(write), "\t\t\t{\n"
                             "\t\t\t\t\"sampler\": 5,\n"
                             "\t\t\t\t\"source\": 0,\n"
                             "\t\t\t\t\"name\": \"n_bumps.png\"\n"
                             "\t\t\t}");
    EXPECT_EQ(asked, "C:\\lib\\bumps.dds|n_bumps.dds|normal");
    EXPECT_EQ(textOf([&](TextStream& out) { writeImage(out, *document.images[0]); }),
              "\t\t\t{\n\t\t\t\t\"uri\": \"n_bumps.png\"\n\t\t\t}");

    document.images[0]->bufferView = 8;
    document.images[0]->mimeType = "image/png";
    EXPECT_EQ(textOf(write), "\t\t\t{\n\t\t\t\t\"sampler\": 5,\n\t\t\t\t\"source\": 0\n\t\t\t}");
    EXPECT_EQ(textOf([&](TextStream& out) { writeImage(out, *document.images[0]); }),
              "\t\t\t{\n\t\t\t\t\"mimeType\": \"image/png\",\n\t\t\t\t\"bufferView\": 8\n\t\t\t}");
}

TEST(SamplerWriter, WritesItsFixedValues) {
    EXPECT_EQ(textOf([](TextStream& out) { writeSampler(out, {}); }), "\t\t\t{\n"
                                                                      "\t\t\t\t\"magFilter\": 9729,\n"
                                                                      "\t\t\t\t\"minFilter\" : 9729,\n"
                                                                      "\t\t\t\t\"wrapS\" : 10497,\n"
                                                                      "\t\t\t\t\"wrapT\" : 10497,\n"
                                                                      "\t\t\t\t\"name\": \"DefaultSampler\"\n"
                                                                      "\t\t\t}");
}

TEST(ExtensionWriters, WriteCustomPropertiesWithTheNameOfTheirType) {
    const std::vector<CustomProperty> properties = {{"a", "1", 3},  {"b", "x", 5},  {"c", "y", 11},
                                                    {"d", "z", 30}, {"e", "w", 64}, {"f", "\"", 7}};
    EXPECT_EQ(textOf([&](TextStream& out) { writeCustomProperties(out, properties); }),
              "\t\t\t\t\t\"custom_properties\": [\n"
              "\t\t\t\t\t\t{ \"name\": \"a\", \"value\": \"1\", \"type\": \"Number\" },\n"
              "\t\t\t\t\t\t{ \"name\": \"b\", \"value\": \"x\", \"type\": \"Double\" },\n"
              "\t\t\t\t\t\t{ \"name\": \"c\", \"value\": \"y\", \"type\": \"YesNo\" },\n"
              "\t\t\t\t\t\t{ \"name\": \"d\", \"value\": \"z\", \"type\": \"Text\" },\n"
              "\t\t\t\t\t\t{ \"name\": \"e\", \"value\": \"w\", \"type\": \"Date\" },\n"
              "\t\t\t\t\t\t{ \"name\": \"f\", \"value\": \"\"\", \"type\": \"Unknown\" }\n"
              "\t\t\t\t\t]\n");
}

TEST(ExtensionWriters, WriteTables) {
    const ExportedTable table{"T", {"h1", "h2"}, {{"a", "b", "c"}, {"d", "", "f"}}};
    EXPECT_EQ(textOf([&](TextStream& out) {
                  writeGeneralTables(out, std::vector{table, ExportedTable{}});
              }),
              "\t\t\t\"tables\": [\n"
              "\t\t\t\t{\n"
              "\t\t\t\t\t\"title\": \"T\",\n"
              "\t\t\t\t\t\"headers\": [\n"
              "\t\t\t\t\t\t\"h1\",\n"
              "\t\t\t\t\t\t\"h2\"\n"
              "\t\t\t\t\t],\n"
              "\t\t\t\t\t\"values\": [\n"
              "\t\t\t\t\t\t[ \"a\", \"b\" ],\n"
              "\t\t\t\t\t\t[ \"d\", \"\" ]\n"
              "\t\t\t\t\t]\n"
              "\t\t\t\t},\n"
              "\t\t\t\t{\n"
              "\t\t\t\t\t\"title\": \"\",\n"
              "\t\t\t\t\t\"headers\": [\n"
              "\t\t\t\t\t],\n"
              "\t\t\t\t\t\"values\": [\n"
              "\t\t\t\t\t]\n"
              "\t\t\t\t}\n"
              "\n\t\t\t]\n");
    EXPECT_EQ(textOf([&](TextStream& out) { writeDesignTable(out, table); }),
              "\t\t\t\"title\": \"T\",\n"
              "\t\t\t\"headers\": [\n"
              "\t\t\t\t\"h1\",\n"
              "\t\t\t\t\"h2\"\n"
              "\t\t\t],\n"
              "\t\t\t\"values\": [\n"
              "\t\t\t\t[ \"a\", \"b\", \"c\" ],\n"
              "\t\t\t\t[ \"d\", \"\", \"f\" ]\n"
              "\t\t\t]\n");
}

} // namespace
} // namespace orvane
