#pragma once

#include "document/GltfDocument.h"
#include "document/RecordWriters.h"
#include "document/TextStream.h"

namespace orvane {

/// Writes the opening of the text, up to and with the index of the active scene: the position of the
/// configuration that was active at the start, among the exported ones.
void writeDocumentHead(TextStream& out, std::int32_t activeScene);

/// Writes everything else, but the closing brace of the text. Pictures that are not embedded are brought into
/// the destination folder through `copyPicture` on the way. Text that piles up goes to the stream's drain.
void writeDocument(TextStream& out, GltfDocument& document, const PictureCopier& copyPicture);

} // namespace orvane
