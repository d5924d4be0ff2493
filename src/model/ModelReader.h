#pragma once

#include "model/records/ModelRecords.h"
#include "model/records/ReadingOptions.h"

#include <filesystem>

namespace orvane {

/// Reads a model document (`.tfgprt`, `.tfgasm`) or a STEP file (`.step`, `.stp`, any case) and everything
/// that it refers to. Throws `ModelError` where any of it breaks a rule of the format; nothing is half read
/// then.
Model readModel(const std::filesystem::path& file, const ReadingOptions& options = {});

} // namespace orvane
