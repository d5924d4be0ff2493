#pragma once

#include "document/ExportReport.h"
#include "platform/OutputFile.h"

#include <optional>
#include <string>

namespace orvane {

/// Why the system cannot take this name for a picture, converted or not, as the end of a sentence; nothing
/// when it can.
std::optional<std::string> pictureNameFault(const std::string& name);

/// The name of a picture when it is converted.
std::string convertedName(const std::string& name);

/// A picture on its way to its place.
struct ReadyPicture {
    OutputFile file;
    bool isConverted = false;
};

/// Brings the picture at `sourcePath` into a new file without a name yet, in the file system of a folder, as
/// viewers of glTF read it: JPEG and PNG are copied as they are, everything else becomes a PNG file of the
/// same pixels, and `name` its name. A picture that cannot be converted is copied too. The report tells what
/// a person should know. Nothing when the picture cannot be copied either.
std::optional<ReadyPicture> CopyOrConvertImage(const std::string& sourcePath,
                                               const std::string& destinationFolder, std::string& name,
                                               bool isNormalMap, ExportReport& report);

} // namespace orvane
