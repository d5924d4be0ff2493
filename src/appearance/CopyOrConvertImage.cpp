#include "appearance/CopyOrConvertImage.h"

#include "platform/FileCopy.h"
#include "platform/Files.h"
#include "platform/Pictures.h"

namespace orvane {

namespace {

std::string asPng(const std::string& name) {
    return name.substr(0, name.rfind('.')) + ".png";
}

/// A short name that is free in the folder, with the extension of `name` as far as it is one.
std::string shortName(const std::string& name, const std::string& folder) {
    constexpr std::size_t kLongestExtension = 16;
    const std::size_t dot = name.rfind('.');
    const bool hasExtension = dot != std::string::npos && name.size() - dot <= kLongestExtension;
    const std::string extension = hasExtension ? name.substr(dot) : std::string();
    for (int number = 1;; ++number) {
        std::string candidate = "picture-" + std::to_string(number) + extension;
        if (!pathExists(joinPath(folder, candidate)) && !pathExists(joinPath(folder, asPng(candidate)))) {
            return candidate;
        }
    }
}

} // namespace

std::optional<std::string> pictureNameFault(const std::string& name) {
    std::optional<std::string> fault = fileNameFault(name);
    return fault ? fault : fileNameFault(asPng(name));
}

std::string CopyOrConvertImage(const std::string& sourcePath, const std::string& destinationFolder,
                               std::string& name, bool, ExportReport& report) {
    if (pictureNameFault(name)) {
        name = shortName(name, destinationFolder);
    }
    const std::string png = asPng(name);
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
