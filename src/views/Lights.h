#pragma once

#include "document/GltfDocument.h"
#include "host/HostApplication.h"

namespace orvane {

/// Appends every spot, point and directional light of the document in front, with a node for each, to
/// `document`, and the nodes to the top of `scene`. Lights that are off are no exception. Called again for
/// another scene, it makes another light and node of each.
void exportLights(HostApplication& host, GltfDocument& document, GltfScene& scene);

} // namespace orvane
