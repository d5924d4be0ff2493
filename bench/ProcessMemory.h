#pragma once

#include <cstdint>

namespace orvane {

/// Memory of this process that is in the machine now, in bytes.
std::int64_t residentMemory();

/// The most that was in the machine since the start, or since the last `resetPeakMemory`, in bytes.
std::int64_t peakMemory();

void resetPeakMemory();

/// Touches and frees memory once, so that no timing pays for pages that the machine has given back.
void warmMemory();

} // namespace orvane
