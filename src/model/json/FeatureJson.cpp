#include "model/json/FeatureJson.h"

#include "model/json/DocumentContext.h"
#include "model/json/JsonCursor.h"
#include "model/json/ViewJson.h"

namespace orvane::json {

void readValue(const JsonCursor& value, CommentRecord& comment) {
    value.expectObject({"name", "text"});
    value.read("name", comment.name);
    value.read("text", comment.text);
}

namespace {

// The lists nest no deeper than the brackets of the text, which its reader limits.
void readBranch(const JsonCursor& list, std::int32_t parent) {
    std::vector<FeatureRecord>& features = list.context().document->features;
    list.forEachItem([&](const JsonCursor& value) {
        value.expectObject({"name", "type", "features", "camera", "comments", "definition"});
        const auto own = static_cast<std::int32_t>(features.size());
        FeatureRecord& feature = features.emplace_back();
        feature.parent = parent;
        value.read("name", feature.name);
        value.read("type", feature.type);
        value.read("camera", feature.camera);
        value.read("comments", feature.comments);
        list.context().features.emplace(feature.name, own);
        value.with("features", [&](const JsonCursor& subFeatures) { readBranch(subFeatures, own); });
    });
}

void readDefinition(const JsonCursor& value, FeatureDefinitionRecord& definition) {
    value.expectObject({"propagate", "seeds"});
    value.read("propagate", definition.propagate);
    value.with("seeds", [&](const JsonCursor& seeds) {
        seeds.forEachItem([&](const JsonCursor& seed) {
            definition.seeds.push_back(seed.isNull() ? -1 : featureNamed(seed));
        });
    });
}

/// Definitions name features anywhere in the tree, so they are read when all names are known, in the same
/// order.
void readDefinitions(const JsonCursor& list, std::size_t& position) {
    list.forEachItem([&](const JsonCursor& value) {
        FeatureRecord& feature = list.context().document->features[position++];
        value.with("definition", [&](const JsonCursor& definition) {
            readDefinition(definition, feature.definition.emplace());
        });
        value.with("features",
                   [&](const JsonCursor& subFeatures) { readDefinitions(subFeatures, position); });
    });
}

} // namespace

void readFeatures(const JsonCursor& list) {
    readBranch(list, -1);
    std::size_t position = 0;
    readDefinitions(list, position);
}

} // namespace orvane::json
