#include "platform/PictureDamage.h"

#include <zlib.h>

namespace orvane::platform {

namespace {

constexpr std::int64_t kSignatureSize = 8;
constexpr std::int64_t kHeadSize = 8; ///< of a chunk: its length and its type
constexpr std::int64_t kChecksumSize = 4;
constexpr std::int64_t kHeaderLength = 13;
constexpr std::int64_t kPieceSize = 64 * 1024;

std::uint32_t bigEndian(std::string_view bytes) {
    std::uint32_t value = 0;
    for (const char byte : bytes.substr(0, 4)) {
        value = value << 8 | static_cast<unsigned char>(byte);
    }
    return value;
}

/// Of the chunk whose head lies at `at`; all of it lies within the file.
std::string checksumFault(const RegularFile& file, std::int64_t at, std::int64_t length) {
    uLong sum = crc32(0, nullptr, 0);
    const std::int64_t end = at + kHeadSize + length;
    for (std::int64_t from = at + kHeadSize - 4; from < end;) { // it begins with the type
        const std::int64_t wanted = std::min(kPieceSize, end - from);
        const std::optional<std::string> piece = file.read(from, wanted);
        if (!piece) {
            return readingFault(file);
        }
        sum = crc32(sum, reinterpret_cast<const Bytef*>(piece->data()), static_cast<uInt>(wanted));
        from += wanted;
    }
    const std::optional<std::string> expected = file.read(end, kChecksumSize);
    if (!expected) {
        return readingFault(file);
    }
    return bigEndian(*expected) == sum ? "" : "is damaged";
}

} // namespace

std::string pngFault(const RegularFile& file) {
    bool hasHeader = false;
    bool hasPixels = false;
    for (std::int64_t at = kSignatureSize;;) {
        const std::int64_t room = file.size() - at - kHeadSize - kChecksumSize;
        if (room < 0) {
            return "is cut short";
        }
        const std::optional<std::string> head = file.read(at, kHeadSize);
        if (!head) {
            return readingFault(file);
        }
        const std::int64_t length = bigEndian(*head);
        const std::string type = head->substr(4);
        if (length > room) {
            return "is cut short or damaged";
        }
        if (!hasHeader && (type != "IHDR" || length != kHeaderLength)) {
            return "is damaged";
        }
        if (std::string fault = checksumFault(file, at, length); !fault.empty()) {
            return fault;
        }
        if (type == "IEND") {
            return hasPixels ? "" : "is damaged";
        }
        hasHeader = true;
        hasPixels = hasPixels || type == "IDAT";
        at += kHeadSize + length + kChecksumSize;
    }
}

} // namespace orvane::platform
