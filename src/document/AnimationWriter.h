#pragma once

#include "document/GltfRecords.h"
#include "document/TextStream.h"

namespace orvane::document {

/// Appends one animation, without a line feed at its end. A channel and its sampler stand at the same
/// position of their lists.
void writeAnimation(TextStream& out, const GltfAnimation& animation);

} // namespace orvane::document
