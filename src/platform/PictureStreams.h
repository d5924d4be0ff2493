#pragma once

#include "platform/OutputFile.h"

#include <FreeImage.h>

#include <string_view>

/// What FreeImage reads from and writes to, instead of files of its own: it neither tells how much of a
/// picture it missed, nor whether all that it wrote arrived.
namespace orvane::platform {

/// A file in memory. Its address is the handle.
struct PictureSource {
    std::string_view bytes;
    std::int64_t at = 0;    ///< may lie behind the end, as in a file
    bool hasRunOut = false; ///< whether more was asked for than there is
};

FreeImageIO pictureSourceFunctions();

/// The handle is the address of an `OutputFile`, which keeps the first fault.
FreeImageIO pictureTargetFunctions();

} // namespace orvane::platform
