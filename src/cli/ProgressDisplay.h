#pragma once

#include "document/Progress.h"

#include <chrono>
#include <cstdint>
#include <string>

namespace orvane::cli {

/// One line on standard error that tells how far the work is; nothing where that is no terminal.
class ProgressDisplay {
public:
    explicit ProgressDisplay(bool isWanted);
    ProgressDisplay(const ProgressDisplay&) = delete;
    ProgressDisplay& operator=(const ProgressDisplay&) = delete;
    ~ProgressDisplay() { clear(); }

    void showPhase(const std::string& phase);
    /// Follows the counters until the end of their or its own life.
    void listenTo(Progress& progress);
    /// Takes the line away.
    void clear();

private:
    void showCounters(const Progress& progress);

    bool isShown_;
    bool hasLine_ = false;
    std::uint32_t calls_ = 0;
    std::chrono::steady_clock::time_point lastShown_{};
};

} // namespace orvane::cli
