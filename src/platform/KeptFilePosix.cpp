#include "platform/KeptFile.h"

#include "platform/FileCallsPosix.h"
#include "platform/Files.h"
#include "platform/TemporaryNamePosix.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>

namespace orvane {

namespace {

bool haveSameFile(const char* name, const char* other) noexcept {
    struct stat status {};
    struct stat otherStatus {};
    return platform::lookAt(name, status) == 0 && platform::lookAt(other, otherStatus) == 0 &&
           status.st_dev == otherStatus.st_dev && status.st_ino == otherStatus.st_ino;
}

/// Writes all of an open file to another one.
bool copyAll(int source, int target) noexcept {
    char buffer[16 * 1024];
    for (off_t at = 0;;) {
        const ssize_t got = platform::readAt(source, buffer, sizeof buffer, at);
        if (got <= 0) {
            return got == 0;
        }
        for (ssize_t put = 0; put < got;) {
            const ssize_t step =
                platform::writeAt(target, buffer + put, static_cast<std::size_t>(got - put), at + put);
            if (step <= 0) {
                return false;
            }
            put += step;
        }
        at += got;
    }
}

/// Makes the file at `path` what the one at `source` is, where the system gives it no new name.
bool rewrite(const char* source, const char* path) noexcept {
    struct stat status {};
    const int from = platform::openFile(source, O_RDONLY);
    const int to = from < 0 ? -1 : platform::openFile(path, O_WRONLY | O_CREAT | O_TRUNC, 0600);
    bool isWritten = to >= 0 && platform::lookAtOpen(from, status) == 0 && copyAll(from, to) &&
                     platform::takeRights(to, status) == 0;
    if (to >= 0) {
        isWritten = platform::closeFile(to) == 0 && isWritten;
    }
    if (from >= 0) {
        platform::closeFile(from);
    }
    return isWritten;
}

} // namespace

KeptFile::KeptFile(const std::string& path)
    : path_(nativePath(path)),
      name_(std::make_unique<platform::TemporaryName>(path_.substr(0, path_.rfind('/') + 1))) {}

KeptFile::KeptFile(KeptFile&& other) noexcept = default;
KeptFile& KeptFile::operator=(KeptFile&& other) noexcept = default;
KeptFile::~KeptFile() = default;

std::string KeptFile::keep() {
    isKept_ = platform::linkFile(path_.c_str(), name_->path()) == 0 ||
              platform::renameFile(path_.c_str(), name_->path()) == 0;
    return isKept_ ? std::string() : std::strerror(errno);
}

void KeptFile::bringBack() noexcept {
    if (!isKept_) {
        return;
    }
    if (haveSameFile(name_->path(), path_.c_str())) {
        letGo(); // nothing has taken its place yet
    } else if (platform::renameFile(name_->path(), path_.c_str()) == 0) {
        isKept_ = false;
    } else if (rewrite(name_->path(), path_.c_str())) {
        letGo();
    }
}

void KeptFile::letGo() noexcept {
    if (isKept_) {
        isKept_ = platform::removeName(name_->path()) != 0 && platform::removeName(name_->path()) != 0;
    }
}

std::string KeptFile::keptPath() const {
    return name_->path();
}

} // namespace orvane
