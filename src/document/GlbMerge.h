#pragma once

#include "document/GltfDocument.h"
#include "document/LoosePictures.h"
#include "document/WorkingBufferFolder.h"

#include <vector>

namespace orvane {

/// Turns a document with many buffers and loose pictures into one with a single buffer: gives the ranges of
/// the working file that make up this buffer, in order, and rewrites `buffers`, `bufferViews` and `images`
/// accordingly. Pictures are embedded behind the buffers, one view each, in the order of the textures; one
/// that cannot be made stays an image with a file name. A picture that two textures share is embedded twice,
/// and its image shows the later copy.
std::vector<FileRange> mergeBuffers(GltfDocument& document, WorkingBufferFolder& folder,
                                    const PictureMaker& makePicture);

} // namespace orvane
