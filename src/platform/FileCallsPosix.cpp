#include "platform/FileCallsPosix.h"

#include "platform/FileCalls.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace orvane::platform {

namespace {

/// A call that is interrupted more often than this in a row will not come through at all.
constexpr int kMostInterruptions = 1000;
constexpr mode_t kFolderMode = 0777;

int codeOf(FileFault fault) {
    switch (fault) {
    case FileFault::failed:
        return EIO;
    case FileFault::full:
        return ENOSPC;
    case FileFault::interrupted:
        return EINTR;
    case FileFault::none:
    case FileFault::cutShort:
        break;
    }
    return 0;
}

/// Makes the call once. `call` takes whether it is to move half of its bytes only.
template <class Call>
auto callOnce(FileCall kind, Call call) -> decltype(call(false)) {
    const FileFault fault = fileCallListener ? fileCallListener(kind) : FileFault::none;
    if (const int code = codeOf(fault)) {
        errno = code;
        return -1;
    }
    return call(fault == FileFault::cutShort);
}

template <class Call>
auto callFile(FileCall kind, Call call) -> decltype(call(false)) {
    auto answer = callOnce(kind, call);
    for (int left = kMostInterruptions; answer < 0 && errno == EINTR && left > 0; --left) {
        answer = callOnce(kind, call);
    }
    return answer;
}

std::size_t sizeOf(std::size_t size, bool isCutShort) {
    return isCutShort ? (size + 1) / 2 : size;
}

} // namespace

int openFile(const char* path, int flags, mode_t mode) noexcept {
    return callFile(FileCall::open, [&](bool) { return open(path, flags | O_CLOEXEC, mode); });
}

int closeFile(int descriptor) noexcept {
    const int answer = callOnce(FileCall::close, [&](bool) { return 0; });
    const int code = errno;
    if (close(descriptor) != 0 && errno != EINTR) {
        return -1;
    }
    errno = code;
    return answer < 0 && code != EINTR ? -1 : 0;
}

ssize_t readAt(int descriptor, void* bytes, std::size_t size, off_t offset) noexcept {
    return callFile(FileCall::read, [&](bool isCutShort) {
        return pread(descriptor, bytes, sizeOf(size, isCutShort), offset);
    });
}

ssize_t writeOn(int descriptor, std::span<const iovec> pieces) noexcept {
    return callFile(FileCall::write, [&](bool isCutShort) {
        if (isCutShort) {
            return ::write(descriptor, pieces[0].iov_base, sizeOf(pieces[0].iov_len, true));
        }
        return writev(descriptor, pieces.data(),
                      static_cast<int>(std::min<std::size_t>(pieces.size(), IOV_MAX)));
    });
}

ssize_t writeAt(int descriptor, const void* bytes, std::size_t size, off_t offset) noexcept {
    return callFile(FileCall::write, [&](bool isCutShort) {
        return pwrite(descriptor, bytes, sizeOf(size, isCutShort), offset);
    });
}

ssize_t copyOn(int source, off_t offset, int target, std::size_t size) noexcept {
    return callFile(FileCall::copy, [&](bool isCutShort) {
        off_t from = offset;
        return copy_file_range(source, &from, target, nullptr, sizeOf(size, isCutShort), 0);
    });
}

int flushFile(int descriptor) noexcept {
    return callFile(FileCall::flush, [&](bool) { return fsync(descriptor); });
}

int flushFileSystem(int descriptor) noexcept {
    return callFile(FileCall::flush, [&](bool) { return syncfs(descriptor); });
}

int lookAt(const char* path, struct stat& status) noexcept {
    return callFile(FileCall::look, [&](bool) { return lstat(path, &status); });
}

int lookThrough(const char* path, struct stat& status) noexcept {
    return callFile(FileCall::look, [&](bool) { return stat(path, &status); });
}

int lookAtOpen(int descriptor, struct stat& status) noexcept {
    return callFile(FileCall::look, [&](bool) { return fstat(descriptor, &status); });
}

int takeRights(int descriptor, const struct stat& other) noexcept {
    return callFile(FileCall::rights, [&](bool) {
        // Only a privileged process may give a file away; everybody else's stays their own.
        [[maybe_unused]] const int ignored = fchown(descriptor, other.st_uid, other.st_gid);
        return fchmod(descriptor, other.st_mode & 07777);
    });
}

int linkFile(const char* path, const char* name) noexcept {
    return callFile(FileCall::link, [&](bool) { return link(path, name); });
}

int linkOpenFile(int descriptor, const char* name) noexcept {
    return callFile(FileCall::link, [&](bool) {
        // The short way is open to every process on newer systems, to a privileged one on others.
        const int answer = linkat(descriptor, "", AT_FDCWD, name, AT_EMPTY_PATH);
        if (answer == 0 || errno != ENOENT) {
            return answer;
        }
        char path[32];
        std::snprintf(path, sizeof path, "/proc/self/fd/%d", descriptor);
        return linkat(AT_FDCWD, path, AT_FDCWD, name, AT_SYMLINK_FOLLOW);
    });
}

int renameFile(const char* path, const char* name) noexcept {
    return callFile(FileCall::rename, [&](bool) { return rename(path, name); });
}

int renameToNew(const char* path, const char* name) noexcept {
    const int answer = callFile(
        FileCall::rename, [&](bool) { return renameat2(AT_FDCWD, path, AT_FDCWD, name, RENAME_NOREPLACE); });
    if (answer == 0 || (errno != EINVAL && errno != ENOSYS)) {
        return answer;
    }
    // This file system does not know how; a link never replaces anything.
    return linkFile(path, name) == 0 ? removeName(path) : -1;
}

int removeName(const char* path) noexcept {
    return callFile(FileCall::remove, [&](bool) { return unlink(path); });
}

int makeFolder(const char* path) noexcept {
    return callFile(FileCall::makeFolder, [&](bool) { return mkdir(path, kFolderMode); });
}

int removeFolder(const char* path) noexcept {
    return callFile(FileCall::remove, [&](bool) { return rmdir(path); });
}

} // namespace orvane::platform
