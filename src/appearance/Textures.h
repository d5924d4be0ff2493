#pragma once

#include "document/ExportReport.h"
#include "document/GltfDocument.h"

#include <string>

namespace orvane {

/// Gives a material its index in the written ones and, the first time, its textures. Returns the index.
std::int32_t registerWithTextures(GltfDocument& document, GltfMaterial& material, ExportReport& report);

/// Makes texture, picture and sampler records for the base colour picture and the normal map of a material,
/// where those files are there; a base colour picture that an earlier texture shows is shared. A file that is
/// not there makes no record, and the report says so.
void AllocateMaterialTextures(GltfDocument& document, GltfMaterial& material, ExportReport& report);

/// The texture that shows the picture at `path` as a colour: the one of that picture, or a new one. -1 where
/// the path is empty or the file is not there.
std::int32_t colorTextureFor(GltfDocument& document, const std::string& path, ExportReport& report);

} // namespace orvane
