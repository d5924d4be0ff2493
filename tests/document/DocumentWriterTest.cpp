#include "document/DocumentWriter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace orvane {
namespace {

std::string documentText(GltfDocument& document) {
    TextStream out;
    writeDocumentHead(out, 2);
    writeDocument(out, document, [](const std::string&, std::string&, bool) {});
    return out.text() + "}\n";
}

/// The keys at the top level, by their two quotes behind at most three tabs and a following colon, in order.
std::vector<std::string> sectionOrder(const std::string& text) {
    static const std::vector<std::string> known = {"asset",  "extensionsUsed", "scene",       "scenes",
                                                   "nodes",  "cameras",        "extensions",  "animations",
                                                   "meshes", "accessors",      "materials",   "textures",
                                                   "images", "samplers",       "bufferViews", "buffers"};
    std::vector<std::pair<std::size_t, std::string>> found;
    for (const std::string& key : known) {
        for (const char* indent : {"\n\t\"", "\n\"", "\n\t\t\t\""}) {
            const std::size_t at = text.find(indent + key + "\"");
            if (at != std::string::npos) {
                found.emplace_back(at, key);
                break;
            }
        }
    }
    std::sort(found.begin(), found.end());
    std::vector<std::string> keys;
    for (const auto& [at, key] : found) {
        keys.push_back(key);
    }
    return keys;
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

TEST(DocumentWriter, WritesAllSectionsInTheirOrder) {
    GltfDocument document;
    document.scenes.resize(1);
    document.scenes[0].animations = {addRecord(document.animations).index};
    addRecord(document.nodes);
    addRecord(document.cameras);
    addRecord(document.lights);
    addRecord(document.textures);
    addRecord(document.images);
    addRecord(document.samplers);
    EXPECT_EQ(sectionOrder(documentText(document)),
              (std::vector<std::string>{"asset", "extensionsUsed", "scene", "scenes", "nodes", "cameras",
                                        "extensions", "animations", "meshes", "accessors", "materials",
                                        "textures", "images", "samplers", "bufferViews", "buffers"}));
}

TEST(DocumentWriter, WritesScenesWithTheirExtensions) {
    GltfDocument document;
    document.scenes.resize(4);
    document.scenes[0].name = "bare";
    document.scenes[0].nodes = {0, 7};
    document.scenes[1].name = "states";
    document.scenes[1].displayStates = {"A", "B"};
    document.scenes[2].name = "properties";
    document.scenes[2].customProperties = {{"p", "v", 30}};
    document.scenes[3].name = "both";
    document.scenes[3].displayStates = {"A"};
    document.scenes[3].customProperties = {{"p", "v", 30}};
    const std::string properties = "\n\t\t\t\t\"Tessaforge_custom_properties\": { \n"
                                   "\t\t\t\t\t\"custom_properties\": [\n"
                                   "\t\t\t\t\t\t{ \"name\": \"p\", \"value\": \"v\", \"type\": \"Text\" }\n"
                                   "\t\t\t\t\t]\n"
                                   "\t\t\t\t}";
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
              "\t\t\t\"name\": \"states\",\n"
              "\t\t\t\"nodes\": [\n\t\t\t\t],\n"
              "\t\t\t\"extensions\": {"
              "\n\t\t\t\t\"TF_display_states\": { \n"
              "\t\t\t\t\"A\": { },\n"
              "\t\t\t\t\"B\": { }"
              "\n\t\t\t\t}"
              "\n\t\t\t}\n"
              "\n\t\t}\n"
              "\t\t,\n"
              "\t\t{\n"
              "\t\t\t\"name\": \"properties\",\n"
              "\t\t\t\"nodes\": [\n\t\t\t\t],\n"
              "\t\t\t\"extensions\": {" +
                  properties +
                  "\n\t\t\t}\n"
                  "\n\t\t}\n"
                  "\t\t,\n"
                  "\t\t{\n"
                  "\t\t\t\"name\": \"both\",\n"
                  "\t\t\t\"nodes\": [\n\t\t\t\t],\n"
                  "\t\t\t\"extensions\": {"
                  "\n\t\t\t\t\"TF_display_states\": { \n"
                  "\t\t\t\t\"A\": { }"
                  "\n\t\t\t\t}," +
                  properties +
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
    document.generalTables = {{}};
    EXPECT_NE(documentText(document).find(endOfLights + "\t\t},\n\t\t\"Tessaforge_general_tables\" : {\n"),
              std::string::npos);
    EXPECT_NE(documentText(document).find("\n\t\t\t]\n\t\t},\n\t\t\"Tessaforge_design_table\" : {\n"),
              std::string::npos);
}

TEST(DocumentWriter, WritesOnlyCamerasWithAnIndexAndAnimationsDeeplyIndented) {
    GltfDocument document;
    addRecord(document.cameras).index = -1;
    EXPECT_NE(documentText(document).find("\t],\n\t\"cameras\": [\n\t],\n\t\"meshes\""), std::string::npos);
    document.scenes.resize(2);
    document.scenes[0].animations = {addRecord(document.animations).index};
    document.scenes[1].animations = {addRecord(document.animations).index};
    const std::string text = documentText(document);
    EXPECT_NE(text.find("\t\t\t\"animations\": [\n\t\t\t\t\t\t\t\t{\n"), std::string::npos);
    EXPECT_NE(text.find("\t\t\t\t},\n\t\t\t\t{\n"), std::string::npos);
    EXPECT_NE(text.find("\t\t\t\t\t]\n\t\t\t\t}\n],\n\t\"meshes\""), std::string::npos);
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
