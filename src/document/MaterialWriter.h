#pragma once

#include "document/GltfRecords.h"
#include "document/TextStream.h"

namespace orvane::document {

/// Appends one material, without a line feed at its end. The PBR numbers are computed here from the host's
/// values that the record holds.
void writeMaterial(TextStream& out, const GltfMaterial& material);

/// Whether all numbers of the material's text are finite.
bool hasFiniteNumbers(const GltfMaterial& material);

} // namespace orvane::document
