#pragma once

#include "document/GeomStream.h"
#include "host/HostBody.h"

#include <memory_resource>
#include <span>

namespace orvane {

/// Appends the display triangles of a body's faces to the streams of their materials, as the host gives them:
/// nothing is welded, moved or left out. A face without any material goes to the null key. Opens a face's
/// stream before it asks for the triangles, so that faces without any can leave an empty stream behind.
void tessellateBodyFaces(std::span<const HostRef<HostFace>> faces, GeomStreams& streams,
                         std::pmr::memory_resource& memory);

/// Takes all bodies of an enumerator, in the host's order; those without faces add nothing.
void tessellateBodies(HostBodyEnumerator& bodies, GeomStreams& streams, std::pmr::memory_resource& memory);

} // namespace orvane
