#pragma once

#include "document/GltfDocument.h"
#include "host/HostComponent.h"

#include <cstdint>
#include <string_view>
#include <unordered_map>

namespace orvane {

/// The nodes of a scene by full name. Of several nodes of one name, the first one depth first among the
/// scene's root nodes is found. Nodes of cameras and lights are none that a component could mean.
class NodeNames {
public:
    /// The names stay those of `document`, whose nodes keep theirs as long as the object lives.
    NodeNames(const GltfDocument& document, const GltfScene& scene);

    /// The id of the node, by the folded name of the component; -1 where there is none.
    std::int32_t findNodeForComponent(const HostComponent& component) const;

private:
    std::unordered_map<std::string_view, std::int32_t> ids_;
};

} // namespace orvane
