#include "document/Progress.h"

#include <algorithm>
#include <limits>

namespace orvane {

namespace {

void notify(const Progress& progress) {
    if (progress.onChange) {
        progress.onChange(progress);
    }
}

/// The counters stop at their ends: a long animation has more keys than they can count.
void add(std::int32_t& counter, std::int32_t count) {
    using Limits = std::numeric_limits<std::int32_t>;
    counter = static_cast<std::int32_t>(
        std::clamp<std::int64_t>(std::int64_t{counter} + count, Limits::min(), Limits::max()));
}

} // namespace

void progressBegin(Progress& progress) {
    progress.phase = Progress::Phase::building;
    progress.totalWork = 0;
    progress.doneWork = 0;
    notify(progress);
}

void progressBeginWriting(Progress& progress) {
    progress.phase = Progress::Phase::writing;
    notify(progress);
}

void progressAddTotal(Progress& progress, std::int32_t count) {
    add(progress.totalWork, count);
    notify(progress);
}

void progressAddDone(Progress& progress, std::int32_t count) {
    add(progress.doneWork, count);
    notify(progress);
}

void progressEnd(Progress& progress) {
    notify(progress);
}

} // namespace orvane
