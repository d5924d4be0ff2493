#include "cli/CreatedFolders.h"

#include "platform/Files.h"

namespace orvane::cli {

CreatedFolders::~CreatedFolders() {
    while (!made_.empty()) {
        made_.pop_back();
    }
}

std::optional<std::string> CreatedFolders::create(const std::filesystem::path& folder) {
    std::filesystem::path reached;
    for (const std::filesystem::path& step : folder.lexically_normal()) {
        reached /= step;
        if (pathExists(reached.string())) {
            continue;
        }
        const MadeFolder& made = made_.emplace_back(reached.string());
        if (!made.error().empty()) {
            return "the folder " + reached.string() + " cannot be made: " + made.error();
        }
    }
    return std::nullopt;
}

} // namespace orvane::cli
