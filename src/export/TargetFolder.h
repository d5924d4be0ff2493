#pragma once

#include "document/ExportReport.h"
#include "platform/Files.h"

#include <string>

namespace orvane::exporter {

/// The folder of a result. It goes again with the object, if it was made here and stayed empty.
class TargetFolder {
public:
    /// Makes the folder at `path`, unless it is there; the report tells where that fails.
    TargetFolder(std::string path, ExportReport& report);
    TargetFolder(const TargetFolder&) = delete;
    TargetFolder& operator=(const TargetFolder&) = delete;
    ~TargetFolder();

private:
    std::string path_;
    FolderResult result_;
};

} // namespace orvane::exporter
