#pragma once

#include <filesystem>
#include <string>

namespace orvane {

/// A file's absolute, normalised path as the host answers it: UTF-16, with `\` between folders on every
/// system.
std::u16string toHostPath(const std::filesystem::path& file);

} // namespace orvane
