#include "embedded/EmbeddedMetadata.h"
#include "embedded/EmbeddedObject.h"
#include "embedded/HostAnswers.h"

#include <algorithm>

namespace orvane::embedded {

namespace {

class EmbeddedConfiguration final : public EmbeddedItem<HostConfiguration, ConfigurationRecord> {
public:
    using EmbeddedItem::EmbeddedItem;

    std::u16string getConfigurationName() const override { return record_.name; }
    std::vector<std::u16string> getDisplayStateNames() const override {
        return namesOf(record_.displayStates);
    }
    bool applyDisplayState(const std::u16string& name) override {
        const bool isShown = isOpened() && &record_ == &session_->configurationOf(document_);
        const auto state = std::ranges::find(record_.displayStates, name, &DisplayStateRecord::name);
        if (!isShown || state == record_.displayStates.end()) {
            return false;
        }
        session_->applyDisplayState(&*state);
        return true;
    }

    HostRef<HostComponent> getRootComponent() const override {
        return isOpened() && document_.kind == DocumentKind::assembly ? makeComponent(session_, document_, 0)
                                                                      : HostRef<HostComponent>();
    }
    HostRef<HostCustomProperties> customProperties() const override {
        return makeCustomProperties(session_, record_);
    }

    std::int32_t countExplodeSteps() const override {
        std::size_t steps = 0;
        for (const ExplodedViewRecord& view : document_.explodedViews) {
            steps += view.steps.size();
        }
        return record_.explodeSteps.value_or(static_cast<std::int32_t>(steps));
    }

private:
    bool isOpened() const { return session_->isOpened(document_); }
};

} // namespace

HostRef<HostConfiguration> makeConfiguration(const SessionRef& session, const ModelDocument& document,
                                             const ConfigurationRecord& configuration) {
    return makeHostObject<EmbeddedConfiguration>(session, document, configuration);
}

} // namespace orvane::embedded
