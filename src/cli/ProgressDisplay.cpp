#include "cli/ProgressDisplay.h"

#include "cli/DecimalText.h"
#include "cli/TerminalLine.h"

#include <algorithm>
#include <iostream>
#include <new>

namespace orvane::cli {

namespace {

constexpr std::chrono::milliseconds kInterval(100);
constexpr std::uint32_t kCallsBetweenClocks = 64;

std::string inMegabytes(std::uint64_t bytes) {
    return decimalText(static_cast<double>(bytes) / 1e6, 1);
}

} // namespace

std::string readingText(const ReadingProgress& progress) {
    using Stage = ReadingProgress::Stage;
    switch (progress.stage) {
    case Stage::parsing:
        return progress.of == 0
                   ? ": parsing"
                   : ": " + inMegabytes(progress.done) + " of " + inMegabytes(progress.of) + " MB";
    case Stage::building:
        return ": building records";
    case Stage::findingParts:
        return ": finding parts";
    case Stage::meshing:
        break;
    }
    // The part that is next, so that a file of a single large part does not stand at none.
    return progress.of == 0 ? ": making triangles"
                            : ": part " + std::to_string(std::min(progress.done + 1, progress.of)) + " of " +
                                  std::to_string(progress.of);
}

ProgressDisplay::ProgressDisplay(bool isWanted) : isShown_(isWanted && isTerminalThere()) {}

void ProgressDisplay::showStart(const std::string& model) noexcept {
    if (isShown_ && isDue()) {
        show([&](std::size_t columns) { return terminalLine("reading ", model, "", columns); });
    }
}

void ProgressDisplay::showReading(const ReadingProgress& progress) noexcept {
    if (isShown_ && isDue()) {
        show([&](std::size_t columns) {
            return terminalLine("reading ", progress.file, readingText(progress), columns);
        });
    }
}

void ProgressDisplay::showExport(const Progress& progress) noexcept {
    // Called far more often than a line is due.
    if (!isShown_ || ++calls_ % kCallsBetweenClocks != 1 || !isDue()) {
        return;
    }
    // The total grows as the export goes, so that it would promise an end that does not come.
    const char* phase = progress.phase == Progress::Phase::writing ? "writing: " : "building: ";
    show([&](std::size_t columns) {
        return terminalLine(phase, "", std::to_string(progress.doneWork) + " steps done", columns);
    });
}

void ProgressDisplay::clear() noexcept {
    if (hasLine_) {
        std::cerr << "\r\x1b[K" << std::flush;
        hasLine_ = false;
    }
}

/// `makeLine` gets the columns that the line may take: all but the last one, behind which some terminals go
/// on to the next line at once.
template <class MakeLine>
void ProgressDisplay::show(MakeLine makeLine) noexcept {
    try {
        // In one piece, so that no half of it is seen.
        std::cerr << "\r\x1b[K" + makeLine(std::max<std::size_t>(terminalColumns(), 2) - 1) << std::flush;
        hasLine_ = true;
    } catch (const std::bad_alloc&) {
        return;
    }
}

/// Whether a line may be shown now; if so, the next one has to wait.
bool ProgressDisplay::isDue() {
    const auto now = std::chrono::steady_clock::now();
    if (now - lastShown_ < kInterval) {
        return false;
    }
    lastShown_ = now;
    return true;
}

} // namespace orvane::cli
