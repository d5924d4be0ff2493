#pragma once

#include "platform/FileCallsPosix.h"
#include "platform/Files.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <string>
#include <sys/stat.h>

namespace orvane::platform {

/// A regular file that is open for reading, or the reason why it is not. Anything else (a folder, a pipe) is
/// not opened: it might never answer.
class RegularFile {
public:
    explicit RegularFile(const std::string& path)
        : descriptor_(openFile(nativePath(path).c_str(), O_RDONLY | O_NONBLOCK)) {
        struct stat status {};
        if (descriptor_ < 0 || lookAtOpen(descriptor_, status) != 0) {
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
            closeFile(descriptor_);
        }
    }

    bool isOpen() const { return error_.empty(); }
    const std::string& error() const { return error_; }
    std::int64_t size() const { return size_; }
    int descriptor() const { return descriptor_; }

    /// The bytes from `offset` on, `most` of them or as many as there are before the end. Nothing when the
    /// system cannot read them, or the file has become shorter; `error` tells why.
    std::optional<std::string> read(std::int64_t offset, std::int64_t most) const {
        if (!isOpen()) {
            return std::nullopt;
        }
        std::string bytes(static_cast<std::size_t>(std::clamp<std::int64_t>(size_ - offset, 0, most)), '\0');
        for (std::size_t done = 0; done < bytes.size();) {
            const ssize_t step = readAt(descriptor_, bytes.data() + done, bytes.size() - done,
                                        offset + static_cast<std::int64_t>(done));
            if (step <= 0) {
                error_ = step < 0 ? std::strerror(errno) : "has become shorter";
                return std::nullopt;
            }
            done += static_cast<std::size_t>(step);
        }
        return bytes;
    }

private:
    int descriptor_;
    std::int64_t size_ = 0;
    mutable std::string error_; ///< reading may fail too
};

} // namespace orvane::platform
