#pragma once

#include "document/Progress.h"
#include "model/records/ReadingOptions.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvane::cli {

/// What is told of the reading of a file, behind its name: `: 12.3 of 38.0 MB`.
std::string readingText(const ReadingProgress& progress);

/// One line on standard error that tells how far the work is, changed at most ten times a second; nothing
/// where that is no terminal. Its functions throw nothing: without memory for a line the last one stays.
class ProgressDisplay {
public:
    explicit ProgressDisplay(bool isWanted);
    ProgressDisplay(const ProgressDisplay&) = delete;
    ProgressDisplay& operator=(const ProgressDisplay&) = delete;
    ~ProgressDisplay() { clear(); }

    bool isShown() const { return isShown_; }
    /// That a model is about to be read.
    void showStart(const std::string& model) noexcept;
    void showReading(const ReadingProgress& progress) noexcept;
    void showExport(const Progress& progress) noexcept;
    /// Takes the line away.
    void clear() noexcept;

private:
    template <class MakeLine>
    void show(MakeLine makeLine) noexcept;
    bool isDue();

    bool isShown_;
    bool hasLine_ = false;
    std::uint32_t calls_ = 0;
    std::chrono::steady_clock::time_point lastShown_{};
};

} // namespace orvane::cli
