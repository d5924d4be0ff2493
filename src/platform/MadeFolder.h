#pragma once

#include "platform/Leavings.h"

#include <string>

namespace orvane {

/// A folder for a result, made unless it is there. It goes again with the object, or when a signal ends the
/// process, if it was made here and is empty then.
class MadeFolder {
public:
    explicit MadeFolder(std::string path);
    MadeFolder(const MadeFolder&) = delete;
    MadeFolder& operator=(const MadeFolder&) = delete;
    ~MadeFolder();

    /// Why the folder is not there, in the system's words; empty when it is.
    const std::string& error() const { return error_; }
    /// Whether it was made here.
    bool isMade() const { return isMade_; }

private:
    void takeAway() noexcept;

    std::string path_;
    std::string error_;
    bool isMade_ = false;
    Leaving leaving_;
};

} // namespace orvane
