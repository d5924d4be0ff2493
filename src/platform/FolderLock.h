#pragma once

#include <string>

namespace orvane {

/// Keeps a folder to one export at a time, also of several processes, where its file system has locks. Ends
/// with the process too, and leaves nothing behind.
class FolderLock {
public:
    /// Waits up to half a minute while another export has the folder. A folder that cannot be locked counts
    /// as free.
    explicit FolderLock(const std::string& folder);
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    ~FolderLock();

    /// Whether the wait was in vain.
    bool isRefused() const { return isRefused_; }

private:
    int descriptor_;
    bool isRefused_ = false;
};

} // namespace orvane
