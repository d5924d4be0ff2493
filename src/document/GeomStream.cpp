#include "document/GeomStream.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace orvane {

namespace {

// Blocks start small, for the many nodes of few triangles, and double up to 4 MiB.
constexpr std::size_t kFirstBlock = 1 << 10;
constexpr std::size_t kLargestBlock = 1 << 20;

} // namespace

void FloatBlocks::FreeFloats::operator()(float* floats) const noexcept { std::free(floats); }

std::span<float> FloatBlocks::grow(std::size_t count) {
    if (blocks_.empty() || blocks_.back().capacity - blocks_.back().size < count) {
        const std::size_t usual = blocks_.empty() ? kFirstBlock : std::min(blocks_.back().capacity * 2, kLargestBlock);
        const std::size_t capacity = std::max(count, usual);
        // calloc, since the system's fresh pages are zero already and need not be touched twice.
        Block block{std::unique_ptr<float[], FreeFloats>(static_cast<float*>(std::calloc(capacity, sizeof(float)))), 0,
                    capacity};
        if (!block.data) {
            throw std::bad_alloc();
        }
        blocks_.push_back(std::move(block));
    }
    Block& block = blocks_.back();
    const std::span<float> grown(block.data.get() + block.size, count);
    block.size += count;
    size_ += count;
    return grown;
}

} // namespace orvane
