#pragma once

#include <cstdint>
#include <string_view>

namespace orvane::appearance {

/// What a shader of the host's library is made of.
enum class ShaderClass : std::int32_t {
    unknown = 0,
    fabric = 1,
    glass = 2,
    light = 3,
    metal = 4,
    miscellaneous = 5,
    organic = 6,
    paint = 7,
    plastic = 8,
    rubber = 9,
    stone = 10,
    metallicPaint = 11,
};

/// The class of the library shader of exactly this name, upper and lower case told apart; `unknown` for any
/// other name.
ShaderClass ShaderClassOf(std::string_view name);

} // namespace orvane::appearance
