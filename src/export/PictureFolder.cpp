#include "export/PictureFolder.h"

#include "appearance/CopyOrConvertImage.h"
#include "platform/Files.h"

namespace orvane::exporter {

PictureFolder::~PictureFolder() {
    for (const std::string& path : made_) {
        removeFile(path);
    }
}

PictureCopier PictureFolder::copier() {
    return [this](const std::string& sourcePath, std::string& name, bool isNormalMap) {
        if (const auto fault = pictureNameFault(name)) {
            report_.warn("the picture " + nativePath(sourcePath) + " gets a short name, since its own one " +
                         *fault);
        }
        std::string path = CopyOrConvertImage(sourcePath, folder_, name, isNormalMap, report_);
        if (!path.empty()) {
            made_.push_back(path);
        }
        return path;
    };
}

PictureCopier WorkingPictures::copier() {
    return [this](const std::string& sourcePath, std::string& name, bool isNormalMap) {
        if (folder_.path().empty()) {
            report_.warn("pictures are left out: there is no folder for temporary files");
            return std::string();
        }
        return CopyOrConvertImage(sourcePath, folder_.path(), name, isNormalMap, report_);
    };
}

} // namespace orvane::exporter
