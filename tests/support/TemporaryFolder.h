#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>
#include <unistd.h>

namespace orvane {

/// A folder of its own for one test, gone with the object. Its name is in lower case, as the host's save
/// callbacks make every path.
class TemporaryFolder {
public:
    TemporaryFolder() {
        static int count = 0;
        const std::string name = "orvane-test-" + std::to_string(getpid()) + "-" + std::to_string(++count);
        path_ = std::filesystem::temp_directory_path() / name;
        std::filesystem::create_directory(path_);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    const std::filesystem::path& path() const { return path_; }
    std::string operator/(const std::string& name) const { return (path_ / name).string(); }

    /// The names of everything in the folder or in one below it.
    std::set<std::string> names(const std::string& below = {}) const {
        std::set<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(path_ / below)) {
            found.insert(entry.path().filename().string());
        }
        return found;
    }

private:
    std::filesystem::path path_;
};

inline std::string readFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw std::runtime_error("cannot open " + path);
    }
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void writeFile(const std::string& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

} // namespace orvane
