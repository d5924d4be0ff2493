#pragma once

#include "platform/OutputFile.h"

#include <string>

namespace orvane {

/// What became of a picture that was to be converted.
enum class PictureConversion {
    notNeeded,  ///< a whole JPEG or PNG picture, to be used as it is
    converted,  ///< the PNG file is there
    unreadable, ///< of no known format, damaged, cut short, or larger than a GiB; the PNG file is of no use
};

struct PictureReading {
    PictureConversion conversion = PictureConversion::unreadable;
    /// Why a person should be told, as the end of a sentence ("is cut short"); empty when all is well, and
    /// where nothing better can be said than that it is not readable. A converted picture with a fault holds
    /// what could be read of it.
    std::string fault;
};

/// Writes the picture at `source` as PNG into the empty file `png`, with the same pixels, unless it is a JPEG
/// or PNG picture already. What kind it is is told from its content, else from its name. Pictures go through
/// FreeImage, in a guarded process: a damaged one harms nothing. `source` is a narrow path; `png` needs no
/// name.
PictureReading convertPicture(const std::string& source, OutputFile& png);

} // namespace orvane
