#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The text of a host's appearance file, of which only a few keywords are read.
namespace orvane::appearance {

/// The word behind the first `keyword`: blanks, tabs and line ends around it are skipped. Empty when the
/// keyword is not there.
std::string_view ReadKeywordToken(std::string_view text, std::string_view keyword);

/// What stands between the next two double quotes behind the first `keyword`, or behind the first of them
/// when there is no second. Empty when the keyword is not there.
std::string_view ReadKeywordQuoted(std::string_view text, std::string_view keyword);

/// What an appearance file says of its appearance.
struct AppearanceFileContent {
    std::string shader;
    std::optional<std::uint8_t> grey; ///< the first channel of its colour, when there are three
    std::string bumpTexture;          ///< a path below the library's data folder, with `\` between folders
};

AppearanceFileContent readAppearanceText(std::string_view text);

} // namespace orvane::appearance
