#pragma once

#include <cstdint>
#include <functional>

namespace orvane {

/// Two counters that an export moves on as it works, and what it is at. The export itself shows nothing; a
/// front end may listen.
struct Progress {
    enum class Phase {
        building, ///< records from the host, and the buffers of their triangles
        writing   ///< pictures, the text, and the files put in place
    };
    Phase phase = Phase::building;
    std::int32_t totalWork = 0;
    std::int32_t doneWork = 0;
    std::function<void(const Progress&)> onChange; ///< called after every change; must not throw
};

void progressBegin(Progress& progress);
void progressBeginWriting(Progress& progress);
void progressAddTotal(Progress& progress, std::int32_t count);
void progressAddDone(Progress& progress, std::int32_t count);
void progressEnd(Progress& progress);

} // namespace orvane
