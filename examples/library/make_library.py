#!/usr/bin/env python3
"""Makes the sample library of appearances: draws its pictures and writes its appearance files and their previews to data/.

Usage: make_library.py [FOLDER]     (FOLDER: where data/ goes; beside this script when absent)

Needs Debian's python3-numpy and python3-pil. The same versions of them give the same files, byte for byte."""

import shutil
import sys
from pathlib import Path

from PIL import Image

import dds
import previews
import procedural as p
from appearances import APPEARANCES, FINISH, MOULDED, STONE, WOOD, file_text

MARBLE = STONE + "architectural/marble/"

PICTURES = {
    WOOD + "ash/polished ash.jpg": lambda: p.wood("ash", "#e2c79c", "#b08a5a", 6, 1.0, pores=0.35),
    WOOD + "beech/polished beech.jpg": lambda: p.wood("beech", "#dcae7e", "#bd8657", 9, 0.5, 0.5, flecks=0.9),
    WOOD + "birch/polished birch.jpg": lambda: p.wood("birch", "#ecd5ac", "#cfa977", 5, 0.9, 0.4),
    WOOD + "cherry/polished cherry.jpg": lambda: p.wood("cherry", "#b9703f", "#85431f", 7, 0.9, 0.4, pores=0.15),
    WOOD + "maple/polished maple.jpg": lambda: p.wood("maple", "#e9cda0", "#cda26c", 6, 0.7, 0.3, flecks=0.3),
    WOOD + "oak/polished oak.jpg": lambda: p.wood("oak", "#c99a62", "#8d5f30", 7, 1.1, 0.45, pores=0.3),
    WOOD + "pine/polished pine.jpg": lambda: p.wood("pine", "#ecc789", "#c08340", 7, 0.9, 0.25),
    WOOD + "rosewood/polished rosewood.jpg": lambda: p.wood("rosewood", "#7a3a22", "#2b120c", 9, 1.3, 0.6, pores=0.45),
    WOOD + "satinwood/satinwood.jpg": lambda: p.wood("satinwood", "#e0b765", "#bb883a", 8, 0.9, 0.8),
    WOOD + "spruce/spruce.jpg": lambda: p.wood("spruce", "#efd9ae", "#cda36a", 11, 0.35, 0.25),
    WOOD + "teak/polished teak.jpg": lambda: p.wood("teak", "#a8733d", "#6b4120", 8, 0.8, 0.5, pores=0.4),
    MARBLE + "marble blue.jpg": lambda: p.marble("blue", "#6f87a8", "#a9bbd0", "#e8eef5", 0.25),
    MARBLE + "marble blue vein.jpg": lambda: p.marble("blue vein", "#40587e", "#6c84a8", "#eef2f8", 1.0),
    MARBLE + "marble green.jpg": lambda: p.marble("green", "#2f5846", "#5c8470", "#b9d2c2", 0.25),
    MARBLE + "marble green vein.jpg": lambda: p.marble("green vein", "#17382b", "#33604b", "#dcebe0", 1.0),
    MARBLE + "pink marble.jpg": lambda: p.marble("pink", "#cb9a8e", "#e3c3b8", "#f5e8e2", 0.25),
    MARBLE + "marble pink vein.jpg": lambda: p.marble("pink vein", "#c08b80", "#dcb3a7", "#7b463f", 0.8),
    STONE + "architectural/sandstone/sandstone.jpg": lambda: p.sandstone("sandstone"),
    STONE + "architectural/slate/slate.jpg": lambda: p.slate("slate"),
    STONE + "brick/fire brick.jpg": lambda: p.bricks("fire brick"),
    MOULDED: lambda: p.normal_map(p.leather_cells("polypropylene", 260), 3),
}

# Height field, how high it is in pixels, and whether blocks are good enough for it.
FINISHES = {
    "burnished_n.dds": (lambda: p.burnished("burnished"), 0.9, True),
    "burlap_n.dds": (lambda: p.burlap("burlap"), 3.5, True),
    "_brushed.dds": (lambda: p.brushed("brushed"), 0.7, False),
    "_scratch_n.dds": (lambda: p.scratches("scratches"), 0.8, True),
    "knurled.dds": (lambda: p.knurled(), 7.0, False),
    "spruce_n.dds": (lambda: p.wood_pores("spruce", 40), 0.8, True),
    "plasticmt11040_normalmap.dds": (lambda: p.leather_cells("mt11040", 240), 2.5, True),
    "sandblasted.dds": (lambda: p.grains("sandblasted", 40), 0.8, True),
    "satinwood_n.dds": (lambda: p.wood_pores("satinwood", 90), 0.7, True),
    "powdercoat_n.dds": (lambda: p.orange_peel("powdercoat", 22), 2.2, True),
}


def save_jpeg(pixels, path, quality):
    path.parent.mkdir(parents=True, exist_ok=True)
    Image.fromarray(pixels).save(path, quality=quality, optimize=True)


def main(folder):
    data = folder / "data"
    if data.exists():
        shutil.rmtree(data)
    drawn = {}

    for name, draw in PICTURES.items():
        drawn[name] = draw()
        save_jpeg(p.to_bytes(drawn[name]), data / name, 84)

    for name, (height, pixels_high, in_blocks) in FINISHES.items():
        drawn[FINISH + name] = p.normal_map(height(), pixels_high)
        path = data / FINISH / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes((dds.dxt1 if in_blocks else dds.plain)(p.to_bytes(drawn[FINISH + name])))

    for appearance in APPEARANCES:
        path = data / "graphics/Materials" / appearance.category / f"{appearance.name}.tfm"
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(file_text(appearance), encoding="utf-8", newline="\n")
        texture = drawn.get(appearance.texture or appearance.preview_texture)
        bump = drawn.get(appearance.bump or appearance.preview_bump)
        preview = data / "graphics/Images/preview" / f"{appearance.name}.jpg"
        assert not preview.exists(), f"two appearances are called {appearance.name}"
        save_jpeg(previews.draw(appearance, texture, bump), preview, 88)

    files = [path for path in data.rglob("*") if path.is_file()]
    print(f"{len(files)} files, {sum(path.stat().st_size for path in files)} bytes in {data}")


if __name__ == "__main__":
    if len(sys.argv) > 2 or sys.argv[1:2] in (["-h"], ["--help"]):
        sys.exit(__doc__)
    main(Path(sys.argv[1]) if len(sys.argv) == 2 else Path(__file__).resolve().parent)
