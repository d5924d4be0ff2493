#pragma once

#include "model/records/MeshingOptions.h"

#include <cstdint>
#include <functional>
#include <string>

namespace orvane {

/// How far the reading of one STEP file has come.
struct ReadingProgress {
    enum class Stage { parsing, building, findingParts, meshing };
    Stage stage = Stage::parsing;
    std::uint64_t done = 0; ///< bytes parsed, or parts done
    std::uint64_t of = 0;   ///< bytes of the file, or all of its parts; 0 where the stage has no such end
    std::string file;       ///< as it is named to a person
};

/// What reading STEP files cost so far.
struct ReadingCosts {
    double parsing = 0;      ///< seconds by the clock, finding the products included
    double transferring = 0; ///< seconds of all workers together
    double meshing = 0;      ///< seconds of all workers together
    std::uint64_t peakMemory =
        0; ///< of this process and those that read, together, in bytes; what they share
           ///< counts once. Followed only where `ReadingOptions::followsMemory` says so
};

/// How a model is read.
struct ReadingOptions {
    MeshingOptions meshing;
    unsigned jobs = 0; ///< processes that work on a STEP file's parts at once; 0: as many as there are cores
    bool followsMemory = false;
    std::function<void(const ReadingProgress&)>
        onProgress;                ///< called some ten times a second; must not throw
    ReadingCosts* costs = nullptr; ///< added to, where given
};

} // namespace orvane
