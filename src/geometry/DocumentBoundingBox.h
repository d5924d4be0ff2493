#pragma once

#include "geometry/ModelBounds.h"
#include "host/HostApplication.h"

namespace orvane {

/// The box of the document in front, asked of the host anew; the box of nothing when no document is open or
/// it shows nothing.
ModelBounds documentBoundingBox(HostApplication& host);

} // namespace orvane
