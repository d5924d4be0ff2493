#!/usr/bin/env python3
"""Writes engine.tfgasm: where the parts of the engine stand, and how they move.

The crank turns at an even speed. The ram (piston, rod and crosshead) follows on its guides, and the connecting rod, which the
ram carries, swings about the crosshead's pin. Lengths are metres, angles degrees; x runs along the cylinder, y upward.
"""

import json
import math
import pathlib

CRANK_RADIUS = 0.03
ROD_LENGTH = 0.11
SHAFT_HEIGHT = 0.095
FRAME_RATE = 24
PERIOD = 2  # seconds for one turn


def rounded(values, digits=6):
    return [round(value, digits) + 0.0 for value in values]


def ram_position(angle):
    """How far the crosshead's pin is from the shaft."""
    turn = math.radians(angle)
    return CRANK_RADIUS * math.cos(turn) + math.sqrt(ROD_LENGTH**2 - (CRANK_RADIUS * math.sin(turn)) ** 2)


def rod_swing(angle):
    return -math.degrees(math.asin(CRANK_RADIUS * math.sin(math.radians(angle)) / ROD_LENGTH))


def about_z(degrees):
    return {"axis": [0, 0, 1], "degrees": round(degrees, 5) + 0.0}


def crank_placement(angle):
    return {"translate": [0, SHAFT_HEIGHT, 0], "rotate": about_z(angle)}


def ram_placement(angle):
    return {"translate": rounded([ram_position(angle), SHAFT_HEIGHT, 0])}


def rod_placement(angle):
    return {"rotate": about_z(rod_swing(angle))}


def at_angle(angle):
    return {"crank": crank_placement(angle), "ram": ram_placement(angle), "ram/connecting rod": rod_placement(angle)}


def motion_study(start):
    """One turn from the angle `start`. What does not turn evenly has a key for each frame."""

    def track(component, placement, frames_per_key):
        keys = []
        for frame in range(0, FRAME_RATE * PERIOD + 1, frames_per_key):
            time = frame / FRAME_RATE
            keys.append({"time": round(time, 6), "placement": placement(start + 360 * time / PERIOD)})
        return {"component": component, "keys": keys}

    return {
        "name": "One turn",
        "duration": PERIOD,
        "frameRate": FRAME_RATE,
        "tracks": [
            track("crank", crank_placement, 4),
            track("ram", ram_placement, 1),
            track("ram/connecting rod", rod_placement, 1),
        ],
    }


def cross(a, b):
    return [a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]]


def unit(vector):
    return [value / math.hypot(*vector) for value in vector]


def view(name, eye, target, field_of_view=35):
    """A view from `eye` to `target`. The orientation takes the model's axes to the screen's: right, up, towards the eye."""
    aspect = 1024 / 768
    towards = unit([e - t for e, t in zip(eye, target)])
    right = unit(cross([0, 1, 0], towards))
    up = cross(towards, right)
    block = [value for row in zip(right, up, towards) for value in row]
    return {
        "name": name,
        "orientation": rounded(block) + [0, 0, 0, 1, 0, 0, 0],
        "eyePoint": eye,
        "planeDistance": round(0.5 / (math.tan(math.radians(field_of_view / 2)) * aspect**2), 6),
    }


def configuration(name, angle, date):
    return {
        "name": name,
        "displayStates": ["Complete", {"name": "Without barrel", "hidden": ["cylinder/barrel", "cylinder/tie rods"]}],
        "placements": at_angle(angle),
        "customProperties": [
            {"name": "Article", "value": "ME-60"},
            {"name": "Bore in mm", "value": "52", "type": "Number"},
            {"name": "Crank angle", "value": f"{angle}", "type": "Double"},
            {"name": "Runs on air", "value": "Yes", "type": "YesNo"},
            {"name": "Drawn", "value": date, "type": "Date"},
        ],
    }


def timing_rows():
    lowest = ram_position(180)
    return [[f"{angle}", f"{1000 * (ram_position(angle) - lowest):.1f}", f"{abs(rod_swing(angle)):.1f}"] for angle in range(0, 181, 45)]


ENGINE = {
    "title": "Mill engine.tfgasm",
    "activeConfiguration": "Running",
    "configurations": [configuration("Running", 55, "2026-03-02"), configuration("Dead centre", 0, "2026-03-09")],
    "components": [
        {"name": "baseplate", "document": "baseplate.tfgprt"},
        {"name": "inner bearing", "document": "bearing.tfgprt", "placement": {"translate": [0, SHAFT_HEIGHT, -0.032]}},
        {"name": "outer bearing", "document": "bearing.tfgprt", "placement": {"translate": [0, SHAFT_HEIGHT, -0.122]}},
        {"name": "guides", "document": "guides.tfgprt", "placement": {"translate": [0, SHAFT_HEIGHT, 0]}},
        {"name": "cylinder", "document": "cylinder.tfgasm", "placement": {"translate": [0, SHAFT_HEIGHT, 0]}},
        {"name": "crank", "document": "crank.tfgasm"},
        {"name": "ram", "document": "ram.tfgasm"},
        {"name": "notes", "document": "notes.tfgprt"},
    ],
    "features": [
        {"name": "Origin", "type": "OriginProfileFeature"},
        {
            "name": "Cameras",
            "type": "CamerasFolder",
            "features": [
                {
                    "name": "At the crosshead",
                    "type": "Camera",
                    "camera": {
                        "position": [0.02, 0.2, 0.3],
                        "up": rounded(unit([0.09, 0.92, -0.31])),
                        "direction": rounded(unit([0.09, -0.1, -0.3])),
                        "aspect": 1.5,
                        "fieldOfView": 0.6,
                    },
                }
            ],
        },
    ],
    "namedViews": [
        view("From the front", [0.11, 0.16, 0.62], [0.11, 0.075, 0]),
        view("Flywheel side", [-0.35, 0.28, -0.5], [0.07, 0.07, -0.04]),
        view("Cylinder", [0.42, 0.2, 0.26], [0.22, 0.095, 0], 30),
    ],
    "lights": [
        {"name": "Ambient", "type": "ambient", "level": 0.3},
        {"name": "Sun", "type": "directional", "color": [1, 0.98, 0.92], "position": [0.5, 1, 0.8], "intensity": 0.9},
        {
            "name": "Spot1",
            "userName": "Lamp over the crank",
            "type": "spot",
            "color": [1, 0.9, 0.75],
            "position": [0, 0.5, 0.25],
            "direction": [0, -0.85, -0.53],
            "coneAngle": 35,
            "attenuation": [1, 0, 0],
            "intensity": 0.8,
        },
        {"name": "Bulb", "type": "point", "color": [0.7, 0.8, 1], "position": [-0.3, 0.3, -0.3], "intensity": 0.5},
    ],
    "motionStudies": [motion_study(55)],
    "explodedViews": [
        {
            "name": "Taken apart",
            "frameRate": 12,
            "steps": [
                {"components": ["ram"], "translate": [0, 0, 0.12]},
                {"components": ["ram/connecting rod"], "translate": [-0.06, 0, 0.05]},
                {"components": ["cylinder/rear cover", "cylinder/valve"], "translate": [0.12, 0, 0]},
                {"components": ["cylinder/barrel", "cylinder/tie rods"], "translate": [0.06, 0, 0]},
                {"components": ["crank"], "translate": [0, 0.1, 0]},
                {"components": ["crank/flywheel"], "translate": [0, 0.05, -0.05]},
            ],
        }
    ],
    "designTable": {
        "title": "Positions",
        "headers": ["Configuration", "Crank angle", "Barrel"],
        "rows": [["Running", "55", "S", None], ["Dead centre", "0", "S", None]],
    },
    "annotations": [
        {
            "type": 14,
            "table": {"title": "Timing", "headers": ["Crank angle", "Stroke in mm", "Rod angle"], "rows": timing_rows()},
        }
    ],
}


def text_of(value, indent=""):
    """JSON with everything on one line that fits there."""
    line = json.dumps(value, ensure_ascii=False)
    if len(indent) + len(line) <= 130 or not isinstance(value, (dict, list)):
        return line
    deeper = indent + "    "
    if isinstance(value, dict):
        items = [f"{json.dumps(key)}: {text_of(item, deeper)}" for key, item in value.items()]
    else:
        items = [text_of(item, deeper) for item in value]
    brackets = "{}" if isinstance(value, dict) else "[]"
    return brackets[0] + ",".join(f"\n{deeper}{item}" for item in items) + f"\n{indent}{brackets[1]}"


if __name__ == "__main__":
    target = pathlib.Path(__file__).with_name("engine.tfgasm")
    target.write_text(text_of(ENGINE) + "\n", encoding="utf-8")
