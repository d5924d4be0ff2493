#include "platform/OutputFile.h"

#include "platform/FileCallsPosix.h"
#include "platform/Leavings.h"
#include "platform/RegularFilePosix.h"
#include "platform/TemporaryNamePosix.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <utility>
#include <vector>

namespace orvane {

namespace {

constexpr mode_t kFileMode = 0666;
constexpr std::size_t kCopyChunk = std::size_t{1} << 20;

/// Whether a file that was opened without a name can get one.
bool canNameOpenFiles() {
    struct stat status {};
    static const bool isThere = platform::lookAt("/proc/self/fd", status) == 0;
    return isThere;
}

} // namespace

OutputFile OutputFile::create(const std::string& folder) {
    return OutputFile(folder);
}

OutputFile::OutputFile(const std::string& folder)
    : folder_(folder.empty() ? "" : nativePath(joinPath(folder, ""))) {
    if (canNameOpenFiles()) {
        descriptor_ =
            platform::openFile(folder_.empty() ? "." : folder_.c_str(), O_RDWR | O_TMPFILE, kFileMode);
        if (descriptor_ >= 0 || (errno != EOPNOTSUPP && errno != EISDIR)) {
            if (descriptor_ < 0) {
                fail("cannot be created", errno);
            }
            return;
        }
    }
    createNamed();
}

/// For file systems that keep no nameless files.
void OutputFile::createNamed() {
    for (int code = EEXIST; descriptor_ < 0 && code == EEXIST;) {
        temporary_ = std::make_unique<platform::TemporaryName>(folder_);
        const Undisturbed scope;
        descriptor_ = platform::openFile(temporary_->path(), O_RDWR | O_CREAT | O_EXCL, kFileMode);
        temporary_->setTaken(descriptor_ >= 0);
        code = descriptor_ < 0 ? errno : 0;
        if (code != 0 && code != EEXIST) {
            fail("cannot be created", code);
        }
    }
}

OutputFile::OutputFile(OutputFile&& other) noexcept
    : folder_(std::move(other.folder_)), descriptor_(std::exchange(other.descriptor_, -1)),
      position_(other.position_), temporary_(std::move(other.temporary_)), error_(std::move(other.error_)) {}

OutputFile& OutputFile::operator=(OutputFile&& other) noexcept {
    std::swap(folder_, other.folder_);
    std::swap(descriptor_, other.descriptor_);
    std::swap(position_, other.position_);
    std::swap(temporary_, other.temporary_);
    std::swap(error_, other.error_);
    return *this;
}

OutputFile::~OutputFile() {
    if (descriptor_ >= 0) {
        platform::closeFile(descriptor_);
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
        const ssize_t step = platform::writeOn(descriptor_, std::span(vectors).subspan(at));
        if (step <= 0) {
            return fail("cannot be written", step < 0 ? errno : EIO);
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
    while (isGood() && !bytes.empty()) {
        const ssize_t step = platform::writeAt(descriptor_, bytes.data(), bytes.size(), offset);
        if (step <= 0) {
            return fail("cannot be written", step < 0 ? errno : EIO);
        }
        offset += step;
        bytes = bytes.subspan(static_cast<std::size_t>(step));
    }
    return isGood();
}

/// Inside the system as far as it can, else through a buffer of our own.
bool OutputFile::appendRange(int source, std::int64_t offset, std::int64_t length) {
    bool isInside = true;
    std::vector<char> buffer;
    while (isGood() && length > 0) {
        ssize_t step = 0;
        if (isInside) {
            step = platform::copyOn(source, offset, descriptor_, static_cast<std::size_t>(length));
            isInside = step > 0;
            position_ += isInside ? step : 0;
        } else {
            buffer.resize(static_cast<std::size_t>(std::min<std::int64_t>(length, kCopyChunk)));
            step = platform::readAt(source, buffer.data(), buffer.size(), offset);
            if (step <= 0) {
                return fail("cannot be copied", step < 0 ? errno : EIO);
            }
            write(std::string_view(buffer.data(), static_cast<std::size_t>(step)));
        }
        offset += std::max<ssize_t>(step, 0);
        length -= std::max<ssize_t>(step, 0);
    }
    return isGood();
}

bool OutputFile::append(const OutputFile& source, std::int64_t offset, std::int64_t length) {
    return appendRange(source.descriptor_, offset, length);
}

bool OutputFile::appendFile(const std::string& path) {
    const platform::RegularFile source(path);
    if (isGood() && !source.isOpen()) {
        error_ = source.error();
    }
    return appendRange(source.descriptor(), 0, source.size());
}

bool OutputFile::equals(const std::string& path) const {
    const platform::RegularFile other(path);
    return other.isOpen() && equals(other.descriptor(), other.size());
}

bool OutputFile::equals(int other, std::int64_t size) const {
    if (!isGood() || size != position_) {
        return false;
    }
    std::string bytes(kCopyChunk, '\0');
    std::string otherBytes(kCopyChunk, '\0');
    for (std::int64_t at = 0; at < size;) {
        const ssize_t step = platform::readAt(descriptor_, bytes.data(), bytes.size(), at);
        const ssize_t otherStep = platform::readAt(other, otherBytes.data(), otherBytes.size(), at);
        const ssize_t both = std::min(step, otherStep);
        if (both <= 0 || std::memcmp(bytes.data(), otherBytes.data(), static_cast<std::size_t>(both)) != 0) {
            return false;
        }
        at += both;
    }
    return true;
}

bool OutputFile::flush() {
    return isGood() && (platform::flushFile(descriptor_) == 0 || fail("cannot be written", errno));
}

bool OutputFile::catchUp() {
    struct stat status {};
    if (!isGood() || platform::lookAtOpen(descriptor_, status) != 0) {
        return fail("cannot be written", errno);
    }
    position_ = status.st_size;
    return true;
}

bool OutputFile::close() {
    if (descriptor_ >= 0 && platform::closeFile(std::exchange(descriptor_, -1)) != 0) {
        return fail("cannot be written", errno);
    }
    return isGood();
}

Placing OutputFile::placeNew(const std::string& path) {
    if (!isGood() || (temporary_ && !close())) {
        return Placing::failed;
    }
    const std::string native = nativePath(path);
    const Undisturbed scope;
    if ((temporary_ ? platform::renameToNew(temporary_->path(), native.c_str())
                    : platform::linkOpenFile(descriptor_, native.c_str())) != 0) {
        if (errno == EEXIST) {
            return Placing::existed;
        }
        fail("cannot be put in its place", errno);
        return Placing::failed;
    }
    if (temporary_) {
        temporary_->setTaken(false);
    } else if (platform::closeFile(std::exchange(descriptor_, -1)) != 0) {
        const int code = errno;
        platform::removeName(native.c_str());
        fail("cannot be written", code);
        return Placing::failed;
    }
    return Placing::placed;
}

/// Nothing to take where nothing stands.
bool OutputFile::takeRightsOf(const std::string& path) {
    struct stat status {};
    if (platform::lookAt(path.c_str(), status) != 0) {
        return errno == ENOENT || fail("cannot be put in its place", errno);
    }
    if (S_ISLNK(status.st_mode) && platform::lookThrough(path.c_str(), status) != 0) {
        return true; // leads nowhere
    }
    if (!S_ISREG(status.st_mode)) {
        return fail("cannot be put in its place", S_ISDIR(status.st_mode) ? EISDIR : EEXIST);
    }
    return platform::takeRights(descriptor_, status) == 0 ||
           fail("cannot get the access rights of the file that it replaces", errno);
}

bool OutputFile::nameTemporarily() {
    int code = temporary_ ? 0 : EEXIST;
    while (code == EEXIST) {
        temporary_ = std::make_unique<platform::TemporaryName>(folder_);
        const Undisturbed scope;
        code = platform::linkOpenFile(descriptor_, temporary_->path()) == 0 ? 0 : errno;
        temporary_->setTaken(code == 0);
    }
    return code == 0 || fail("cannot be put in its place", code);
}

bool OutputFile::setAside(const std::string& path) {
    return isGood() && takeRightsOf(nativePath(path)) && nameTemporarily() && close();
}

bool OutputFile::replace(const std::string& path) {
    if (!isGood() || (descriptor_ >= 0 && !setAside(path))) {
        return false;
    }
    const std::string native = nativePath(path);
    const Undisturbed scope;
    if (platform::renameFile(temporary_->path(), native.c_str()) != 0) {
        return fail("cannot be put in its place", errno);
    }
    temporary_->setTaken(false);
    return true;
}

} // namespace orvane
