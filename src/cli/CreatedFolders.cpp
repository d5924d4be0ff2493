#include "cli/CreatedFolders.h"

#include <ranges>

namespace orvane::cli {

namespace fs = std::filesystem;

CreatedFolders::~CreatedFolders() {
    for (const fs::path& folder : created_ | std::views::reverse) {
        std::error_code ignored;
        fs::remove(folder, ignored);
    }
}

std::optional<std::string> CreatedFolders::create(const fs::path& folder) {
    std::vector<fs::path> missing;
    std::error_code fault;
    for (fs::path at = folder.lexically_normal(); !at.empty() && !fs::exists(at, fault);
         at = at.parent_path()) {
        if (at.has_filename()) {
            missing.push_back(at);
        }
        if (at == at.parent_path()) {
            break;
        }
    }
    for (const fs::path& next : missing | std::views::reverse) {
        if (!fs::create_directory(next, fault)) {
            return "the folder " + next.string() + " cannot be made: " +
                   (fault ? fault.message() : std::string("something else stands there"));
        }
        created_.push_back(next);
    }
    return std::nullopt;
}

} // namespace orvane::cli
