#pragma once

#include "model/records/MeshingOptions.h"
#include "platform/GuardedProcess.h"

#include <cstdint>

namespace orvane::step {

/// What a process that runs the kernel may take for a file of `fileSize` bytes: memory and processor time in
/// step with it, far beyond what sound files need, and never more memory than half of the machine's. Where a
/// person has chosen how fine the triangles are, any file may take that half, and ten minutes for each part.
platform::GuardLimits kernelLimits(std::uint64_t fileSize, const MeshingOptions& meshing);

} // namespace orvane::step
