#pragma once

#include "platform/RegularFilePosix.h"

#include <string>
#include <string_view>

/// What is wrong with a picture, as far as it can be told without decoding it: always the end of a sentence
/// ("is cut short"), empty when nothing is.
namespace orvane::platform {

/// Walks the chunks of a PNG file and their checksums (ISO/IEC 15948, 5.3): the header first, pixels, the
/// end. What follows the end is no fault.
std::string pngFault(const RegularFile& file);

/// Walks the segments of a JPEG file up to its first scan (ISO/IEC 10918-1, B.1.1) and looks for the end mark
/// behind it, which may stand before 64 KiB of other data: some cameras append their own.
std::string jpegFault(const RegularFile& file);

/// Whether a TGA file, given with all its bytes, holds fewer pixels than its header claims, run-length
/// encoded or not.
bool isTargaCutShort(std::string_view file);

/// Why a file gave fewer bytes than it has.
inline std::string readingFault(const RegularFile& file) {
    return "cannot be read: " + file.error();
}

} // namespace orvane::platform
