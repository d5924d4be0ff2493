"""DDS files, as graphics cards take them: plain 24-bit pixels, or blocks of 4 x 4 pixels (DXT1)."""

import struct

import numpy as np

_CAPS, _HEIGHT, _WIDTH, _PITCH, _PIXELFORMAT, _LINEARSIZE = 0x1, 0x2, 0x4, 0x8, 0x1000, 0x80000
_FOURCC, _RGB, _TEXTURE = 0x4, 0x40, 0x1000


def _header(width, height, flags, pitch, pixel_format):
    head = struct.pack("<4s7I44x", b"DDS ", 124, _CAPS | _HEIGHT | _WIDTH | _PIXELFORMAT | flags, height, width, pitch, 0, 0)
    return head + pixel_format + struct.pack("<I16x", _TEXTURE)


def plain(pixels):
    """`pixels`: bytes [row, column, 3], red first."""
    height, width, _ = pixels.shape
    form = struct.pack("<2I4s5I", 32, _RGB, b"", 24, 0xFF0000, 0xFF00, 0xFF, 0)
    return _header(width, height, _PITCH, width * 3, form) + pixels[:, :, ::-1].tobytes()


def _to_565(colours):
    scaled = np.round(colours / 255 * [31, 63, 31]).astype(np.uint32)
    return scaled[:, 0] << 11 | scaled[:, 1] << 5 | scaled[:, 2]


def _from_565(words):
    red, green, blue = words >> 11, words >> 5 & 63, words & 31
    return np.stack([red << 3 | red >> 2, green << 2 | green >> 4, blue << 3 | blue >> 2], axis=1).astype(float)


def dxt1(pixels):
    """Each block becomes two end colours on its longest axis and, for each pixel, one of four steps between them."""
    height, width, _ = pixels.shape
    blocks = pixels.reshape(height // 4, 4, width // 4, 4, 3).transpose(0, 2, 1, 3, 4).reshape(-1, 16, 3).astype(float)
    middle = blocks.mean(axis=1, keepdims=True)
    spread = blocks - middle
    _, axes = np.linalg.eigh(np.einsum("bij,bik->bjk", spread, spread))
    axis = axes[:, :, 2]
    along = np.einsum("bij,bj->bi", spread, axis)
    ends = [np.clip(middle[:, 0] + axis * value[:, None], 0, 255) for value in (along.max(axis=1), along.min(axis=1))]
    first, second = _to_565(ends[0]), _to_565(ends[1])
    # The larger word first selects the form with four colours; equal words would select the one with three.
    first, second = np.maximum(first, second), np.minimum(first, second)
    same = first == second
    first[same & (first == 0)] += 1
    second[same & (second > 0)] -= 1
    a, b = _from_565(first), _from_565(second)
    palette = np.stack([a, b, (2 * a + b) / 3, (a + 2 * b) / 3], axis=1)
    choice = ((blocks[:, :, None] - palette[:, None]) ** 2).sum(axis=3).argmin(axis=2).astype(np.uint32)
    bits = (choice << (2 * np.arange(16, dtype=np.uint32))).sum(axis=1).astype(np.uint32)
    data = np.zeros(len(blocks), dtype=[("first", "<u2"), ("second", "<u2"), ("bits", "<u4")])
    data["first"], data["second"], data["bits"] = first, second, bits
    form = struct.pack("<2I4s5I", 32, _FOURCC, b"DXT1", 0, 0, 0, 0, 0)
    return _header(width, height, _LINEARSIZE, len(blocks) * 8, form) + data.tobytes()
