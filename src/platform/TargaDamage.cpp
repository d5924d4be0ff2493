#include "platform/PictureDamage.h"

namespace orvane::platform {

namespace {

constexpr std::size_t kHeaderSize = 18;
constexpr int kRunLengthEncoded = 8; ///< a bit of the type
constexpr unsigned kIsRun = 0x80;    ///< a bit of the head of a packet; below it, its pixels less one

std::size_t wholeBytes(int bits) {
    return static_cast<std::size_t>(bits + 7) / 8;
}

} // namespace

bool isTargaCutShort(std::string_view file) {
    if (file.size() < kHeaderSize) {
        return true;
    }
    const auto byte = [file](std::size_t at) { return static_cast<unsigned char>(file[at]); };
    const auto word = [&byte](std::size_t at) {
        return static_cast<std::size_t>(byte(at) | byte(at + 1) << 8);
    };
    const std::size_t pixelSize = wholeBytes(byte(16));
    std::size_t missing = word(12) * word(14); // pixels
    std::size_t at = kHeaderSize + byte(0) + (byte(1) == 1 ? word(5) * wholeBytes(byte(7)) : 0);
    if ((byte(2) & kRunLengthEncoded) == 0) {
        return at + missing * pixelSize > file.size();
    }
    while (missing > 0 && at < file.size()) {
        const std::size_t pixels = std::size_t{1} + byte(at) % kIsRun;
        at += 1 + ((byte(at) & kIsRun) != 0 ? 1 : pixels) * pixelSize;
        missing -= std::min(missing, pixels);
    }
    return missing > 0 || at > file.size();
}

} // namespace orvane::platform
