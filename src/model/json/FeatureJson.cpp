#include "model/json/FeatureJson.h"

#include "model/json/DocumentContext.h"
#include "model/json/JsonCursor.h"
#include "model/json/ShownText.h"
#include "model/json/ViewJson.h"
#include "model/records/ModelError.h"
#include "platform/Utf8.h"

namespace orvane::json {

void readValue(const JsonCursor& value, CommentRecord& comment) {
    value.readObject(key("name", comment.name), key("text", comment.text));
}

namespace {

/// A seed, which may stand anywhere in the tree: looked up when all names are known.
struct SeedMention {
    std::size_t feature = 0, seed = 0; ///< positions of the feature and of its seed
    std::u16string name;
    std::string place; ///< JSON path
};

class FeatureTreeReader {
public:
    explicit FeatureTreeReader(DocumentContext& context)
        : context_(context), features_(context.document->features) {}

    void read(const JsonCursor& list) {
        readBranch(list, -1);
        for (std::size_t i = 0; i < features_.size(); ++i) {
            context_.features.emplace(features_[i].name, static_cast<std::int32_t>(i));
        }
        for (const SeedMention& mention : seeds_) {
            const auto entry = context_.features.find(mention.name);
            if (entry == context_.features.end()) {
                throw ModelError(context_.file, mention.place, inQuotes(utf8FromUtf16(mention.name)),
                                 "the name of a feature of this document");
            }
            features_[mention.feature].definition->seeds[mention.seed] = entry->second;
        }
    }

private:
    // The lists nest no deeper than the brackets of the text, which its reader limits.
    void readBranch(const JsonCursor& list, std::int32_t parent) {
        list.forEachItem([&](const JsonCursor& value) {
            const std::size_t own = features_.size();
            features_.emplace_back();
            FeatureRecord feature;
            feature.parent = parent;
            value.readObject(
                key("name", feature.name), key("type", feature.type),
                key("features",
                    [&](const JsonCursor& branch) { readBranch(branch, static_cast<std::int32_t>(own)); }),
                key("camera", feature.camera), key("comments", feature.comments),
                key("definition", [&](const JsonCursor& definition) {
                    readDefinition(definition, own, feature.definition.emplace());
                }));
            features_[own] = std::move(feature);
        });
    }

    void readDefinition(const JsonCursor& value, std::size_t own, FeatureDefinitionRecord& definition) {
        const auto readSeed = [&](const JsonCursor& seed) {
            if (!seed.isNull()) {
                seeds_.push_back({own, definition.seeds.size(), utf16FromUtf8(seed.utf8()), seed.path()});
            }
            definition.seeds.push_back(-1);
        };
        value.readObject(key("propagate", definition.propagate),
                         key("seeds", [&](const JsonCursor& seeds) { seeds.forEachItem(readSeed); }));
    }

    DocumentContext& context_;
    std::vector<FeatureRecord>& features_;
    std::vector<SeedMention> seeds_;
};

} // namespace

void readFeatures(const JsonCursor& list) {
    FeatureTreeReader(list.context()).read(list);
}

} // namespace orvane::json
