#include "document/MaterialWriter.h"

#include <cmath>
#include <string_view>

namespace orvane::document {

namespace {

constexpr std::int32_t kMetalClass = 4;
constexpr std::int32_t kMetallicPaintClass = 11;

struct BaseColor {
    double red, green, blue, alpha;
};

/// A transparent material's alpha follows the brightness of its colour, not the amount of its transparency:
/// dark glass lets less through (docs/output-format.md, "Colours"). The single precision steps are part of
/// the format.
BaseColor baseColor(const GltfMaterial& material) {
    const auto channel = [&](int shift) {
        return static_cast<double>((material.primaryColor >> shift) & 0xFF) / 255.0;
    };
    BaseColor color{channel(0), channel(8), channel(16), 1 - material.a_transparency};
    if (color.alpha < 1) {
        const auto mean = static_cast<float>((color.red + color.green + color.blue) * 0.3333333432674408);
        color.alpha = static_cast<double>(1.0f - mean * 0.8f);
    }
    return color;
}

double metallicFactor(const GltfMaterial& material) {
    switch (material.shaderClass) {
    case kMetalClass:
        return 1;
    case kMetallicPaintClass:
        return 0.7;
    default:
        return 0;
    }
}

double roughnessFactor(const GltfMaterial& material) {
    if (material.blurry) {
        return material.a_specularSpread;
    }
    return material.a_reflectivity > 0 ? (1 - material.a_reflectivity) * 0.2 : 1;
}

void writePbr(TextStream& out, const GltfMaterial& material, const BaseColor& color) {
    std::string_view sep;
    if (material.baseColorTexture >= 0) {
        out << "\t\t\t\t\t\"baseColorTexture\": {\n"
            << "\t\t\t\t\t\t\"index\": " << material.baseColorTexture << "\n"
            << "\t\t\t\t\t}\n";
        sep = ",";
    }
    out << "\t\t\t\t\t" << sep << "\"baseColorFactor\": [\n"
        << "\t\t\t\t\t\t" << color.red << ", " << color.green << ", " << color.blue << ", " << color.alpha
        << "\n"
        << "\t\t\t\t\t]\n";
    sep = ",";
    out << "\t\t\t\t\t" << sep << "\"metallicFactor\": " << metallicFactor(material) << "\n";
    out << "\t\t\t\t\t" << sep << "\"roughnessFactor\": " << roughnessFactor(material) << "\n";
}

} // namespace

void writeMaterial(TextStream& out, const GltfMaterial& material) {
    const BaseColor color = baseColor(material);
    std::string_view sep;
    out << "\t\t\t{\n";
    if (!material.mname.empty()) {
        out << "\t\t\t\t\"name\": \"" << material.mname << "\"\n";
        sep = ",";
    }
    if (material.normalTexture >= 0) {
        out << "\t\t\t\t\t" << sep << "\"normalTexture\": {\n"
            << "\t\t\t\t\t\t\"index\": " << material.normalTexture << "\n"
            << "\t\t\t\t\t\t,\"scale\": " << static_cast<double>(0.3f) << "\n"
            << "\t\t\t\t\t}\n";
        sep = ",";
    }
    out << "\t\t\t\t" << sep << "\"pbrMetallicRoughness\": {\n";
    writePbr(out, material, color);
    out << "\t\t\t\t}\n";
    sep = ",";
    if (material.a_emission > 0) {
        out << "\t\t\t\t" << sep << "\"emissiveFactor\": [\n"
            << "\t\t\t\t\t" << color.red << ", " << color.green << ", " << color.blue << "\n"
            << "\t\t\t\t]\n";
    }
    if (color.alpha < 1) {
        out << "\t\t\t\t" << sep << "\"alphaMode\": \"BLEND\"\n";
    }
    out << "\t\t\t}";
}

bool hasFiniteNumbers(const GltfMaterial& material) {
    return std::isfinite(baseColor(material).alpha) && std::isfinite(roughnessFactor(material));
}

} // namespace orvane::document
