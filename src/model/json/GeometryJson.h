#pragma once

namespace orvane::json {

class JsonCursor;

/// Reads the list of bodies of a part into the document at hand, and enters their names into the context. The
/// features must have been read.
void readBodies(const JsonCursor& list);

} // namespace orvane::json
