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

void collectDecal(const MaterialSource& source, const HostRef<HostDecal>& decal) {
    const HostRef<HostAppearance> appearance = decal ? decal->appearance() : HostRef<HostAppearance>();
    if (!appearance || appearance->entityCount() <= 0) {
        return;
    }
    GltfDocument& document = source.document;
    const auto known = document.decalById.find(decal->decalId());
    const std::int32_t index = known != document.decalById.end()
                                   ? known->second
                                   : DecalIndexFor(source, readAppearance(source, appearance.get()), *decal);
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

std::int32_t DecalIndexFor(const MaterialSource& source, GltfMaterial& material, const HostDecal& decal) {
    GltfDocument& document = source.document;
    GltfDecal& record = addRecord(document.decals);
    record.material = registerMaterial(document, material);
    record.decalId = decal.decalId();
    record.bmaskInvert = decal.maskInvert() != 0;
    record.smaskFileName = toSystemNarrow(decal.maskFileName());
    if (decal.idCount() > 0) {
        record.ids = decal.ids();
    }
    document.decalById.emplace(record.decalId, record.index);
    AllocateMaterialTextures(document, material, source.report);
    record.maskTexture = colorTextureFor(document, record.smaskFileName, source.report);
    return record.index;
}

} // namespace orvane
