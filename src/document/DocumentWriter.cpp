#include "document/DocumentWriter.h"

#include "document/AnimationWriter.h"
#include "document/CameraLightWriters.h"
#include "document/ExtensionWriters.h"
#include "document/MaterialWriter.h"
#include "document/MeshWriters.h"
#include "document/NodeWriter.h"
#include "document/TextureWriters.h"

#include <string_view>

namespace orvane {

namespace {

/// Writes records with `separator` between them and `end` behind the last one, and counts each as done.
template <class Records, class Writer>
void writeAll(TextStream& out, Progress& progress, const Records& records, std::string_view separator,
              std::string_view end, Writer writeRecord) {
    progressAddTotal(progress, static_cast<std::int32_t>(records.size()));
    for (std::size_t i = 0; i < records.size(); ++i) {
        writeRecord(*records[i]);
        out << (i + 1 < records.size() ? separator : end);
        out.drainIfLarge();
        progressAddDone(progress, 1);
    }
}

/// A section of the usual form: its opening line, the records, and a closing bracket.
template <class Records, class Writer>
void writeSection(TextStream& out, Progress& progress, std::string_view opening, const Records& records,
                  Writer writeRecord) {
    out << opening;
    writeAll(out, progress, records, ",\n", "\n", writeRecord);
    out << "\t],\n";
}

void writeSceneExtensions(TextStream& out, const GltfScene& scene) {
    out << ",\n"
        << "\t\t\t\"extensions\": {";
    if (!scene.displayStates.empty()) {
        out << "\n\t\t\t\t\"TF_display_states\": { \n";
        for (std::size_t i = 0; i < scene.displayStates.size(); ++i) {
            out << (i > 0 ? ",\n" : "") << "\t\t\t\t\"" << scene.displayStates[i] << "\": { }";
        }
        out << "\n\t\t\t\t}" << (scene.customProperties.empty() ? "" : ",");
    }
    if (!scene.customProperties.empty()) {
        out << "\n\t\t\t\t\"Tessaforge_custom_properties\": { \n";
        document::writeCustomProperties(out, scene.customProperties);
        out << "\t\t\t\t}";
    }
    out << "\n\t\t\t}\n";
}

void writeScene(TextStream& out, const GltfScene& scene) {
    out << "\t\t{\n"
        << "\t\t\t\"name\": \"" << scene.name << "\",\n"
        << "\t\t\t\"nodes\": [\n\t\t\t\t";
    for (std::size_t i = 0; i < scene.nodes.size(); ++i) {
        out << (i > 0 ? ", " : "") << scene.nodes[i];
    }
    out << "]";
    if (!scene.displayStates.empty() || !scene.customProperties.empty()) {
        writeSceneExtensions(out, scene);
    }
    out << "\n\t\t}\n";
}

void writeScenes(TextStream& out, const GltfDocument& document, Progress& progress) {
    out << "\t\"scenes\": [\n";
    progressAddTotal(progress, static_cast<std::int32_t>(document.scenes.size()));
    for (std::size_t i = 0; i < document.scenes.size(); ++i) {
        out << (i > 0 ? "\t\t,\n" : "");
        writeScene(out, document.scenes[i]);
        out.drainIfLarge();
        progressAddDone(progress, 1);
    }
    out << "\t],\n";
}

void writeNodes(TextStream& out, const GltfDocument& document, Progress& progress) {
    out << "\t\"nodes\": [\n";
    writeAll(out, progress, document.nodes, ",\n", "",
             [&](const GltfNode& node) { writeNode(out, document, node); });
    out << "\t],\n";
}

void writeCameras(TextStream& out, const GltfDocument& document, Progress& progress) {
    if (document.cameras.empty()) {
        return;
    }
    std::vector<const GltfCamera*> cameras;
    for (const auto& camera : document.cameras) {
        if (camera->index >= 0) {
            cameras.push_back(camera.get());
        }
    }
    out << "\t\"cameras\": [\n";
    writeAll(out, progress, cameras, ",\n", "",
             [&](const GltfCamera& camera) { document::writeCamera(out, camera); });
    out << "\t],\n";
}

/// The comma behind the lights depends on the general tables alone: with lights and a design table only,
/// there is none (docs/output-format.md, "Lights and a design table").
void writeExtensions(TextStream& out, const GltfDocument& document, Progress& progress) {
    if (document.lights.empty() && document.generalTables.empty() && !document.designTable) {
        return;
    }
    out << "\t\"extensions\": {\n";
    if (!document.lights.empty()) {
        out << "\t\t\"KHR_lights_punctual\" : {\n"
            << "\t\t\t\"lights\": [\n";
        writeAll(out, progress, document.lights, ",\n", "",
                 [&](const GltfLight& light) { document::writeLight(out, light); });
        out << "\n\t\t\t]\n" << (document.generalTables.empty() ? "\t\t}\n" : "\t\t},\n");
    }
    if (!document.generalTables.empty()) {
        out << "\t\t\"Tessaforge_general_tables\" : {\n";
        document::writeGeneralTables(out, document.generalTables);
        out << (document.designTable ? "\t\t},\n" : "\t\t}\n");
    }
    if (document.designTable) {
        out << "\t\t\"Tessaforge_design_table\" : {\n";
        document::writeDesignTable(out, *document.designTable);
        out << "\t\t}\n";
    }
    out << "\t},\n";
}

void writeAnimations(TextStream& out, const GltfDocument& document, Progress& progress) {
    std::vector<const GltfAnimation*> animations;
    for (const GltfScene& scene : document.scenes) {
        for (const std::int32_t animation : scene.animations) {
            animations.push_back(document.animations[static_cast<std::size_t>(animation)].get());
        }
    }
    if (animations.empty()) {
        return;
    }
    out << "\t\t\t\"animations\": [\n\t\t\t\t";
    writeAll(out, progress, animations, ",\n", "\n",
             [&](const GltfAnimation& animation) { document::writeAnimation(out, animation); });
    out << "],\n";
}

} // namespace

void writeDocumentHead(TextStream& out, std::int32_t activeScene) {
    out << "{\n"
        << "\t\"asset\": {\n"
        << "\t\t\"generator\": \"TESSAFORGEGLTF\",\n"
        << "\t\t\"version\" : \"2.0\"\n"
        << "\t},\n"
        << "\"extensionsUsed\": [ \"KHR_lights_punctual\", \"Tessaforge_custom_properties\" ],\n"
        << "\t\"scene\" : " << activeScene << ",\n";
}

void writeDocument(TextStream& out, const GltfDocument& document, Progress& progress) {
    writeScenes(out, document, progress);
    writeNodes(out, document, progress);
    writeCameras(out, document, progress);
    writeExtensions(out, document, progress);
    writeAnimations(out, document, progress);
    writeSection(out, progress, "\t\"meshes\" : [\n", document.meshes,
                 [&](const GltfMesh& mesh) { document::writeMesh(out, mesh); });
    writeSection(out, progress, "\t\"accessors\" : [\n", document.accessors,
                 [&](const GltfAccessor& accessor) { document::writeAccessor(out, accessor); });
    writeSection(out, progress, "\t\"materials\": [\n", document.materials,
                 [&](const GltfMaterial& material) { document::writeMaterial(out, material); });
    if (!document.textures.empty()) {
        writeSection(out, progress, "\t\"textures\": [\n", document.textures,
                     [&](const GltfTexture& texture) { document::writeTexture(out, document, texture); });
    }
    if (!document.images.empty()) {
        writeSection(out, progress, "\t\"images\": [\n", document.images,
                     [&](const GltfImage& image) { document::writeImage(out, image); });
    }
    if (!document.samplers.empty()) {
        writeSection(out, progress, "\t\"samplers\": [\n", document.samplers,
                     [&](const GltfSampler& sampler) { document::writeSampler(out, sampler); });
    }
    writeSection(out, progress, "\t\"bufferViews\" : [\n", document.bufferViews,
                 [&](const GltfBufferView& view) { document::writeBufferView(out, view); });
    out << "\t\"buffers\" : [\n";
    writeAll(out, progress, document.buffers, ",\n", "\n",
             [&](const GltfBuffer& buffer) { document::writeBuffer(out, buffer); });
    out << "\t]\n";
}

} // namespace orvane
