#include "embedded/EmbeddedObject.h"
#include "embedded/HostAnswers.h"

#include <utility>

namespace orvane::embedded {

namespace {

/// An instance among the components of `document_`, an assembly.
class EmbeddedComponent final : public EmbeddedItem<HostComponent, ComponentInstance> {
public:
    EmbeddedComponent(SessionRef session, const ModelDocument& assembly, ComponentInstances& components,
                      std::int32_t position)
        : EmbeddedItem(std::move(session), assembly, components.at(position)), components_(components),
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
    std::int16_t isLoaded() const override { return toFlag(record_.isLoaded()); }
    std::int16_t isSuppressed() const override { return toFlag(record_.suppressed); }
    std::int16_t isHidden(std::int16_t) const override { return toFlag(record_.hidden); }
    std::u16string componentName() const override { return record_.fullName; }
    std::int32_t getComponentId() const override { return record_.id; }

    HostRef<HostTransform> getPlacement(std::int16_t) const override {
        const Placement* placement = record_.shownPlacement();
        if (!placement) {
            return {};
        }
        StudyPlayback* const playback =
            session_->isOpened(document_) ? session_->studies->playback() : nullptr;
        return playback ? playback->placementOf(position_)
                        : makeTransform(components_.inRootSpace(position_, *placement));
    }
    HostRef<HostTransform> getPlacementFallback() const override {
        const ComponentRecord* record = record_.component;
        return record && record->placementFallback
                   ? makeTransform(components_.inRootSpace(position_, *record->placementFallback))
                   : HostRef<HostTransform>();
    }

    std::int32_t getChildrenCount() const override { return record_.childCount; }
    std::vector<HostRef<HostComponent>> getChildren() const override {
        std::vector<HostRef<HostComponent>> children;
        children.reserve(static_cast<std::size_t>(record_.childCount));
        for (std::int32_t child = record_.firstChild; child >= 0; child = components_.at(child).nextSibling) {
            children.push_back(makeComponent(session_, document_, child));
        }
        return children;
    }

    std::int32_t decalCount() const override {
        return record_.component ? countOf(record_.component->decals) : 0;
    }
    std::vector<HostRef<HostDecal>> decals() const override {
        if (!record_.component) {
            return {};
        }
        return makeDecals(session_, *record_.holder, record_.component->decals,
                          makeComponent(session_, document_, position_));
    }

    std::int32_t getState() const override { return record_.state; }
    void setState(std::int32_t state) override { components_.at(position_).state = state; }

    HostRef<HostBodyEnumerator> enumerateBodies(std::int32_t bodyType,
                                                std::int16_t visibleOnly) const override {
        const ModelDocument* document = record_.component ? record_.component->document : nullptr;
        return document ? makeBodyEnumerator(session_, *document, bodyType, visibleOnly != 0)
                        : HostRef<HostBodyEnumerator>();
    }

private:
    /// The root component shows the assembly itself.
    const ModelDocument* shownDocument() const {
        return record_.component ? record_.component->document : &document_;
    }

    ComponentInstances& components_;
    std::int32_t position_;
};

} // namespace

HostRef<HostComponent> makeComponent(const SessionRef& session, const ModelDocument& assembly,
                                     std::int32_t position) {
    return makeHostObject<EmbeddedComponent>(session, assembly, session->componentsOf(assembly), position);
}

} // namespace orvane::embedded
