#pragma once

#include "model/records/ModelRecords.h"

namespace orvane::json {

class JsonCursor;

/// Reads a document's design table, which takes a start and whether it can be attached.
TableRecord readDesignTable(const JsonCursor& value);

/// Reads an annotation. Only the type 14, which it is when absent, has a table.
void readValue(const JsonCursor& value, AnnotationRecord& annotation);

} // namespace orvane::json
