#pragma once

#include <cstddef>

namespace orvane {

/// Memory of any content, aligned for every plain type; null when there is none. Large amounts come in the
/// system's large pages where it has them, since touching millions of small ones for the first time costs
/// more than filling them.
void* allocateMemory(std::size_t bytes) noexcept;

/// Gives back what `allocateMemory` gave.
void freeMemory(void* memory) noexcept;

} // namespace orvane
