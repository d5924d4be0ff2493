#include "document/GltfDocument.h"

namespace orvane {

GltfMaterial& makeMaterial(GltfDocument& document) {
    const auto serial = static_cast<std::int32_t>(document.materialRecords.size());
    GltfMaterial& material = *document.materialRecords.emplace_back(std::make_unique<GltfMaterial>());
    material.serial = serial;
    return material;
}

std::int32_t registerMaterial(GltfDocument& document, GltfMaterial& material) {
    if (material.index < 0) {
        material.index = static_cast<std::int32_t>(document.materials.size());
        document.materials.push_back(&material);
    }
    return material.index;
}

} // namespace orvane
