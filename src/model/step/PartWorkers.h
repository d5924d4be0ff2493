#pragma once

#include "model/step/PartTransfer.h"
#include "model/step/ReaderProcess.h"

#include <vector>

namespace orvane::step {

/// Has every job done by processes forked from this one, which share what it has parsed, and sends each part,
/// or why there is none. A process that dies costs the part that it is at; another goes on with the rest.
void runPartWorkers(const ReaderTask& task, const ParsedStepFile& parsed, const std::vector<PartJob>& jobs,
                    ReaderChannel& channel);

} // namespace orvane::step
