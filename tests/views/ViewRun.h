#pragma once

#include "embedded/EmbeddedHost.h"
#include "support/ModelBuilder.h"
#include "views/ViewStorageList.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane {

/// A model that is open, and the list of its views.
struct ViewRun {
    explicit ViewRun(Model model) : host(openEmbeddedHost(std::move(model))) {}

    /// A part of one view and nothing else.
    explicit ViewRun(const ViewRecord& view, std::optional<std::array<double, 6>> box = {})
        : ViewRun(partModel(view, box)) {}

    void build(bool exportCameras = true, bool exportViews = true) {
        list.emplace(ViewOwner{*host, document}, *host->activeDocument(), exportCameras, exportViews,
                     cameraNodes);
    }
    const NodeMatrix& matrix() const { return document.nodes.at(0)->matrix; }
    HostRef<HostView> screen() const { return host->activeDocument()->activeView(); }
    /// The camera nodes in their order: each name with `p` or `o` for the projection of its camera.
    std::vector<std::string> nodeTexts() const {
        std::vector<std::string> texts;
        for (const std::int32_t id : cameraNodes) {
            const GltfNode& node = *document.nodes.at(static_cast<std::size_t>(id));
            const GltfCamera& camera = *document.cameras.at(static_cast<std::size_t>(node.camera));
            texts.push_back(node.name + (camera.isPerspective ? ":p" : ":o"));
        }
        return texts;
    }

    static Model partModel(const ViewRecord& view, std::optional<std::array<double, 6>> box) {
        ModelBuilder builder;
        ModelDocument& part = builder.part(u"p.tfgprt", {});
        part.view = view;
        part.box = box;
        return builder.take();
    }

    HostRef<HostApplication> host;
    GltfDocument document;
    std::vector<std::int32_t> cameraNodes;
    std::optional<ViewStorageList> list;
};

} // namespace orvane
