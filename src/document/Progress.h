#pragma once

#include <cstdint>
#include <functional>

namespace orvane {

/// Two counters that an export moves on as it works. The export itself shows nothing; a front end may listen.
struct Progress {
    std::int32_t totalWork = 0;
    std::int32_t doneWork = 0;
    std::function<void(const Progress&)> onChange; ///< called after every change; must not throw
};

void progressBegin(Progress& progress);
void progressAddTotal(Progress& progress, std::int32_t count);
void progressAddDone(Progress& progress, std::int32_t count);
void progressEnd(Progress& progress);

} // namespace orvane
