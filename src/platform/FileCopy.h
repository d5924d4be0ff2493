#pragma once

#include <string>

namespace orvane {

enum class CopyResult {
    copied,
    same,    ///< a file of that name and with the same bytes is there already
    existed, ///< something else of that name is there, and stays
    failed,
};
/// Copies a regular file to a path where nothing stands yet. On failure `error` gets the system's words.
CopyResult copyToNewFile(const std::string& source, const std::string& target, std::string& error);

} // namespace orvane
