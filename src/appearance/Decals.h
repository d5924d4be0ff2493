#pragma once

#include "appearance/AppearanceReading.h"
#include "host/HostComponent.h"
#include "host/HostDecal.h"
#include "host/HostModelDoc.h"

#include <cstdint>

namespace orvane {

/// Makes records for the decals of an assembly's components and of `extraComponent`, which may be empty, and
/// notes which component each decal touches. A component without decals of its own shows those of its
/// document. A decal without an appearance, or whose appearance is applied to nothing, is left out; one that
/// is met again is built once. A part has none.
void CollectDecals(const MaterialSource& source, HostModelDoc& hostDocument,
                   const HostRef<HostComponent>& extraComponent);

/// Registers a decal's material, its textures and its mask; gives the decal's index.
std::int32_t DecalIndexFor(const MaterialSource& source, GltfMaterial& material, const HostDecal& decal);

} // namespace orvane
