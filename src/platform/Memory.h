#pragma once

#include <memory_resource>

namespace orvane {

/// Memory for large amounts of numbers. From a few MiB on it comes in the system's large pages where it has
/// them, since touching millions of small ones for the first time costs more than filling them. Throws
/// `std::bad_alloc` like any memory resource.
std::pmr::memory_resource& largePageMemory();

} // namespace orvane
