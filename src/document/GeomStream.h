#pragma once

#include "document/GltfRecords.h"

#include <cstddef>
#include <map>
#include <memory>
#include <memory_resource>
#include <span>
#include <vector>

namespace orvane {

/// A growing array of floats in blocks that never move: growing copies nothing, and takes little more memory
/// than it gives.
class FloatBlocks {
public:
    /// Blocks come from `memory`, which outlives the object.
    explicit FloatBlocks(std::pmr::memory_resource& memory) : memory_(&memory) {}

    /// Appends `count` floats of any value that lie behind one another in memory, to be filled in place.
    std::span<float> grow(std::size_t count);
    std::size_t size() const { return size_; }
    std::size_t blockCount() const { return blocks_.size(); }
    std::span<const float> block(std::size_t position) const {
        return {blocks_[position].data.get(), blocks_[position].size};
    }

private:
    struct GiveBack {
        std::pmr::memory_resource* memory;
        std::size_t count;
        void operator()(float* floats) const {
            memory->deallocate(floats, count * sizeof(float), alignof(float));
        }
    };
    struct Block {
        std::unique_ptr<float[], GiveBack> data;
        std::size_t size = 0;

        std::size_t capacity() const { return data.get_deleter().count; }
    };

    std::pmr::memory_resource* memory_;
    std::vector<Block> blocks_;
    std::size_t size_ = 0;
};

/// The triangles of one node under one material: three vertices a triangle, never welded, in the body's own
/// frame. 9 positions in metres, 9 normals and 6 texture coordinates a triangle, always in step.
struct GeomStream {
    explicit GeomStream(std::pmr::memory_resource& memory)
        : positions(memory), normals(memory), texCoords(memory) {}

    FloatBlocks positions;
    FloatBlocks normals;
    FloatBlocks texCoords;

    std::size_t triangleCount() const { return positions.size() / 9; }
};

/// The null key first, then materials in the order in which their records were made: no order depends on an
/// address.
struct MaterialOrder {
    bool operator()(const GltfMaterial* a, const GltfMaterial* b) const {
        return (a ? a->serial : -1) < (b ? b->serial : -1);
    }
};

/// The triangles of one node by material; null is the default material.
using GeomStreams = std::map<GltfMaterial*, GeomStream, MaterialOrder>;

} // namespace orvane
