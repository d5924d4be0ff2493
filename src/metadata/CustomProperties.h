#pragma once

#include "document/GltfRecords.h"
#include "host/HostConfiguration.h"

namespace orvane {

/// Appends the custom properties of a configuration to its scene, in the host's order. Types that have no
/// name are kept.
void collectCustomProperties(const HostConfiguration& configuration, GltfScene& scene);

} // namespace orvane
