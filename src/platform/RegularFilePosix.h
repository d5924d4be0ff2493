#pragma once

#include "platform/Files.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace orvane::platform {

/// A regular file that is open for reading, or the reason why it is not. Anything else (a folder, a pipe) is
/// not opened: it might never answer.
class RegularFile {
public:
    explicit RegularFile(const std::string& path)
        : descriptor_(open(nativePath(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {
        struct stat status {};
        if (descriptor_ < 0 || fstat(descriptor_, &status) != 0) {
            error_ = std::strerror(errno);
        } else if (!S_ISREG(status.st_mode)) {
            error_ = "is no file";
        }
        size_ = status.st_size;
    }
    RegularFile(const RegularFile&) = delete;
    RegularFile& operator=(const RegularFile&) = delete;
    ~RegularFile() {
        if (descriptor_ >= 0) {
            close(descriptor_);
        }
    }

    bool isOpen() const { return error_.empty(); }
    const std::string& error() const { return error_; }
    std::int64_t size() const { return size_; }
    int descriptor() const { return descriptor_; }

    /// At most `most` bytes from `offset` on; fewer at the end, or where the system fails.
    std::string read(std::int64_t offset, std::int64_t most) const {
        std::string bytes;
        if (isOpen() && offset < size_) {
            bytes.resize(static_cast<std::size_t>(std::min(most, size_ - offset)));
        }
        std::size_t done = 0;
        while (done < bytes.size()) {
            const ssize_t step = pread(descriptor_, bytes.data() + done, bytes.size() - done,
                                       offset + static_cast<std::int64_t>(done));
            if (step <= 0) {
                break;
            }
            done += static_cast<std::size_t>(step);
        }
        bytes.resize(done);
        return bytes;
    }

private:
    int descriptor_;
    std::int64_t size_ = 0;
    std::string error_;
};

} // namespace orvane::platform
