#include "support/RefusedAllocation.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

constexpr std::int64_t kNever = -1;
std::int64_t allocationsToGo = kNever; ///< until the refused one

bool isRefused() {
    return allocationsToGo >= 0 && allocationsToGo-- == 0;
}

void* unlessNull(void* memory) {
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

} // namespace

// The tests' own `new` of single objects, also for the libraries that they use. Memory comes from `malloc`
// and its like, so that sanitizers see it.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return isRefused() ? nullptr : std::malloc(size);
}

void* operator new(std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
    const std::size_t aligned = std::max(static_cast<std::size_t>(alignment), sizeof(void*));
    return isRefused() ? nullptr : std::aligned_alloc(aligned, (size + aligned - 1) / aligned * aligned);
}

void* operator new(std::size_t size) {
    return unlessNull(operator new(size, std::nothrow));
}

void* operator new(std::size_t size, std::align_val_t alignment) {
    return unlessNull(operator new(size, alignment, std::nothrow));
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::align_val_t) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t, std::align_val_t) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::align_val_t, const std::nothrow_t&) noexcept {
    std::free(memory);
}

namespace orvane {

RefusedAllocation::RefusedAllocation(std::int64_t number) {
    allocationsToGo = number;
}

RefusedAllocation::~RefusedAllocation() {
    allocationsToGo = kNever;
}

bool RefusedAllocation::happened() const {
    return allocationsToGo == kNever;
}

} // namespace orvane
