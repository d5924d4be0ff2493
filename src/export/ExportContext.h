#pragma once

#include "animation/MotionScene.h"
#include "appearance/AppearanceTable.h"
#include "document/GltfDocument.h"
#include "document/MeshBuffers.h"
#include "export/ExportOptions.h"
#include "geometry/ModelBounds.h"
#include "host/HostApplication.h"

#include <optional>
#include <string>

namespace orvane {

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
    std::optional<NodeOrigins> nodeOrigins{}; ///< of the present scene, while animations are to come
    AnimationFiles animationFiles{};
};

} // namespace orvane
