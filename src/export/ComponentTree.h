#pragma once

#include "export/ExportContext.h"

#include <cstdint>
#include <vector>

namespace orvane::exporter {

/// A node whose children are being built.
struct ParentNode {
    std::int32_t id;
    HostRef<HostTransform> world; ///< its placement in the root's space; empty where it has none
    GltfMaterial* material; ///< of its own component or of the nearest one above it that has one, or null
};

/// The placement that a component answers, or its fallback; empty where it has neither.
HostRef<HostTransform> placementOf(const HostComponent& component);

/// Turns a component and everything below it into nodes, depth first, or a part into one node. Every
/// component becomes a node; triangles only go into those that are loaded, not suppressed and not hidden,
/// each judged by its own flags. `component` may be empty, and `part` is set then. The new node's id is
/// appended to `nodeList`; `parent` is null at the top. Ends early when the export has failed.
void buildComponentTree(ExportContext& context, const HostRef<HostComponent>& component,
                        const HostRef<HostPart>& part, std::vector<std::int32_t>& nodeList,
                        const ParentNode* parent);

} // namespace orvane::exporter
