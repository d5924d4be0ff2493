#pragma once

#include <string>

namespace orvane {

enum class PictureConversion {
    notNeeded,  ///< a JPEG or PNG picture, to be used as it is
    converted,  ///< the PNG file is there
    unreadable, ///< of no known format, damaged, cut short, or larger than a GiB; there is no PNG file
};

/// Writes the picture at `source` as the PNG file `target`, with the same pixels and in place of a file that
/// may stand there, unless it is a JPEG or PNG picture already. What kind it is is told from its content,
/// else from its name. Pictures go through FreeImage, in a guarded process: a damaged one harms nothing.
/// `source` and `target` are narrow paths.
PictureConversion convertPicture(const std::string& source, const std::string& target);

} // namespace orvane
