#pragma once

#include "document/GltfRecords.h"
#include "document/TextStream.h"

namespace orvane::document {

/// Appends one camera, and a line feed.
void writeCamera(TextStream& out, const GltfCamera& camera);

/// Appends one light of `KHR_lights_punctual`, without a line feed at its end.
void writeLight(TextStream& out, const GltfLight& light);

/// Whether all numbers of the record's text are finite. A camera without an index has no text.
bool hasFiniteNumbers(const GltfCamera& camera);
bool hasFiniteNumbers(const GltfLight& light);

} // namespace orvane::document
