#include "appearance/CopyOrConvertImage.h"

#include "platform/Files.h"
#include "platform/Pictures.h"

#include <utility>

namespace orvane {

std::string convertedName(const std::string& name) {
    return name.substr(0, name.rfind('.')) + ".png";
}

std::optional<std::string> pictureNameFault(const std::string& name) {
    std::optional<std::string> fault = fileNameFault(name);
    return fault ? fault : fileNameFault(convertedName(name));
}

std::optional<ReadyPicture> CopyOrConvertImage(const std::string& sourcePath,
                                               const std::string& destinationFolder, std::string& name, bool,
                                               ExportReport& report) {
    const std::string picture = "the picture " + nativePath(sourcePath);
    OutputFile png = OutputFile::create(destinationFolder);
    const PictureReading reading = convertPicture(sourcePath, png);
    if (reading.conversion == PictureConversion::converted) {
        if (!reading.fault.empty()) {
            report.warn(picture + " " + reading.fault + "; it is shown as far as it can be read");
        }
        name = convertedName(name);
        return ReadyPicture{std::move(png), true};
    }
    OutputFile copy = OutputFile::create(destinationFolder);
    if (!copy.appendFile(sourcePath)) {
        report.warn(picture + " cannot be copied: " + copy.error());
        return std::nullopt;
    }
    if (reading.conversion == PictureConversion::unreadable) {
        report.warn(picture + " " + (reading.fault.empty() ? "cannot be read as a picture" : reading.fault) +
                    "; it is passed on as it is");
    }
    return ReadyPicture{std::move(copy)};
}

} // namespace orvane
