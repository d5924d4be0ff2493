#include "model/json/DocumentJson.h"

#include "model/json/AppearanceJson.h"
#include "model/json/ComponentJson.h"
#include "model/json/DocumentContext.h"
#include "model/json/FeatureJson.h"
#include "model/json/GeometryJson.h"
#include "model/json/JsonCursor.h"
#include "model/json/MotionJson.h"
#include "model/json/TableJson.h"
#include "model/json/ViewJson.h"
#include "platform/Utf8.h"

#include <algorithm>

namespace orvane::json {

namespace {

void expectDocumentKeys(const JsonCursor& value, DocumentKind kind) {
    value.expectObject({"title", "activeConfiguration", "configurations", "bodies", "components", "root",
                        "features", "appearances", "decals", "view", "namedViews", "lights", "motionStudies",
                        "explodedViews", "designTable", "annotations", "box"});
    const auto refuse = [&](std::initializer_list<std::string_view> keys, const char* expected) {
        for (const std::string_view key : keys) {
            if (value.has(key)) {
                value.fail('"' + std::string(key) + '"', expected);
            }
        }
    };
    if (kind == DocumentKind::part) {
        refuse({"components", "root", "explodedViews"}, "none in a part: only assemblies have it");
    } else {
        refuse({"bodies"}, "none in an assembly: only parts have it");
    }
}

void readConfigurations(const JsonCursor& value, ModelDocument& document) {
    auto& configurations = document.configurations;
    value.read("configurations", configurations);
    if (!value.has("configurations")) {
        ConfigurationRecord& only = configurations.emplace_back();
        only.name = u"Default";
        only.displayStates.emplace_back().name = u"Display State 1";
    } else if (configurations.empty()) {
        value.require("configurations").mismatch("at least one configuration");
    }
    value.with("activeConfiguration", [&](const JsonCursor& active) {
        std::u16string name;
        readValue(active, name);
        const auto entry = std::ranges::find(configurations, name, &ConfigurationRecord::name);
        if (entry == configurations.end()) {
            active.mismatch("the name of a configuration of this document");
        }
        document.activeConfiguration = static_cast<std::size_t>(entry - configurations.begin());
    });
}

void readNamedViews(const JsonCursor& list, std::vector<ViewRecord>& views) {
    readValue(list, views);
    list.forEachItem([](const JsonCursor& view) { view.require("name"); });
}

} // namespace

void readDocumentJson(const nlohmann::json& tree, DocumentContext& context) {
    ModelDocument& document = *context.document;
    const JsonCursor value(tree, context);
    expectDocumentKeys(value, document.kind);
    const std::u8string fileName = context.file.filename().u8string();
    document.title = utf16FromUtf8(std::string(fileName.begin(), fileName.end()));
    value.read("title", document.title);
    // Features, bodies and configurations come first: what follows names them.
    value.with("features", readFeatures);
    value.with("bodies", readBodies);
    readConfigurations(value, document);
    if (document.kind == DocumentKind::assembly) {
        const auto root = value.find("root");
        readRoot(root ? &*root : nullptr, document);
    }
    value.read("components", document.components);
    value.read("appearances", document.appearances);
    value.read("decals", document.decals);
    value.read("view", document.view);
    value.with("namedViews", [&](const JsonCursor& list) { readNamedViews(list, document.namedViews); });
    value.read("lights", document.lights);
    value.read("motionStudies", document.motionStudies);
    value.read("explodedViews", document.explodedViews);
    value.with("designTable",
               [&](const JsonCursor& table) { readDesignTable(table, document.designTable.emplace()); });
    value.read("annotations", document.annotations);
    value.read("box", document.box);
}

} // namespace orvane::json
