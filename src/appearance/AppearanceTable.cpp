#include "appearance/AppearanceTable.h"

namespace orvane {

namespace {

template <class Map, class Key>
GltfMaterial* findIn(const Map& map, const Key& key) {
    const auto found = map.find(key);
    return found == map.end() ? nullptr : found->second;
}

const void* identityOf(const HostRef<HostAppearance>& appearance) {
    return appearance ? appearance->identity() : nullptr;
}

} // namespace

/// The map of a kind that goes by text; null for one that does not.
AppearanceTable::ByText AppearanceTable::*AppearanceTable::mapOf(AppearanceKind kind) {
    switch (kind) {
    case AppearanceKind::body:
        return &AppearanceTable::bodies_;
    case AppearanceKind::feature:
        return &AppearanceTable::features_;
    case AppearanceKind::component:
        return &AppearanceTable::components_;
    case AppearanceKind::document:
        return &AppearanceTable::documents_;
    case AppearanceKind::face:
        break;
    }
    return nullptr;
}

void AppearanceTable::Register(AppearanceKind kind, const std::u16string& key, GltfMaterial& material) {
    if (ByText AppearanceTable::*const map = mapOf(kind)) {
        (this->*map)[key] = &material;
    }
}

void AppearanceTable::Register(AppearanceKind kind, std::int32_t key, GltfMaterial& material) {
    if (kind == AppearanceKind::face) {
        faces_[key] = &material;
    }
}

GltfMaterial* AppearanceTable::Find(AppearanceKind kind, const std::u16string& key) const {
    ByText AppearanceTable::*const map = mapOf(kind);
    return map ? findIn(this->*map, key) : nullptr;
}

GltfMaterial* AppearanceTable::Find(AppearanceKind kind, std::int32_t key) const {
    return kind == AppearanceKind::face ? findIn(faces_, key) : nullptr;
}

GltfMaterial& AppearanceTable::FindOrCreate(const HostRef<HostAppearance>& appearance) {
    if (GltfMaterial* known = Find(appearance)) {
        return *known;
    }
    GltfMaterial& material = appearance::readAppearance(source_, appearance.get());
    keep(appearance, material);
    return material;
}

GltfMaterial* AppearanceTable::Find(const HostRef<HostAppearance>& appearance) const {
    const auto found = byAppearance_.find(identityOf(appearance));
    return found == byAppearance_.end() ? nullptr : found->second.material;
}

void AppearanceTable::keep(const HostRef<HostAppearance>& appearance, GltfMaterial& material) {
    byAppearance_[identityOf(appearance)] = {appearance, &material};
}

void AppearanceTable::Clear(bool deep) {
    for (ByText* map : {&bodies_, &features_, &components_, &documents_}) {
        map->clear();
    }
    faces_.clear();
    if (deep) {
        byAppearance_.clear();
    }
}

} // namespace orvane
