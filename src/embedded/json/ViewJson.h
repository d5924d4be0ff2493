#pragma once

#include "embedded/ModelRecords.h"

namespace orvane {

class JsonCursor;

void readValue(const JsonCursor& value, CameraRecord& camera);
void readValue(const JsonCursor& value, ViewRecord& view);
void readValue(const JsonCursor& value, LightRecord& light);

} // namespace orvane
