#pragma once

#include <charconv>
#include <string>

namespace orvane::cli {

/// A number with so many decimals and a decimal point, whatever the locale is.
inline std::string decimalText(double value, int decimals) {
    char text[400]; // the largest double has 309 digits before the point
    const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, decimals).ptr;
    return {text, end};
}

} // namespace orvane::cli
