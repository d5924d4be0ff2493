#pragma once

#include "platform/MadeFolder.h"

#include <deque>
#include <filesystem>
#include <optional>
#include <string>

namespace orvane::cli {

/// The folders that a result needs. Those that were made for it go again at the end if they are empty.
class CreatedFolders {
public:
    CreatedFolders() = default;
    CreatedFolders(const CreatedFolders&) = delete;
    CreatedFolders& operator=(const CreatedFolders&) = delete;
    ~CreatedFolders();

    /// Makes a folder and every missing one above it. Gives a sentence on what is in the way, nothing when
    /// all are there.
    std::optional<std::string> create(const std::filesystem::path& folder);

private:
    std::deque<MadeFolder> made_; ///< outermost first
};

} // namespace orvane::cli
