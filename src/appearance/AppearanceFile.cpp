#include "appearance/AppearanceFile.h"

#include <algorithm>
#include <charconv>

namespace orvane::appearance {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

std::string_view behind(std::string_view text, std::size_t position) {
    return text.substr(std::min(position, text.size()));
}

/// A decimal number as its longest readable beginning, 0 without any, as C's `atof` takes it.
double leadingNumber(std::string_view text) {
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) {
            return 0;
        }
    }
    double number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// The low 8 bits of the whole part of 255 times a channel.
std::uint8_t channelByte(double channel) {
    const double value = channel * 255;
    // Beyond 32 bits there is no whole part to take; this also holds what is not a number.
    const bool isInRange = value > -2147483649.0 && value < 2147483648.0;
    return isInRange ? static_cast<std::uint8_t>(static_cast<std::int32_t>(value)) : std::uint8_t{0};
}

/// The first channel stands for all three: library colours that are read this way are greys.
std::optional<std::uint8_t> greyOf(std::string_view color) {
    if (std::ranges::count(color, ',') != 2) {
        return std::nullopt;
    }
    return channelByte(leadingNumber(color.substr(0, color.find(','))));
}

/// The path in `color texture "bump_file_texture" "path"`.
std::string_view bumpFileTexture(std::string_view text) {
    constexpr std::string_view kKeyword = "color texture \"bump_file_texture\" ";
    const std::size_t start = text.find(kKeyword);
    if (start == std::string_view::npos) {
        return {};
    }
    const std::string_view rest = text.substr(start + kKeyword.size());
    const std::size_t opening = rest.find('"');
    const std::size_t closing = opening == std::string_view::npos ? opening : rest.find('"', opening + 1);
    return closing == std::string_view::npos ? std::string_view()
                                             : rest.substr(opening + 1, closing - opening - 1);
}

} // namespace

std::string_view ReadKeywordToken(std::string_view text, std::string_view keyword) {
    const std::size_t start = text.find(keyword);
    if (start == std::string_view::npos) {
        return {};
    }
    text = text.substr(start + keyword.size());
    text = behind(text, text.find_first_not_of(kBlanks));
    return text.substr(0, text.find_first_of(kBlanks));
}

std::string_view ReadKeywordQuoted(std::string_view text, std::string_view keyword) {
    const std::size_t start = text.find(keyword);
    const std::size_t opening =
        start == std::string_view::npos ? start : text.find('"', start + keyword.size());
    if (opening == std::string_view::npos) {
        return {};
    }
    text = text.substr(opening + 1);
    return text.substr(0, text.find('"'));
}

AppearanceFileContent readAppearanceText(std::string_view text) {
    AppearanceFileContent content;
    content.shader = ReadKeywordToken(text, "\"tf_shader\"");
    content.grey = greyOf(ReadKeywordToken(text, "\"col1\""));
    content.bumpTexture = ReadKeywordQuoted(text, "\"bumpTexture\"");
    if (content.bumpTexture.empty()) {
        content.bumpTexture = bumpFileTexture(text);
    }
    std::ranges::replace(content.bumpTexture, '/', '\\');
    return content;
}

} // namespace orvane::appearance
