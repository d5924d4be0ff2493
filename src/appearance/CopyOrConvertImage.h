#pragma once

#include "document/ExportReport.h"

#include <optional>
#include <string>

namespace orvane {

/// Why the system cannot take this name for a picture, converted or not, as the end of a sentence; nothing
/// when it can.
std::optional<std::string> pictureNameFault(const std::string& name);

/// Brings the picture at `sourcePath` into a folder as a file that viewers of glTF read: JPEG and PNG are
/// copied as they are, everything else becomes a PNG file of the same pixels, and `name` its name. A picture
/// that cannot be converted is copied too; what already stands under the name of a copy stays. A name that
/// the system cannot take is replaced by a short one. The report tells what a person should know. Gives the
/// path of the file that came into being; empty when none did.
std::string CopyOrConvertImage(const std::string& sourcePath, const std::string& destinationFolder,
                               std::string& name, bool isNormalMap, ExportReport& report);

} // namespace orvane
