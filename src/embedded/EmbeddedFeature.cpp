#include "embedded/EmbeddedSession.h"

#include <utility>

namespace orvane {

namespace {

/// A seed that is no feature: the model document does not say what else it is.
class EmbeddedOtherSeed final : public HostObject {};

class EmbeddedFeatureDefinition final : public HostFeatureDefinition {
public:
    EmbeddedFeatureDefinition(SessionRef session, const ModelDocument& document,
                              const FeatureDefinitionRecord& record)
        : session_(std::move(session)), document_(document), record_(record) {}

    bool definitionPropagate() const override { return record_.propagate; }
    std::int32_t definitionSeedCount() const override {
        return static_cast<std::int32_t>(record_.seeds.size());
    }
    std::vector<HostRef<HostObject>> definitionSeeds() const override {
        std::vector<HostRef<HostObject>> seeds;
        for (const std::int32_t seed : record_.seeds) {
            seeds.push_back(seed < 0 ? HostRef<HostObject>(makeHostObject<EmbeddedOtherSeed>())
                                     : HostRef<HostObject>(makeFeature(session_, document_, seed)));
        }
        return seeds;
    }

    const void* identity() const noexcept override { return &record_; }

private:
    SessionRef session_;
    const ModelDocument& document_;
    const FeatureDefinitionRecord& record_;
};

class EmbeddedFeature final : public HostFeature {
public:
    EmbeddedFeature(SessionRef session, const ModelDocument& document, const FeatureRecord& record)
        : session_(std::move(session)), document_(document), record_(record) {}

    std::u16string featureName() const override { return record_.name; }
    HostRef<HostFeatureDefinition> featureDefinition() const override {
        return record_.definition
                   ? makeHostObject<EmbeddedFeatureDefinition>(session_, document_, *record_.definition)
                   : HostRef<EmbeddedFeatureDefinition>();
    }

    const void* identity() const noexcept override { return &record_; }

private:
    SessionRef session_;
    const ModelDocument& document_;
    const FeatureRecord& record_;
};

} // namespace

HostRef<HostFeature> makeFeature(const SessionRef& session, const ModelDocument& document,
                                 std::int32_t position) {
    return position < 0 ? HostRef<EmbeddedFeature>()
                        : makeHostObject<EmbeddedFeature>(
                              session, document, document.features[static_cast<std::size_t>(position)]);
}

} // namespace orvane
