#pragma once

#include "embedded/ModelRecords.h"
#include "host/HostLight.h"

namespace orvane {

/// A light in the host's own layout.
PackedData packedLight(const LightRecord& light);

} // namespace orvane
