#pragma once

#include "embedded/EmbeddedHost.h"
#include "export/OrvaneExporter.h"
#include "support/ModelBuilder.h"
#include "support/TemporaryFolder.h"

#include <nlohmann/json.hpp>

#include <functional>
#include <string>
#include <vector>

namespace orvane {

/// Exports models into a folder of its own.
class ExportRun {
public:
    explicit ExportRun(Model model) : host(openEmbeddedHost(std::move(model))), exporter({.host = *host}) {}

    /// Exports as `name`, and gives the text of the `.gltf` or the whole `.glb`; empty when nothing was
    /// written.
    std::string run(const std::string& name) {
        exporter.setRequest({.exportPath = folder / name});
        exporter.exportActiveDocument();
        const std::string& written = exporter.report().writtenFile;
        return written.empty() ? std::string() : readFile(written);
    }

    /// The result of a text export as a strict reader sees it.
    nlohmann::json json() { return nlohmann::json::parse(run("x.gltf")); }

    TemporaryFolder folder;
    HostRef<HostApplication> host;
    COrvaneExporter exporter;
};

/// One line for each node: its name, `:` and the mesh if it has one, and its children in brackets.
inline std::string treeText(const nlohmann::json& gltf, const nlohmann::json& ids) {
    std::string text;
    for (const auto& id : ids) {
        const auto& node = gltf["nodes"][id.get<std::size_t>()];
        text += (text.empty() ? "" : " ") + node["name"].get<std::string>();
        if (node.contains("mesh")) {
            text += ":" + std::to_string(node["mesh"].get<int>());
        }
        if (node.contains("children")) {
            text += "[" + treeText(gltf, node["children"]) + "]";
        }
    }
    return text;
}

/// The scenes by name with their trees, in order.
inline std::vector<std::string> sceneTexts(const nlohmann::json& gltf) {
    std::vector<std::string> texts;
    for (const auto& scene : gltf["scenes"]) {
        texts.push_back(scene["name"].get<std::string>() + " = " + treeText(gltf, scene["nodes"]));
    }
    return texts;
}

} // namespace orvane
