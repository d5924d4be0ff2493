#pragma once

#include "model/step/PartTransfer.h"
#include "model/step/StepRecords.h"

#include <vector>

namespace orvane::step {

/// The structure of a file, and what has to be done for its shapes.
struct TreeAndJobs {
    StepTree tree;
    std::vector<PartJob> jobs; ///< by the numbers of the tree's parts
};

/// Takes the structure out of the kernel's document.
TreeAndJobs describeTree(const StepDocument& step, const Interface_Graph& graph);

} // namespace orvane::step
