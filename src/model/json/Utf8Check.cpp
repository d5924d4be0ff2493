#include "model/json/Utf8Check.h"

#include <algorithm>

namespace orvane::json {

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

} // namespace

std::size_t wellFormedLength(std::string_view text) {
    std::size_t at = 0;
    while (at < text.size() && isWellFormedAt(text, at)) {
        at += sequenceLength(byteAt(text, at));
    }
    return at;
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

} // namespace orvane::json
