#include "platform/PrivateFolder.h"

#include <cstdlib>
#include <filesystem>

namespace orvane {

namespace fs = std::filesystem;

PrivateFolder::~PrivateFolder() {
    if (!path_.empty()) {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
}

const std::string& PrivateFolder::path() {
    if (!isMade_) {
        isMade_ = true;
        std::error_code error;
        std::string name = (fs::temp_directory_path(error) / "orvane-XXXXXX").string();
        if (!error && mkdtemp(name.data())) {
            path_ = name + "/";
        }
    }
    return path_;
}

} // namespace orvane
