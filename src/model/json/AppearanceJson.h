#pragma once

#include "model/records/ModelRecords.h"

namespace orvane::json {

class JsonCursor;

/// Reads an appearance. Features, bodies and configurations of the document at hand must have been read.
void readValue(const JsonCursor& value, AppearanceRecord& appearance);

/// Reads a decal with its appearance.
void readValue(const JsonCursor& value, DecalRecord& decal);

/// A colour from `"#RRGGBB"` or three integers, as 0x00BBGGRR.
std::uint32_t readColor(const JsonCursor& value);

} // namespace orvane::json
