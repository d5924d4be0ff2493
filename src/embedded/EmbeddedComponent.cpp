#include "embedded/EmbeddedSession.h"
#include "embedded/HostFlag.h"

#include <utility>

namespace orvane::embedded {

namespace {

class EmbeddedComponent final : public HostComponent {
public:
    EmbeddedComponent(SessionRef session, const ModelDocument& assembly, std::int32_t position)
        : session_(std::move(session)), assembly_(assembly), components_(session_->componentsOf(assembly)),
          position_(position) {}

    HostRef<HostModelDoc> queryModelDoc() const override { return {}; }
    HostRef<HostModelDoc> getModelDoc() const override {
        const ModelDocument* document = shownDocument();
        return document ? makeModelDoc(session_, *document) : HostRef<HostModelDoc>();
    }
    std::u16string documentPath() const override {
        const ModelDocument* document = shownDocument();
        return document ? document->path : std::u16string();
    }

    std::int16_t isRootComponent() const override { return toFlag(position_ == 0); }
    std::int16_t isLoaded() const override { return toFlag(instance().isLoaded()); }
    std::int16_t isSuppressed() const override { return toFlag(instance().suppressed); }
    std::int16_t isHidden(std::int16_t) const override { return toFlag(instance().hidden); }
    std::u16string componentName() const override { return instance().fullName; }
    std::int32_t getComponentId() const override { return instance().id; }

    HostRef<HostTransform> getPlacement(std::int16_t) const override {
        const Placement* placement = instance().shownPlacement();
        if (!placement) {
            return {};
        }
        StudyPlayback* const playback =
            &assembly_ == &session_->opened() ? session_->studies->playback() : nullptr;
        return playback ? playback->placementOf(position_)
                        : makeTransform(components_.inRootSpace(position_, *placement));
    }
    HostRef<HostTransform> getPlacementFallback() const override {
        const ComponentRecord* record = instance().record;
        return record && record->placementFallback
                   ? makeTransform(components_.inRootSpace(position_, *record->placementFallback))
                   : HostRef<HostTransform>();
    }

    std::int32_t getChildrenCount() const override { return instance().childCount; }
    std::vector<HostRef<HostComponent>> getChildren() const override {
        std::vector<HostRef<HostComponent>> children;
        children.reserve(static_cast<std::size_t>(instance().childCount));
        for (std::int32_t child = instance().firstChild; child >= 0; child = instanceAt(child).nextSibling) {
            children.push_back(makeComponent(session_, assembly_, child));
        }
        return children;
    }

    std::int32_t decalCount() const override {
        return instance().record ? static_cast<std::int32_t>(instance().record->decals.size()) : 0;
    }
    std::vector<HostRef<HostDecal>> decals() const override {
        if (!instance().record) {
            return {};
        }
        return makeDecals(session_, *instance().holder, instance().record->decals,
                          makeComponent(session_, assembly_, position_));
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
    ComponentInstance& instance() const { return instanceAt(position_); }
    ComponentInstance& instanceAt(std::int32_t position) const {
        return components_.all()[static_cast<std::size_t>(position)];
    }

    /// The root component shows the assembly itself.
    const ModelDocument* shownDocument() const {
        return instance().record ? instance().record->document : &assembly_;
    }

    SessionRef session_;
    const ModelDocument& assembly_;
    ComponentInstances& components_;
    std::int32_t position_;
};

} // namespace

HostRef<HostComponent> makeComponent(const SessionRef& session, const ModelDocument& assembly,
                                     std::int32_t position) {
    return makeHostObject<EmbeddedComponent>(session, assembly, position);
}

} // namespace orvane::embedded
