#include "views/CameraRecords.h"

namespace orvane::views {

CameraRecords addCameraRecords(GltfDocument& document, const std::string& name,
                               std::vector<std::int32_t>& cameraNodes) {
    GltfCamera& camera = addRecord(document.cameras);
    GltfNode& node = addRecord(document.nodes);
    node.name = name;
    node.camera = camera.index;
    cameraNodes.push_back(node.id);
    return {camera, node};
}

} // namespace orvane::views
