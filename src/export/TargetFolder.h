#pragma once

#include "document/ExportReport.h"
#include "platform/FolderLock.h"
#include "platform/MadeFolder.h"

#include <optional>
#include <string>

namespace orvane::exporter {

/// The folder of a result.
class TargetFolder {
public:
    /// Makes the folder at `path`, unless it is there; the report tells where that fails. It goes again with
    /// the object, if it was made here and stayed empty. `isOwn`: the folder belongs to this result alone;
    /// then no other export of it goes on at the same time.
    TargetFolder(const std::string& path, bool isOwn, ExportReport& report);

    /// Whether nothing can stand in it yet.
    bool isNew() const { return folder_.isMade(); }

private:
    MadeFolder folder_;
    std::optional<FolderLock> lock_{};
};

} // namespace orvane::exporter
