#include "appearance/Textures.h"

#include "platform/Files.h"

namespace orvane {

namespace {

bool isThere(const std::string& path, ExportReport& report) {
    if (path.empty()) {
        return false;
    }
    if (!pathExists(path)) {
        report.warn("the picture " + nativePath(path) + " is not there");
        return false;
    }
    return true;
}

/// The bare file name; `/` goes before `\` where a path holds both.
std::string fileNameOf(const std::string& path) {
    std::size_t separator = path.rfind('/');
    if (separator == std::string::npos) {
        separator = path.rfind('\\');
    }
    return path.substr(separator + 1); // the whole path when there is none
}

/// A texture with a picture and a sampler of its own. The first texture of a picture is the one that others
/// may share.
GltfTexture& addTexture(GltfDocument& document, const std::string& path) {
    GltfTexture& texture = addRecord(document.textures);
    document.textureByPath.try_emplace(path, texture.index);
    GltfImage& image = addRecord(document.images);
    image.sourcePath = path;
    image.name = fileNameOf(path);
    texture.source = image.index;
    texture.sampler = addRecord(document.samplers).index;
    return texture;
}

/// A picture serves as normal map only through a texture that was made for it.
std::int32_t normalTextureFor(GltfDocument& document, const std::string& path, ExportReport& report) {
    if (!isThere(path, report)) {
        return -1;
    }
    const auto known = document.textureByPath.find(path);
    if (known != document.textureByPath.end() &&
        document.textures[static_cast<std::size_t>(known->second)]->isNormalMap) {
        return known->second;
    }
    GltfTexture& texture = addTexture(document, path);
    texture.isNormalMap = true;
    return texture.index;
}

} // namespace

std::int32_t colorTextureFor(GltfDocument& document, const std::string& path, ExportReport& report) {
    if (!isThere(path, report)) {
        return -1;
    }
    const auto known = document.textureByPath.find(path);
    return known == document.textureByPath.end() ? addTexture(document, path).index : known->second;
}

void AllocateMaterialTextures(GltfDocument& document, GltfMaterial& material, ExportReport& report) {
    material.baseColorTexture = colorTextureFor(document, material.textureFileName, report);
    material.normalTexture = normalTextureFor(document, material.bumpTextureFileName, report);
}

std::int32_t registerWithTextures(GltfDocument& document, GltfMaterial& material, ExportReport& report) {
    if (material.index < 0) {
        registerMaterial(document, material);
        AllocateMaterialTextures(document, material, report);
    }
    return material.index;
}

} // namespace orvane
