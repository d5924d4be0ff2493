#include "document/MeshBuffers.h"

#include "document/AsciiNames.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <limits>
#include <memory>
#include <utility>

namespace orvane {

namespace {

static_assert(std::endian::native == std::endian::little, "buffers are written as they lie in memory");

constexpr std::int64_t kMostTriangles = 21666;
constexpr std::int64_t kAnyTriangles = 0x7fffffff;
constexpr std::size_t kIndexCount = 0x10000;

/// The four regions of a buffer file, in their order.
enum Region : std::size_t { positions, normals, texCoords, indices, regionCount };

struct RegionFormat {
    ComponentType componentType;
    AccessorType type;
    std::int64_t bytesPerTriangle;
    std::int64_t byteStride;
    BufferTarget target;
};

constexpr RegionFormat kFormats[regionCount] = {
    {ComponentType::singleFloat, AccessorType::vec3, 36, 12, BufferTarget::vertices},
    {ComponentType::singleFloat, AccessorType::vec3, 36, 12, BufferTarget::vertices},
    {ComponentType::singleFloat, AccessorType::vec2, 24, 8, BufferTarget::vertices},
    {ComponentType::unsignedShort, AccessorType::scalar, 6, 0, BufferTarget::indices},
};

/// Every 16-bit number in turn: vertices are never welded, so that the indices of a primitive simply count,
/// and wrap.
Bytes countingIndices(std::size_t count) {
    static const std::unique_ptr<const std::array<std::uint16_t, kIndexCount>> table = [] {
        auto numbers = std::make_unique<std::array<std::uint16_t, kIndexCount>>();
        for (std::size_t i = 0; i < kIndexCount; ++i) {
            (*numbers)[i] = static_cast<std::uint16_t>(i);
        }
        return numbers;
    }();
    return std::as_bytes(std::span(*table).first(count));
}

/// Goes through the floats of a stream from the first to the last.
class FloatCursor {
public:
    explicit FloatCursor(const FloatBlocks& floats) : floats_(floats) {}

    /// The next floats that lie behind one another, at most `count`; there have to be some.
    std::span<const float> take(std::size_t count) {
        while (at_ == floats_.block(block_).size()) {
            ++block_;
            at_ = 0;
        }
        const std::span<const float> rest = floats_.block(block_).subspan(at_);
        const std::span<const float> taken = rest.first(std::min(count, rest.size()));
        at_ += taken.size();
        return taken;
    }

private:
    const FloatBlocks& floats_;
    std::size_t block_ = 0;
    std::size_t at_ = 0;
};

/// The largest values start at the smallest positive normal float, and keep it where all coordinates are
/// negative (docs/output-format.md, "Bounds").
constexpr AccessorBounds kEmptyBounds = {
    std::numeric_limits<float>::max(), std::numeric_limits<float>::max(), std::numeric_limits<float>::max(),
    std::numeric_limits<float>::min(), std::numeric_limits<float>::min(), std::numeric_limits<float>::min(),
};

/// Bounds of the next `count` floats; blocks hold whole triangles. Only a value strictly beyond a bound
/// replaces it: one that is not a number never does, and of two zeros the first one keeps its sign.
AccessorBounds nextBounds(FloatCursor& cursor, std::size_t count) {
    AccessorBounds bounds = kEmptyBounds;
    while (count > 0) {
        const std::span<const float> floats = cursor.take(count);
        for (std::size_t at = 0; at < floats.size(); at += 3) {
            for (std::size_t i = 0; i < 3; ++i) {
                const float value = floats[at + i];
                bounds[i] = value < bounds[i] ? value : bounds[i];
                bounds[3 + i] = value > bounds[3 + i] ? value : bounds[3 + i];
            }
        }
        count -= floats.size();
    }
    return bounds;
}

void appendPieces(std::vector<Bytes>& pieces, const FloatBlocks& floats) {
    for (std::size_t i = 0; i < floats.blockCount(); ++i) {
        pieces.push_back(std::as_bytes(floats.block(i)));
    }
}

void appendIndexPieces(std::vector<Bytes>& pieces, std::int64_t count) {
    for (; count > 0; count -= static_cast<std::int64_t>(kIndexCount)) {
        pieces.push_back(
            countingIndices(static_cast<std::size_t>(std::min<std::int64_t>(count, kIndexCount))));
    }
}

/// Makes the records of one mesh while it is built.
struct MeshBuild {
    GltfDocument& document;
    GltfMesh& mesh;
    std::array<std::int32_t, regionCount> views{};
    std::int64_t triangleCount = 0; ///< in the primitives made so far

    std::int32_t addAccessor(Region region, std::int64_t count) {
        GltfAccessor& accessor = addRecord(document.accessors);
        accessor.bufferView = views[region];
        accessor.componentType = kFormats[region].componentType;
        accessor.type = kFormats[region].type;
        accessor.byteOffset = triangleCount * kFormats[region].bytesPerTriangle;
        accessor.count = 3 * count;
        return static_cast<std::int32_t>(document.accessors.size()) - 1;
    }

    void addPrimitive(const GltfMaterial* material, std::int64_t count, const AccessorBounds& bounds) {
        GltfPrimitive& primitive = mesh.primitives.emplace_back();
        primitive.indices = addAccessor(indices, count);
        primitive.position = addAccessor(positions, count);
        document.accessors.back()->bounds = bounds;
        primitive.normal = addAccessor(normals, count);
        primitive.texcoord = addAccessor(texCoords, count);
        primitive.material = material ? material->index : 0;
        triangleCount += count;
    }
};

void addPrimitives(MeshBuild& build, const GeomStreams& streams, std::int64_t mostTriangles,
                   std::vector<Bytes>& indexPieces) {
    for (const auto& [material, stream] : streams) {
        FloatCursor cursor(stream.positions);
        for (auto left = static_cast<std::int64_t>(stream.triangleCount()); left > 0;) {
            const std::int64_t count = std::min(left, mostTriangles);
            build.addPrimitive(material, count, nextBounds(cursor, static_cast<std::size_t>(9 * count)));
            appendIndexPieces(indexPieces, 3 * count);
            left -= count;
        }
    }
}

/// One view for each region; where they lie is not known yet.
void addViews(MeshBuild& build, std::int32_t buffer) {
    for (std::size_t region = 0; region < regionCount; ++region) {
        build.views[region] = static_cast<std::int32_t>(build.document.bufferViews.size());
        GltfBufferView& view = addRecord(build.document.bufferViews);
        view.buffer = buffer;
        view.byteStride = kFormats[region].byteStride;
        view.target = kFormats[region].target;
    }
}

/// Sets where the regions lie in the buffer; gives the length of the buffer without its padding.
std::int64_t layOutViews(GltfDocument& document, const MeshBuild& build) {
    std::int64_t offset = 0;
    for (std::size_t region = 0; region < regionCount; ++region) {
        GltfBufferView& view = *document.bufferViews[static_cast<std::size_t>(build.views[region])];
        view.byteOffset = offset;
        view.byteLength = build.triangleCount * kFormats[region].bytesPerTriangle;
        offset += view.byteLength;
    }
    return offset;
}

} // namespace

void writeMeshBuffers(GltfDocument& document, GltfNode& node, GeomStreams& streams,
                      const MeshBufferTarget& target) {
    GltfMesh& mesh = addRecord(document.meshes);
    node.mesh = mesh.index;
    GltfBuffer& buffer = addRecord(document.buffers);
    mesh.buffer = buffer.index;
    MeshBuild build{document, mesh};
    addViews(build, buffer.index);

    BufferContent content{std::move(streams), {}};
    streams.clear();
    std::vector<Bytes> indexPieces;
    addPrimitives(build, content.streams, target.limitPrimitiveSize ? kMostTriangles : kAnyTriangles,
                  indexPieces);
    for (const auto region : {&GeomStream::positions, &GeomStream::normals, &GeomStream::texCoords}) {
        for (const auto& [material, stream] : content.streams) {
            appendPieces(content.pieces, stream.*region);
        }
    }
    content.pieces.insert(content.pieces.end(), indexPieces.begin(), indexPieces.end());

    static constexpr std::array<std::byte, 3> kZeros{};
    const std::int64_t length = layOutViews(document, build);
    const std::int64_t padding = (4 - length % 4) % 4;
    content.pieces.push_back(Bytes(kZeros).first(static_cast<std::size_t>(padding)));
    buffer.byteLength = length + padding;

    std::string name = node.name + ".bin";
    fileSafeName(name);
    buffer.uri = target.names.claim(name, buffer.index, target.folder, target.report);
    target.folder.write(buffer.uri, std::move(content), Existing::stays);
}

} // namespace orvane
