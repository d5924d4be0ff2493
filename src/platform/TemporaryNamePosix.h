#pragma once

#include "platform/FileCallsPosix.h"
#include "platform/Leavings.h"

#include <random>
#include <string>
#include <string_view>

namespace orvane::platform {

/// A path that nobody else thinks of, `.orvane-` and twelve letters or digits. The file under it, once it is
/// taken, goes with the object.
class TemporaryName {
public:
    /// `folder` is native, and ends in a separator unless it is empty.
    explicit TemporaryName(const std::string& folder) : path_(folder + ".orvane-") {
        static constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz0123456789";
        std::random_device source;
        for (int i = 0; i < 12; ++i) {
            path_ += kLetters[source() % kLetters.size()];
        }
    }
    TemporaryName(const TemporaryName&) = delete;
    TemporaryName& operator=(const TemporaryName&) = delete;
    ~TemporaryName() { takeAway(); }

    const char* path() const { return path_.c_str(); }
    /// Whether a file of ours has that name; told within the `Undisturbed` in which that changes.
    void setTaken(bool isTaken) { isTaken_ = isTaken; }

private:
    void takeAway() noexcept {
        if (isTaken_) {
            removeName(path());
        }
    }

    std::string path_;
    bool isTaken_ = false;
    Leaving leaving_{[](void* name) noexcept { static_cast<TemporaryName*>(name)->takeAway(); }, this};
};

} // namespace orvane::platform
