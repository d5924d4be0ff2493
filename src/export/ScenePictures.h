#pragma once

#include "document/ExportReport.h"
#include "document/LoosePictures.h"
#include "platform/StagedFolder.h"

#include <string>

namespace orvane::exporter {

/// Brings the loose pictures of a text export into its folder, beside its other files. What stands there from
/// before stays, and the report tells where it is something else. Both arguments outlive the copier.
PictureCopier stagePictures(StagedFolder& staged, ExportReport& report);

/// Makes the pictures of a `.glb` in the file system of `folder`. `report` outlives the maker.
PictureMaker makePictures(const std::string& folder, ExportReport& report);

} // namespace orvane::exporter
