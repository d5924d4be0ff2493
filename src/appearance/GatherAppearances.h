#pragma once

#include "appearance/AppearanceTable.h"
#include "host/HostApplication.h"

namespace orvane {

/// Notes in `table` what every appearance of every open document is applied to. Each appearance with at least
/// one entity becomes a material, used or not; faces get marks.
void gatherAppearances(HostApplication& host, AppearanceTable& table);

} // namespace orvane
