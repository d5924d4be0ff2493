#pragma once

#include "model/records/ModelRecords.h"

namespace orvane::json {

class JsonCursor;

/// Reads a component and its children. The documents that they show are noted in the context with the address
/// of the component, which must not move any more.
void readValue(const JsonCursor& value, ComponentRecord& component);

/// Reads a document's configurations. The bodies must have been read.
void readValue(const JsonCursor& value, ConfigurationRecord& configuration);

/// Reads the root component of an assembly.
void readValue(const JsonCursor& value, RootRecord& root);

} // namespace orvane::json
