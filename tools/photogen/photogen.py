#!/usr/bin/env python3
"""Draws the grey lake picture of the starter station as a bitmap.

    photogen.py PHOTO.BMP        then: PIXBAKE.EXE PHOTO.BMP PHOTO.RAS
"""
import math
import struct
import sys

WIDTH, HEIGHT = 200, 150
SUN_X, SUN_Y, SUN_RADIUS = 138, 46, 20
SHORE = 104
# Sums of sines: (weight, wave length / 2 pi, phase).
FAR_HILLS = (74, 11, ((1, 31, 0.4), (0.5, 13, 1.1), (0.25, 6, 2.0)))
NEAR_HILLS = (90, 7, ((1, 42, 2.2), (0.4, 17, 0.3), (0.2, 7, 1.0)))
# Pines: place of the stem, foot, scale.
PINES = ((30, 134, 1.0), (52, 136, 0.72), (12, 133, 0.6))


def ridge(x, hills):
    base, height, waves = hills
    return base + sum(height * weight * math.sin(x / length + phase) for weight, length, phase in waves)


def land(x, y):
    """Sky with the sun's halo and faint rings, and two lines of hills."""
    if y > ridge(x, NEAR_HILLS):
        return 96 - 26 * (y - ridge(x, NEAR_HILLS)) / 14
    if y > ridge(x, FAR_HILLS):
        return 158 - 34 * (y - ridge(x, FAR_HILLS)) / 30
    distance = math.hypot(x - SUN_X, y - SUN_Y) - SUN_RADIUS
    if distance < 0:
        return 255
    rings = 9 * math.cos(distance / 3.2) * math.exp(-distance / 40)
    return 120 + 110 * y / SHORE + 70 * math.exp(-distance / 16) + rings


def water(x, y):
    """The land upside down, broken by ripples."""
    depth = y - SHORE
    mirrored_x = x + 1.8 * math.sin(y * 1.7) * depth / 12
    mirrored_y = SHORE - depth * 1.55 + 2.2 * math.sin(y * 1.9 + math.sin(x / 11) * 1.3)
    return land(mirrored_x, mirrored_y) * 0.78 + 12 * math.sin(y * 2.1 + math.sin(x / 9 + y / 3)) * depth / 46


def scene(x, y):
    bank = 141 - 9 * math.exp(-(((x - 20) / 42) ** 2)) - 2 * math.sin(x / 15)
    if y > bank:
        return 26 + 10 * math.sin(x / 5 + y / 2)
    return water(x, y) if y >= SHORE else land(x, y)


def draw_pine(picture, stem, foot, scale):
    for tier in range(4):
        top, height = int(foot - scale * (92 - 20 * tier)), int(scale * 34)
        for y in range(top, top + height):
            half = int(scale * (16 + 9 * tier)) * (y - top) / height / 2
            for x in range(max(0, int(stem - half)), int(stem + half) + 1):
                picture[y][x] = 22 + 14 * (x - stem + half) / (2 * half + 1)
    for y in range(int(foot - scale * 12), foot + 3):
        for x in range(int(stem - 2 * scale), int(stem + 2 * scale) + 1):
            picture[y][x] = 18


def draw():
    picture = [[scene(x, y) for x in range(WIDTH)] for y in range(HEIGHT)]
    for pine in PINES:
        draw_pine(picture, *pine)
    for y in range(HEIGHT):
        for x in range(WIDTH):
            edge = min(x, y, WIDTH - 1 - x, HEIGHT - 1 - y)
            if edge < 4:
                picture[y][x] = 0 if edge < 2 else 255
    return [bytes(max(0, min(255, round(value))) for value in row) for row in picture]


def bitmap(rows):
    stride = (WIDTH + 3) // 4 * 4
    pixels = b"".join(row.ljust(stride, b"\0") for row in reversed(rows))
    header = struct.pack("<2sIHHI", b"BM", 1078 + len(pixels), 0, 0, 1078)
    header += struct.pack("<IiiHHIIiiII", 40, WIDTH, HEIGHT, 1, 8, 0, len(pixels), 0, 0, 0, 0)
    return header + b"".join(bytes((i, i, i, 0)) for i in range(256)) + pixels


if __name__ == "__main__":
    with open(sys.argv[1], "wb") as out:
        out.write(bitmap(draw()))
