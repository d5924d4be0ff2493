#include "embedded/EmbeddedLights.h"
#include "embedded/EmbeddedMetadata.h"
#include "embedded/EmbeddedSession.h"
#include "embedded/EmbeddedView.h"
#include "embedded/ShownBox.h"

#include <algorithm>
#include <utility>

namespace orvane::embedded {

namespace {

class EmbeddedPart final : public HostPart {
public:
    EmbeddedPart(SessionRef session, const ModelDocument& document)
        : session_(std::move(session)), document_(document) {}

    HostRef<HostModelDoc> getModelDoc() const override { return makeModelDoc(session_, document_); }
    HostRef<HostBodyEnumerator> enumerateBodies(std::int32_t bodyType,
                                                std::int16_t visibleOnly) const override {
        return makeBodyEnumerator(session_, document_, bodyType, visibleOnly != 0);
    }
    std::optional<HostBox> partBox(std::int16_t) const override { return shownBox(*session_, document_); }

private:
    SessionRef session_;
    const ModelDocument& document_;
};

class EmbeddedAssembly final : public HostAssembly {
public:
    EmbeddedAssembly(SessionRef session, const ModelDocument& document)
        : session_(std::move(session)), document_(document) {}

    std::int32_t componentCount() const override {
        return static_cast<std::int32_t>(session_->componentsOf(document_).all().size()) - 1;
    }
    std::vector<HostRef<HostComponent>> components() const override {
        std::vector<HostRef<HostComponent>> components;
        for (std::int32_t i = 1; i <= componentCount(); ++i) {
            components.push_back(makeComponent(session_, document_, i));
        }
        return components;
    }
    std::optional<HostBox> assemblyBox() const override { return shownBox(*session_, document_); }

    std::int32_t countExplodedViews() const override {
        return static_cast<std::int32_t>(document_.explodedViews.size());
    }
    std::vector<std::u16string> listExplodedViewNames() override {
        std::vector<std::u16string> names;
        for (const ExplodedViewRecord& view : document_.explodedViews) {
            names.push_back(view.name);
        }
        if (&document_ == &session_->opened()) {
            session_->studies->restartExplodedViews();
        }
        return names;
    }

private:
    SessionRef session_;
    const ModelDocument& document_;
};

class EmbeddedDocExtension final : public HostDocExtension {
public:
    EmbeddedDocExtension(SessionRef session, const ModelDocument& document)
        : session_(std::move(session)), document_(document) {}

    std::int32_t decalCount() const override { return static_cast<std::int32_t>(document_.decals.size()); }
    std::vector<HostRef<HostDecal>> decals() const override {
        return makeDecals(session_, document_, document_.decals, {});
    }
    std::int32_t annotationCount() const override {
        return static_cast<std::int32_t>(document_.annotations.size());
    }
    std::vector<HostRef<HostAnnotation>> annotations() const override {
        return makeAnnotations(session_, document_);
    }
    HostRef<HostObject> studyManagerObject() override {
        return &document_ == &session_->opened() ? makeStudyManager(session_) : HostRef<HostObject>();
    }

private:
    SessionRef session_;
    const ModelDocument& document_;
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

class EmbeddedModelDoc final : public HostModelDoc {
public:
    EmbeddedModelDoc(SessionRef session, const ModelDocument& document)
        : session_(std::move(session)), document_(document) {}

    std::int32_t getDocumentType() const override {
        return document_.kind == DocumentKind::assembly ? kAssemblyDocument : kPartDocument;
    }
    std::u16string documentTitle() const override { return document_.title; }
    std::u16string documentPath() const override { return document_.path; }

    HostRef<HostPart> partInterface() override {
        return document_.kind == DocumentKind::part ? makeHostObject<EmbeddedPart>(session_, document_)
                                                    : HostRef<EmbeddedPart>();
    }
    HostRef<HostAssembly> assemblyInterface() override {
        return document_.kind == DocumentKind::assembly
                   ? makeHostObject<EmbeddedAssembly>(session_, document_)
                   : HostRef<EmbeddedAssembly>();
    }
    HostRef<HostDocExtension> extension() override {
        return makeHostObject<EmbeddedDocExtension>(session_, document_);
    }

    std::vector<HostRef<HostAppearance>> appearances() override {
        std::vector<HostRef<HostAppearance>> listed;
        for (const AppearanceRecord& appearance : document_.appearances) {
            if (isListed(appearance, session_->configurationOf(document_),
                         session_->displayStateOf(document_))) {
                listed.push_back(makeAppearance(session_, document_, appearance));
            }
        }
        return listed;
    }

    HostRef<HostFeature> firstFeature() override {
        return makeFeature(session_, document_, document_.features.empty() ? -1 : 0);
    }

    HostRef<HostDesignTable> designTable() override { return makeDesignTable(session_, document_); }

    // There is one view on the screen, and it is that of the opened document.
    HostRef<HostView> activeView() override { return isOpened() ? makeView(session_) : HostRef<HostView>(); }
    void setActiveView(const HostRef<HostView>&) override {}
    std::int32_t countNamedViews() const override {
        return static_cast<std::int32_t>(document_.namedViews.size());
    }
    std::vector<std::u16string> listNamedViews(std::int32_t count) const override {
        std::vector<std::u16string> names;
        for (std::int32_t i = 0; i < std::min(count, countNamedViews()); ++i) {
            names.push_back(document_.namedViews[static_cast<std::size_t>(i)].name);
        }
        return names;
    }
    void showNamedView(const std::u16string& name) override {
        if (isOpened()) {
            embedded::showNamedView(*session_, name);
        }
    }

    std::int32_t countLights() const override { return static_cast<std::int32_t>(document_.lights.size()); }
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
        return makeConfiguration(session_, document_,
                                 isOpened() ? session_->activeConfiguration : document_.activeConfiguration);
    }
    std::optional<std::int32_t> getConfigurationCount() const override {
        return static_cast<std::int32_t>(document_.configurations.size());
    }
    std::vector<std::u16string> getConfigurationNames() const override {
        std::vector<std::u16string> names;
        for (const ConfigurationRecord& configuration : document_.configurations) {
            names.push_back(configuration.name);
        }
        return names;
    }
    HostRef<HostConfiguration> getConfigurationByName(const std::u16string& name) override {
        const std::optional<std::size_t> position = findConfiguration(name);
        return position ? makeConfiguration(session_, document_, *position) : HostRef<HostConfiguration>();
    }
    bool showConfiguration(const std::u16string& name) override {
        const std::optional<std::size_t> position = findConfiguration(name);
        if (!position || !isOpened()) {
            return false;
        }
        session_->showConfiguration(*position);
        return true;
    }

    const void* identity() const noexcept override { return &document_; }

private:
    bool isOpened() const { return &document_ == &session_->opened(); }

    const LightRecord* findLight(std::int32_t number) const {
        return number >= 0 && number < countLights() ? &document_.lights[static_cast<std::size_t>(number)]
                                                     : nullptr;
    }

    std::optional<std::size_t> findConfiguration(const std::u16string& name) const {
        if (isOpened()) {
            const auto found = session_->configurationsByName.find(name);
            return found == session_->configurationsByName.end() ? std::nullopt
                                                                 : std::optional(found->second);
        }
        for (std::size_t i = 0; i < document_.configurations.size(); ++i) {
            if (document_.configurations[i].name == name) {
                return i;
            }
        }
        return std::nullopt;
    }

    SessionRef session_;
    const ModelDocument& document_;
};

} // namespace

HostRef<HostModelDoc> makeModelDoc(const SessionRef& session, const ModelDocument& document) {
    return makeHostObject<EmbeddedModelDoc>(session, document);
}

} // namespace orvane::embedded
