#include "appearance/MaterialIndex.h"

#include "appearance/Textures.h"

namespace orvane {

std::int32_t MaterialIndexFor(AppearanceTable& table, const HostRef<HostMaterialProperties>& properties,
                              const HostRef<HostAppearance>& appearance, bool force) {
    if (!force && !appearance && !properties) {
        return -1;
    }
    const MaterialSource& source = table.source();
    const void* const appearanceIdentity = appearance ? appearance->identity() : nullptr;
    const void* const propertiesIdentity = properties ? properties->identity() : nullptr;
    for (const GltfMaterial* known : source.document.materials) {
        if (known->appearance == appearanceIdentity && known->properties == propertiesIdentity) {
            return known->index;
        }
    }
    GltfMaterial& material = appearance::readAppearance(source, appearance.get());
    appearance::AssignMaterialProperties(material, properties.get());
    table.keep(appearance, material);
    return registerWithTextures(source.document, material, source.report);
}

} // namespace orvane
