#include "appearance/GatherAppearances.h"

#include "appearance/AppearanceKeys.h"
#include "appearance/FaceMarks.h"

namespace orvane {

namespace {

/// An entity that is nothing of what can take a material is passed over.
void registerEntity(HostModelDoc& document, const HostRef<HostObject>& entity, GltfMaterial& material,
                    AppearanceTable& table) {
    if (const auto part = inRole<HostModelDoc>(entity); part && part->partInterface()) {
        table.Register(AppearanceKind::document, part->documentPath(), material);
    } else if (const auto body = inRole<HostBody>(entity)) {
        table.Register(AppearanceKind::body, appearance::bodyKey(&document, body.get()), material);
    } else if (const auto feature = inRole<HostFeature>(entity)) {
        table.Register(AppearanceKind::feature, appearance::featureKey(&document, feature.get()), material);
    } else if (const auto face = inRole<HostFace>(entity)) {
        const std::int32_t mark = appearance::faceMark(*face, true);
        table.Register(AppearanceKind::face, mark, material);
        appearance::reportLostMark(mark, table.source().report);
    } else if (const auto component = inRole<HostComponent>(entity)) {
        table.Register(AppearanceKind::component, component->componentName(), material);
    }
}

void gatherFromDocument(HostModelDoc& document, AppearanceTable& table) {
    for (const HostRef<HostAppearance>& appearance : document.appearances()) {
        if (!appearance || appearance->entityCount() <= 0) {
            continue;
        }
        GltfMaterial& material = table.FindOrCreate(appearance);
        for (const HostRef<HostObject>& entity : appearance->entities()) {
            registerEntity(document, entity, material, table);
        }
    }
}

} // namespace

void gatherAppearances(HostApplication& host, AppearanceTable& table) {
    if (host.openDocumentCount() <= 0) {
        return;
    }
    for (const HostRef<HostModelDoc>& document : host.openDocuments()) {
        if (document) {
            gatherFromDocument(*document, table);
        }
    }
}

} // namespace orvane
