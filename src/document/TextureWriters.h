#pragma once

#include "document/GltfDocument.h"
#include "document/TextStream.h"

namespace orvane::document {

/// Appends one texture, without a line feed at its end; nothing at all where it has no picture, or no sampler
/// for a loose one. Names of loose pictures are settled before (`settleLoosePictures`).
void writeTexture(TextStream& out, const GltfDocument& document, const GltfTexture& texture);

/// Each appends one record, without a line feed at its end.
void writeImage(TextStream& out, const GltfImage& image);
void writeSampler(TextStream& out, const GltfSampler& sampler);

} // namespace orvane::document
