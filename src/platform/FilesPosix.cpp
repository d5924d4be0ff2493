#include "platform/Files.h"

#include "platform/RegularFilePosix.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace orvane {

namespace {

constexpr std::size_t kLongestFileName = 255;
constexpr mode_t kFolderMode = 0777;

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

bool canOpenForReading(const std::string& path) {
    const int descriptor = open(nativePath(path).c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) {
        return false;
    }
    close(descriptor);
    return true;
}

bool pathExists(const std::string& path) {
    struct stat status {};
    return stat(nativePath(path).c_str(), &status) == 0;
}

std::string readFileStart(const std::string& path, std::int64_t most) {
    return platform::RegularFile(path).read(0, most);
}

std::string readFileTail(const std::string& path, std::int64_t most) {
    const platform::RegularFile file(path);
    return file.read(std::max<std::int64_t>(file.size() - most, 0), most);
}

std::optional<std::string> readWholeFile(const std::string& path, std::int64_t most) {
    const platform::RegularFile file(path);
    if (!file.isOpen() || file.size() > most) {
        return std::nullopt;
    }
    return file.read(0, most);
}

FolderResult createFolder(const std::string& path, std::string& error) {
    const std::string native = path.empty() ? "." : nativePath(path);
    if (mkdir(native.c_str(), kFolderMode) == 0) {
        return FolderResult::created;
    }
    const int code = errno;
    struct stat status {};
    if (stat(native.c_str(), &status) == 0 && S_ISDIR(status.st_mode)) {
        return FolderResult::existed;
    }
    error = std::strerror(code);
    return FolderResult::failed;
}

bool removeFile(const std::string& path) noexcept {
    return unlink(NativeBuffer(path).text()) == 0;
}

bool removeEmptyFolder(const std::string& path) noexcept {
    return rmdir(NativeBuffer(path).text()) == 0;
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
