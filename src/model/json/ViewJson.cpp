#include "model/json/ViewJson.h"

#include "model/json/JsonCursor.h"
#include "model/json/PlacementJson.h"

namespace orvane::json {

void readValue(const JsonCursor& value, CameraRecord& camera) {
    value.readObject(key("position", camera.position), key("up", camera.up),
                     key("direction", camera.direction), key("aspect", camera.aspect),
                     key("fieldOfView", camera.fieldOfView), key("perspective", camera.perspective));
}

namespace {

ViewRecord readViewKeys(const JsonCursor& value, bool isNamed) {
    ViewRecord view;
    auto name = key("name", view.name);
    name.isRequired = isNamed;
    value.readObject(name, key("mode", view.mode), key("orientation", view.orientation),
                     key("scale", view.scale), key("translation", view.translation),
                     key("eyePoint", view.eyePoint), key("planeDistance", view.planeDistance),
                     key("perspective", view.perspective), key("perspectiveAllowed", view.perspectiveAllowed),
                     key("transform", view.transform), key("width", view.width), key("height", view.height),
                     key("camera", view.camera));
    return view;
}

} // namespace

ViewRecord readView(const JsonCursor& value) {
    return readViewKeys(value, false);
}

ViewRecord readNamedView(const JsonCursor& value) {
    return readViewKeys(value, true);
}

void readValue(const JsonCursor& value, LightRecord& light) {
    const auto readType = [](const JsonCursor& type) {
        const auto number = [](LightKind kind) { return static_cast<std::int32_t>(kind); };
        return LightKind{readNumberOrWord(type, {{"ambient", number(LightKind::ambient)},
                                                 {"spot", number(LightKind::spot)},
                                                 {"point", number(LightKind::point)},
                                                 {"directional", number(LightKind::directional)}})};
    };
    value.readObject(key("name", light.name), key("userName", light.userName),
                     key("type", light.type, readType), key("level", light.level), key("color", light.color),
                     key("position", light.position), key("direction", light.direction),
                     key("coneAngle", light.coneAngle), key("attenuation", light.attenuation),
                     key("intensity", light.intensity), key("on", light.on));
}

} // namespace orvane::json
