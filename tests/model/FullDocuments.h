#pragma once

/// Two documents that between them give every key that a model document can have, but for the `file` of a
/// body, which needs a kernel.
namespace orvane {

inline constexpr const char* kFullPart = R"({
    "title": "Lid", "activeConfiguration": "B", "configurations": [{"name": "A"},
        {"name": "B", "displayStates": ["S", "T"], "bodies": ["Body2", "Named"]}],
    "features": [
        {"name": "F", "features": [{"name": "G", "type": "CommentsFolder", "comments": [{"name": "n", "text": "t"}]}],
         "definition": {"propagate": true, "seeds": ["H", null, "G"]}},
        {"name": "G"},
        {"name": "H", "camera": {"position": [1, 2, 3], "up": [0, 1, 0], "direction": [0, 0, 1], "aspect": 2,
                                 "fieldOfView": 0.5, "perspective": false}}],
    "bodies": [{"name": "Named", "kind": "wire", "visible": false}, {"faces": [
            {"positions": [], "userValue": 4294967295},
            {"positions": [0,0,0, 2,0,0, 0,2,0, 0,0,0, 1,1,1, 2,2,2, 0,0,0, 0,1,0, 0,0,1], "feature": "G", "userValue": -5},
            {"positions": [0,0,0, 1,0,0, 0,1,0], "normals": [1,2,3,4,5,6,7,8,9], "texCoords": [0,0.5,1,1.5,2,2.5], "feature": "H"}]},
        {"kind": "surface", "faces": []},
        {"shape": {"box": {"size": [1, 1, 1], "placement": {"translate": [1, 0, 0]}, "segments": 3}}},
        {"shape": {"cylinder": {"radius": 1, "height": 2, "placement": {}, "segments": 4}}},
        {"shape": {"sphere": {"radius": 1, "placement": {}, "segments": 5}}},
        {"shape": {"cone": {"radius": 1, "height": 2, "placement": {}, "segments": 6}}},
        {"shape": {"torus": {"radius": 2, "tube": 1, "placement": {}, "segments": 7}}}],
    "appearances": [{}, {"file": "../lib/steel.tfm", "texture": "wood/a.png", "bumpTexture": "/abs/b.png",
        "primaryColor": "#12aBfF", "secondaryColor": [1, 2, 3], "tertiaryColor": "#000100", "specularColor": "#000001",
        "emission": 0.25, "reflectivity": 0.75, "specularSpread": 2, "specular": 3, "transparency": 0.5,
        "mapping": {"type": 3, "width": 0.5, "height": 0.25, "offsetU": 1, "offsetV": 2, "rotation": 30,
            "center": [1, 2, 3], "uDirection": [1, 0, 0], "vDirection": [0, 0, 1], "sphereAngleA": 4, "sphereAngleB": 5,
            "mirrorVertical": false, "mirrorHorizontal": true},
        "appliedTo": ["document", {"body": "Named"}, {"feature": "G"}, {"face": ["Body2", 2]}],
        "configurations": ["A"], "displayStates": ["T"]}],
    "decals": [{"id": 4, "maskFile": "m.png", "maskInvert": true, "ids": [1, -2], "appearance": {"appliedTo": []}}]})";

inline constexpr const char* kFullAssembly = R"({
    "activeConfiguration": "B", "root": {"name": "R\u00e4\ud83d\ude00", "id": -7, "placement": {"scale": 2}},
    "configurations": [
        {"name": "A", "explodeSteps": 3, "displayStates": [], "customProperties": [
            {"name": "n", "value": "v"}, {"type": "Date"}, {"type": "YesNo"}, {"type": "Number"}, {"type": "Double"}, {"type": 77}]},
        {"name": "B", "suppressed": ["x"], "hidden": ["x/y"], "shown": ["x", "x"],
         "placements": {"x/y": {"translate": [1, 2, 3], "rotate": {"axis": [0, 0, 1], "degrees": 90}}},
         "displayStates": ["S1", {"name": "S2", "hidden": ["x"], "shown": ["x/y"]}]}],
    "components": [
        {"name": "x", "document": "part.tfgprt", "id": 9, "placement": null, "loaded": false, "suppressed": true, "hidden": true,
         "state": 1, "components": [{"name": "y", "placementFallback": {"scale": 3}}, {"name": "y"}], "decals": [{"id": 3.0}]}],
    "appearances": [{"appliedTo": [{"component": "x/y"}]}],
    "box": [0, 1, 2, 3, 4, 5], "view": {},
    "namedViews": [{"name": "V", "mode": 2, "orientation": {"rotate": {"degrees": 90}}, "scale": 3, "translation": [1, 2, 3],
        "eyePoint": [4, 5, 6], "planeDistance": 7, "perspective": true, "perspectiveAllowed": false,
        "transform": {"scale": 8}, "width": 9, "height": 10, "camera": {}}],
    "lights": [{"name": "L", "userName": "U", "type": "spot", "level": 0.5, "color": [1, 0.5, 0], "position": [1, 2, 3],
        "direction": [4, 5, 6], "coneAngle": 30, "attenuation": [7, 8, 9], "intensity": 11, "on": false},
        {"type": 1234}, {"type": "point"}, {"type": "directional"}, {"type": "ambient"}],
    "motionStudies": [{"name": "M", "duration": -2.5, "frameRate": 30.0, "time": 1, "tracks": [
        {"component": "x", "interpolation": "step", "keys": [{"time": -1}, {"time": 0.5, "placement": {"translate": [1, 0, 0]}}]},
        {"component": "x"}, {"keys": [{}]}]}, {"frameRate": 0}],
    "explodedViews": [{"name": "E", "frameRate": 12, "steps": [{"components": ["x"], "translate": [0, 0, 1]}, {}]}],
    "designTable": {"title": "T", "headers": ["h", null], "rows": [["1"], []], "startRow": 4, "startColumn": 5, "attach": false},
    "annotations": [{"table": {"title": null, "headers": [], "rows": [[null, "x"]]}}, {"type": 3, "table": {}}]})";

} // namespace orvane
