#include "export/TargetFolder.h"

#include <utility>

namespace orvane::exporter {

TargetFolder::TargetFolder(std::string path, ExportReport& report) : path_(std::move(path)) {
    std::string error;
    result_ = createFolder(path_, error);
    if (result_ == FolderResult::failed) {
        report.fail("the folder " + nativePath(path_) + " cannot be made: " + error);
    }
}

TargetFolder::~TargetFolder() {
    if (result_ == FolderResult::created) {
        removeEmptyFolder(path_);
    }
}

} // namespace orvane::exporter
