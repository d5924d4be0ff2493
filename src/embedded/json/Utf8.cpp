#include "embedded/json/Utf8.h"

#include <algorithm>

namespace orvane {

namespace {

constexpr std::size_t kShownBytes = 40;

unsigned byteAt(std::string_view text, std::size_t at) {
    return static_cast<unsigned char>(text[at]);
}

bool isTail(unsigned byte) {
    return (byte & 0xC0u) == 0x80u;
}

std::size_t sequenceLength(unsigned lead) {
    return lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

/// Whether a well-formed sequence starts at `at` (the table of well-formed byte sequences of the Unicode
/// Standard).
bool isWellFormedAt(std::string_view text, std::size_t at) {
    const unsigned lead = byteAt(text, at);
    if (lead < 0x80) {
        return true;
    }
    const std::size_t length = sequenceLength(lead);
    if (lead < 0xC2 || lead > 0xF4 || at + length > text.size()) {
        return false;
    }
    const unsigned second = byteAt(text, at + 1);
    const unsigned lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const unsigned highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    if (second < lowest || second > highest) {
        return false;
    }
    for (std::size_t i = 2; i < length; ++i) {
        if (!isTail(byteAt(text, at + i))) {
            return false;
        }
    }
    return true;
}

void appendUtf8(std::string& out, char32_t code) {
    const std::size_t length = code < 0x80 ? 1 : code < 0x800 ? 2 : code < 0x10000 ? 3 : 4;
    constexpr unsigned kLead[] = {0, 0x00, 0xC0, 0xE0, 0xF0};
    out += static_cast<char>(kLead[length] | (code >> (6 * (length - 1))));
    for (std::size_t i = length - 1; i > 0; --i) {
        out += static_cast<char>(0x80u | ((code >> (6 * (i - 1))) & 0x3Fu));
    }
}

} // namespace

std::size_t wellFormedLength(std::string_view text) {
    std::size_t at = 0;
    while (at < text.size() && isWellFormedAt(text, at)) {
        at += sequenceLength(byteAt(text, at));
    }
    return at;
}

std::u16string utf16FromUtf8(std::string_view text) {
    std::u16string out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const unsigned lead = byteAt(text, at);
        const std::size_t length = sequenceLength(lead);
        char32_t code = length == 1 ? lead : lead & (0x7Fu >> length);
        for (std::size_t i = 1; i < length && at + i < text.size(); ++i) {
            code = (code << 6) | (byteAt(text, at + i) & 0x3Fu);
        }
        at += length;
        if (code < 0x10000) {
            out += static_cast<char16_t>(code);
        } else {
            out += static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10));
            out += static_cast<char16_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
        }
    }
    return out;
}

std::string utf8FromUtf16(std::u16string_view text) {
    const auto isIn = [](char16_t unit, unsigned block) { return (unit & 0xFC00u) == block; };
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t code = text[i];
        if (isIn(text[i], 0xD800) && i + 1 < text.size() && isIn(text[i + 1], 0xDC00)) {
            code = 0x10000 + ((code & 0x3FF) << 10) + (text[++i] & 0x3FFu);
        } else if ((code & 0xF800) == 0xD800) {
            code = 0xFFFD;
        }
        appendUtf8(out, code);
    }
    return out;
}

std::string shortened(std::string_view text) {
    std::string out(text.substr(0, kShownBytes));
    if (text.size() > kShownBytes) {
        std::size_t cut = kShownBytes;
        while (cut > 0 && isTail(byteAt(text, cut))) {
            --cut;
        }
        out.resize(cut);
        out += "...";
    }
    std::ranges::replace_if(
        out, [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, ' ');
    return out;
}

} // namespace orvane
