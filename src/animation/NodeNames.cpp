#include "animation/NodeNames.h"

#include "document/AsciiNames.h"

#include <vector>

namespace orvane {

NodeNames::NodeNames(const GltfDocument& document, const GltfScene& scene) {
    std::vector<std::int32_t> waiting(scene.nodes.rbegin(), scene.nodes.rend());
    while (!waiting.empty()) {
        const GltfNode& node = *document.nodes[static_cast<std::size_t>(waiting.back())];
        waiting.pop_back();
        if (node.camera < 0 && node.light < 0) {
            ids_.try_emplace(node.fullName, node.id);
        }
        waiting.insert(waiting.end(), node.children.rbegin(), node.children.rend());
    }
}

std::int32_t NodeNames::findNodeForComponent(const HostComponent& component) const {
    const auto found = ids_.find(toAsciiPath(component.componentName()));
    return found == ids_.end() ? -1 : found->second;
}

} // namespace orvane
