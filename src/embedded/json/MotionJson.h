#pragma once

#include "embedded/ModelRecords.h"

namespace orvane {

class JsonCursor;

/// Reads a motion study. Tracks without a key or a component move nothing and are left out.
void readValue(const JsonCursor& value, MotionStudyRecord& study);

void readValue(const JsonCursor& value, ExplodedViewRecord& view);

} // namespace orvane
