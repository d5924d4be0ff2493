#pragma once

#include <string>
#include <string_view>

/// Pictures of the host's library for appearances that name none of their own: the first row whose key occurs
/// anywhere in a material's name wins, upper and lower case alike. Paths have `\\` between folders.
namespace orvane::appearance {

/// The base colour picture for a material of this name, a path below `hostInstallFolder`; empty when no row
/// matches. Whether the file is there is not asked.
std::string fallbackTexture(std::string_view materialName, const std::string& hostInstallFolder);

/// The same for the picture that the normal map comes from.
std::string fallbackSurfaceFinish(std::string_view materialName, const std::string& hostInstallFolder);

} // namespace orvane::appearance
