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

/// Runs `work`, which reads data that nobody vouches for, in a `GuardedProcess` with `memory` bytes and a GiB
/// of its own, a minute of processor time and ten minutes by the clock.
GuardedOutcome runGuarded(const std::function<std::string()>& work, std::int64_t memory);

} // namespace orvane::platform
