#pragma once

#include "model/records/MeshingOptions.h"
#include "model/step/ReaderChannel.h"
#include "platform/GuardedProcess.h"

#include <filesystem>

/// The work of a process that was forked to read one STEP file, and tells what it found through `channel`.
namespace orvane::step {

/// What is to be read, and with what means.
struct ReaderTask {
    std::filesystem::path file; ///< absolute
    MeshingOptions meshing;
    unsigned jobs = 1;            ///< workers at the same time, at most `kMostJobs`
    platform::GuardLimits limits; ///< of each worker
};

/// Reads the structure of the file, then has its parts transferred and meshed by workers forked from here.
void readAsProducts(const ReaderTask& task, ReaderChannel& channel);

/// Reads the file as the faces of one shape: those of all its solids, placed as the file places them.
void readAsOneShape(const ReaderTask& task, ReaderChannel& channel);

} // namespace orvane::step
