#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvane::json {

/// Length in bytes of the longest head of `text` that is well-formed UTF-8; a sequence that `text` cuts off
/// at its end does not belong to it.
std::size_t wellFormedLength(std::string_view text);

/// `text` (well-formed UTF-8) on one line: cut at a character's edge after 40 bytes, where it gets "...",
/// with a space for every control character.
std::string shortened(std::string_view text);

} // namespace orvane::json
