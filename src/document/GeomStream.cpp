#include "document/GeomStream.h"

#include <algorithm>

namespace orvane {

namespace {

// Blocks start small, for the many nodes of few triangles, and double up to 4 MiB.
constexpr std::size_t kFirstBlock = 1 << 8;
constexpr std::size_t kLargestBlock = 1 << 20;

} // namespace

std::span<float> FloatBlocks::grow(std::size_t count) {
    if (blocks_.empty() || blocks_.back().capacity() - blocks_.back().size < count) {
        const std::size_t usual =
            blocks_.empty() ? kFirstBlock : std::min(blocks_.back().capacity() * 2, kLargestBlock);
        const std::size_t capacity = std::max(count, usual);
        blocks_.reserve(blocks_.size() + 1); // so that the new memory finds its owner
        void* floats = memory_->allocate(capacity * sizeof(float), alignof(float));
        blocks_.push_back({{static_cast<float*>(floats), {memory_, capacity}}});
    }
    Block& block = blocks_.back();
    const std::span<float> grown(block.data.get() + block.size, count);
    block.size += count;
    size_ += count;
    return grown;
}

} // namespace orvane
