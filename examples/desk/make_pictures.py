#!/usr/bin/env python3
"""Draws the pictures of the desk set into pictures/. Needs Debian's python3-numpy and python3-pil."""

import sys
from pathlib import Path

import numpy as np
from PIL import Image, ImageDraw

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "library"))
import procedural as p  # noqa: E402


def sphere_noise(name, directions, cycles, waves=260):
    """Noise on a ball: plane waves of many directions, so that it knows neither seam nor poles."""
    generator = p.rng(name)
    total = np.zeros(directions.shape[:2])
    for _ in range(waves):
        towards = generator.standard_normal(3)
        length = cycles * (0.7 + generator.random() ** 2 * 5)
        towards *= length / np.linalg.norm(towards)
        total += np.cos(directions @ towards * 2 + generator.random() * 2 * np.pi) / length**1.25
    return total / total.std()


def globe(width=1024):
    """A world that nobody has sailed yet, unrolled: west to the left, north at the top."""
    height = width // 2
    down, across = np.mgrid[0:height, 0:width]
    longitude, latitude = (across + 0.5) / width * 2 * np.pi - np.pi, np.pi / 2 - (down + 0.5) / height * np.pi
    directions = np.stack(
        [np.cos(latitude) * np.cos(longitude), np.cos(latitude) * np.sin(longitude), np.sin(latitude)], axis=-1
    )
    ground = sphere_noise("ground", directions, 1.7) + 0.3 * sphere_noise("coast", directions, 7)
    ground -= 0.2
    hills = sphere_noise("hills", directions, 5)
    dryness = np.cos(3.2 * latitude) + 0.5 * sphere_noise("rain", directions, 2)

    sea = p.mix(p.colour("#8fc0c4"), p.colour("#2f6f8c"), p.smoothstep(0.0, -0.9, ground))
    low = p.mix(p.colour("#7d9a55"), p.colour("#d8b878"), p.smoothstep(-0.5, 0.8, dryness))
    land = p.mix(low, p.colour("#9a7448"), p.smoothstep(0.5, 1.6, ground + 0.35 * hills))
    land = land * (1 + 0.05 * (hills - np.roll(hills, (1, 1), (0, 1))) * 8)[..., None]
    picture = p.mix(sea, land, p.smoothstep(-0.012, 0.012, ground))
    picture = p.mix(picture, p.colour("#4a3a22"), 0.75 * np.exp(-((ground / 0.02) ** 2)))
    ice = p.smoothstep(1.16, 1.3, np.abs(latitude) + 0.05 * hills + 0.05 * ground)
    picture = p.mix(picture, p.colour("#f2f4f2"), ice)
    # A net of 15 degrees; the lines keep their width towards the poles.
    step = np.pi / 12
    off_parallel = np.abs((latitude / step + 0.5) % 1 - 0.5) * step
    off_meridian = np.abs((longitude / step + 0.5) % 1 - 0.5) * step * np.cos(latitude)
    net = np.exp(-((np.minimum(off_parallel, off_meridian) / 0.005) ** 2))
    return p.mix(picture, p.colour("#f3ead0"), 0.45 * net)


def smooth(draw, width, height, over=4):
    """What `draw` paints in four times the size, shrunk to soft edges."""
    image = draw(width * over, height * over)
    return image.resize((width, height), Image.Resampling.LANCZOS)


def glaze(width, height):
    """A band of fans and diamonds that joins itself to the left and right."""
    image = Image.new("RGB", (width, height), "#efe6d2")
    canvas = ImageDraw.Draw(image)
    blue, gold = "#1d4f74", "#c98a2c"
    for row in range(-1, 7):
        y = row * height / 4
        for column in range(-1, 5):
            x = (column + 0.5 * (row % 2)) * width / 3
            reach = width / 6
            for share, ink in ((1.0, blue), (0.82, "#efe6d2"), (0.66, blue), (0.46, "#efe6d2"), (0.28, gold)):
                r = reach * share
                canvas.pieslice([x - r, y - r, x + r, y + r], 180, 360, fill=ink)
    return image


def cover(width, height):
    """Cloth with a frame and a compass rose in gold; left and right are alike, and so are top and bottom."""
    image = Image.new("RGB", (width, height), "#17473c")
    canvas = ImageDraw.Draw(image)
    gold, line = "#d9b35c", max(1, width // 110)
    for inset in (0.07, 0.1):
        edge = inset * width
        canvas.rectangle([edge, edge, width - edge, height - edge], outline=gold, width=line)
    x, y = width / 2, height / 2
    for radius in (0.33, 0.3, 0.12):
        r = radius * width
        canvas.ellipse([x - r, y - r, x + r, y + r], outline=gold, width=line)
    for length, turn in ((0.22, 22.5), (0.27, 45), (0.38, 0)):
        for quarter in range(4 if turn != 22.5 else 8):
            angle = np.radians(turn + quarter * (90 if turn != 22.5 else 45))
            tip = (x + length * width * np.sin(angle), y - length * width * np.cos(angle))
            for side, ink in ((-1, gold), (1, "#8a6a2a" if turn != 0 else "#b08a3c")):
                beside = angle + side * np.radians(45 if turn != 22.5 else 22.5)
                waist = (x + 0.055 * width * np.sin(beside), y - 0.055 * width * np.cos(beside))
                canvas.polygon([(x, y), tip, waist], fill=ink)
    return image


def name_plate(width, height, mask):
    ink, ground, line = ("white", "white", "white") if mask else ("#e8dcbc", "#e8dcbc", "#5a4322")
    image = Image.new("L" if mask else "RGB", (width, height), "black")
    canvas = ImageDraw.Draw(image)
    canvas.rounded_rectangle([0, 0, width - 1, height - 1], radius=height // 4, fill=ground)
    for place in (0.45, 0.7):
        canvas.line([width * 0.15, height * place, width * 0.85, height * place], fill=line, width=height // 40)
    return image


def main():
    folder = HERE / "pictures"
    folder.mkdir(exist_ok=True)
    Image.fromarray(p.to_bytes(globe())).save(folder / "globe.jpg", quality=82, optimize=True)
    smooth(glaze, 256, 256).quantize(32).save(folder / "glaze.png", optimize=True)
    # A square that the cover stretches to its own shape.
    cloth = 1 + 0.06 * p.noise("cloth", 512, 200, 0)
    cloth_cover = np.asarray(smooth(cover, 512, 708).resize((512, 512), Image.Resampling.LANCZOS)) / 255 * cloth[..., None]
    Image.fromarray(p.to_bytes(cloth_cover)).save(folder / "cover.jpg", quality=76, optimize=True)
    plate = smooth(lambda w, h: name_plate(w, h, False), 128, 64)
    plate.quantize(16).save(folder / "name plate.png", optimize=True)
    smooth(lambda w, h: name_plate(w, h, True), 128, 64).save(folder / "name plate mask.png", optimize=True)


if __name__ == "__main__":
    main()
