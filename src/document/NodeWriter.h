#pragma once

#include "document/GltfDocument.h"
#include "document/TextStream.h"

namespace orvane {

/// Appends one node, and a line feed. The document tells the display states of the node's component.
void writeNode(TextStream& out, const GltfDocument& document, const GltfNode& node);

/// Whether strict readers take the node's text. The comments of a node that has a mesh, a camera, children or
/// a placement, but no light, begin with a comma that they refuse.
bool isStrictJson(const GltfNode& node);

/// Whether all numbers of the node's text are finite.
bool hasFiniteNumbers(const GltfNode& node);

} // namespace orvane
