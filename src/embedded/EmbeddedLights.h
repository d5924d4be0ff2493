#pragma once

#include "host/HostLight.h"
#include "model/records/ModelRecords.h"

namespace orvane::embedded {

/// A light in the host's own layout.
PackedData packedLight(const LightRecord& light);

} // namespace orvane::embedded
