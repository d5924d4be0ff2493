#pragma once

#include "document/ExportReport.h"

#include <string>

namespace orvane {

/// Brings the picture at `sourcePath` into a folder as a file that viewers of glTF read: JPEG and PNG are
/// copied as they are, everything else becomes a PNG file of the same pixels, and `name` its name. A picture
/// that cannot be converted is copied too; what already stands under the name of a copy stays. The report
/// tells what a person should know. Gives the path of the file that came into being; empty when none did.
std::string CopyOrConvertImage(const std::string& sourcePath, const std::string& destinationFolder,
                               std::string& name, bool isNormalMap, ExportReport& report);

} // namespace orvane
