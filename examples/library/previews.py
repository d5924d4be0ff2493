"""Previews of appearances: a ball in a studio with two soft lamps, seen from the front."""

import numpy as np

import procedural as p

SIZE = 176  # pixels of a preview
_OVER = 2  # samples a pixel and axis


def _studio(direction, blur):
    """The light that comes from a direction; `blur` 0 to 1 widens the lamps' edges. Bright above, dark below."""
    x, y, z = direction[..., 0], direction[..., 1], direction[..., 2]
    sky = 0.32 + 0.33 * p.smoothstep(-0.5 - blur, 1.0, y) - 0.22 * p.smoothstep(0.1 + blur, -0.5 - blur, y)
    soft = 0.05 + 0.7 * blur

    def lamp(towards, half_width, half_height, strength):
        towards = np.array(towards) / np.linalg.norm(towards)
        right = np.cross([0, 1, 0], towards)
        right /= np.linalg.norm(right)
        up = np.cross(towards, right)
        facing = direction @ towards
        across, along = np.abs(direction @ right), np.abs(direction @ up)
        inside = p.smoothstep(half_width + soft, half_width - soft, across)
        inside = inside * p.smoothstep(half_height + soft, half_height - soft, along)
        return strength * inside * (facing > 0) / (1 + 2.2 * blur)

    light = sky + lamp((-0.8, 0.9, 0.8), 0.32, 0.42, 1.7) + lamp((1.0, 0.25, 0.35), 0.12, 0.6, 1.1)
    return light + 0.05 * z


def _backdrop(x, y):
    return (0.93 - 0.10 * (x * x + y * y) - 0.06 * p.smoothstep(0.0, -1.1, y))[..., None] * np.array([1.0, 1.0, 1.005])


def draw(appearance, texture, bump):
    """The preview as bytes; `texture` and `bump` are pictures in fractions, or None."""
    n = SIZE * _OVER
    down, across = np.mgrid[0:n, 0:n]
    x, y = ((across + 0.5) / n * 2 - 1) * 1.12, (1 - (down + 0.5) / n * 2) * 1.12
    radius2 = x * x + y * y
    inside = radius2 < 1
    flat = np.stack([x, y, np.sqrt(np.clip(1 - radius2, 0, 1))], axis=-1)
    flat /= np.maximum(np.linalg.norm(flat, axis=-1, keepdims=True), 1e-9)

    # The pictures lie on the ball as seen from the front, somewhat drawn together towards the rim.
    turn = np.arcsin(np.clip(np.sqrt(radius2), 0, 1)) / np.maximum(np.sqrt(radius2), 1e-6)
    u, v = x * turn, -y * turn
    normal = flat
    if bump is not None:
        size = bump.shape[0]
        tilt = p.lookup(bump, u * size * 0.8, v * size * 0.8) * 2 - 1
        right = np.stack([flat[..., 2], np.zeros_like(x), -flat[..., 0]], axis=-1)
        right /= np.maximum(np.linalg.norm(right, axis=-1, keepdims=True), 1e-6)
        up = np.cross(flat, right)
        normal = flat + 0.6 * (tilt[..., :1] * right + tilt[..., 1:2] * up)
        normal = normal / np.linalg.norm(normal, axis=-1, keepdims=True)
    base = np.broadcast_to(p.colour(appearance.colour) ** 2.2, flat.shape)
    if texture is not None:
        size = texture.shape[0]
        base = p.lookup(texture, (u * 0.6 + 0.3) * size, (v * 0.6 + 0.2) * size) ** 2.2

    if appearance.spread is not None:
        rough = appearance.spread
    else:
        rough = (1 - appearance.reflectivity) * 0.2 if appearance.reflectivity > 0 else 1.0
    facing = np.clip(normal[..., 2], 0, 1)
    mirrored = 2 * facing[..., None] * normal - [0, 0, 1]
    glance = (1 - facing) ** 5
    diffuse = (_studio(normal, 1.0) * 1.35)[..., None] * base
    shine = _studio(mirrored, rough)[..., None]
    gloss = (0.04 + 0.9 * glance * (1 - rough))[..., None]
    metal = appearance.metal
    tint = base + (1 - base) * glance[..., None]
    picture = (1 - metal) * (diffuse + shine * gloss) + metal * shine * tint * 1.25
    if appearance.transparency > 0:
        # A ball turns what stands behind it upside down.
        behind = _backdrop(-0.8 * x, -0.8 * y) ** 2.2 * (1.02 - 0.5 * p.smoothstep(0.6, 1.0, radius2) ** 2)[..., None]
        through = behind * (0.25 + 0.75 * base)
        picture = through * 0.92 + shine * gloss * 1.5 + (1 - appearance.transparency) * 0.4 * diffuse
    if appearance.emission > 0:
        picture = base * (1.15 - 0.25 * (1 - facing))[..., None] + 0.12 * facing[..., None] ** 3

    ground = _backdrop(x, y) ** 2.2
    shadow = 0.55 * np.exp(-((x / 0.75) ** 2) - ((y + 1.02) / 0.13) ** 2)
    if appearance.emission > 0:
        halo = np.exp(-np.maximum(np.sqrt(radius2) - 1, 0) * 9)[..., None]
        ground = ground * 0.45 + 0.45 * halo * base
    else:
        ground = ground * (1 - shadow * (1 - 0.6 * appearance.transparency))[..., None]
    whole = np.where(inside[..., None], picture, ground)
    whole = whole.reshape(SIZE, _OVER, SIZE, _OVER, 3).mean(axis=(1, 3))
    return p.to_bytes(np.clip(whole, 0, 1) ** (1 / 2.2))
