#pragma once

#include "model/records/MeshingOptions.h"
#include "model/step/PartTransfer.h"
#include "model/step/StepRecords.h"

namespace orvane::step {

/// Seconds by the clock.
struct PartTimes {
    double transferring = 0;
    double meshing = 0;
};

/// Transfers and meshes one product of a parsed file. Throws what the kernel throws.
StepPart readPart(const ParsedStepFile& parsed, const PartJob& job, const MeshingOptions& options,
                  bool inParallel, PartTimes& times);

} // namespace orvane::step
