#pragma once

#include "document/GeomStream.h"
#include "geometry/ModelBounds.h"
#include "host/HostBody.h"

#include <functional>
#include <memory_resource>
#include <span>

namespace orvane {

/// What surrounds the faces of one node.
struct TessellationInput {
    /// The material of a face; null for the default one.
    std::function<GltfMaterial*(HostFace&)> materialOf;
    /// The box of the whole model; asked only for materials with a mapping of their own.
    std::function<const ModelBounds&()> modelBounds;
    std::pmr::memory_resource& memory; ///< for the triangles
};

/// Appends the display triangles of a body's faces to the streams of their materials, as the host gives them:
/// nothing is welded, moved or left out. Only texture coordinates are made here where the material has a
/// mapping of its own. A face without any material goes to the null key. Opens a face's stream before it asks
/// for the triangles, so that faces without any can leave an empty stream behind.
void tessellateBodyFaces(std::span<const HostRef<HostFace>> faces, const TessellationInput& input,
                         GeomStreams& streams);

/// Takes all bodies of an enumerator, in the host's order; those without faces add nothing.
void tessellateBodies(HostBodyEnumerator& bodies, const TessellationInput& input, GeomStreams& streams);

} // namespace orvane
