"""Pictures made of numbers. Everything here repeats without a seam: noise is made in the frequency domain, and points are
looked up around the edges. Arrays are [row, column], row 0 at the top, values 0 to 1 unless told otherwise."""

import zlib

import numpy as np


def rng(name):
    """A random generator that depends on the name alone."""
    return np.random.default_rng(zlib.crc32(name.encode()))


def noise(name, size, cycles, slope=1.0, stretch=1.0):
    """Noise with mean 0 and deviation 1 whose finest detail has about `cycles` waves a side. `slope` says how much coarser
    waves outweigh finer ones, `stretch` how much longer than high (below 1: higher than long) its grains are."""
    waves = np.fft.fftfreq(size, 1 / size)
    across, down = np.meshgrid(waves * np.sqrt(stretch), waves / np.sqrt(stretch))
    wave = np.hypot(across, down)
    wave[0, 0] = 1
    weight = wave**-slope * np.exp(-((wave / cycles) ** 2))
    weight[0, 0] = 0
    field = np.fft.ifft2(np.fft.fft2(rng(name).standard_normal((size, size))) * weight).real
    return field / field.std()


def smoothstep(low, high, value):
    t = np.clip((value - low) / (high - low), 0, 1)
    return t * t * (3 - 2 * t)


def mix(first, second, amount):
    """Between two colours, or pictures, by a field of 0 to 1."""
    amount = np.asarray(amount)[..., None]
    return np.asarray(first) * (1 - amount) + np.asarray(second) * amount


def lookup(field, across, down):
    """The field at fractional positions given in pixels, going around at the edges."""
    height, width = field.shape[:2]
    left, top = np.floor(across).astype(int), np.floor(down).astype(int)
    fx, fy = across - left, down - top
    if field.ndim == 3:
        fx, fy = fx[..., None], fy[..., None]
    x0, x1, y0, y1 = left % width, (left + 1) % width, top % height, (top + 1) % height
    upper = field[y0, x0] * (1 - fx) + field[y0, x1] * fx
    lower = field[y1, x0] * (1 - fx) + field[y1, x1] * fx
    return upper * (1 - fy) + lower * fy


def warp(field, name, pixels, cycles, slope=1.5):
    """The field with its points pushed about by up to some pixels."""
    size = field.shape[0]
    down, across = np.mgrid[0:size, 0:size].astype(float)
    return lookup(
        field,
        across + pixels * noise(name + " across", size, cycles, slope),
        down + pixels * noise(name + " down", size, cycles, slope),
    )


def colour(text):
    """'#RRGGBB' as three fractions."""
    return np.array([int(text[i : i + 2], 16) for i in (1, 3, 5)]) / 255


def to_bytes(picture):
    return np.round(np.clip(picture, 0, 1) * 255).astype(np.uint8)


def normal_map(height, pixels_high):
    """The normal map of a height field: red to the right, green upward, blue outward; `pixels_high` is what a height of 1
    measures in pixels."""
    slope_x = (np.roll(height, -1, 1) - np.roll(height, 1, 1)) * pixels_high / 2
    slope_y = (np.roll(height, 1, 0) - np.roll(height, -1, 0)) * pixels_high / 2
    normal = np.dstack([-slope_x, -slope_y, np.ones_like(height)])
    normal /= np.linalg.norm(normal, axis=2, keepdims=True)
    return normal * 0.5 + 0.5


# ---- colours -------------------------------------------------------------------------------------------------------------


def wood(name, light, dark, rings=7, waviness=0.8, fibre=0.35, pores=0.0, flecks=0.0, size=256):
    """A sawn board; the grain runs from left to right."""
    down = np.mgrid[0:size, 0:size][0] / size
    spacing = noise(name + " spacing", size, 5, 0.5, 1e-4)[:, :1]
    phase = rings * down + 0.12 * spacing + waviness * noise(name + " growth", size, 2.2, 1.5, 6)
    phase += 0.05 * noise(name + " wobble", size, 14, 1.2, 6)
    year = phase % 1
    late = year**2.0 * (1 - smoothstep(0.88, 1.0, year))
    fibres = noise(name + " fibres", size, 90, 0.2, 60)
    tone = noise(name + " tone", size, 3, 1, 4)
    amount = np.clip(0.22 + 0.62 * late + fibre * 0.28 * fibres + 0.07 * tone, 0, 1)
    picture = mix(colour(light), colour(dark), amount)
    if pores:
        open_pores = smoothstep(1.5, 2.4, noise(name + " pores", size, 70, 0.1, 22) + 0.7 * (0.45 - year))
        picture = picture * (1 - pores * open_pores[..., None])
    if flecks:
        spots = smoothstep(1.4, 2.2, noise(name + " flecks", size, 40, 0.1, 7))
        picture = mix(picture, picture * 0.72, flecks * spots)
    return picture


def marble(name, ground, cloud, vein, veins=0.5, size=256):
    """Clouded stone; `veins` from 0 (none but faint ones) to 1."""
    clouds = warp(noise(name + " clouds", size, 40, 1.3), name + " drift", 12, 3)
    picture = mix(colour(ground), colour(cloud), smoothstep(-1.3, 1.5, clouds))
    for layer, (cycles, width, strength) in enumerate([(2.5, 0.035, 1.0), (4, 0.03, 0.7), (8, 0.035, 0.4)]):
        part = f"{name} {layer}"
        field = warp(noise(part + " course", size, cycles, 1, 0.6), part + " bend", 9, 9, 1.4)
        slope = np.hypot(np.roll(field, 1, 0) - field, np.roll(field, 1, 1) - field) * size / 16 + 0.2
        line = np.exp(-np.abs(field) / slope / width / 1.6)
        presence = smoothstep(-0.4, 1.2, noise(part + " presence", size, 3))
        picture = mix(picture, colour(vein), np.clip(line * presence * strength * (0.25 + 0.75 * veins), 0, 1))
    grain = noise(name + " grain", size, 90, 0)
    return picture * (1 + 0.018 * grain[..., None])


def sandstone(name, size=256):
    beds = noise(name + " beds", size, 12, 0.8, 25)
    stains = noise(name + " stains", size, 6, 1.2, 3)
    grain = noise(name + " grain", size, 110, 0)
    coarse = noise(name + " coarse", size, 40, 0.3)
    picture = mix(colour("#d9bd8d"), colour("#b3824f"), smoothstep(-2.2, 2.2, warp(beds, name, 4, 5) + 0.6 * stains))
    return picture * (1 + 0.055 * grain + 0.035 * coarse)[..., None]


def slate(name, size=256):
    split = warp(noise(name + " split", size, 30, 1.2, 1.8), name, 10, 8, 1.3)
    terraces = np.floor(split * 2.5) / 2.5 + 0.3 * (split * 2.5 % 1)
    light = np.roll(terraces, (2, 1), (0, 1)) - np.roll(terraces, (-1, -1), (0, 1))
    tone = noise(name + " tone", size, 5, 1.3)
    grain = noise(name + " grain", size, 100, 0.1, 3)
    picture = mix(colour("#3c444b"), colour("#69747a"), smoothstep(-3, 3, split + 0.8 * tone))
    rust = smoothstep(1.5, 2.6, noise(name + " rust", size, 9, 1.2))
    picture = mix(picture, colour("#7a6650"), 0.5 * rust)
    return picture * (1 + 0.2 * np.clip(light, -1, 1) + 0.06 * grain)[..., None]


def bricks(name, size=256, rows=6, columns=3):
    """Running bond; `rows` is even, so that the courses meet at the edge."""
    down, across = np.mgrid[0:size, 0:size] / size
    down, across = (
        down + 0.0035 * noise(name + " edge down", size, 22, 0.8),
        across + 0.0035 * noise(name + " edge across", size, 22, 0.8),
    )
    row = np.floor(down * rows).astype(int) % rows
    along = across * columns + 0.5 * (row % 2)
    column = np.floor(along).astype(int) % columns
    to_edge = np.minimum(
        np.minimum(along % 1, 1 - along % 1) / columns, np.minimum(down * rows % 1, 1 - down * rows % 1) / rows
    )
    body = smoothstep(0.007, 0.015, to_edge)
    tints = rng(name + " tints").random((rows, columns))[row, column]
    burnt = rng(name + " burnt").random((rows, columns))[row, column]
    clay = mix(colour("#b4573a"), colour("#8c3d2b"), tints)
    clay = mix(clay, colour("#5d3630"), 0.6 * smoothstep(0.75, 1, burnt))
    clay = clay * (1 + 0.07 * noise(name + " clay", size, 14, 0.8) + 0.06 * noise(name + " grit", size, 90, 0))[..., None]
    mortar = colour("#b9b0a2") * (1 + 0.06 * noise(name + " mortar", size, 60, 0.2))[..., None]
    edge = np.roll(body, (-2, -2), (0, 1)) - np.roll(body, (2, 2), (0, 1))
    return mix(mortar, clay, body) * (1 + 0.16 * edge)[..., None]


# ---- heights -------------------------------------------------------------------------------------------------------------


def brushed(name, size=128):
    return noise(name, size, 100, 0.15, 900)


def burnished(name, size=128):
    """Short strokes one over the other, as a rubbing tool leaves them."""
    strokes = noise(name + " one", size, 34, 0.5, 9) + 0.7 * noise(name + " two", size, 34, 0.5, 1 / 9)
    return 0.5 * strokes + noise(name + " dents", size, 7, 0.8)


def burlap(name, threads=12, size=128):
    """Plain weave: threads dive under and over one another."""
    down, across = np.mgrid[0:size, 0:size] / size * threads
    thick = 0.12 * noise(name + " weft", size, 20, 0.6, 8)
    thick_warp = 0.12 * noise(name + " warp", size, 20, 0.6, 1 / 8)
    checker = (np.floor(down) + np.floor(across)) % 2 * 2 - 1
    weft = np.sqrt(np.clip(1 - (2 * (down % 1) - 1) ** 2, 0, 1)) + thick + 0.45 * checker * np.sin(np.pi * (across % 1))
    warp_ = np.sqrt(np.clip(1 - (2 * (across % 1) - 1) ** 2, 0, 1)) + thick_warp - 0.45 * checker * np.sin(np.pi * (down % 1))
    return np.maximum(weft, warp_)


def knurled(rows=8, size=128):
    """Diamond knurling: pyramids between two families of crossing grooves."""
    down, across = np.mgrid[0:size, 0:size] / size * rows
    groove = lambda place: smoothstep(0.0, 0.8, np.abs(2 * (place % 1) - 1) * -1 + 1)
    return np.minimum(groove(across + down), groove(across - down))


def scratches(name, count=90, size=128):
    down, across = np.mgrid[0:size, 0:size].astype(float)
    generator = rng(name)
    height = 0.25 * noise(name + " ground", size, 60, 0)
    for _ in range(count):
        x, y = generator.random(2) * size
        angle, length = generator.random() * np.pi, 6 + 34 * generator.random() ** 2
        depth = 0.5 + 2 * generator.random()
        dx = (across - x + size / 2) % size - size / 2
        dy = (down - y + size / 2) % size - size / 2
        along, beside = dx * np.cos(angle) + dy * np.sin(angle), dy * np.cos(angle) - dx * np.sin(angle)
        height -= depth * np.exp(-((beside / 0.9) ** 2)) * smoothstep(length, length - 6, np.abs(along))
    return height


def wood_pores(name, stretch, size=128):
    """Grain that can be felt; it runs from left to right as in `wood`."""
    fibres = noise(name + " fibres", size, 46, 0.2, stretch)
    years = noise(name + " years", size, 12, 0.4, stretch)
    return 0.6 * fibres + 0.6 * years - 0.8 * smoothstep(1.4, 2.2, noise(name + " pores", size, 40, 0.1, stretch / 2))


def grains(name, cycles, size=128):
    """Blasted: craters without direction."""
    return noise(name, size, cycles, 0.1)


def orange_peel(name, cycles, size=128):
    """Flowed: soft hills with narrow valleys between them."""
    return -np.abs(noise(name, size, cycles, 0.2)) ** 0.8 + 0.25 * noise(name + " swell", size, cycles / 3, 0.3)


def leather_cells(name, cells, size=128):
    """Rounded plates, as moulds for plastics have them."""
    points = rng(name).random((cells, 2)) * size
    down, across = np.mgrid[0:size, 0:size].astype(float)
    nearest = np.full((2, size, size), np.inf)
    for x, y in points:
        dx = (across - x + size / 2) % size - size / 2
        dy = (down - y + size / 2) % size - size / 2
        distance = np.hypot(dx, dy)
        nearest[1] = np.minimum(nearest[1], np.maximum(nearest[0], distance))
        nearest[0] = np.minimum(nearest[0], distance)
    return smoothstep(0, 5, nearest[1] - nearest[0])
