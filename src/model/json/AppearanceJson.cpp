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
    int kinds = 0;
    const auto take = [&](EntityRecord named) {
        ++kinds;
        entity = std::move(named);
    };
    value.readObject(key("body",
                         [&](const JsonCursor& name) {
                             take({EntityKind::body, bodyNamed(name), -1, -1, {}});
                         }),
                     key("feature",
                         [&](const JsonCursor& name) {
                             take({EntityKind::feature, -1, -1, featureNamed(name), {}});
                         }),
                     key("face", [&](const JsonCursor& face) { take(readFaceEntity(face)); }),
                     key("component", [&](const JsonCursor& fullName) {
                         take({EntityKind::component, -1, -1, -1, mentionComponent(fullName)});
                     }));
    if (kinds != 1) {
        value.fail(std::to_string(kinds) + " entities", "one");
    }
}

void readValue(const JsonCursor& value, MappingRecord& mapping) {
    const auto readType = [](const JsonCursor& type) {
        std::int32_t number = 0;
        readValue(type, number);
        return MappingKind{number};
    };
    value.readObject(key("type", mapping.type, readType), key("width", mapping.width),
                     key("height", mapping.height), key("offsetU", mapping.offsetU),
                     key("offsetV", mapping.offsetV), key("rotation", mapping.rotation),
                     key("center", mapping.center), key("uDirection", mapping.uDirection),
                     key("vDirection", mapping.vDirection), key("sphereAngleA", mapping.sphereAngleA),
                     key("sphereAngleB", mapping.sphereAngleB), key("mirrorVertical", mapping.mirrorVertical),
                     key("mirrorHorizontal", mapping.mirrorHorizontal));
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
    value.readObject(key("file", appearance.file, resolvePicture),
                     key("texture", appearance.texture, resolvePicture),
                     key("bumpTexture", appearance.bumpTexture, resolvePicture),
                     key("primaryColor", appearance.primaryColor, readColor),
                     key("secondaryColor", appearance.secondaryColor, readColor),
                     key("tertiaryColor", appearance.tertiaryColor, readColor),
                     key("specularColor", appearance.specularColor, readColor),
                     key("emission", appearance.emission), key("reflectivity", appearance.reflectivity),
                     key("specularSpread", appearance.specularSpread), key("specular", appearance.specular),
                     key("transparency", appearance.transparency), key("mapping", appearance.mapping),
                     key("appliedTo",
                         [&](const JsonCursor& entities) {
                             appearance.hasAppliedTo = true;
                             readValue(entities, appearance.appliedTo);
                         }),
                     key("configurations", appearance.configurations, readConfigurationNames),
                     key("displayStates", appearance.displayStates, readDisplayStateNames));
}

void readValue(const JsonCursor& value, DecalRecord& decal) {
    value.readObject(required(key("id", decal.id)), key("appearance", decal.appearance),
                     key("maskFile", decal.maskFile, resolvePicture), key("maskInvert", decal.maskInvert),
                     key("ids", decal.ids));
}

} // namespace orvane::json
