#include "embedded/EmbeddedMetadata.h"
#include "embedded/EmbeddedSession.h"

#include <utility>

namespace orvane::embedded {

namespace {

class EmbeddedConfiguration final : public HostConfiguration {
public:
    EmbeddedConfiguration(SessionRef session, const ModelDocument& document, std::size_t position)
        : session_(std::move(session)), document_(document), position_(position) {}

    std::u16string getConfigurationName() const override { return record().name; }

    std::vector<std::u16string> getDisplayStateNames() const override {
        std::vector<std::u16string> names;
        for (const DisplayStateRecord& state : record().displayStates) {
            names.push_back(state.name);
        }
        return names;
    }

    bool applyDisplayState(const std::u16string& name) override {
        for (std::size_t i = 0; i < record().displayStates.size() && isShown(); ++i) {
            if (record().displayStates[i].name == name) {
                session_->applyDisplayState(i);
                return true;
            }
        }
        return false;
    }

    HostRef<HostComponent> getRootComponent() const override {
        const bool isOpened = &document_ == &session_->opened();
        return isOpened && document_.kind == DocumentKind::assembly ? makeComponent(session_, document_, 0)
                                                                    : HostRef<HostComponent>();
    }
    HostRef<HostCustomProperties> customProperties() const override {
        return makeCustomProperties(session_, record());
    }

    std::int32_t countExplodeSteps() const override {
        std::size_t steps = 0;
        for (const ExplodedViewRecord& view : document_.explodedViews) {
            steps += view.steps.size();
        }
        return record().explodeSteps.value_or(static_cast<std::int32_t>(steps));
    }

    const void* identity() const noexcept override { return &record(); }

private:
    const ConfigurationRecord& record() const { return document_.configurations[position_]; }
    bool isShown() const {
        return &document_ == &session_->opened() && position_ == session_->activeConfiguration;
    }

    SessionRef session_;
    const ModelDocument& document_;
    std::size_t position_;
};

} // namespace

HostRef<HostConfiguration> makeConfiguration(const SessionRef& session, const ModelDocument& document,
                                             std::size_t position) {
    return makeHostObject<EmbeddedConfiguration>(session, document, position);
}

} // namespace orvane::embedded
