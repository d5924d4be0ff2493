"""The appearances of the sample library: what stands in their files, and how their previews look."""

from dataclasses import dataclass


@dataclass
class Appearance:
    category: str  # folder below Materials
    name: str  # base name of the file; names are looked at by the exporter where the file names no picture
    shader: str
    colour: str
    reflectivity: float = 0.0
    transparency: float = 0.0
    emission: float = 0.0
    spread: float | None = None  # roughness of a blurry reflection
    texture: str = ""  # below data/, where the file names its picture
    bump: str = ""  # below data/, where the file names its surface finish
    bump_in_shader: bool = False  # named by the shader's own declaration instead of by "bumpTexture"
    metal: float = 0.0
    size: float = 0.1  # metres that one picture covers
    preview_texture: str = ""  # what the exporter comes to by the name alone, for the preview
    preview_bump: str = ""


WOOD = "Images/textures/organic/wood/"
STONE = "Images/textures/stone/"
FINISH = "Images/shaders/surfacefinish/"
MOULDED = "Images/textures/plastic/bumpy/plasticpolypropylene_bump.jpg"


def metal(folder, name, shader, colour, reflectivity=0.4, **more):
    return Appearance(f"metal/{folder}", name, shader, colour, reflectivity, metal=1.0, **more)


def wood(name, shader, picture, reflectivity=0.25, **more):
    more = {"preview_texture": WOOD + picture, "size": 0.25, **more}
    return Appearance("organic/wood/" + name.split()[-1], name, shader, "#b08a5c", reflectivity, **more)


APPEARANCES = [
    metal("steel", "brushed steel", "brushedsteel", "#b4b6b8", spread=0.3, preview_bump=FINISH + "_brushed.dds"),
    metal("steel", "polished steel", "polishedsteel", "#c4c6c8", 0.85),
    metal("steel", "knurled stainless steel", "stainlesssteelknurled", "#b8babb", spread=0.25, size=0.02,
          bump=FINISH + "knurled.dds"),
    metal("steel", "scratched steel", "mattesteel", "#a3a5a7", spread=0.35, preview_bump=FINISH + "_scratch_n.dds"),
    metal("aluminum", "sandblasted aluminum", "sandblastedaluminum", "#b9bcc0", spread=0.45,
          preview_bump=FINISH + "sandblasted.dds"),
    metal("aluminum", "blue anodized aluminum", "blueanodizedaluminum", "#2c5fb3", spread=0.28),
    metal("brass", "polished brass", "polishedbrass", "#d9b45a", 0.8),
    metal("brass", "burnished brass", "burnishedbrass", "#c29c4c", spread=0.3, bump=FINISH + "burnished_n.dds",
          bump_in_shader=True),
    metal("copper", "polished copper", "polishedcopper", "#d68a63", 0.8),
    metal("nickel", "satin finish nickel", "satinfinishnickel", "#b5ada0", spread=0.3,
          preview_bump=FINISH + "satinwood_n.dds"),
    metal("chrome", "chromium plate", "chromiumplate", "#d8dadd", 0.95),
    metal("iron", "cast iron", "castiron", "#4b4c4e", spread=0.6, bump=FINISH + "sandblasted.dds", size=0.05),
    Appearance("glass/gloss", "clear glass", "clearglass", "#f4f8f8", 0.9, 0.9),
    Appearance("glass/gloss", "blue glass", "blueglass", "#5a8fd0", 0.9, 0.8),
    Appearance("glass/gloss", "green glass", "greenglass", "#5cb487", 0.9, 0.8),
    Appearance("glass/textured", "frosted glass", "frostedglass", "#e4eeee", 0.0, 0.6, spread=0.5,
               preview_bump=FINISH + "plasticmt11040_normalmap.dds"),
    wood("polished ash", "polishedash", "ash/polished ash.jpg"),
    wood("polished cherry", "polishedcherry", "cherry/polished cherry.jpg"),
    wood("polished maple", "polishedmaple", "maple/polished maple.jpg"),
    wood("polished oak", "polishedoak", "oak/polished oak.jpg"),
    wood("unfinished pine", "unfinishedpine", "pine/polished pine.jpg", 0.0, spread=0.7),
    wood("polished rosewood", "polishedrosewood", "rosewood/polished rosewood.jpg", 0.5),
    wood("unfinished spruce", "unfinishedspruce", "spruce/spruce.jpg", 0.0, spread=0.7, preview_bump=FINISH + "spruce_n.dds"),
    wood("polished teak", "polishedteak", "teak/polished teak.jpg"),
    Appearance("plastic/high gloss", "red high gloss plastic", "redhighglossplastic", "#b3161c", 0.6),
    Appearance("plastic/high gloss", "black high gloss plastic", "blackhighglossplastic", "#17181a", 0.6),
    Appearance("plastic/low gloss", "cream low gloss plastic", "creamlowglossplastic", "#e6dcc0", spread=0.5),
    Appearance("plastic/textured", "polypropylene plastic", "polypropyleneplastic", "#3f7fae", spread=0.45, size=0.03,
               preview_bump=MOULDED),
    Appearance("paint/car", "candy apple red", "candyappleredcarpainthq", "#8f0d14", 0.7, metal=0.7),
    Appearance("paint/car", "metallic cool grey", "metalliccoolgreycarpainthq", "#7d858c", 0.5, metal=0.7),
    Appearance("paint/powder coat", "dark powdercoat", "darkpowdercoat", "#2e3033", spread=0.5, size=0.03,
               preview_bump=FINISH + "powdercoat_n.dds"),
    Appearance("rubber", "matte rubber", "matterubber", "#222324", spread=0.8),
    Appearance("rubber", "textured rubber", "texturedrubber", "#2b2c2d", spread=0.75, size=0.02,
               bump=FINISH + "plasticmt11040_normalmap.dds", bump_in_shader=True),
    Appearance("stone/marble", "blue marble", "bluemarble", "#8a9bb5", 0.6, size=0.3,
               preview_texture=STONE + "architectural/marble/marble blue.jpg"),
    Appearance("stone/marble", "green vein marble", "greenmarble", "#3c5a4a", 0.6, size=0.3,
               preview_texture=STONE + "architectural/marble/marble green vein.jpg"),
    Appearance("stone/marble", "pink marble", "pinkmarble", "#c79a90", 0.6, size=0.3,
               preview_texture=STONE + "architectural/marble/pink marble.jpg"),
    Appearance("stone/architectural", "sandstone", "sandstone", "#c8a46c", spread=0.8, size=0.3,
               preview_texture=STONE + "architectural/sandstone/sandstone.jpg"),
    Appearance("stone/architectural", "slate", "slate", "#545d63", spread=0.6, size=0.4,
               preview_texture=STONE + "architectural/slate/slate.jpg"),
    Appearance("stone/brick", "fire brick", "firebrick", "#a04e36", spread=0.8, size=0.6,
               texture=STONE + "brick/fire brick.jpg"),
    Appearance("fabric", "burlap", "clothburlap", "#b0905e", spread=0.9, size=0.02, preview_bump=FINISH + "burlap_n.dds"),
    Appearance("light", "white LED", "white_led", "#fff6e0", emission=1.0),
    Appearance("light", "amber LED", "amber_led", "#ffae2b", emission=1.0),
    Appearance("light", "blue Neon Tube", "blue_neon_tube", "#5fa8ff", emission=1.0),
]


def file_text(appearance):
    """The appearance file: a keyword in quotes and its value on each line."""
    red, green, blue = (int(appearance.colour[i : i + 2], 16) / 255 for i in (1, 3, 5))
    lines = [
        f'"title" "{appearance.name}"',
        f'"category" "{appearance.category}"',
        f'"tf_shader" {appearance.shader}',
        f'"col1" {red:.4g},{green:.4g},{blue:.4g}',
        '"diffuse" 1',
        f'"reflectivity" {appearance.reflectivity:g}',
        f'"transparency" {appearance.transparency:g}',
        f'"emission" {appearance.emission:g}',
        f'"blurry" {int(appearance.spread is not None)}',
        f'"specularSpread" {appearance.spread or 0:g}',
        f'"texture_width" {appearance.size:g}',
        f'"texture_height" {appearance.size:g}',
    ]
    if appearance.texture:
        lines.append(f'"texture" "{appearance.texture}"')
    if appearance.bump and not appearance.bump_in_shader:
        lines.append(f'"bumpTexture" "{appearance.bump}"')
    if appearance.bump and appearance.bump_in_shader:
        lines.append("shader surface {")
        lines.append(f'    color texture "bump_file_texture" "{appearance.bump}"')
        lines.append("}")
    return "\n".join(lines) + "\n"
