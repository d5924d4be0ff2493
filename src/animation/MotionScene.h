#pragma once

#include "animation/ChannelBuffers.h"
#include "animation/NodeNames.h"
#include "document/GltfDocument.h"
#include "host/HostApplication.h"

#include <cstdint>
#include <unordered_map>

namespace orvane {

/// What a node of a component was built from.
struct NodeOrigin {
    HostRef<HostComponent> component;
    HostRef<HostTransform> world; ///< its placement in the root's space; empty where it has none
};

/// By node id.
using NodeOrigins = std::unordered_map<std::int32_t, NodeOrigin>;

/// A scene whose node tree is complete, and everything that animating it takes.
struct MotionScene {
    HostApplication& host;
    HostModelDoc& modelDoc;
    const HostConfiguration& configuration; ///< the one that the scene shows
    HostRef<HostTransform> rootTransform; ///< by which every placement below the root is multiplied, or empty
    const NodeOrigins& origins;
    const NodeNames& nodeNames;
    GltfDocument& document;
    GltfScene& scene; ///< not yet among those of the document
    ChannelTarget buffers;
};

} // namespace orvane
