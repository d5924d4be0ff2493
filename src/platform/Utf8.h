#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvane {

/// UTF-16 as UTF-8, whatever the system's code page. An unpaired surrogate becomes U+FFFD. Never fails.
std::string utf8FromUtf16(std::u16string_view text);

/// UTF-8 as UTF-16. Each byte that belongs to no well-formed sequence becomes U+FFFD. Never fails.
std::u16string utf16FromUtf8(std::string_view text);

/// Length in bytes of the longest head of `text` that is well-formed UTF-8; a sequence that `text` cuts off
/// at its end does not belong to it.
std::size_t wellFormedUtf8Length(std::string_view text);

} // namespace orvane
