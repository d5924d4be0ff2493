#pragma once

#include <cstddef>
#include <span>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/uio.h>

/// The system's calls on files, each by its usual answers: -1 with the fault in `errno`. Whatever this
/// program does with files goes through here, where a call that a signal has interrupted is made again.
namespace orvane::platform {

int openFile(const char* path, int flags, mode_t mode = 0) noexcept;
/// Never made again: the descriptor is gone in any case.
int closeFile(int descriptor) noexcept;

ssize_t readAt(int descriptor, void* bytes, std::size_t size, off_t offset) noexcept;
ssize_t writeOn(int descriptor, std::span<const iovec> pieces) noexcept;
ssize_t writeAt(int descriptor, const void* bytes, std::size_t size, off_t offset) noexcept;
/// Copies inside the system, on to the position of `target`.
ssize_t copyOn(int source, off_t offset, int target, std::size_t size) noexcept;
/// Puts what was written on the disk: one file, or all files of the file system that `descriptor` is in.
int flushFile(int descriptor) noexcept;
int flushFileSystem(int descriptor) noexcept;

/// What stands under a path: a symbolic link itself, or what it leads to.
int lookAt(const char* path, struct stat& status) noexcept;
int lookThrough(const char* path, struct stat& status) noexcept;
int lookAtOpen(int descriptor, struct stat& status) noexcept;
/// Gives an open file the owner, as far as the system lets it, and the access rights of another one.
int takeRights(int descriptor, const struct stat& other) noexcept;

/// Gives a file a further name, where nothing stands yet.
int linkFile(const char* path, const char* name) noexcept;
/// Gives a file that was opened without a name its first one, where nothing stands yet.
int linkOpenFile(int descriptor, const char* name) noexcept;
/// In place of a file that stands there, or where nothing stands yet.
int renameFile(const char* path, const char* name) noexcept;
int renameToNew(const char* path, const char* name) noexcept;
int removeName(const char* path) noexcept;
int makeFolder(const char* path) noexcept;
int removeFolder(const char* path) noexcept;

} // namespace orvane::platform
