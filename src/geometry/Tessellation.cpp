#include "geometry/Tessellation.h"

namespace orvane {

void tessellateBodyFaces(std::span<const HostRef<HostFace>> faces, GeomStreams& streams) {
    for (const HostRef<HostFace>& face : faces) {
        GeomStream& stream = streams[nullptr];
        std::int32_t count = -1;
        face->faceTriangleCount(count);
        if (count <= 0) {
            continue;
        }
        const auto triangles = static_cast<std::size_t>(count);
        face->faceTrianglePositions(true, stream.positions.grow(9 * triangles));
        face->faceTriangleNormals(stream.normals.grow(9 * triangles));
        face->faceTriangleTexCoords(stream.texCoords.grow(6 * triangles));
    }
}

void tessellateBodies(HostBodyEnumerator& bodies, GeomStreams& streams) {
    while (const HostRef<HostBody> body = bodies.nextBody()) {
        const std::int32_t count = body->bodyFaceCount();
        if (count > 0) {
            tessellateBodyFaces(body->bodyFaces(count), streams);
        }
    }
}

} // namespace orvane
