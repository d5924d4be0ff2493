#include "platform/Files.h"

#include "platform/FileCallsPosix.h"
#include "platform/RegularFilePosix.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace orvane {

namespace {

constexpr std::size_t kLongestFileName = 255;

/// A path as the system takes it, without taking memory: for what cleans up when there is none left.
class NativeBuffer {
public:
    explicit NativeBuffer(const std::string& path) noexcept {
        // A longer path is none that the system takes; cut off, it stays too long.
        const std::size_t length = std::min(path.size(), sizeof text_ - 1);
        std::replace_copy(path.data(), path.data() + length, text_, '\\', '/');
        text_[length] = '\0';
    }

    const char* text() const noexcept { return text_; }

private:
    char text_[PATH_MAX + 1];
};

} // namespace

std::string nativePath(std::string_view path) {
    std::string native(path);
    std::ranges::replace(native, '\\', '/');
    return native;
}

std::string joinPath(std::string_view folder, std::string_view name) {
    std::string path(folder);
    if (!path.empty() && path.back() != '\\' && path.back() != '/') {
        path += '\\';
    }
    return path += name;
}

bool pathExists(const std::string& path) {
    struct stat status {};
    return platform::lookThrough(nativePath(path).c_str(), status) == 0;
}

bool nameIsTaken(const std::string& path) {
    struct stat status {};
    return platform::lookAt(nativePath(path).c_str(), status) == 0;
}

std::optional<std::string> readWholeFile(const std::string& path, std::int64_t most) {
    const platform::RegularFile file(path);
    return file.size() > most ? std::nullopt : file.read(0, most);
}

std::size_t manyOpenFiles() {
    static constexpr std::size_t kMany = 256;
    static const std::size_t many = [] {
        rlimit limit{};
        const bool isKnown = getrlimit(RLIMIT_NOFILE, &limit) == 0;
        return isKnown ? std::min<std::size_t>(limit.rlim_cur / 4, kMany) : kMany / 4;
    }();
    return many;
}

std::string flushFileSystem(const std::string& folder) {
    const int descriptor = platform::openFile(folder.empty() ? "." : nativePath(folder).c_str(), O_RDONLY);
    std::string error =
        descriptor < 0 || platform::flushFileSystem(descriptor) != 0 ? std::strerror(errno) : "";
    if (descriptor >= 0) {
        platform::closeFile(descriptor);
    }
    return error;
}

FolderResult createFolder(const std::string& path, std::string& error) {
    const std::string native = path.empty() ? "." : nativePath(path);
    if (platform::makeFolder(native.c_str()) == 0) {
        return FolderResult::created;
    }
    const int code = errno;
    struct stat status {};
    if (platform::lookThrough(native.c_str(), status) == 0 && S_ISDIR(status.st_mode)) {
        return FolderResult::existed;
    }
    error = std::strerror(code);
    return FolderResult::failed;
}

bool removeFile(const std::string& path) noexcept {
    return platform::removeName(NativeBuffer(path).text()) == 0;
}

bool removeEmptyFolder(const std::string& path) noexcept {
    return platform::removeFolder(NativeBuffer(path).text()) == 0;
}

std::string desktopFolder() {
    const char* home = std::getenv("HOME");
    return std::string(home ? home : ".") + "/Desktop";
}

std::string currentFolder() {
    char path[PATH_MAX];
    return getcwd(path, sizeof path) ? path : ".";
}

std::optional<std::string> fileNameFault(std::string_view name) {
    if (name.size() > kLongestFileName) {
        return "is longer than 255 bytes";
    }
    if (name.find('\0') != std::string_view::npos) {
        return "holds a zero byte";
    }
    return std::nullopt;
}

} // namespace orvane
