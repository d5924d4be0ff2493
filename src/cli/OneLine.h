#pragma once

#include <algorithm>
#include <string>

namespace orvane::cli {

/// The text with a `?` for every control character: names of files may hold any, and a message is one line.
inline std::string onOneLine(std::string text) {
    std::ranges::replace_if(
        text, [](unsigned char c) { return c < 0x20 || c == 0x7F; }, '?');
    return text;
}

} // namespace orvane::cli
