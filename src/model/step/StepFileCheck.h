#pragma once

#include <filesystem>

namespace orvane::step {

/// Throws `ModelError` where a file cannot be opened, is no STEP file, or is cut off: the kernel's parser
/// says nothing of the kind, and skips what it does not understand.
void checkStepFile(const std::filesystem::path& file);

} // namespace orvane::step
