#pragma once

#include "animation/MotionScene.h"
#include "appearance/AppearanceTable.h"
#include "document/GltfDocument.h"
#include "document/MeshBuffers.h"
#include "export/ExportOptions.h"
#include "geometry/ModelBounds.h"
#include "host/HostApplication.h"
#include "metadata/Comments.h"

#include <optional>
#include <string>
#include <vector>

namespace orvane::exporter {

/// What the steps of one export share.
struct ExportContext {
    HostApplication& host;
    HostRef<HostModelDoc> modelDoc;
    bool isAssembly = false;
    const ExportOptions& options;
    GltfDocument& document;
    ExportReport& report;
    MeshBufferTarget meshBuffers;
    AppearanceTable& appearances;
    std::u16string title; ///< of the document; the name of a part's node
    HostRef<HostTransform>
        rootTransform; ///< by which every placement below the root is multiplied; one for each scene
    std::optional<ModelBounds> modelBounds;   ///< of the present scene, once they were asked for
    NodeDocuments nodeDocuments;              ///< of the nodes of the present scene
    std::vector<std::int32_t> cameraNodes;    ///< nodes of views and cameras, the first ones of every scene
    std::optional<NodeOrigins> nodeOrigins{}; ///< of the present scene, while animations are to come
    AnimationFiles animationFiles{};
};

} // namespace orvane::exporter
