#pragma once

#include <cstddef>
#include <ostream>
#include <string_view>

namespace orvane::cli {

/// Prints a message as one line, with a `?` for every control character, those that UTF-8 has beyond ASCII
/// included: names of files may hold any. Takes no memory, since it may be the lack of it that is told.
inline void printOnOneLine(std::ostream& out, std::string_view head, std::string_view text) {
    out << head;
    char piece[512];
    std::size_t length = 0;
    const auto byte = [&](std::size_t at) {
        return at < text.size() ? static_cast<unsigned char>(text[at]) : 0u;
    };
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool isOfTwo = byte(at) == 0xC2 && byte(at + 1) >= 0x80 && byte(at + 1) < 0xA0;
        piece[length++] = byte(at) < 0x20 || byte(at) == 0x7F || isOfTwo ? '?' : text[at];
        at += isOfTwo ? 1 : 0;
        if (length == sizeof piece) {
            out.write(piece, sizeof piece);
            length = 0;
        }
    }
    out.write(piece, static_cast<std::streamsize>(length));
    out << "\n";
}

} // namespace orvane::cli
