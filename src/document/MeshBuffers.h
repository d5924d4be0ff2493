#pragma once

#include "document/BufferFolder.h"
#include "document/BufferNames.h"
#include "document/ExportReport.h"
#include "document/GeomStream.h"
#include "document/GltfDocument.h"

namespace orvane {

/// Where an export's mesh buffers go.
struct MeshBufferTarget {
    BufferFolder& folder;
    BufferNames& names;
    ExportReport& report;
    /// Splits the triangles of a material into primitives of at most 21,666, so that 16-bit indices reach
    /// every vertex. Without it all go into one primitive, and the indices wrap at 65,536.
    bool limitPrimitiveSize = true;
};

/// Turns the triangles of `node` into one mesh with one buffer, four buffer views and four accessors for each
/// primitive, writes the buffer's file, named after the node, and sets the node's mesh. `streams` is empty
/// afterwards. The file holds positions, normals, texture coordinates and 16-bit indices, little endian, each
/// as one region without gaps, padded with zeros to a multiple of 4 bytes.
void writeMeshBuffers(GltfDocument& document, GltfNode& node, GeomStreams& streams,
                      const MeshBufferTarget& target);

} // namespace orvane
