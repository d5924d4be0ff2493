#include "appearance/FallbackTextures.h"

#include "platform/AsciiCase.h"

#include <algorithm>
#include <span>

namespace orvane::appearance {

namespace {

struct FallbackRow {
    std::string_view key; ///< in lower case
    std::string_view path;
};

/// Below the library's folder of textures. The order decides: the second "slate" never wins.
constexpr FallbackRow kAppearanceTextureTable[] = {
    {"ash", "organic\\wood\\ash\\polished ash.jpg"},
    {"beech", "organic\\wood\\beech\\polished beech.jpg"},
    {"birch", "organic\\wood\\birch\\polished birch.jpg"},
    {"cherry", "organic\\wood\\cherry\\polished cherry.jpg"},
    {"maple", "organic\\wood\\maple\\polished maple.jpg"},
    {"oak", "organic\\wood\\oak\\polished oak.jpg"},
    {"pine", "organic\\wood\\pine\\polished pine.jpg"},
    {"rosewood", "organic\\wood\\rosewood\\polished rosewood.jpg"},
    {"satinwood", "organic\\wood\\satinwood\\satinwood.jpg"},
    {"spruce", "organic\\wood\\spruce\\spruce.jpg"},
    {"teak", "organic\\wood\\teak\\polished teak.jpg"},
    {"blue marble", "stone\\architectural\\marble\\marble blue.jpg"},
    {"blue rough shiny marble", "stone\\architectural\\marble\\marble blue.jpg"},
    {"blue shiny marble", "stone\\architectural\\marble\\marble blue.jpg"},
    {"blue vein marble", "stone\\architectural\\marble\\marble blue vein.jpg"},
    {"green marble", "stone\\architectural\\marble\\marble green.jpg"},
    {"green vein marble", "stone\\architectural\\marble\\marble green vein.jpg"},
    {"pink marble", "stone\\architectural\\marble\\pink marble.jpg"},
    {"pink vein marble", "stone\\architectural\\marble\\marble pink vein.jpg"},
    {"sandstone", "stone\\architectural\\sandstone\\sandstone.jpg"},
    {"slate", "stone\\architectural\\slate\\slate.jpg"},
    {"slate", "stone\\brick\\fire brick.jpg"},
};

/// Below the library's folder of surface finishes.
constexpr FallbackRow kSurfaceFinishTable[] = {
    {"burnished", "burnished_n.dds"},
    {"burlap", "burlap_n.dds"},
    {"brushed", "_brushed.dds"},
    {"scratch", "_scratch_n.dds"},
    {"knurled", "knurled.dds"},
    {"spruce", "spruce_n.dds"},
    {"frosted", "plasticmt11040_normalmap.dds"},
    {"sandblasted", "sandblasted.dds"},
    {"satin", "satinwood_n.dds"},
    {"powdercoat", "powdercoat_n.dds"},
    {"polypropylene", "..\\..\\textures\\plastic\\bumpy\\plasticpolypropylene_bump.jpg"},
};

std::string findPath(std::span<const FallbackRow> table, std::string_view materialName,
                     const std::string& folder) {
    const std::string name = asciiLower(std::string(materialName));
    const auto row = std::ranges::find_if(
        table, [&](const FallbackRow& one) { return name.find(one.key) != std::string::npos; });
    return row == table.end() ? std::string() : folder + std::string(row->path);
}

} // namespace

std::string fallbackTexture(std::string_view materialName, const std::string& hostInstallFolder) {
    return findPath(kAppearanceTextureTable, materialName, hostInstallFolder + "\\data\\Images\\textures\\");
}

std::string fallbackSurfaceFinish(std::string_view materialName, const std::string& hostInstallFolder) {
    return findPath(kSurfaceFinishTable, materialName,
                    hostInstallFolder + "\\data\\Images\\shaders\\surfacefinish\\");
}

} // namespace orvane::appearance
