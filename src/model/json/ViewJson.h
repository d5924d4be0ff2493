#pragma once

#include "model/records/ModelRecords.h"

namespace orvane::json {

class JsonCursor;

void readValue(const JsonCursor& value, CameraRecord& camera);
void readValue(const JsonCursor& value, ViewRecord& view);
void readValue(const JsonCursor& value, LightRecord& light);

} // namespace orvane::json
