#include "model/json/ComponentJson.h"

#include "model/json/AppearanceJson.h"
#include "model/json/DocumentContext.h"
#include "model/json/JsonCursor.h"
#include "model/json/PlacementJson.h"
#include "platform/Utf8.h"

namespace orvane::json {

void readValue(const JsonCursor& value, CustomPropertyRecord& property) {
    value.expectObject({"name", "value", "type"});
    value.read("name", property.name);
    value.read("value", property.value);
    value.with("type", [&](const JsonCursor& type) {
        property.type =
            readNumberOrWord(type, {{"Number", 3}, {"Double", 5}, {"YesNo", 11}, {"Text", 30}, {"Date", 64}});
    });
}

void readValue(const JsonCursor& value, DisplayStateRecord& state) {
    if (value.isText()) {
        readValue(value, state.name);
        return;
    }
    if (!value.isObject()) {
        value.mismatch("a text or an object");
    }
    value.expectObject({"name", "hidden", "shown"});
    value.read("name", state.name);
    value.with("hidden", [&](const JsonCursor& names) { state.hidden = mentionComponents(names); });
    value.with("shown", [&](const JsonCursor& names) { state.shown = mentionComponents(names); });
}

namespace {

std::vector<NamedPlacement> readNamedPlacements(const JsonCursor& value) {
    std::vector<NamedPlacement> out;
    value.forEachEntry([&](std::string_view fullName, const JsonCursor& placement) {
        NamedPlacement& entry = out.emplace_back();
        entry.component = utf16FromUtf8(fullName);
        readValue(placement, entry.placement);
        value.context().componentMentions.push_back({entry.component, placement.path()});
    });
    return out;
}

std::vector<std::u16string> readBodyNames(const JsonCursor& list) {
    std::vector<std::u16string> out;
    list.forEachItem([&](const JsonCursor& name) {
        bodyNamed(name);
        readValue(name, out.emplace_back());
    });
    return out;
}

std::u16string readLeafName(const JsonCursor& value) {
    const std::string& name = value.utf8();
    if (name.find('/') != std::string::npos) {
        value.mismatch("a name without \"/\"");
    }
    return utf16FromUtf8(name);
}

void mentionDocument(const JsonCursor& name, ComponentRecord& component) {
    const std::filesystem::path file = resolveExistingFile(name);
    if (!hasExtension(file, {".tfgprt", ".tfgasm", ".step", ".stp"})) {
        name.mismatch("a file that ends in .tfgprt, .tfgasm, .step or .stp");
    }
    name.context().documentMentions.push_back({&component, file, name.path()});
}

void readPlacementOrNull(const JsonCursor& value, std::optional<Placement>& placement) {
    if (value.isNull()) {
        placement.reset();
    } else {
        readValue(value, placement);
    }
}

} // namespace

void readValue(const JsonCursor& value, ConfigurationRecord& configuration) {
    value.expectObject({"name", "displayStates", "customProperties", "suppressed", "hidden", "shown",
                        "placements", "bodies", "explodeSteps"});
    readValue(value.require("name"), configuration.name);
    if (value.has("displayStates")) {
        value.read("displayStates", configuration.displayStates);
    } else {
        configuration.displayStates.emplace_back().name = u"Display State 1";
    }
    value.read("customProperties", configuration.customProperties);
    value.with("suppressed",
               [&](const JsonCursor& names) { configuration.suppressed = mentionComponents(names); });
    value.with("hidden", [&](const JsonCursor& names) { configuration.hidden = mentionComponents(names); });
    value.with("shown", [&](const JsonCursor& names) { configuration.shown = mentionComponents(names); });
    value.with("placements",
               [&](const JsonCursor& map) { configuration.placements = readNamedPlacements(map); });
    value.with("bodies", [&](const JsonCursor& names) { configuration.bodies = readBodyNames(names); });
    value.read("explodeSteps", configuration.explodeSteps);
}

// The lists nest no deeper than the brackets of the text, which its reader limits.
void readValue(const JsonCursor& value, ComponentRecord& component) {
    value.expectObject({"name", "document", "id", "placement", "placementFallback", "loaded", "suppressed",
                        "hidden", "state", "components", "decals"});
    component.name = readLeafName(value.require("name"));
    value.with("document", [&](const JsonCursor& name) { mentionDocument(name, component); });
    value.read("id", component.id);
    value.with("placement", [&](const JsonCursor& own) { readPlacementOrNull(own, component.placement); });
    value.read("placementFallback", component.placementFallback);
    value.read("loaded", component.loaded);
    value.read("suppressed", component.suppressed);
    value.read("hidden", component.hidden);
    value.with("state", [&](const JsonCursor& state) {
        component.state = static_cast<std::int32_t>(state.integer(0, 3));
    });
    value.read("components", component.components);
    value.read("decals", component.decals);
}

void readRoot(const JsonCursor* value, ModelDocument& document) {
    RootRecord& root = document.root;
    root.name = document.title.substr(0, document.title.rfind(u'.'));
    if (value != nullptr) {
        value->expectObject({"name", "id", "placement"});
        value->read("name", root.name);
        value->read("id", root.id);
        value->read("placement", root.placement);
    }
}

} // namespace orvane::json
