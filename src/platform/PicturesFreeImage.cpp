#include "platform/Pictures.h"

#include "platform/Files.h"
#include "platform/Guard.h"
#include "platform/PictureDamage.h"
#include "platform/PictureStreams.h"

#include <memory>

namespace orvane {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view kJpegStart = "\xFF\xD8"sv;
constexpr std::string_view kPngStart = "\x89PNG\r\n\x1A\n"sv;
constexpr std::int64_t kLargestFile = std::int64_t{1} << 30;

PictureReading unreadable(std::string fault = {}) {
    return {PictureConversion::unreadable, std::move(fault)};
}

std::string notConverted(const std::string& why) {
    return "cannot be converted: " + why;
}

/// Formats by content, else by name, as FreeImage tells them.
FREE_IMAGE_FORMAT formatOf(platform::PictureSource& source, const char* path) {
    FreeImageIO functions = platform::pictureSourceFunctions();
    const FREE_IMAGE_FORMAT format = FreeImage_GetFileTypeFromHandle(&functions, &source, 0);
    source = {source.bytes};
    return format == FIF_UNKNOWN ? FreeImage_GetFIFFromFilename(path) : format;
}

/// Whether the library asks for no more than it needs of a whole picture. It reads others in blocks, or up to
/// where a word ends.
bool isReadExactly(FREE_IMAGE_FORMAT format, std::string_view bytes) {
    switch (format) {
    case FIF_BMP:
    case FIF_DDS:
    case FIF_HDR:
    case FIF_ICO:
    case FIF_PSD:
    case FIF_SGI:
    case FIF_TIFF:
        return true;
    case FIF_PBM: // stands for all of PBM, PGM and PPM; P1 to P3 are written in words
        return bytes.starts_with("P4") || bytes.starts_with("P5") || bytes.starts_with("P6");
    default:
        return false;
    }
}

bool hasComplained = false; ///< in the guarded process

/// The library also remarks on whole pictures: on a channel that it leaves out, on a palette that it
/// makes up.
void DLL_CALLCONV hearComplaint(FREE_IMAGE_FORMAT, const char* message) {
    for (const char* word : {"corrupt", "damaged", "incomplete"}) {
        hasComplained = hasComplained || std::string_view(message).find(word) != std::string_view::npos;
    }
}

/// Of a picture that the library took.
std::string faultOf(FREE_IMAGE_FORMAT format, const platform::PictureSource& source) {
    const bool isCut = format == FIF_TARGA ? platform::isTargaCutShort(source.bytes)
                                           : isReadExactly(format, source.bytes) && source.hasRunOut;
    if (isCut) {
        return "is cut short";
    }
    return hasComplained ? "is damaged" : "";
}

/// In the guarded process.
PictureReading convert(const platform::RegularFile& file, const char* path, OutputFile& png) {
    const std::optional<std::string> bytes = file.read(0, file.size());
    if (!bytes) {
        return unreadable(platform::readingFault(file));
    }
    platform::PictureSource source{*bytes};
    const FREE_IMAGE_FORMAT format = formatOf(source, path);
    if (format == FIF_UNKNOWN || format == FIF_JPEG || format == FIF_PNG ||
        !FreeImage_FIFSupportsReading(format)) {
        return unreadable(); // a whole JPEG or PNG picture does not come this far
    }
    FreeImage_SetOutputMessage(hearComplaint);
    FreeImageIO reading = platform::pictureSourceFunctions();
    const std::unique_ptr<FIBITMAP, decltype(&FreeImage_Unload)> bitmap(
        FreeImage_LoadFromHandle(format, &reading, &source, 0), FreeImage_Unload);
    if (!bitmap) {
        return unreadable();
    }
    const std::string fault = faultOf(format, source);
    FreeImageIO writing = platform::pictureTargetFunctions();
    const bool isWritten = FreeImage_SaveToHandle(FIF_PNG, bitmap.get(), &writing, &png, 0) != FALSE;
    if (!png.isGood()) {
        return unreadable(notConverted("the PNG file " + png.error()));
    }
    return isWritten ? PictureReading{PictureConversion::converted, fault} : unreadable();
}

/// How the guarded process says it: one letter, then the fault.
std::string packed(const PictureReading& reading) {
    return (reading.conversion == PictureConversion::converted ? 'c' : 'u') + reading.fault;
}

PictureReading unpacked(const std::string& text) {
    return {text.starts_with('c') ? PictureConversion::converted : PictureConversion::unreadable,
            text.empty() ? text : text.substr(1)};
}

} // namespace

PictureReading convertPicture(const std::string& source, OutputFile& png) {
    const platform::RegularFile file(source);
    const std::optional<std::string> start = file.read(0, kPngStart.size());
    if (!start) {
        return unreadable(platform::readingFault(file));
    }
    const bool isJpeg = start->starts_with(kJpegStart);
    if (isJpeg || *start == kPngStart) {
        std::string fault = isJpeg ? platform::jpegFault(file) : platform::pngFault(file);
        return fault.empty() ? PictureReading{PictureConversion::notNeeded, {}}
                             : unreadable(std::move(fault));
    }
    if (file.size() == 0 || file.size() > kLargestFile) {
        return unreadable();
    }
    if (!png.isGood()) {
        return unreadable(notConverted("the PNG file " + png.error()));
    }
    const std::string path = nativePath(source);
    const platform::GuardedOutcome outcome =
        platform::runGuarded([&] { return packed(convert(file, path.c_str(), png)); }, file.size());
    if (!outcome.isDone) {
        return unreadable(outcome.text.empty() ? outcome.text : notConverted(outcome.text));
    }
    const PictureReading reading = unpacked(outcome.text);
    if (reading.conversion == PictureConversion::converted && !png.catchUp()) {
        return unreadable(notConverted("the PNG file " + png.error()));
    }
    return reading;
}

} // namespace orvane
