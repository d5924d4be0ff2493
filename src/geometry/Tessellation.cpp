#include "geometry/Tessellation.h"

#include "geometry/UvGenerator.h"

#include <algorithm>

namespace orvane {

namespace {

/// Numbers that the host failed to fill are zeros.
void zeroUnless(bool isFilled, std::span<float> numbers) {
    if (!isFilled) {
        std::ranges::fill(numbers, 0.0f);
    }
}

FloatVector vectorAt(std::span<const float> numbers, std::size_t vertex) {
    return {numbers[3 * vertex], numbers[3 * vertex + 1], numbers[3 * vertex + 2]};
}

void generateTexCoords(const geometry::UvGenerator& generator, std::span<const float> positions,
                       std::span<const float> normals, std::span<float> texCoords) {
    for (std::size_t vertex = 0; vertex < texCoords.size() / 2; ++vertex) {
        FloatVector uv;
        generator.generate(vectorAt(positions, vertex), vectorAt(normals, vertex), uv);
        texCoords[2 * vertex] = uv.x;
        texCoords[2 * vertex + 1] = uv.y;
    }
}

} // namespace

void tessellateBodyFaces(std::span<const HostRef<HostFace>> faces, const TessellationInput& input,
                         GeomStreams& streams) {
    for (const HostRef<HostFace>& face : faces) {
        GltfMaterial* const theMaterial = input.materialOf(*face);
        GeomStream& stream = streams.try_emplace(theMaterial, input.memory).first->second;
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
        if (!theMaterial || theMaterial->mappingType == MappingType::automatic) {
            zeroUnless(face->faceTriangleTexCoords(texCoords), texCoords);
        } else {
            generateTexCoords(geometry::makeUvGenerator(*theMaterial, input.modelBounds()), positions,
                              normals, texCoords);
        }
    }
}

void tessellateBodies(HostBodyEnumerator& bodies, const TessellationInput& input, GeomStreams& streams) {
    while (const HostRef<HostBody> body = bodies.nextBody()) {
        const std::int32_t count = body->bodyFaceCount();
        if (count > 0) {
            tessellateBodyFaces(body->bodyFaces(count), input, streams);
        }
    }
}

} // namespace orvane
