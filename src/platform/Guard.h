#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace orvane::platform {

/// What became of work in a guarded process.
struct GuardedOutcome {
    bool isDone = false;
    /// What the work gave, cut after 4095 bytes; why it could not begin, in the system's words; empty when it
    /// was ended.
    std::string text;
};

/// Runs `work`, which reads data that nobody vouches for with a library that may not bear it, so that neither
/// a crash nor an endless run nor a hunger for memory can harm this process. On Linux the work runs in a
/// child process with `memory` bytes and a GiB of its own, a minute of processor time and ten minutes by the
/// clock: what it changes in memory is lost, what it writes to files stays. The child ends with the thread
/// that waits for it, and the signals that end programs end it, whatever this process does about them.
GuardedOutcome runGuarded(const std::function<std::string()>& work, std::int64_t memory);

} // namespace orvane::platform
