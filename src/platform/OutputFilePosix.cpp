#include "platform/OutputFile.h"

#include "platform/Files.h"
#include "platform/RegularFilePosix.h"

#include <climits>
#include <random>
#include <sys/types.h>
#include <sys/uio.h>
#include <utility>
#include <vector>

namespace orvane {

namespace {

constexpr mode_t kFileMode = 0666;
constexpr std::size_t kCopyChunk = std::size_t{1} << 20;

std::string randomName() {
    static constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz0123456789";
    std::random_device source;
    std::string name = ".orvane-";
    for (int i = 0; i < 12; ++i) {
        name += kLetters[source() % kLetters.size()];
    }
    return name;
}

std::string folderOrHere(const std::string& folder) {
    return folder.empty() ? "." : nativePath(folder);
}

/// Copies through a buffer of our own, from `offset` on, until `length` bytes or the end of the source.
/// Gives the number of bytes, or -1 with the fault in `errno`.
std::int64_t copyThroughBuffer(int source, std::int64_t offset, std::int64_t length, int target) {
    std::vector<char> buffer(kCopyChunk);
    std::int64_t done = 0;
    while (done < length) {
        const auto wanted = static_cast<std::size_t>(std::min<std::int64_t>(length - done, kCopyChunk));
        const ssize_t got = pread(source, buffer.data(), wanted, offset + done);
        if (got <= 0) {
            return got < 0 ? -1 : done;
        }
        for (ssize_t put = 0; put < got;) {
            const ssize_t step = write(target, buffer.data() + put, static_cast<std::size_t>(got - put));
            if (step < 0) {
                return -1;
            }
            put += step;
        }
        done += got;
    }
    return done;
}

/// As `copyThroughBuffer`, inside the kernel as far as it can.
std::int64_t copyRange(int source, std::int64_t offset, std::int64_t length, int target) {
    std::int64_t done = 0;
    while (done < length) {
        off_t from = offset + done;
        const ssize_t step =
            copy_file_range(source, &from, target, nullptr, static_cast<std::size_t>(length - done), 0);
        if (step == 0) {
            return done;
        }
        if (step < 0) {
            if (errno != EXDEV && errno != EINVAL && errno != ENOSYS && errno != EOPNOTSUPP) {
                return -1;
            }
            const std::int64_t rest = copyThroughBuffer(source, offset + done, length - done, target);
            return rest < 0 ? -1 : done + rest;
        }
        done += step;
    }
    return done;
}

} // namespace

OutputFile OutputFile::create(const std::string& path) {
    OutputFile file;
    const std::string native = nativePath(path);
    file.descriptor_ = open(native.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, kFileMode);
    if (file.descriptor_ < 0) {
        file.fail("cannot be created", errno);
    }
    return file;
}

OutputFile OutputFile::createNew(const std::string& path) {
    OutputFile file;
    const std::string native = nativePath(path);
    file.descriptor_ = open(native.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kFileMode);
    if (file.descriptor_ < 0) {
        file.fail("cannot be created", errno);
    } else {
        file.temporaryPath_ = native;
    }
    return file;
}

OutputFile OutputFile::createTemporary(const std::string& folder) {
    OutputFile file;
    int code = EEXIST;
    for (int attempt = 0; attempt < 100 && file.descriptor_ < 0 && code == EEXIST; ++attempt) {
        file.temporaryPath_ = nativePath(joinPath(folder, randomName()));
        file.descriptor_ =
            open(file.temporaryPath_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, kFileMode);
        code = errno;
    }
    if (file.descriptor_ < 0) {
        file.temporaryPath_.clear();
        file.fail("cannot be created", code);
    }
    return file;
}

OutputFile OutputFile::createNameless(const std::string& folder) {
    OutputFile file;
    file.descriptor_ = open(folderOrHere(folder).c_str(), O_RDWR | O_TMPFILE | O_CLOEXEC, kFileMode);
    if (file.descriptor_ < 0 && (errno == EOPNOTSUPP || errno == EISDIR || errno == ENOENT)) {
        // This file system keeps no nameless files: take the name away at once.
        file = createTemporary(folder);
        if (file.isGood()) {
            unlink(file.temporaryPath_.c_str());
            file.temporaryPath_.clear();
        }
    } else if (file.descriptor_ < 0) {
        file.fail("cannot be created", errno);
    }
    return file;
}

OutputFile::OutputFile(OutputFile&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, -1)), position_(other.position_),
      temporaryPath_(std::exchange(other.temporaryPath_, {})), error_(std::move(other.error_)) {}

OutputFile& OutputFile::operator=(OutputFile&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    std::swap(position_, other.position_);
    std::swap(temporaryPath_, other.temporaryPath_);
    std::swap(error_, other.error_);
    return *this;
}

OutputFile::~OutputFile() {
    if (descriptor_ >= 0) {
        ::close(descriptor_);
    }
    if (!temporaryPath_.empty()) {
        unlink(temporaryPath_.c_str());
    }
}

bool OutputFile::fail(std::string_view what, int code) {
    if (error_.empty()) {
        error_ = std::string(what) + ": " + std::strerror(code);
    }
    return false;
}

bool OutputFile::write(std::span<const Bytes> pieces) {
    std::vector<iovec> vectors;
    vectors.reserve(pieces.size());
    for (const Bytes piece : pieces) {
        if (!piece.empty()) {
            vectors.push_back({const_cast<std::byte*>(piece.data()), piece.size()});
        }
    }
    for (std::size_t at = 0; at < vectors.size() && isGood();) {
        const auto count = static_cast<int>(std::min<std::size_t>(vectors.size() - at, IOV_MAX));
        const ssize_t step = writev(descriptor_, &vectors[at], count);
        if (step < 0) {
            return errno == EINTR || fail("cannot be written", errno);
        }
        position_ += step;
        auto left = static_cast<std::size_t>(step);
        while (left > 0 && left >= vectors[at].iov_len) {
            left -= vectors[at++].iov_len;
        }
        if (left > 0) {
            vectors[at].iov_base = static_cast<char*>(vectors[at].iov_base) + left;
            vectors[at].iov_len -= left;
        }
    }
    return isGood();
}

bool OutputFile::write(std::string_view text) {
    const Bytes piece = std::as_bytes(std::span(text));
    return write(std::span(&piece, 1));
}

bool OutputFile::overwrite(std::int64_t offset, Bytes bytes) {
    if (!isGood()) {
        return false;
    }
    const ssize_t written = pwrite(descriptor_, bytes.data(), bytes.size(), offset);
    return written == static_cast<ssize_t>(bytes.size()) ||
           fail("cannot be written", written < 0 ? errno : ENOSPC);
}

bool OutputFile::append(const OutputFile& source, std::int64_t offset, std::int64_t length) {
    if (!isGood()) {
        return false;
    }
    const std::int64_t done = copyRange(source.descriptor_, offset, length, descriptor_);
    if (done < length) {
        return fail("cannot be written", done < 0 ? errno : EIO);
    }
    position_ += length;
    return true;
}

std::optional<std::int64_t> OutputFile::appendFile(const std::string& path) {
    const platform::RegularFile source(path);
    if (!isGood() || !source.isOpen()) {
        return std::nullopt;
    }
    const std::int64_t done = copyRange(source.descriptor(), 0, INT64_MAX / 2, descriptor_);
    if (done < 0) {
        fail("cannot be written", errno);
        return std::nullopt;
    }
    position_ += done;
    return done;
}

bool OutputFile::close() {
    if (descriptor_ >= 0 && ::close(std::exchange(descriptor_, -1)) != 0) {
        return fail("cannot be written", errno);
    }
    return isGood();
}

bool OutputFile::keep() {
    if (close()) {
        temporaryPath_.clear();
    }
    return isGood();
}

bool OutputFile::moveTo(const std::string& path) {
    if (!close()) {
        return false;
    }
    if (rename(temporaryPath_.c_str(), nativePath(path).c_str()) != 0) {
        return fail("cannot be put in its place", errno);
    }
    temporaryPath_.clear();
    return true;
}

} // namespace orvane
