#include "export/ScenePictures.h"

#include "appearance/CopyOrConvertImage.h"
#include "platform/Files.h"

#include <utility>

namespace orvane::exporter {

namespace {

/// A short name that is free in the folder, with the extension of `name` as far as it is one.
std::string shortName(const std::string& name, const StagedFolder& staged) {
    constexpr std::size_t kLongestExtension = 16;
    const std::size_t dot = name.rfind('.');
    const bool hasExtension = dot != std::string::npos && name.size() - dot <= kLongestExtension;
    const std::string extension = hasExtension ? name.substr(dot) : std::string();
    for (int number = 1;; ++number) {
        std::string candidate = "picture-" + std::to_string(number) + extension;
        if (!staged.contains(candidate) && !staged.contains(convertedName(candidate))) {
            return candidate;
        }
    }
}

void stagePicture(StagedFolder& staged, const std::string& name, ReadyPicture picture,
                  const std::string& sourcePath, ExportReport& report) {
    if (staged.contains(name)) {
        if (staged.holdsSame(name, picture.file)) {
            return;
        }
        const std::string subject = "the picture " + nativePath(sourcePath);
        if (!picture.isConverted || !staged.isStaged(name)) {
            report.warn(subject + " was not copied: another file named " + name + " is there already");
            return;
        }
        report.warn(subject + " is written as " + name +
                    " in the place of another picture of that name, which is lost");
    }
    if (const auto fault = staged.stage(name, std::move(picture.file), Existing::stays)) {
        report.fail(*fault);
    }
}

} // namespace

PictureCopier stagePictures(StagedFolder& staged, ExportReport& report) {
    return [&](const std::string& sourcePath, std::string& name, bool isNormalMap) {
        if (const auto fault = pictureNameFault(name)) {
            report.warn("the picture " + nativePath(sourcePath) + " gets a short name, since its own one " +
                        *fault);
            name = shortName(name, staged);
        }
        if (auto picture = CopyOrConvertImage(sourcePath, staged.path(), name, isNormalMap, report)) {
            stagePicture(staged, name, std::move(*picture), sourcePath, report);
        }
    };
}

PictureMaker makePictures(const std::string& folder, ExportReport& report) {
    return [folder, &report](const std::string& sourcePath, std::string& name,
                             bool isNormalMap) -> std::optional<OutputFile> {
        auto picture = CopyOrConvertImage(sourcePath, folder, name, isNormalMap, report);
        return picture ? std::optional(std::move(picture->file)) : std::nullopt;
    };
}

} // namespace orvane::exporter
