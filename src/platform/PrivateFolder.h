#pragma once

#include <string>

namespace orvane {

/// A folder that no other program knows, for files on their way: made when its path is first asked for, and
/// gone with everything in it when the object ends.
class PrivateFolder {
public:
    PrivateFolder() = default;
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;
    ~PrivateFolder();

    /// The folder's path, which ends in a separator; empty when it cannot be made.
    const std::string& path();

private:
    std::string path_;
    bool isMade_ = false;
};

} // namespace orvane
