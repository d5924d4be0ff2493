#include "model/json/AppearanceJson.h"

#include "model/json/DocumentContext.h"
#include "model/json/JsonCursor.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace orvane::json {

namespace {

constexpr const char* kColorForm = R"("#RRGGBB" or three whole numbers from 0 to 255)";

std::uint32_t packedColor(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
    return red | green << 8 | blue << 16;
}

std::uint32_t readHexColor(const JsonCursor& value) {
    const std::string& text = value.utf8();
    std::uint32_t rgb = 0;
    const char* const end = text.data() + text.size();
    const bool hasForm = text.size() == 7 && text[0] == '#';
    if (!hasForm || std::from_chars(text.data() + 1, end, rgb, 16).ptr != end) {
        value.mismatch(kColorForm);
    }
    return packedColor(rgb >> 16, rgb >> 8 & 0xFF, rgb & 0xFF);
}

EntityRecord readFaceEntity(const JsonCursor& value) {
    if (value.listSize() != 2) {
        value.mismatch("the name of a body and a face's position from 0");
    }
    EntityRecord entity{EntityKind::face, bodyNamed(value.at(0)), -1, -1, {}};
    const JsonCursor position = value.at(1);
    const auto index = position.integer(0, std::numeric_limits<std::int32_t>::max());
    const auto count = value.context().document->bodies[static_cast<std::size_t>(entity.body)].faces.size();
    if (static_cast<std::size_t>(index) >= count) {
        position.mismatch("the position of one of the body's " + std::to_string(count) + " faces, from 0");
    }
    entity.face = static_cast<std::int32_t>(index);
    return entity;
}

} // namespace

void readValue(const JsonCursor& value, EntityRecord& entity) {
    if (value.isText() && value.utf8() == "document") {
        if (value.context().document->kind != DocumentKind::part) {
            value.fail("\"document\" in an assembly",
                       "a feature or a component (only a part takes appearances itself)");
        }
        return;
    }
    if (!value.isObject()) {
        value.mismatch(R"("document" or an object with "body", "feature", "face" or "component")");
    }
    value.expectObject({"body", "feature", "face", "component"});
    int kinds = 0;
    value.with("body", [&](const JsonCursor& name) {
        entity = {EntityKind::body, bodyNamed(name), -1, -1, {}}, ++kinds;
    });
    value.with("feature", [&](const JsonCursor& name) {
        entity = {EntityKind::feature, -1, -1, featureNamed(name), {}}, ++kinds;
    });
    value.with("face", [&](const JsonCursor& face) { entity = readFaceEntity(face), ++kinds; });
    value.with("component", [&](const JsonCursor& fullName) {
        entity = {EntityKind::component, -1, -1, -1, mentionComponent(fullName)}, ++kinds;
    });
    if (kinds != 1) {
        value.fail(std::to_string(kinds) + " entities", "one");
    }
}

void readValue(const JsonCursor& value, MappingRecord& mapping) {
    value.expectObject({"type", "width", "height", "offsetU", "offsetV", "rotation", "center", "uDirection",
                        "vDirection", "sphereAngleA", "sphereAngleB", "mirrorVertical", "mirrorHorizontal"});
    auto type = static_cast<std::int32_t>(mapping.type);
    value.read("type", type);
    mapping.type = MappingKind{type};
    value.read("width", mapping.width);
    value.read("height", mapping.height);
    value.read("offsetU", mapping.offsetU);
    value.read("offsetV", mapping.offsetV);
    value.read("rotation", mapping.rotation);
    value.read("center", mapping.center);
    value.read("uDirection", mapping.uDirection);
    value.read("vDirection", mapping.vDirection);
    value.read("sphereAngleA", mapping.sphereAngleA);
    value.read("sphereAngleB", mapping.sphereAngleB);
    value.read("mirrorVertical", mapping.mirrorVertical);
    value.read("mirrorHorizontal", mapping.mirrorHorizontal);
}

namespace {

std::vector<std::u16string> readConfigurationNames(const JsonCursor& list) {
    const auto& known = list.context().document->configurations;
    std::vector<std::u16string> out;
    list.forEachItem([&](const JsonCursor& name) {
        readValue(name, out.emplace_back());
        if (std::ranges::find(known, out.back(), &ConfigurationRecord::name) == known.end()) {
            name.mismatch("the name of a configuration of this document");
        }
    });
    return out;
}

bool hasDisplayState(const ConfigurationRecord& configuration, const std::u16string& name) {
    return std::ranges::find(configuration.displayStates, name, &DisplayStateRecord::name) !=
           configuration.displayStates.end();
}

std::vector<std::u16string> readDisplayStateNames(const JsonCursor& list) {
    const auto& configurations = list.context().document->configurations;
    std::vector<std::u16string> out;
    list.forEachItem([&](const JsonCursor& name) {
        readValue(name, out.emplace_back());
        if (std::ranges::none_of(configurations,
                                 [&](const auto& one) { return hasDisplayState(one, out.back()); })) {
            name.mismatch("the name of a display state of this document");
        }
    });
    return out;
}

void readPicture(const JsonCursor& object, std::string_view key, std::string& field) {
    object.with(key, [&](const JsonCursor& name) { field = resolvePicture(name); });
}

void readColorField(const JsonCursor& object, std::string_view key, std::uint32_t& field) {
    object.with(key, [&](const JsonCursor& color) { field = readColor(color); });
}

} // namespace

std::uint32_t readColor(const JsonCursor& value) {
    if (value.isText()) {
        return readHexColor(value);
    }
    if (!value.isList() || value.listSize() != 3) {
        value.mismatch(kColorForm);
    }
    const auto channel = [&](std::size_t i) {
        return static_cast<std::uint32_t>(value.at(i).integer(0, 255));
    };
    return packedColor(channel(0), channel(1), channel(2));
}

void readValue(const JsonCursor& value, AppearanceRecord& appearance) {
    value.expectObject({"file", "texture", "bumpTexture", "primaryColor", "secondaryColor", "tertiaryColor",
                        "specularColor", "emission", "reflectivity", "specularSpread", "specular",
                        "transparency", "mapping", "appliedTo", "configurations", "displayStates"});
    readPicture(value, "file", appearance.file);
    readPicture(value, "texture", appearance.texture);
    readPicture(value, "bumpTexture", appearance.bumpTexture);
    readColorField(value, "primaryColor", appearance.primaryColor);
    readColorField(value, "secondaryColor", appearance.secondaryColor);
    readColorField(value, "tertiaryColor", appearance.tertiaryColor);
    readColorField(value, "specularColor", appearance.specularColor);
    value.read("emission", appearance.emission);
    value.read("reflectivity", appearance.reflectivity);
    value.read("specularSpread", appearance.specularSpread);
    value.read("specular", appearance.specular);
    value.read("transparency", appearance.transparency);
    value.read("mapping", appearance.mapping);
    appearance.hasAppliedTo = value.has("appliedTo");
    value.read("appliedTo", appearance.appliedTo);
    value.with("configurations",
               [&](const JsonCursor& names) { appearance.configurations = readConfigurationNames(names); });
    value.with("displayStates",
               [&](const JsonCursor& names) { appearance.displayStates = readDisplayStateNames(names); });
}

void readValue(const JsonCursor& value, DecalRecord& decal) {
    value.expectObject({"id", "appearance", "maskFile", "maskInvert", "ids"});
    readValue(value.require("id"), decal.id);
    value.read("appearance", decal.appearance);
    readPicture(value, "maskFile", decal.maskFile);
    value.read("maskInvert", decal.maskInvert);
    value.read("ids", decal.ids);
}

} // namespace orvane::json
