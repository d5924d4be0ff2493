#pragma once

#include "model/records/ModelRecords.h"

namespace orvane::json {

class JsonCursor;

void readValue(const JsonCursor& value, CameraRecord& camera);
void readValue(const JsonCursor& value, LightRecord& light);

ViewRecord readView(const JsonCursor& value);
/// The same for a view that has to have a name.
ViewRecord readNamedView(const JsonCursor& value);

} // namespace orvane::json
