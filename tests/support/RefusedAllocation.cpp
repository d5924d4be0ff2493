#include "support/RefusedAllocation.h"

#include <cstdlib>
#include <new>

namespace {

constexpr std::int64_t kNever = -1;
std::int64_t allocationsToGo = kNever; ///< until the refused one

} // namespace

// The tests' own `new` of single objects, also for the libraries that they use. Memory comes from `malloc`,
// so that sanitizers see it.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return allocationsToGo >= 0 && allocationsToGo-- == 0 ? nullptr : std::malloc(size);
}

void* operator new(std::size_t size) {
    void* memory = operator new(size, std::nothrow);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
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
