#pragma once

#include <cstdint>

namespace orvane::platform {

/// Bytes of memory that a process holds now; what it shares with others counts to the part that falls to it.
/// 0 where there is no such process.
std::int64_t memoryUse(std::int64_t process);

/// The same of this process.
std::int64_t memoryUse();

} // namespace orvane::platform
