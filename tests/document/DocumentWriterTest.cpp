#include "document/DocumentWriter.h"

#include <gtest/gtest.h>

#include <string>

namespace orvane {
namespace {

std::string documentText(GltfDocument& document) {
    TextStream out;
    writeDocumentHead(out, 2);
    writeDocument(out, document, document.progress);
    return out.text() + "}\n";
}

TEST(DocumentWriter, WritesAnEmptyDocument) {
    GltfDocument document;
    EXPECT_EQ(documentText(document),
              "{\n"
              "\t\"asset\": {\n"
              "\t\t\"generator\": \"TESSAFORGEGLTF\",\n"
              "\t\t\"version\" : \"2.0\"\n"
              "\t},\n"
              "\"extensionsUsed\": [ \"KHR_lights_punctual\", \"Tessaforge_custom_properties\" ],\n"
              "\t\"scene\" : 2,\n"
              "\t\"scenes\": [\n"
              "\t],\n"
              "\t\"nodes\": [\n"
              "\t],\n"
              "\t\"meshes\" : [\n"
              "\t],\n"
              "\t\"accessors\" : [\n"
              "\t],\n"
              "\t\"materials\": [\n"
              "\t],\n"
              "\t\"bufferViews\" : [\n"
              "\t],\n"
              "\t\"buffers\" : [\n"
              "\t]\n"
              "}\n");
}

TEST(DocumentWriter, WritesScenesWithAndWithoutExtensions) {
    GltfDocument document;
    document.scenes.resize(2);
    document.scenes[0].name = "bare";
    document.scenes[0].nodes = {0, 7};
    document.scenes[1].name = "properties";
    document.scenes[1].customProperties = {{"p", "v", 30}};
    const std::string text = documentText(document);
    const std::size_t begin = text.find("\t\"scenes\"");
    EXPECT_EQ(text.substr(begin, text.find("\t\"nodes\": [\n\t]") - begin),
              "\t\"scenes\": [\n"
              "\t\t{\n"
              "\t\t\t\"name\": \"bare\",\n"
              "\t\t\t\"nodes\": [\n\t\t\t\t0, 7]"
              "\n\t\t}\n"
              "\t\t,\n"
              "\t\t{\n"
              "\t\t\t\"name\": \"properties\",\n"
              "\t\t\t\"nodes\": [\n\t\t\t\t],\n"
              "\t\t\t\"extensions\": {"
              "\n\t\t\t\t\"Tessaforge_custom_properties\": { \n"
              "\t\t\t\t\t\"custom_properties\": [\n"
              "\t\t\t\t\t\t{ \"name\": \"p\", \"value\": \"v\", \"type\": \"Text\" }\n"
              "\t\t\t\t\t]\n"
              "\t\t\t\t}"
              "\n\t\t\t}\n"
              "\n\t\t}\n"
              "\t],\n");
}

TEST(DocumentWriter, SetsTheCommaBehindTheLightsByTheGeneralTablesAlone) {
    GltfDocument document;
    addRecord(document.lights).type = LightType::directional;
    const std::string endOfLights = "\t\t\t\t}\n\t\t\t]\n";
    EXPECT_NE(documentText(document).find(endOfLights + "\t\t}\n\t},\n"), std::string::npos);
    document.designTable = ExportedTable{"D", {}, {{"x"}}};
    EXPECT_NE(documentText(document).find(endOfLights + "\t\t}\n\t\t\"Tessaforge_design_table\" : {\n"),
              std::string::npos);
    document.designTable.reset();
    document.generalTables = {{}};
    const std::string text = documentText(document);
    EXPECT_NE(text.find(endOfLights + "\t\t},\n\t\t\"Tessaforge_general_tables\" : {\n"), std::string::npos);
    EXPECT_NE(text.find("\n\t\t\t]\n\t\t}\n\t},\n\t\"meshes\""), std::string::npos);
}

TEST(DocumentWriter, WritesOnlyCamerasWithAnIndex) {
    GltfDocument document;
    addRecord(document.cameras).index = -1;
    EXPECT_NE(documentText(document).find("\t],\n\t\"cameras\": [\n\t],\n\t\"meshes\""), std::string::npos);
}

TEST(DocumentWriter, SeparatesAlsoTexturesThatAreNotWritten) {
    GltfDocument document;
    addRecord(document.textures);
    addRecord(document.textures);
    EXPECT_NE(documentText(document).find("\t\"textures\": [\n,\n\n\t],\n\t\"bufferViews\""),
              std::string::npos);
}

TEST(DocumentWriter, CountsItsProgress) {
    GltfDocument document;
    addRecord(document.nodes);
    addRecord(document.cameras).index = -1;
    document.scenes.resize(3);
    int calls = 0;
    document.progress.onChange = [&](const Progress& progress) {
        ++calls;
        EXPECT_LE(progress.doneWork, progress.totalWork);
    };
    documentText(document);
    EXPECT_EQ(document.progress.totalWork, 4);
    EXPECT_EQ(document.progress.doneWork, 4);
    EXPECT_GT(calls, 4);
}

} // namespace
} // namespace orvane
