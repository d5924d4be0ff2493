#include "platform/Memory.h"

#include <cstddef>
#include <new>
#include <sys/mman.h>

namespace orvane {

namespace {

constexpr std::size_t kLargePage = std::size_t{2} << 20;

bool isLarge(std::size_t bytes) {
    return bytes >= 2 * kLargePage;
}

class LargePageMemory final : public std::pmr::memory_resource {
    void* do_allocate(std::size_t bytes, std::size_t alignment) override {
        if (!isLarge(bytes)) {
            return ::operator new(bytes, std::align_val_t(alignment));
        }
        const std::size_t rounded = (bytes + kLargePage - 1) / kLargePage * kLargePage;
        void* memory = ::operator new(rounded, std::align_val_t(kLargePage));
        madvise(memory, rounded, MADV_HUGEPAGE);
        return memory;
    }

    void do_deallocate(void* memory, std::size_t bytes, std::size_t alignment) override {
        ::operator delete(memory, std::align_val_t(isLarge(bytes) ? kLargePage : alignment));
    }

    bool do_is_equal(const std::pmr::memory_resource& other) const noexcept override {
        return this == &other;
    }
};

} // namespace

std::pmr::memory_resource& largePageMemory() {
    static LargePageMemory memory;
    return memory;
}

} // namespace orvane
