#include "embedded/EmbeddedLights.h"
#include "embedded/EmbeddedMetadata.h"
#include "embedded/EmbeddedObject.h"
#include "embedded/EmbeddedView.h"
#include "embedded/HostAnswers.h"
#include "embedded/ShownBox.h"

#include <algorithm>
#include <span>

namespace orvane::embedded {

namespace {

class EmbeddedPart final : public EmbeddedObject<HostPart, ModelDocument> {
public:
    using EmbeddedObject::EmbeddedObject;

    HostRef<HostModelDoc> getModelDoc() const override { return makeModelDoc(session_, record_); }
    HostRef<HostBodyEnumerator> enumerateBodies(std::int32_t bodyType,
                                                std::int16_t visibleOnly) const override {
        return makeBodyEnumerator(session_, record_, bodyType, visibleOnly != 0);
    }
    std::optional<HostBox> partBox(std::int16_t) const override { return shownBox(*session_, record_); }
};

class EmbeddedAssembly final : public EmbeddedObject<HostAssembly, ModelDocument> {
public:
    using EmbeddedObject::EmbeddedObject;

    std::int32_t componentCount() const override { return session_->componentsOf(record_).count() - 1; }
    std::vector<HostRef<HostComponent>> components() const override {
        std::vector<HostRef<HostComponent>> components;
        for (std::int32_t i = 1; i <= componentCount(); ++i) {
            components.push_back(makeComponent(session_, record_, i));
        }
        return components;
    }
    std::optional<HostBox> assemblyBox() const override { return shownBox(*session_, record_); }

    std::int32_t countExplodedViews() const override { return countOf(record_.explodedViews); }
    std::vector<std::u16string> listExplodedViewNames() override {
        if (session_->isOpened(record_)) {
            session_->studies->restartExplodedViews();
        }
        return namesOf(record_.explodedViews);
    }
};

class EmbeddedDocExtension final : public EmbeddedObject<HostDocExtension, ModelDocument> {
public:
    using EmbeddedObject::EmbeddedObject;

    std::int32_t decalCount() const override { return countOf(record_.decals); }
    std::vector<HostRef<HostDecal>> decals() const override {
        return makeDecals(session_, record_, record_.decals, {});
    }
    std::int32_t annotationCount() const override { return countOf(record_.annotations); }
    std::vector<HostRef<HostAnnotation>> annotations() const override {
        return makeAnnotations(session_, record_);
    }
    HostRef<HostObject> studyManagerObject() override {
        return session_->isOpened(record_) ? makeStudyManager(session_) : HostRef<HostObject>();
    }
};

/// Whether an appearance is listed while this configuration and display state are active.
bool isListed(const AppearanceRecord& appearance, const ConfigurationRecord& configuration,
              const DisplayStateRecord* displayState) {
    const auto holds = [](const std::vector<std::u16string>& names, const std::u16string& name) {
        return std::ranges::find(names, name) != names.end();
    };
    const bool goesWithConfiguration =
        appearance.configurations.empty() || holds(appearance.configurations, configuration.name);
    const bool goesWithState = appearance.displayStates.empty() ||
                               (displayState && holds(appearance.displayStates, displayState->name));
    return goesWithConfiguration && goesWithState;
}

class EmbeddedModelDoc final : public EmbeddedObject<HostModelDoc, ModelDocument> {
public:
    using EmbeddedObject::EmbeddedObject;

    std::int32_t getDocumentType() const override {
        return record_.kind == DocumentKind::assembly ? kAssemblyDocument : kPartDocument;
    }
    std::u16string documentTitle() const override { return record_.title; }
    std::u16string documentPath() const override { return record_.path; }

    HostRef<HostPart> partInterface() override {
        return record_.kind == DocumentKind::part ? makeHostObject<EmbeddedPart>(session_, record_)
                                                  : HostRef<EmbeddedPart>();
    }
    HostRef<HostAssembly> assemblyInterface() override {
        return record_.kind == DocumentKind::assembly ? makeHostObject<EmbeddedAssembly>(session_, record_)
                                                      : HostRef<EmbeddedAssembly>();
    }
    HostRef<HostDocExtension> extension() override {
        return makeHostObject<EmbeddedDocExtension>(session_, record_);
    }

    std::vector<HostRef<HostAppearance>> appearances() override {
        std::vector<HostRef<HostAppearance>> listed;
        for (const AppearanceRecord& appearance : record_.appearances) {
            if (isListed(appearance, session_->configurationOf(record_), session_->displayStateOf(record_))) {
                listed.push_back(makeAppearance(session_, record_, appearance));
            }
        }
        return listed;
    }

    HostRef<HostFeature> firstFeature() override {
        return makeFeature(session_, record_, record_.features.empty() ? -1 : 0);
    }

    HostRef<HostDesignTable> designTable() override { return makeDesignTable(session_, record_); }

    // There is one view on the screen, and it is that of the opened document.
    HostRef<HostView> activeView() override { return isOpened() ? makeView(session_) : HostRef<HostView>(); }
    void setActiveView(const HostRef<HostView>& view) override {
        if (isOpened()) {
            showAgain(*session_, view);
        }
    }
    std::int32_t countNamedViews() const override { return countOf(record_.namedViews); }
    std::vector<std::u16string> listNamedViews(std::int32_t count) const override {
        const auto wanted = static_cast<std::size_t>(std::clamp(count, 0, countNamedViews()));
        return namesOf(std::span(record_.namedViews).first(wanted));
    }
    void showNamedView(const std::u16string& name) override {
        if (isOpened()) {
            embedded::showNamedView(*session_, name);
        }
    }

    std::int32_t countLights() const override { return countOf(record_.lights); }
    std::u16string lightInternalName(std::int32_t number) const override {
        const LightRecord* light = findLight(number);
        return light ? light->name : std::u16string();
    }
    std::u16string lightUserName(std::int32_t number) const override {
        const LightRecord* light = findLight(number);
        return light ? light->userName : std::u16string();
    }
    void lightProperties(std::int32_t number, PackedData& properties) const override {
        if (const LightRecord* light = findLight(number)) {
            properties = packedLight(*light);
        }
    }

    HostRef<HostConfiguration> getActiveConfiguration() override {
        return makeConfiguration(session_, record_, session_->configurationOf(record_));
    }
    std::optional<std::int32_t> getConfigurationCount() const override {
        return countOf(record_.configurations);
    }
    std::vector<std::u16string> getConfigurationNames() const override {
        return namesOf(record_.configurations);
    }
    HostRef<HostConfiguration> getConfigurationByName(const std::u16string& name) override {
        const ConfigurationRecord* found = session_->findConfiguration(record_, name);
        return found ? makeConfiguration(session_, record_, *found) : HostRef<HostConfiguration>();
    }
    bool showConfiguration(const std::u16string& name) override {
        const ConfigurationRecord* found = session_->findConfiguration(record_, name);
        if (!found || !isOpened()) {
            return false;
        }
        session_->showConfiguration(*found);
        return true;
    }

private:
    bool isOpened() const { return session_->isOpened(record_); }

    const LightRecord* findLight(std::int32_t number) const {
        return number >= 0 && number < countLights() ? &record_.lights[static_cast<std::size_t>(number)]
                                                     : nullptr;
    }
};

} // namespace

HostRef<HostModelDoc> makeModelDoc(const SessionRef& session, const ModelDocument& document) {
    return makeHostObject<EmbeddedModelDoc>(session, document);
}

} // namespace orvane::embedded
