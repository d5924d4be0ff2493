#pragma once

#include "model/json/JsonTree.h"

#include <filesystem>

namespace orvane::json {

/// Brackets that may stand open at once in a document.
inline constexpr std::size_t kMostOpenBrackets = 1000;

/// Reads a whole UTF-8 JSON file, with or without a byte order mark.
/// Throws `ModelError`, with the line and column where they say something, for a file that cannot be read or
/// is not JSON, for a key that stands twice in one object, for a number beyond 64-bit floating point, and for
/// more than `kMostOpenBrackets` open brackets. The cost is linear in the file's size and no call nests with
/// the text.
JsonTree readJsonFile(const std::filesystem::path& file);

} // namespace orvane::json
