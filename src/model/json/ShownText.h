#pragma once

#include <string>
#include <string_view>

namespace orvane::json {

/// `text` (well-formed UTF-8) on one line of a message: cut at a character's edge after 40 bytes, where it
/// gets "...", with a space for every control character.
std::string shortened(std::string_view text);

/// `shortened` between quotation marks.
std::string inQuotes(std::string_view text);

/// One step of a JSON path as RFC 6901 escapes it, shortened.
std::string shownPathSegment(std::string_view key);

} // namespace orvane::json
