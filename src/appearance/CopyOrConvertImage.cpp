#include "appearance/CopyOrConvertImage.h"

#include "platform/FileCopy.h"
#include "platform/Files.h"
#include "platform/Pictures.h"

namespace orvane {

std::string CopyOrConvertImage(const std::string& sourcePath, const std::string& destinationFolder,
                               std::string& name, bool, ExportReport& report) {
    const std::string png = name.substr(0, name.rfind('.')) + ".png";
    std::string target = joinPath(destinationFolder, png);
    const PictureConversion conversion = convertPicture(sourcePath, target);
    if (conversion == PictureConversion::converted) {
        name = png;
        return target;
    }
    const std::string picture = "the picture " + nativePath(sourcePath);
    target = joinPath(destinationFolder, name);
    std::string error;
    const CopyResult result = copyToNewFile(sourcePath, target, error);
    switch (result) {
    case CopyResult::copied:
    case CopyResult::same:
        if (conversion == PictureConversion::unreadable) {
            report.warn(picture + " cannot be read as a picture; it is passed on as it is");
        }
        return result == CopyResult::copied ? target : std::string();
    case CopyResult::existed:
        report.warn(picture + " was not copied: another file named " + name + " is there already");
        return {};
    case CopyResult::failed:
        report.warn(picture + " cannot be copied: " + error);
        return {};
    }
    return {};
}

} // namespace orvane
