#include "document/GeomStream.h"

#include "platform/Memory.h"

#include <algorithm>
#include <new>

namespace orvane {

namespace {

// Blocks start small, for the many nodes of few triangles, and double up to 4 MiB.
constexpr std::size_t kFirstBlock = 1 << 8;
constexpr std::size_t kLargestBlock = 1 << 20;

float* allocateFloats(std::size_t count) {
    void* memory = allocateMemory(count * sizeof(float));
    if (!memory) {
        throw std::bad_alloc();
    }
    return static_cast<float*>(memory);
}

} // namespace

void FloatBlocks::FreeFloats::operator()(float* floats) const noexcept {
    freeMemory(floats);
}

std::span<float> FloatBlocks::grow(std::size_t count) {
    if (blocks_.empty() || blocks_.back().capacity - blocks_.back().size < count) {
        const std::size_t usual =
            blocks_.empty() ? kFirstBlock : std::min(blocks_.back().capacity * 2, kLargestBlock);
        const std::size_t capacity = std::max(count, usual);
        blocks_.push_back({std::unique_ptr<float[], FreeFloats>(allocateFloats(capacity)), 0, capacity});
    }
    Block& block = blocks_.back();
    const std::span<float> grown(block.data.get() + block.size, count);
    block.size += count;
    size_ += count;
    return grown;
}

} // namespace orvane
