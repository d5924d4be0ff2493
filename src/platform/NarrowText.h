#pragma once

#include <string>
#include <string_view>

namespace orvane {

/// UTF-16 text as narrow text in the system's code page; on Linux that is UTF-8.
/// An unpaired surrogate becomes U+FFFD. Never fails.
std::string toSystemNarrow(std::u16string_view text);

/// Narrow text in the system's code page as UTF-16; on Linux that is UTF-8.
/// A malformed byte becomes U+FFFD. Never fails.
std::u16string fromSystemNarrow(std::string_view text);

} // namespace orvane
