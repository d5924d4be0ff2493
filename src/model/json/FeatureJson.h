#pragma once

namespace orvane::json {

class JsonCursor;

/// Reads the feature tree into the document at hand, flattened depth first, and enters the names into the
/// context.
void readFeatures(const JsonCursor& list);

} // namespace orvane::json
