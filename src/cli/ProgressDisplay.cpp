#include "cli/ProgressDisplay.h"

#include <iostream>
#include <unistd.h>

namespace orvane::cli {

namespace {

constexpr std::chrono::milliseconds kInterval(100);
constexpr std::uint32_t kCallsBetweenClocks = 64;

} // namespace

ProgressDisplay::ProgressDisplay(bool isWanted) : isShown_(isWanted && isatty(STDERR_FILENO) != 0) {}

void ProgressDisplay::showPhase(const std::string& phase) {
    if (isShown_) {
        std::cerr << "\r\x1b[K" << phase << std::flush;
        hasLine_ = true;
    }
}

void ProgressDisplay::listenTo(Progress& progress) {
    if (isShown_) {
        progress.onChange = [this](const Progress& changed) { showCounters(changed); };
    }
}

void ProgressDisplay::clear() {
    if (hasLine_) {
        std::cerr << "\r\x1b[K" << std::flush;
        hasLine_ = false;
    }
}

void ProgressDisplay::showCounters(const Progress& progress) {
    if (++calls_ % kCallsBetweenClocks != 1) {
        return;
    }
    const auto now = std::chrono::steady_clock::now();
    if (now - lastShown_ < kInterval) {
        return;
    }
    lastShown_ = now;
    // The total grows as the export goes, so that it would promise an end that does not come.
    showPhase("exporting: " + std::to_string(progress.doneWork) + " steps done");
}

} // namespace orvane::cli
