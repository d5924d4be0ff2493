#include "model/json/ViewJson.h"

#include "model/json/JsonCursor.h"
#include "model/json/PlacementJson.h"

namespace orvane::json {

void readValue(const JsonCursor& value, CameraRecord& camera) {
    value.expectObject({"position", "up", "direction", "aspect", "fieldOfView", "perspective"});
    value.read("position", camera.position);
    value.read("up", camera.up);
    value.read("direction", camera.direction);
    value.read("aspect", camera.aspect);
    value.read("fieldOfView", camera.fieldOfView);
    value.read("perspective", camera.perspective);
}

void readValue(const JsonCursor& value, ViewRecord& view) {
    value.expectObject({"name", "mode", "orientation", "scale", "translation", "eyePoint", "planeDistance",
                        "perspective", "perspectiveAllowed", "transform", "width", "height", "camera"});
    value.read("name", view.name);
    value.read("mode", view.mode);
    value.read("orientation", view.orientation);
    value.read("scale", view.scale);
    value.read("translation", view.translation);
    value.read("eyePoint", view.eyePoint);
    value.read("planeDistance", view.planeDistance);
    value.read("perspective", view.perspective);
    value.read("perspectiveAllowed", view.perspectiveAllowed);
    value.read("transform", view.transform);
    value.read("width", view.width);
    value.read("height", view.height);
    value.read("camera", view.camera);
}

void readValue(const JsonCursor& value, LightRecord& light) {
    value.expectObject({"name", "userName", "type", "level", "color", "position", "direction", "coneAngle",
                        "attenuation", "intensity", "on"});
    value.read("name", light.name);
    value.read("userName", light.userName);
    value.with("type", [&](const JsonCursor& type) {
        const auto number = [](LightKind kind) { return static_cast<std::int32_t>(kind); };
        light.type = LightKind{readNumberOrWord(type, {{"ambient", number(LightKind::ambient)},
                                                       {"spot", number(LightKind::spot)},
                                                       {"point", number(LightKind::point)},
                                                       {"directional", number(LightKind::directional)}})};
    });
    value.read("level", light.level);
    value.read("color", light.color);
    value.read("position", light.position);
    value.read("direction", light.direction);
    value.read("coneAngle", light.coneAngle);
    value.read("attenuation", light.attenuation);
    value.read("intensity", light.intensity);
    value.read("on", light.on);
}

} // namespace orvane::json
