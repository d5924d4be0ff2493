#include "export/TargetFolder.h"

#include "platform/Files.h"

namespace orvane::exporter {

TargetFolder::TargetFolder(const std::string& path, bool isOwn, ExportReport& report) : folder_(path) {
    if (!folder_.error().empty()) {
        report.fail("the folder " + nativePath(path) + " cannot be made: " + folder_.error());
    } else if (isOwn && lock_.emplace(path).isRefused()) {
        report.fail("another export into the folder " + nativePath(path) + " does not come to its end");
    }
}

} // namespace orvane::exporter
