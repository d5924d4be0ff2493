#include "embedded/EmbeddedObject.h"
#include "embedded/HostAnswers.h"
#include "model/records/HostPath.h"

#include <utility>

namespace orvane::embedded {

namespace {

/// Empty for an empty file name.
std::u16string pathOf(const std::string& file) {
    return file.empty() ? std::u16string() : toHostPath(std::filesystem::path(file));
}

class EmbeddedAppearance final : public EmbeddedItem<HostAppearance, AppearanceRecord> {
public:
    /// `component` is what the appearance is applied to where the record does not say; it may be empty.
    EmbeddedAppearance(SessionRef session, const ModelDocument& document, const AppearanceRecord& record,
                       HostRef<HostComponent> component)
        : EmbeddedItem(std::move(session), document, record), component_(std::move(component)) {}

    std::u16string appearanceFileName() const override { return pathOf(record_.file); }
    std::u16string bumpTextureFileName() const override { return pathOf(record_.bumpTexture); }
    std::u16string textureFileName() const override { return pathOf(record_.texture); }

    AppearanceLook readLook() const override {
        return {.emission = record_.emission,
                .primaryColor = record_.primaryColor,
                .secondaryColor = record_.secondaryColor,
                .tertiaryColor = record_.tertiaryColor,
                .reflectivity = record_.reflectivity,
                .specularSpread = record_.specularSpread,
                .specular = record_.specular,
                .specularColor = record_.specularColor,
                .transparency = record_.transparency};
    }
    AppearanceMapping readMapping() const override {
        const MappingRecord& mapping = record_.mapping;
        return {.type = static_cast<HostMappingType>(mapping.type),
                .width = mapping.width,
                .height = mapping.height,
                .offsetU = mapping.offsetU,
                .offsetV = mapping.offsetV,
                .rotation = mapping.rotation,
                .center = mapping.center,
                .uDirection = mapping.uDirection,
                .vDirection = mapping.vDirection,
                .sphereAngleA = mapping.sphereAngleA,
                .sphereAngleB = mapping.sphereAngleB,
                .mirrorVertical = toFlag(mapping.mirrorVertical),
                .mirrorHorizontal = toFlag(mapping.mirrorHorizontal)};
    }

    std::int32_t entityCount() const override {
        return record_.hasAppliedTo ? countOf(record_.appliedTo) : (component_ ? 1 : 0);
    }
    std::vector<HostRef<HostObject>> entities() const override {
        std::vector<HostRef<HostObject>> entities;
        for (const EntityRecord& entity : record_.appliedTo) {
            entities.push_back(entityOf(entity));
        }
        if (!record_.hasAppliedTo && component_) {
            entities.push_back(component_);
        }
        return entities;
    }

private:
    HostRef<HostObject> entityOf(const EntityRecord& entity) const {
        switch (entity.kind) {
        case EntityKind::document:
            return makeModelDoc(session_, document_);
        case EntityKind::body:
            return makeBody(session_, document_, bodyAt(entity.body));
        case EntityKind::feature:
            return makeFeature(session_, document_, entity.feature);
        case EntityKind::face:
            return makeFace(session_, document_,
                            bodyAt(entity.body).faces[static_cast<std::size_t>(entity.face)]);
        case EntityKind::component:
            return makeComponent(session_, document_,
                                 session_->componentsOf(document_).find(entity.component));
        }
        return {};
    }
    const BodyRecord& bodyAt(std::int32_t position) const {
        return document_.bodies[static_cast<std::size_t>(position)];
    }

    HostRef<HostComponent> component_;
};

class EmbeddedDecal final : public EmbeddedItem<HostDecal, DecalRecord> {
public:
    EmbeddedDecal(SessionRef session, const ModelDocument& document, const DecalRecord& record,
                  HostRef<HostComponent> component)
        : EmbeddedItem(std::move(session), document, record), component_(std::move(component)) {}

    std::int32_t decalId() const override { return record_.id; }
    std::u16string maskFileName() const override { return pathOf(record_.maskFile); }
    std::int16_t maskInvert() const override { return toFlag(record_.maskInvert); }
    std::int32_t idCount() const override { return countOf(record_.ids); }
    std::vector<std::int32_t> ids() const override { return record_.ids; }
    HostRef<HostAppearance> appearance() const override {
        return record_.appearance
                   ? makeHostObject<EmbeddedAppearance>(session_, document_, *record_.appearance, component_)
                   : HostRef<EmbeddedAppearance>();
    }

private:
    HostRef<HostComponent> component_;
};

} // namespace

HostRef<HostAppearance> makeAppearance(const SessionRef& session, const ModelDocument& document,
                                       const AppearanceRecord& appearance) {
    return makeHostObject<EmbeddedAppearance>(session, document, appearance, HostRef<HostComponent>());
}

std::vector<HostRef<HostDecal>> makeDecals(const SessionRef& session, const ModelDocument& document,
                                           const std::vector<DecalRecord>& decals,
                                           const HostRef<HostComponent>& component) {
    std::vector<HostRef<HostDecal>> made;
    made.reserve(decals.size());
    for (const DecalRecord& decal : decals) {
        made.push_back(makeHostObject<EmbeddedDecal>(session, document, decal, component));
    }
    return made;
}

} // namespace orvane::embedded
