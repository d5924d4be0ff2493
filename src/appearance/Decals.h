#pragma once

#include "appearance/AppearanceReading.h"
#include "host/HostComponent.h"
#include "host/HostModelDoc.h"

namespace orvane {

/// Makes records for the decals of an assembly's components and of `extraComponent`, which may be empty, and
/// notes which component each decal touches. A component without decals of its own shows those of its
/// document. A decal without an appearance, or whose appearance is applied to nothing, is left out; one that
/// is met again is built once. A part has none.
void CollectDecals(const MaterialSource& source, HostModelDoc& hostDocument,
                   const HostRef<HostComponent>& extraComponent);

} // namespace orvane
