#include "embedded/EmbeddedSession.h"

#include <utility>

namespace orvane {

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

private:
    SessionRef session_;
    const ModelDocument& document_;
};

class EmbeddedAssembly final : public HostAssembly {};
class EmbeddedView final : public HostView {};
class EmbeddedDocExtension final : public HostDocExtension {};

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
        return document_.kind == DocumentKind::assembly ? makeHostObject<EmbeddedAssembly>()
                                                        : HostRef<EmbeddedAssembly>();
    }
    HostRef<HostDocExtension> extension() override { return makeHostObject<EmbeddedDocExtension>(); }

    // A model document has one view on the screen, and nothing moves it yet.
    HostRef<HostView> activeView() override { return makeHostObject<EmbeddedView>(); }
    void setActiveView(const HostRef<HostView>&) override {}

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

} // namespace orvane
