#include "embedded/EmbeddedMetadata.h"
#include "embedded/EmbeddedObject.h"
#include "embedded/EmbeddedView.h"
#include "embedded/HostAnswers.h"

namespace orvane::embedded {

namespace {

/// A seed that is no feature: the model document does not say what else it is.
class EmbeddedOtherSeed final : public HostObject {};

class EmbeddedFeatureDefinition final : public EmbeddedItem<HostFeatureDefinition, FeatureDefinitionRecord> {
public:
    using EmbeddedItem::EmbeddedItem;

    bool definitionPropagate() const override { return record_.propagate; }
    std::int32_t definitionSeedCount() const override { return countOf(record_.seeds); }
    std::vector<HostRef<HostObject>> definitionSeeds() const override {
        std::vector<HostRef<HostObject>> seeds;
        for (const std::int32_t seed : record_.seeds) {
            seeds.push_back(seed < 0 ? HostRef<HostObject>(makeHostObject<EmbeddedOtherSeed>())
                                     : HostRef<HostObject>(makeFeature(session_, document_, seed)));
        }
        return seeds;
    }
};

class EmbeddedFeature final : public EmbeddedItem<HostFeature, FeatureRecord> {
public:
    EmbeddedFeature(SessionRef session, const ModelDocument& document, std::int32_t position)
        : EmbeddedItem(std::move(session), document, document.features[static_cast<std::size_t>(position)]),
          position_(position) {}

    std::u16string featureName() const override { return record_.name; }
    std::u16string featureTypeName() const override { return record_.type; }
    HostRef<HostFeature> nextFeature() const override { return nextBelow(-1); }
    HostRef<HostFeature> firstSubFeature() const override {
        const auto next = static_cast<std::size_t>(position_) + 1;
        const bool hasOne = next < document_.features.size() && document_.features[next].parent == position_;
        return makeFeature(session_, document_, hasOne ? position_ + 1 : -1);
    }
    HostRef<HostFeature> nextSubFeature() const override {
        return record_.parent < 0 ? HostRef<HostFeature>() : nextBelow(record_.parent);
    }
    HostRef<HostObject> specificFeature() const override {
        return makeCamera(session_, record_.camera ? &*record_.camera : nullptr);
    }
    HostRef<HostFeatureDefinition> featureDefinition() const override {
        return record_.definition
                   ? makeHostObject<EmbeddedFeatureDefinition>(session_, document_, *record_.definition)
                   : HostRef<EmbeddedFeatureDefinition>();
    }
    HostRef<HostCommentFolder> commentFolder() const override { return makeCommentFolder(session_, record_); }

private:
    /// The next feature that stands directly below `parent`, and behind this one.
    HostRef<HostFeature> nextBelow(std::int32_t parent) const {
        if (record_.parent != parent) {
            return {};
        }
        for (auto i = static_cast<std::size_t>(position_) + 1; i < document_.features.size(); ++i) {
            if (document_.features[i].parent <= parent) {
                return makeFeature(session_, document_,
                                   document_.features[i].parent == parent ? static_cast<std::int32_t>(i)
                                                                          : -1);
            }
        }
        return {};
    }

    std::int32_t position_;
};

} // namespace

HostRef<HostFeature> makeFeature(const SessionRef& session, const ModelDocument& document,
                                 std::int32_t position) {
    return position < 0 ? HostRef<EmbeddedFeature>()
                        : makeHostObject<EmbeddedFeature>(session, document, position);
}

} // namespace orvane::embedded
