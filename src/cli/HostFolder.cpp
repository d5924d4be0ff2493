#include "cli/HostFolder.h"

namespace orvane::cli {

namespace fs = std::filesystem;

fs::path hostFolder(const std::string& given) {
    if (!given.empty()) {
        const fs::path folder = fs::path(given).lexically_normal();
        return folder.has_filename() ? folder : folder.parent_path(); // without a separator at its end
    }
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    const fs::path installed = program.parent_path() / ORVANE_INSTALLED_LIBRARY;
    if (!error && fs::is_directory(installed, error)) {
        return installed;
    }
    return ORVANE_SOURCE_LIBRARY;
}

} // namespace orvane::cli
