#pragma once

#include <algorithm>
#include <ostream>
#include <string_view>

namespace orvane::cli {

/// Prints a message as one line, with a `?` for every control character: names of files may hold any. Takes
/// no memory, since it may be the lack of it that is told.
inline void printOnOneLine(std::ostream& out, std::string_view head, std::string_view text) {
    out << head;
    char piece[512];
    while (!text.empty()) {
        const std::string_view next = text.substr(0, sizeof piece);
        std::ranges::replace_copy_if(
            next, piece, [](unsigned char c) { return c < 0x20 || c == 0x7F; }, '?');
        out.write(piece, static_cast<std::streamsize>(next.size()));
        text.remove_prefix(next.size());
    }
    out << "\n";
}

} // namespace orvane::cli
