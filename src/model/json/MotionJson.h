#pragma once

#include "model/records/ModelRecords.h"

namespace orvane::json {

class JsonCursor;

/// Reads a motion study. Tracks without a key or a component move nothing and are left out.
void readValue(const JsonCursor& value, MotionStudyRecord& study);

void readValue(const JsonCursor& value, ExplodedViewRecord& view);

} // namespace orvane::json
