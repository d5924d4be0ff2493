#pragma once

#include "document/GltfRecords.h"
#include "document/TextStream.h"

namespace orvane::document {

/// Each appends one record, without a line feed at its end.
void writeMesh(TextStream& out, const GltfMesh& mesh);
void writeAccessor(TextStream& out, const GltfAccessor& accessor);
void writeBufferView(TextStream& out, const GltfBufferView& view);
void writeBuffer(TextStream& out, const GltfBuffer& buffer);

/// Whether all numbers of the accessor's text are finite.
bool hasFiniteNumbers(const GltfAccessor& accessor);

} // namespace orvane::document
