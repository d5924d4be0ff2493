#include "model/json/DocumentJson.h"

#include "model/json/AppearanceJson.h"
#include "model/json/ComponentJson.h"
#include "model/json/DocumentContext.h"
#include "model/json/FeatureJson.h"
#include "model/json/GeometryJson.h"
#include "model/json/JsonCursor.h"
#include "model/json/MotionJson.h"
#include "model/json/ShownText.h"
#include "model/json/TableJson.h"
#include "model/json/ViewJson.h"
#include "model/records/ModelDefaults.h"
#include "platform/Utf8.h"

#include <algorithm>

namespace orvane::json {

namespace {

// What is named is read before what names it; all others follow.
enum Turn : int { kRefusal = -6, kTitle, kFeatures, kBodies, kConfigurations, kActiveConfiguration };

/// A key that only documents of one kind have.
template <typename Read>
auto only(DocumentKind kind, const JsonCursor& document, const JsonKey<Read>& made) {
    const bool isAllowed = document.context().document->kind == kind;
    const auto read = [=, &document](const JsonCursor& value) {
        if (!isAllowed) {
            document.fail(inQuotes(made.name), kind == DocumentKind::part
                                                   ? "none in an assembly: only parts have it"
                                                   : "none in a part: only assemblies have it");
        }
        made.read(value);
    };
    return inTurn(isAllowed ? made.turn : kRefusal, key(made.name, read));
}

std::vector<ConfigurationRecord> readConfigurations(const JsonCursor& list) {
    auto configurations = valueAs<std::vector<ConfigurationRecord>>(list);
    if (configurations.empty()) {
        list.mismatch("at least one configuration");
    }
    return configurations;
}

std::size_t readActiveConfiguration(const JsonCursor& value) {
    const auto& configurations = value.context().document->configurations;
    const auto name = valueAs<std::u16string>(value);
    const auto entry = std::ranges::find(configurations, name, &ConfigurationRecord::name);
    if (entry == configurations.end()) {
        value.mismatch("the name of a configuration of this document");
    }
    return static_cast<std::size_t>(entry - configurations.begin());
}

std::vector<ViewRecord> readNamedViews(const JsonCursor& list) {
    std::vector<ViewRecord> views;
    list.forEachItem([&](const JsonCursor& view) { views.push_back(readNamedView(view)); });
    return views;
}

void readTitle(const JsonCursor& value) {
    setTitle(*value.context().document, valueAs<std::u16string>(value));
}

} // namespace

void readDocumentJson(const nlohmann::json& tree, DocumentContext& context) {
    ModelDocument& document = *context.document;
    const JsonCursor value(tree, context);
    const std::u8string fileName = context.file.filename().u8string();
    setTitle(document, utf16FromUtf8(std::string(fileName.begin(), fileName.end())));
    document.configurations = {defaultConfiguration()};
    const auto part = [&](const auto& made) { return only(DocumentKind::part, value, made); };
    const auto assembly = [&](const auto& made) { return only(DocumentKind::assembly, value, made); };
    value.readObject(
        inTurn(kTitle, key("title", readTitle)),
        inTurn(kActiveConfiguration,
               key("activeConfiguration", document.activeConfiguration, readActiveConfiguration)),
        inTurn(kConfigurations, key("configurations", document.configurations, readConfigurations)),
        part(inTurn(kBodies, key("bodies", readBodies))), assembly(key("components", document.components)),
        assembly(key("root", document.root)), inTurn(kFeatures, key("features", readFeatures)),
        key("appearances", document.appearances), key("decals", document.decals),
        key("view", document.view, readView), key("namedViews", document.namedViews, readNamedViews),
        key("lights", document.lights), key("motionStudies", document.motionStudies),
        assembly(key("explodedViews", document.explodedViews)),
        key("designTable", document.designTable, readDesignTable), key("annotations", document.annotations),
        key("box", document.box));
}

} // namespace orvane::json
