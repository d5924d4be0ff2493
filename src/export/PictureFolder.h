#pragma once

#include "document/ExportReport.h"
#include "document/LoosePictures.h"
#include "platform/PrivateFolder.h"

#include <string>
#include <vector>

namespace orvane::exporter {

/// Brings the loose pictures of a text export into its folder. Takes those that it made away again with the
/// object, unless they are kept.
class PictureFolder {
public:
    /// `report` outlives the object.
    PictureFolder(std::string folder, ExportReport& report) : folder_(std::move(folder)), report_(report) {}
    PictureFolder(const PictureFolder&) = delete;
    PictureFolder& operator=(const PictureFolder&) = delete;
    ~PictureFolder();

    PictureCopier copier();
    void keep() { made_.clear(); }

private:
    std::string folder_;
    ExportReport& report_;
    std::vector<std::string> made_;
};

/// Brings pictures on their way into a `.glb` into a folder that no one else knows.
class WorkingPictures {
public:
    /// `report` outlives the object.
    explicit WorkingPictures(ExportReport& report) : report_(report) {}

    PictureCopier copier();

private:
    PrivateFolder folder_;
    ExportReport& report_;
};

} // namespace orvane::exporter
