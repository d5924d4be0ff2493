#include "model/json/ComponentJson.h"

#include "model/json/AppearanceJson.h"
#include "model/json/DocumentContext.h"
#include "model/json/JsonCursor.h"
#include "model/json/PlacementJson.h"
#include "model/records/ModelDefaults.h"
#include "platform/Utf8.h"

namespace orvane::json {

void readValue(const JsonCursor& value, CustomPropertyRecord& property) {
    const auto readType = [](const JsonCursor& type) {
        return readNumberOrWord(type,
                                {{"Number", 3}, {"Double", 5}, {"YesNo", 11}, {"Text", 30}, {"Date", 64}});
    };
    value.readObject(key("name", property.name), key("value", property.value),
                     key("type", property.type, readType));
}

void readValue(const JsonCursor& value, DisplayStateRecord& state) {
    if (value.isText()) {
        readValue(value, state.name);
        return;
    }
    if (!value.isObject()) {
        value.mismatch("a text or an object");
    }
    value.readObject(key("name", state.name), key("hidden", state.hidden, mentionComponents),
                     key("shown", state.shown, mentionComponents));
}

namespace {

std::vector<NamedPlacement> readNamedPlacements(const JsonCursor& value) {
    std::vector<NamedPlacement> out;
    value.forEachEntry([&](std::string_view fullName, const JsonCursor& placement) {
        const std::u16string& name =
            out.emplace_back(utf16FromUtf8(fullName), valueAs<Placement>(placement)).component;
        value.context().componentMentions.push_back({name, placement.path()});
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

std::optional<Placement> readPlacementOrNull(const JsonCursor& value) {
    return value.isNull() ? std::nullopt : std::optional(valueAs<Placement>(value));
}

std::int32_t readState(const JsonCursor& value) {
    return static_cast<std::int32_t>(value.integer(0, 3));
}

} // namespace

void readValue(const JsonCursor& value, ConfigurationRecord& configuration) {
    configuration.displayStates = defaultConfiguration().displayStates;
    value.readObject(
        required(key("name", configuration.name)), key("displayStates", configuration.displayStates),
        key("customProperties", configuration.customProperties),
        key("suppressed", configuration.suppressed, mentionComponents),
        key("hidden", configuration.hidden, mentionComponents),
        key("shown", configuration.shown, mentionComponents),
        key("placements", configuration.placements, readNamedPlacements),
        key("bodies", configuration.bodies, readBodyNames), key("explodeSteps", configuration.explodeSteps));
}

// The lists nest no deeper than the brackets of the text, which its reader limits.
void readValue(const JsonCursor& value, ComponentRecord& component) {
    value.readObject(required(key("name", component.name, readLeafName)),
                     key("document", [&](const JsonCursor& name) { mentionDocument(name, component); }),
                     key("id", component.id), key("placement", component.placement, readPlacementOrNull),
                     key("placementFallback", component.placementFallback), key("loaded", component.loaded),
                     key("suppressed", component.suppressed), key("hidden", component.hidden),
                     key("state", component.state, readState), key("components", component.components),
                     key("decals", component.decals));
}

void readValue(const JsonCursor& value, RootRecord& root) {
    value.readObject(key("name", root.name), key("id", root.id), key("placement", root.placement));
}

} // namespace orvane::json
