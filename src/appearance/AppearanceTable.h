#pragma once

#include "appearance/AppearanceReading.h"
#include "host/HostRef.h"

#include <cstdint>
#include <string>
#include <unordered_map>

namespace orvane {

/// The kinds of entities that an appearance can be applied to.
enum class AppearanceKind : std::int32_t { body = 0, feature = 1, face = 2, component = 3, document = 4 };

/// Which material an entity takes, and which material an appearance became, for one export. Keys are the
/// host's own texts, see `AppearanceKeys.h`, and for faces their marks.
class AppearanceTable {
public:
    explicit AppearanceTable(MaterialSource source) : source_(std::move(source)) {}

    /// Notes the material of an entity, in place of an earlier one. A kind that does not go with the type of
    /// the key is ignored.
    void Register(AppearanceKind kind, const std::u16string& key, GltfMaterial& material);
    void Register(AppearanceKind kind, std::int32_t key, GltfMaterial& material);

    /// The material of an entity; null when there is none, or when the kind does not go with the key.
    GltfMaterial* Find(AppearanceKind kind, const std::u16string& key) const;
    GltfMaterial* Find(AppearanceKind kind, std::int32_t key) const;

    /// The material that the appearance became, made now unless it was before.
    GltfMaterial& FindOrCreate(const HostRef<HostAppearance>& appearance);
    /// Null when there is none yet.
    GltfMaterial* Find(const HostRef<HostAppearance>& appearance) const;
    /// Makes `material` the one of its appearance, in place of an earlier one.
    void keep(const HostRef<HostAppearance>& appearance, GltfMaterial& material);

    /// Forgets all entities and, when `deep`, also which appearance became which material. The materials
    /// themselves stay: the document owns them.
    void Clear(bool deep);

    const MaterialSource& source() const { return source_; }

private:
    using ByText = std::unordered_map<std::u16string, GltfMaterial*>;

    static ByText AppearanceTable::*mapOf(AppearanceKind kind);

    struct Known {
        HostRef<HostAppearance> appearance; ///< held, so that its identity stays its own
        GltfMaterial* material = nullptr;
    };

    MaterialSource source_;
    ByText bodies_, features_, components_, documents_;
    std::unordered_map<std::int32_t, GltfMaterial*> faces_;
    std::unordered_map<const void*, Known> byAppearance_;
};

} // namespace orvane
