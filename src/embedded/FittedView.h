#pragma once

#include "host/HostBox.h"
#include "model/records/ModelRecords.h"

#include <optional>

namespace orvane::embedded {

/// An isometric view of a box with y upward, from which a camera of the same perspective sees the whole of
/// it; that of a box of one metre around the origin where there is none, or none with an extent.
ViewRecord fittedView(const std::optional<HostBox>& box);

} // namespace orvane::embedded
