#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace orvane::cli {

/// Folders that were made for a result. They go again at the end, if they are empty, unless they are kept.
class CreatedFolders {
public:
    CreatedFolders() = default;
    CreatedFolders(const CreatedFolders&) = delete;
    CreatedFolders& operator=(const CreatedFolders&) = delete;
    ~CreatedFolders();

    /// Makes a folder and every missing one above it. Gives a sentence on what is in the way, nothing when
    /// all are there.
    std::optional<std::string> create(const std::filesystem::path& folder);
    void keep() { created_.clear(); }

private:
    std::vector<std::filesystem::path> created_; ///< outermost first
};

} // namespace orvane::cli
