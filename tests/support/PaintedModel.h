#pragma once

#include "support/ExportRun.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace orvane {

/// Entities that an appearance is applied to.
inline EntityRecord onDocument() {
    return {};
}
inline EntityRecord onBody(std::int32_t body) {
    return {.kind = EntityKind::body, .body = body};
}
inline EntityRecord onFeature(std::int32_t feature) {
    return {.kind = EntityKind::feature, .feature = feature};
}
inline EntityRecord onFace(std::int32_t body, std::int32_t face) {
    return {.kind = EntityKind::face, .body = body, .face = face};
}
inline EntityRecord onComponent(const std::u16string& fullName) {
    return {.kind = EntityKind::component, .component = fullName};
}

/// An appearance whose material is named `name`, applied to these entities.
inline AppearanceRecord painted(const std::string& name, std::vector<EntityRecord> entities) {
    AppearanceRecord appearance;
    appearance.file = "/" + name + ".tfm"; // not there: nothing is read from it
    appearance.hasAppliedTo = true;
    appearance.appliedTo = std::move(entities);
    return appearance;
}

/// The materials of one mesh by name, in the order of its primitives with the number of triangles of each;
/// the default material is `-`.
inline std::string meshText(const nlohmann::json& gltf, std::size_t mesh) {
    std::string text;
    for (const auto& primitive : gltf["meshes"][mesh]["primitives"]) {
        const auto& material = gltf["materials"][primitive["material"].get<std::size_t>()];
        const auto& indices = gltf["accessors"][primitive["indices"].get<std::size_t>()];
        text += (text.empty() ? "" : " ") + material.value("name", "-") + ":" +
                std::to_string(indices["count"].get<int>() / 3);
    }
    return text;
}

/// All meshes, in order.
inline std::vector<std::string> meshTexts(const nlohmann::json& gltf) {
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < gltf["meshes"].size(); ++i) {
        texts.push_back(meshText(gltf, i));
    }
    return texts;
}

/// The names of the materials, in the order of their indices.
inline std::vector<std::string> materialNames(const nlohmann::json& gltf) {
    std::vector<std::string> names;
    for (const auto& material : gltf["materials"]) {
        names.push_back(material.value("name", "-"));
    }
    return names;
}

} // namespace orvane
