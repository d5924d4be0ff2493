#include "appearance/Decals.h"

#include "appearance/Textures.h"
#include "platform/NarrowText.h"

#include <vector>

namespace orvane {

namespace {

std::vector<HostRef<HostDecal>> decalsOf(const HostComponent& component) {
    if (component.decalCount() > 0) {
        return component.decals();
    }
    const HostRef<HostModelDoc> document = shownDocument(component);
    const HostRef<HostDocExtension> extension =
        document ? document->extension() : HostRef<HostDocExtension>();
    return extension && extension->decalCount() > 0 ? extension->decals() : std::vector<HostRef<HostDecal>>();
}

/// Registers a decal's material, its textures and its mask; gives the decal's index.
std::int32_t DecalIndexFor(const MaterialSource& source, const HostDecal& decal,
                           const HostAppearance& appearance) {
    GltfDocument& document = source.document;
    GltfMaterial& material = appearance::readAppearance(source, &appearance);
    GltfDecal& record = addRecord(document.decals);
    record.material = registerMaterial(document, material);
    document.decalById.emplace(decal.decalId(), record.index);
    AllocateMaterialTextures(document, material, source.report);
    record.maskTexture = colorTextureFor(document, toSystemNarrow(decal.maskFileName()), source.report);
    return record.index;
}

void collectDecal(const MaterialSource& source, const HostRef<HostDecal>& decal) {
    const HostRef<HostAppearance> appearance = decal ? decal->appearance() : HostRef<HostAppearance>();
    if (!appearance || appearance->entityCount() <= 0) {
        return;
    }
    GltfDocument& document = source.document;
    const auto known = document.decalById.find(decal->decalId());
    const std::int32_t index =
        known != document.decalById.end() ? known->second : DecalIndexFor(source, *decal, *appearance);
    for (const HostRef<HostObject>& entity : appearance->entities()) {
        if (const auto component = inRole<HostComponent>(entity)) {
            document.componentDecals[component->getComponentId()].add(index);
        }
    }
}

} // namespace

void CollectDecals(const MaterialSource& source, HostModelDoc& hostDocument,
                   const HostRef<HostComponent>& extraComponent) {
    const HostRef<HostAssembly> assembly = hostDocument.assemblyInterface();
    if (!assembly) {
        return;
    }
    std::vector<HostRef<HostComponent>> components =
        assembly->componentCount() > 0 ? assembly->components() : std::vector<HostRef<HostComponent>>();
    if (extraComponent) {
        components.push_back(extraComponent);
    }
    for (const HostRef<HostComponent>& component : components) {
        if (component) {
            for (const HostRef<HostDecal>& decal : decalsOf(*component)) {
                collectDecal(source, decal);
            }
        }
    }
}

} // namespace orvane
