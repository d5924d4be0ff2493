#include "geometry/Tessellation.h"

#include <algorithm>

namespace orvane {

namespace {

/// Numbers that the host failed to fill are zeros.
void zeroUnless(bool isFilled, std::span<float> numbers) {
    if (!isFilled) {
        std::ranges::fill(numbers, 0.0f);
    }
}

} // namespace

void tessellateBodyFaces(std::span<const HostRef<HostFace>> faces, GeomStreams& streams,
                         std::pmr::memory_resource& memory) {
    for (const HostRef<HostFace>& face : faces) {
        GeomStream& stream = streams.try_emplace(nullptr, memory).first->second;
        std::int32_t count = -1;
        face->faceTriangleCount(count);
        if (count <= 0) {
            continue;
        }
        const auto triangles = static_cast<std::size_t>(count);
        const std::span<float> positions = stream.positions.grow(9 * triangles);
        const std::span<float> normals = stream.normals.grow(9 * triangles);
        const std::span<float> texCoords = stream.texCoords.grow(6 * triangles);
        zeroUnless(face->faceTrianglePositions(true, positions), positions);
        zeroUnless(face->faceTriangleNormals(normals), normals);
        zeroUnless(face->faceTriangleTexCoords(texCoords), texCoords);
    }
}

void tessellateBodies(HostBodyEnumerator& bodies, GeomStreams& streams, std::pmr::memory_resource& memory) {
    while (const HostRef<HostBody> body = bodies.nextBody()) {
        const std::int32_t count = body->bodyFaceCount();
        if (count > 0) {
            tessellateBodyFaces(body->bodyFaces(count), streams, memory);
        }
    }
}

} // namespace orvane
