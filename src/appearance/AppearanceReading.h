#pragma once

#include "document/ExportReport.h"
#include "document/GltfDocument.h"
#include "host/HostAppearance.h"
#include "host/HostMaterialProperties.h"

#include <string>

namespace orvane {

/// What materials of one export are made with. All of it outlives the materials.
struct MaterialSource {
    GltfDocument& document;
    ExportReport& report;
    std::string hostInstallFolder; ///< a narrow path without a separator at its end
};

} // namespace orvane

namespace orvane::appearance {

/// Makes a material with a name of its own from an appearance: the host's values first, then what the
/// appearance's file says, then pictures of the library for names that ask for one. A null appearance makes
/// the mid-grey material of the defaults. The material is not registered. A file that cannot be read counts
/// as empty, and the report says so.
GltfMaterial& readAppearance(const MaterialSource& source, const HostAppearance* appearance);

/// Puts the values of an entity's own material over those that a material has; a null pointer changes
/// nothing.
void AssignMaterialProperties(GltfMaterial& material, const HostMaterialProperties* properties);

} // namespace orvane::appearance
