#pragma once

#include "appearance/AppearanceTable.h"

#include <cstdint>

namespace orvane {

/// The index of the written material for this pair of an appearance and an entity's own properties, found or
/// made; either may be empty. -1 when both are, unless `force` is set: that makes the default material.
std::int32_t MaterialIndexFor(AppearanceTable& table, const HostRef<HostMaterialProperties>& properties,
                              const HostRef<HostAppearance>& appearance, bool force);

} // namespace orvane
