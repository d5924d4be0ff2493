#pragma once

#include "document/GltfDocument.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orvane::views {

/// A new camera and the node that carries it.
struct CameraRecords {
    GltfCamera& camera;
    GltfNode& node;
};

/// Appends both to the document, and the node's id to `cameraNodes`.
CameraRecords addCameraRecords(GltfDocument& document, const std::string& name,
                               std::vector<std::int32_t>& cameraNodes);

} // namespace orvane::views
