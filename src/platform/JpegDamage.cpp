#include "platform/PictureDamage.h"

namespace orvane::platform {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view kEnd = "\xFF\xD9"sv;
/// How much may follow behind the end of a picture.
constexpr std::int64_t kTailSize = 64 * 1024;

constexpr int kPadding = 0xFF; ///< before a marker, as many as a writer likes
constexpr int kScan = 0xDA;

/// Markers that stand alone: TEM and the restarts.
bool hasNoLength(int marker) {
    return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD7);
}

/// Start and end of the whole picture, and what is no marker at all.
bool isMisplaced(int marker) {
    return marker == 0x00 || marker == 0xD8 || marker == 0xD9;
}

std::string endFault(const RegularFile& file, std::int64_t scan) {
    const std::int64_t from = std::max(scan, file.size() - kTailSize);
    const std::optional<std::string> tail = file.read(from, kTailSize);
    if (!tail) {
        return readingFault(file);
    }
    return tail->find(kEnd) == std::string::npos ? "is cut short" : "";
}

} // namespace

std::string jpegFault(const RegularFile& file) {
    for (std::int64_t at = 2; file.size() - at >= 4;) { // behind the start mark
        const std::optional<std::string> head = file.read(at, 4);
        if (!head) {
            return readingFault(file);
        }
        const auto byte = [&head](std::size_t i) { return static_cast<unsigned char>((*head)[i]); };
        const int marker = byte(1);
        if (byte(0) != 0xFF || isMisplaced(marker)) {
            return "is damaged";
        }
        if (marker == kScan) {
            return endFault(file, at + 2);
        }
        if (marker == kPadding || hasNoLength(marker)) {
            at += marker == kPadding ? 1 : 2;
            continue;
        }
        const int length = byte(2) << 8 | byte(3); // with its own two bytes
        if (length < 2) {
            return "is damaged";
        }
        at += 2 + length;
    }
    return "is cut short or damaged";
}

} // namespace orvane::platform
