#include "appearance/AppearanceReading.h"

#include "appearance/AppearanceFile.h"
#include "appearance/FallbackTextures.h"
#include "appearance/ShaderClasses.h"
#include "platform/Files.h"
#include "platform/NarrowText.h"

#include <algorithm>
#include <string_view>

namespace orvane::appearance {

namespace {

constexpr std::int16_t kAllBits = -1;
constexpr std::uint32_t kWhite = 0xFFFFFF;
constexpr std::int64_t kLargestAppearanceFile = 16 * 1024 * 1024;

bool isBlack(std::uint32_t color) {
    return (color & 0xFFFFFF) == 0;
}

/// The file name without folder and extension.
std::string baseNameOf(const std::string& path) {
    std::size_t separator = path.rfind('\\');
    if (separator == std::string::npos) {
        separator = path.rfind('/');
    }
    const std::string name = path.substr(separator + 1); // from the start when there is none
    return name.substr(0, name.rfind('.'));
}

/// Only appearances that are lamps by their name glow.
bool isLamp(std::string_view baseName) {
    constexpr std::string_view kWords[] = {"LED", "Light", "LCD", "Neon"};
    return std::ranges::any_of(
        kWords, [&](std::string_view word) { return baseName.find(word) != std::string_view::npos; });
}

void readLook(GltfMaterial& material, const AppearanceLook& look, std::string_view baseName) {
    material.a_emission = look.emission > 0 && !isLamp(baseName) ? 0 : look.emission;
    material.primaryColor = look.primaryColor;
    material.a_reflectivity = look.reflectivity;
    material.a_specularSpread = look.specularSpread;
    material.a_transparency = look.transparency;
}

void readMapping(GltfMaterial& material, const AppearanceMapping& mapping) {
    const auto narrow = [](double value) { return static_cast<float>(value); };
    material.mappingType = static_cast<MappingType>(mapping.type);
    material.width = mapping.width;
    material.height = mapping.height;
    material.offsetU = mapping.offsetU;
    material.offsetV = mapping.offsetV;
    material.rotation = mapping.rotation;
    material.cx = narrow(mapping.center[0]);
    material.cy = narrow(mapping.center[1]);
    material.cz = narrow(mapping.center[2]);
    material.uDirx = narrow(mapping.uDirection[0]);
    material.uDiry = narrow(mapping.uDirection[1]);
    material.uDirz = narrow(mapping.uDirection[2]);
    material.vDirx = narrow(mapping.vDirection[0]);
    material.vDiry = narrow(mapping.vDirection[1]);
    material.vDirz = narrow(mapping.vDirection[2]);
    material.sphereAngleA = mapping.sphereAngleA;
    material.sphereAngleB = mapping.sphereAngleB;
    material.MirrorVertical = mapping.mirrorVertical != 0;
    material.MirrorHorizontal = mapping.mirrorHorizontal != 0;
}

void applyAppearanceFile(const MaterialSource& source, GltfMaterial& material) {
    const std::optional<std::string> text = readWholeFile(material.fileName, kLargestAppearanceFile);
    if (!text) {
        source.report.warn("the appearance file " + nativePath(material.fileName) + " cannot be read");
        return;
    }
    const AppearanceFileContent content = readAppearanceText(*text);
    material.tf_shader = content.shader;
    material.shaderClass = static_cast<std::int32_t>(ShaderClassOf(content.shader));
    if (isBlack(material.primaryColor) && content.grey.value_or(0) != 0) {
        material.primaryColor = *content.grey * 0x010101u;
    }
    if (!content.bumpTexture.empty()) {
        material.bumpTextureFileName = source.hostInstallFolder + "\\data\\" + content.bumpTexture;
    }
}

} // namespace

GltfMaterial& readAppearance(const MaterialSource& source, const HostAppearance* appearance) {
    GltfMaterial& material = makeMaterial(source.document);
    if (!appearance) {
        return material;
    }
    material.appearance = appearance->identity();
    material.fileName = toSystemNarrow(appearance->appearanceFileName());
    const std::string baseName = baseNameOf(material.fileName);
    material.mname = source.document.materialNames.claim(baseName);
    material.bumpTextureFileName = toSystemNarrow(appearance->bumpTextureFileName());
    readLook(material, appearance->readLook(), baseName);
    material.textureFileName = toSystemNarrow(appearance->textureFileName());
    readMapping(material, appearance->readMapping());
    if (!material.fileName.empty()) {
        applyAppearanceFile(source, material);
    }
    if (material.textureFileName.empty()) {
        material.textureFileName = fallbackTexture(material.mname, source.hostInstallFolder);
    }
    if (!material.textureFileName.empty()) {
        material.primaryColor = kWhite; // the picture alone gives the colour
    }
    if (material.bumpTextureFileName.empty()) {
        material.bumpTextureFileName = fallbackSurfaceFinish(material.mname, source.hostInstallFolder);
    }
    return material;
}

void AssignMaterialProperties(GltfMaterial& material, const HostMaterialProperties* properties) {
    if (!properties) {
        return;
    }
    const MaterialPropertyValues values = properties->readValues();
    material.properties = properties->identity();
    material.blurry = values.blurry == kAllBits;
    material.a_emission = values.a_emission;
    material.a_reflectivity = values.a_reflectivity;
    material.a_specularSpread = values.a_specularSpread;
    material.a_transparency = values.a_transparency;
    if (isBlack(material.primaryColor) && !isBlack(values.l_primaryColor) &&
        material.textureFileName.empty()) {
        material.primaryColor = values.l_primaryColor;
    }
}

} // namespace orvane::appearance
