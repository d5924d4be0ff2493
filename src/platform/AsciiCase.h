#pragma once

#include <algorithm>
#include <string>

namespace orvane {

/// A letter A to Z as a small one, any other byte as it is: the same in every locale, and harmless to UTF-8.
constexpr char asciiLower(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

/// A text with all its letters A to Z small.
inline std::string asciiLower(std::string text) {
    std::ranges::transform(text, text.begin(), [](char letter) { return asciiLower(letter); });
    return text;
}

} // namespace orvane
