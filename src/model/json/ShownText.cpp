#include "model/json/ShownText.h"

#include "platform/Utf8.h"

#include <algorithm>

namespace orvane::json {

std::string shortened(std::string_view text) {
    constexpr std::size_t kShownBytes = 40;
    std::string out(text.substr(0, wellFormedUtf8Length(text.substr(0, kShownBytes))));
    if (out.size() < text.size()) {
        out += "...";
    }
    std::ranges::replace_if(
        out, [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, ' ');
    return out;
}

std::string inQuotes(std::string_view text) {
    return '"' + shortened(text) + '"';
}

std::string shownPathSegment(std::string_view key) {
    std::string out;
    for (const char c : shortened(key)) {
        out += c == '~' ? "~0" : c == '/' ? "~1" : std::string(1, c);
    }
    return out;
}

} // namespace orvane::json
