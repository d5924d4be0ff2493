#pragma once

#include "model/step/StepRecords.h"

namespace orvane::step {

/// Gives a look to one entity of a document: one appearance for all entities of a kind that look alike, in
/// the order in which the looks are first met.
void applyLook(const Look& look, const EntityRecord& entity, std::vector<AppearanceRecord>& appearances);

} // namespace orvane::step
