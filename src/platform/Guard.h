#pragma once

#include <functional>

namespace orvane::platform {

/// Runs `work`, which reads data that nobody vouches for with a library that may not bear it, so that neither
/// a crash nor an endless run nor a hunger for memory can harm this process. Gives what `work` gives (0 to
/// 100), or `failed` (the same range) when it was ended. On Linux the work runs in a child process with one
/// GiB of memory of its own and a minute of processor time: what it changes in memory is lost, what it writes
/// to files stays.
int runGuarded(const std::function<int()>& work, int failed);

} // namespace orvane::platform
