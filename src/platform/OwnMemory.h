#pragma once

#include <cstdint>

namespace orvane {

/// The most memory of this process that was in the machine at once since its program began, in bytes; 0 where
/// the system does not tell.
std::uint64_t ownPeakMemory();

} // namespace orvane
