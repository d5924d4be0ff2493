#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvane {

/// Length in bytes of the longest head of `text` that is well-formed UTF-8; a sequence that `text` cuts off
/// at its end does not belong to it.
std::size_t wellFormedLength(std::string_view text);

/// UTF-8 as UTF-16 on every system, whatever the code page. `text` must be well formed.
std::u16string utf16FromUtf8(std::string_view text);

/// UTF-16 as UTF-8 for messages. An unpaired surrogate becomes U+FFFD.
std::string utf8FromUtf16(std::u16string_view text);

/// `text` (well-formed UTF-8) on one line: cut at a character's edge after 40 bytes, where it gets "...",
/// with a space for every control character.
std::string shortened(std::string_view text);

} // namespace orvane
