"""A picture of a blank name plate: dark brushed metal with a bevelled edge and four screw holes."""
import math
import random
import struct

WIDTH, HEIGHT, DOTS = 300, 200, 50  # DOTS to the unit: the plate fills a view of 6 by 4
EDGE, RADIUS = 0.15, 0.25  # of the outline
HOLES = [(x, y) for x in (0.4, 5.6) for y in (0.4, 3.6)]
HOLE = 0.07
BENCH, TINT = 12, (1.0, 1.03, 1.10)  # grey behind the plate; red, green, blue of a grey


def inside(x, y):
    """How far a point lies within the outline; negative outside."""
    dx = abs(x - 3) - (3 - EDGE - RADIUS)
    dy = abs(y - 2) - (2 - EDGE - RADIUS)
    return RADIUS - math.hypot(max(dx, 0), max(dy, 0)) - min(max(dx, dy), 0)


def grain(noise):
    """Long streaks: a row of noise, smoothed along the row."""
    rows = []
    for _ in range(HEIGHT):
        value, row = 0.0, []
        base = noise.gauss(0, 3)
        for _ in range(WIDTH):
            value = 0.93 * value + noise.gauss(0, 1.6)
            row.append(base + value)
        rows.append(row)
    return rows


def shade(x, y, streak):
    depth = inside(x, y)
    if depth < 0:
        return BENCH
    hole = min(math.hypot(x - hx, y - hy) for hx, hy in HOLES) - HOLE
    if hole < 0:
        return BENCH
    light = 52 + 26 * math.exp(-(((x * 0.8 + y - 3.4) / 1.3) ** 2)) + streak
    if depth < 0.06:
        light += 14 + 38 * math.tanh(2 - y - 0.4 * (x - 3))  # lit from the upper left
    if hole < 0.04:
        light += 30
    return light


def plate():
    streaks = grain(random.Random(7))
    pixels = bytearray()
    for row in reversed(range(HEIGHT)):
        y = (row + 0.5) / DOTS
        for column in range(WIDTH):
            light = shade((column + 0.5) / DOTS, y, streaks[row][column])
            pixels.append(max(0, min(255, round(light))))
    palette = b"".join(bytes(min(255, round(i * tint)) for tint in reversed(TINT)) + b"\0" for i in range(256))
    start = 54 + len(palette)
    header = struct.pack("<2sIHHI", b"BM", start + len(pixels), 0, 0, start)
    header += struct.pack("<IiiHHIIiiII", 40, WIDTH, HEIGHT, 1, 8, 0, len(pixels), 0, 0, 0, 0)
    return header + palette + bytes(pixels)
