#include "document/Progress.h"

namespace orvane {

namespace {

void notify(const Progress& progress) {
    if (progress.onChange) {
        progress.onChange(progress);
    }
}

} // namespace

void progressBegin(Progress& progress) {
    progress.totalWork = 0;
    progress.doneWork = 0;
    notify(progress);
}

void progressAddTotal(Progress& progress, std::int32_t count) {
    progress.totalWork += count;
    notify(progress);
}

void progressAddDone(Progress& progress, std::int32_t count) {
    progress.doneWork += count;
    notify(progress);
}

void progressEnd(Progress& progress) {
    notify(progress);
}

} // namespace orvane
