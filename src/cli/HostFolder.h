#pragma once

#include <filesystem>
#include <string>

namespace orvane::cli {

/// The folder of the host's library: `given` where it is not empty, else the sample library that is installed
/// with the command, else the one in the sources that it was built from. Not asked whether it is there.
std::filesystem::path hostFolder(const std::string& given);

} // namespace orvane::cli
