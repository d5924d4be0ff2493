#include "platform/RecycledMemory.h"

#include <bit>
#include <new>

namespace orvane {

namespace {

// Four classes for each doubling, so that a block is at most a quarter larger than what was asked for.
constexpr std::size_t kSteps = 4;
constexpr std::size_t kSmallest = 64;
constexpr std::size_t kLargest = 64 * 1024;
constexpr std::size_t kAlignment = alignof(std::max_align_t);

bool isRecycled(std::size_t bytes, std::size_t alignment) {
    return bytes <= kLargest && alignment <= kAlignment;
}

/// Bytes of the blocks of a class: 64, 80, 96, 112, 128, 160 and so on.
constexpr std::size_t classSize(std::size_t sizeClass) {
    return (kSmallest / kSteps * (kSteps + sizeClass % kSteps)) << (sizeClass / kSteps);
}

/// The first class whose blocks hold so many bytes.
constexpr std::size_t classOf(std::size_t bytes) {
    if (bytes <= kSmallest) {
        return 0;
    }
    const auto doublings = static_cast<std::size_t>(std::bit_width((bytes - 1) / kSmallest)) - 1;
    const std::size_t step = (kSmallest / kSteps) << doublings;
    return doublings * kSteps + (bytes + step - 1) / step - kSteps;
}

} // namespace

RecycledMemory::~RecycledMemory() {
    for (std::size_t i = 0; i < kClassCount; ++i) {
        while (FreeBlock* block = free_[i]) {
            free_[i] = block->next;
            source_.deallocate(block, classSize(i), kAlignment);
        }
    }
}

void* RecycledMemory::do_allocate(std::size_t bytes, std::size_t alignment) {
    static_assert(classOf(kLargest) == kClassCount - 1 && classSize(kClassCount - 1) == kLargest);
    if (!isRecycled(bytes, alignment)) {
        return source_.allocate(bytes, alignment);
    }
    const std::size_t sizeClass = classOf(bytes);
    FreeBlock* const block = free_[sizeClass];
    if (!block) {
        return source_.allocate(classSize(sizeClass), kAlignment);
    }
    free_[sizeClass] = block->next;
    return block;
}

void RecycledMemory::do_deallocate(void* memory, std::size_t bytes, std::size_t alignment) {
    if (!isRecycled(bytes, alignment)) {
        source_.deallocate(memory, bytes, alignment);
        return;
    }
    FreeBlock*& first = free_[classOf(bytes)];
    first = ::new (memory) FreeBlock{first};
}

} // namespace orvane
