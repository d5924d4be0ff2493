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
    EXPECT_EQ(
        documentText(document),
        "{\n\t\"asset\": {\n\t\t\"generator\": \"TESSAFORGEGLTF\",\n\t\t\"version\" : \"2.0\"\n\t},\n"
        "\"extensionsUsed\": [ \"KHR_lights_punctual\", \"Tessaforge_custom_properties\" ],\n"
        "\t\"scene\" : 2,\n"
        "\t\"scenes\": [\n\t],\n\t\"nodes\": [\n\t],\n\t\"meshes\" : [\n\t],\n\t\"accessors\" : [\n\t],\n"
        "\t\"materials\": [\n\t],\n\t\"bufferViews\" : [\n\t],\n\t\"buffers\" : [\n\t]\n}\n");
}

TEST(DocumentWriter, SetsTheCommaBehindTheLightsByTheGeneralTablesAlone) {
    GltfDocument document;
    addRecord(document.lights).type = LightType::directional;
    const auto isWritten = [&](const std::string& text) {
        return documentText(document).find("\t\t\t\t}\n\t\t\t]\n" + text) != std::string::npos;
    };
    EXPECT_TRUE(isWritten("\t\t}\n\t},\n"));
    document.designTable = ExportedTable{"D", {}, {{"x"}}};
    EXPECT_TRUE(isWritten("\t\t}\n\t\t\"Tessaforge_design_table\" : {\n"));
    document.generalTables = {{}};
    EXPECT_TRUE(isWritten("\t\t},\n\t\t\"Tessaforge_general_tables\" : {\n"));
}

TEST(DocumentWriter, PassesOverCamerasWithoutAnIndexAndSeparatesTexturesThatAreNotWritten) {
    GltfDocument document;
    addRecord(document.cameras).index = -1;
    addRecord(document.textures);
    addRecord(document.textures);
    const std::string text = documentText(document);
    EXPECT_NE(text.find("\t],\n\t\"cameras\": [\n\t],\n\t\"meshes\""), std::string::npos);
    EXPECT_NE(text.find("\t\"textures\": [\n,\n\n\t],\n\t\"bufferViews\""), std::string::npos);
}

TEST(DocumentWriter, TellsHowManyRecordsAreWritten) {
    GltfDocument document;
    addRecord(document.nodes);
    addRecord(document.cameras).index = -1;
    document.scenes.resize(3);
    std::int32_t done = 0;
    document.progress.onChange = [&](const Progress& progress) {
        EXPECT_LE(progress.doneWork, progress.totalWork);
        done = progress.doneWork;
    };
    documentText(document);
    EXPECT_EQ(document.progress.totalWork, 4);
    EXPECT_EQ(done, 4);
}

} // namespace
} // namespace orvane
