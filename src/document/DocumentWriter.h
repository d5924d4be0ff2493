#pragma once

#include "document/GltfDocument.h"
#include "document/TextStream.h"

namespace orvane {

/// Writes the opening of the text, up to and with the index of the active scene: the position of the
/// configuration that was active at the start, among the exported ones.
void writeDocumentHead(TextStream& out, std::int32_t activeScene);

/// Writes everything else, but the closing brace of the text. All names and indices are settled before. Text
/// that piles up goes to the stream's drain; `progress`, which may be the document's own, counts the records.
void writeDocument(TextStream& out, const GltfDocument& document, Progress& progress);

} // namespace orvane
