#include "platform/Memory.h"

#include <cstdlib>
#include <sys/mman.h>

namespace orvane {

namespace {

constexpr std::size_t kLargePage = std::size_t{2} << 20;

} // namespace

void* allocateMemory(std::size_t bytes) noexcept {
    if (bytes < 2 * kLargePage) {
        return std::malloc(bytes);
    }
    const std::size_t rounded = (bytes + kLargePage - 1) / kLargePage * kLargePage;
    void* memory = std::aligned_alloc(kLargePage, rounded);
    if (memory) {
        madvise(memory, rounded, MADV_HUGEPAGE);
    }
    return memory;
}

void freeMemory(void* memory) noexcept {
    std::free(memory);
}

} // namespace orvane
