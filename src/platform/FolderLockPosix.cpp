#include "platform/FolderLock.h"

#include "platform/FileCallsPosix.h"
#include "platform/Files.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>

namespace orvane {

namespace {

constexpr std::chrono::milliseconds kPause(20);
constexpr int kMostPauses = 1500;

} // namespace

FolderLock::FolderLock(const std::string& folder)
    : descriptor_(platform::openFile(nativePath(folder).c_str(), O_RDONLY | O_DIRECTORY)) {
    for (int left = kMostPauses; descriptor_ >= 0 && flock(descriptor_, LOCK_EX | LOCK_NB) != 0;) {
        if (errno != EWOULDBLOCK && errno != EINTR) {
            return;
        }
        if (left-- == 0) {
            isRefused_ = true;
            return;
        }
        std::this_thread::sleep_for(kPause);
    }
}

FolderLock::~FolderLock() {
    if (descriptor_ >= 0) {
        platform::closeFile(descriptor_);
    }
}

} // namespace orvane
