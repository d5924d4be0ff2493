#include "platform/Pictures.h"

#include "platform/Files.h"
#include "platform/Guard.h"
#include "platform/OutputFile.h"

#include <FreeImage.h>

#include <memory>
#include <string_view>

namespace orvane {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view kJpegStart = "\xFF\xD8"sv;
constexpr std::string_view kJpegEnd = "\xFF\xD9"sv;
constexpr std::string_view kPngStart = "\x89PNG\r\n\x1A\n"sv;
constexpr std::string_view kPngEnd = "IEND\xAE\x42\x60\x82"sv;
/// How much may follow behind the end of a picture: some cameras append data of their own.
constexpr std::int64_t kTailSize = 64 * 1024;

bool endsWhole(const std::string& path, std::string_view end) {
    return readFileTail(path, kTailSize).find(end) != std::string::npos;
}

/// Formats by content, else by name, as FreeImage tells them.
FREE_IMAGE_FORMAT formatOf(const char* path) {
    const FREE_IMAGE_FORMAT format = FreeImage_GetFileType(path, 0);
    return format == FIF_UNKNOWN ? FreeImage_GetFIFFromFilename(path) : format;
}

PictureConversion convert(const char* source, const char* target) {
    const FREE_IMAGE_FORMAT format = formatOf(source);
    if (format == FIF_UNKNOWN || format == FIF_JPEG || format == FIF_PNG ||
        !FreeImage_FIFSupportsReading(format)) {
        return PictureConversion::unreadable; // a whole JPEG or PNG picture does not come this far
    }
    const std::unique_ptr<FIBITMAP, decltype(&FreeImage_Unload)> bitmap(FreeImage_Load(format, source, 0),
                                                                        FreeImage_Unload);
    return bitmap && FreeImage_Save(FIF_PNG, bitmap.get(), target, 0) ? PictureConversion::converted
                                                                      : PictureConversion::unreadable;
}

} // namespace

PictureConversion convertPicture(const std::string& source, const std::string& target) {
    const std::string start = readFileStart(source, kPngStart.size());
    const bool isJpeg = start.starts_with(kJpegStart);
    if (isJpeg || start == kPngStart) {
        return endsWhole(source, isJpeg ? kJpegEnd : kPngEnd) ? PictureConversion::notNeeded
                                                              : PictureConversion::unreadable;
    }
    if (start.empty()) {
        return PictureConversion::unreadable;
    }
    const std::size_t separator = target.find_last_of("\\/");
    OutputFile png =
        OutputFile::createTemporary(separator == std::string::npos ? "" : target.substr(0, separator + 1));
    const std::string from = nativePath(source);
    const int outcome = platform::runGuarded(
        [&] { return static_cast<int>(convert(from.c_str(), png.temporaryPath().c_str())); },
        static_cast<int>(PictureConversion::unreadable));
    // The library does not look whether the last bytes reached the disk.
    const bool isThere = static_cast<PictureConversion>(outcome) == PictureConversion::converted &&
                         endsWhole(png.temporaryPath(), kPngEnd) && png.moveTo(target);
    return isThere ? PictureConversion::converted : PictureConversion::unreadable;
}

} // namespace orvane
