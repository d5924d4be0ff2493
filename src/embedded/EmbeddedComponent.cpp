#include "embedded/EmbeddedSession.h"
#include "embedded/PlacementMath.h"

#include <utility>

namespace orvane {

namespace {

std::int16_t toFlag(bool value) {
    return value ? -1 : 0;
}

class EmbeddedComponent final : public HostComponent {
public:
    EmbeddedComponent(SessionRef session, std::int32_t position)
        : session_(std::move(session)), position_(static_cast<std::size_t>(position)) {}

    HostRef<HostModelDoc> queryModelDoc() const override { return {}; }
    HostRef<HostModelDoc> getModelDoc() const override {
        const ModelDocument* document = shownDocument();
        return document ? makeModelDoc(session_, *document) : HostRef<HostModelDoc>();
    }
    std::u16string documentPath() const override {
        const ModelDocument* document = shownDocument();
        return document ? document->path : std::u16string();
    }

    std::int16_t isLoaded() const override {
        const bool isLoaded = !instance().record || instance().record->loaded;
        return toFlag(isLoaded && instance().state != kComponentLightweight);
    }
    std::int16_t isSuppressed() const override { return toFlag(instance().suppressed); }
    std::int16_t isHidden(std::int16_t) const override { return toFlag(instance().hidden); }
    std::u16string componentName() const override { return instance().fullName; }
    std::int32_t getComponentId() const override { return instance().id; }

    HostRef<HostTransform> getPlacement(std::int16_t) const override {
        return instance().placement ? makeTransform(inRootSpace(*instance().placement))
                                    : HostRef<HostTransform>();
    }
    HostRef<HostTransform> getPlacementFallback() const override {
        const ComponentRecord* record = instance().record;
        return record && record->placementFallback ? makeTransform(inRootSpace(*record->placementFallback))
                                                   : HostRef<HostTransform>();
    }

    std::int32_t getChildrenCount() const override { return instance().childCount; }
    std::vector<HostRef<HostComponent>> getChildren() const override {
        std::vector<HostRef<HostComponent>> children;
        children.reserve(static_cast<std::size_t>(instance().childCount));
        for (std::int32_t child = instance().firstChild; child >= 0; child = instanceAt(child).nextSibling) {
            children.push_back(makeComponent(session_, child));
        }
        return children;
    }

    std::int32_t getState() const override { return instance().state; }
    void setState(std::int32_t state) override { instance().state = state; }

    HostRef<HostBodyEnumerator> enumerateBodies(std::int32_t bodyType,
                                                std::int16_t visibleOnly) const override {
        const ModelDocument* document = instance().record ? instance().record->document : nullptr;
        return document ? makeBodyEnumerator(session_, *document, bodyType, visibleOnly != 0)
                        : HostRef<HostBodyEnumerator>();
    }

    const void* identity() const noexcept override { return &instance(); }

private:
    ComponentInstance& instance() const { return session_->components->all()[position_]; }
    ComponentInstance& instanceAt(std::int32_t position) const {
        return session_->components->all()[static_cast<std::size_t>(position)];
    }

    /// The root component shows the opened assembly.
    const ModelDocument* shownDocument() const {
        return instance().record ? instance().record->document : &session_->opened();
    }

    /// Multiplies by the placements of the parents below the root, one after the other; a missing one counts
    /// as the identity.
    Placement inRootSpace(Placement placement) const {
        for (std::int32_t parent = instance().parent; parent > 0; parent = instanceAt(parent).parent) {
            const Placement* above = instanceAt(parent).placement;
            placement = multiplyPlacements(placement, above ? *above : kIdentityPlacement);
        }
        return placement;
    }

    SessionRef session_;
    std::size_t position_;
};

} // namespace

HostRef<HostComponent> makeComponent(const SessionRef& session, std::int32_t position) {
    return makeHostObject<EmbeddedComponent>(session, position);
}

} // namespace orvane
