#!/usr/bin/env python3
"""Draws the graphics of the starter station: its G-code jobs and the picture of a name plate.

    samplegen.py FOLDER
"""
import math
import os
import sys

from path import Path, box, polar
from plate import plate


MONOGRAM = [(0.68, 0.70), (0.80, 0.70), (1.00, 0.99), (1.20, 0.70), (1.32, 0.70), (1.32, 1.22),
            (1.20, 1.22), (1.20, 0.92), (1.00, 1.20), (0.80, 0.92), (0.80, 1.22), (0.68, 1.22)]


def logo():
    """The round emblem, 2 by 2: rings, a monogram on water, three stars."""
    path = Path()
    path.circle(1, 1, 0.95)
    path.circle(1, 1, 0.92)
    path.rapid(1.64, 1)
    path.arc(0.36, 1, 1, 1, False)
    path.arc(1.64, 1, 1, 1, False)
    path.rounded(MONOGRAM, 0.03)
    for row, length in enumerate((0.80, 0.60, 0.40)):
        path.wave(1 - length / 2, 1.34 + 0.08 * row, length, round(length * 10))
    for x, y in ((0.86, 0.53), (1.00, 0.49), (1.14, 0.53)):
        path.dot(x, y)
    return path


def emblem():
    """The emblem for small sizes, 2 by 2: one ring, the monogram larger, one wave."""
    path = Path()
    path.circle(1, 1, 0.95)
    path.rounded([(1 + 1.5 * (x - 1), 0.88 + 1.5 * (y - 0.96)) for x, y in MONOGRAM], 0.05)
    path.wave(0.52, 1.52, 0.96, 4)
    return path


def frame():
    """The outline of the plate, 5.7 by 3.7, closed with rounded corners."""
    path = Path()
    path.rounded(box(0, 0, 5.7, 3.7), 0.25)
    return path


def hole():
    """A screw hole about the origin, with its centre marked."""
    path = Path()
    path.circle(0, 0, 0.07)
    path.polyline([(-0.03, 0), (0.03, 0)])
    path.polyline([(0, 0.03), (0, -0.03)])
    return path


def rule():
    """A dividing rule, 2.8 long, with a lens in its middle."""
    path = Path()
    path.dot(0, 0)
    path.polyline([(0.05, 0), (1.3, 0)])
    path.arc(1.5, 0, 1.4, 0.0866, True)
    path.feed(2.75, 0)
    path.dot(2.8, 0)
    path.rapid(1.5, 0)
    path.arc(1.3, 0, 1.4, -0.0866, True)
    path.dot(1.4, 0)
    return path


def stamp():
    """A stamp's border about the origin, 1.4 by 0.4, in two lines."""
    path = Path()
    path.rounded(box(-0.7, -0.2, 0.7, 0.2), 0.1)
    path.rounded(box(-0.66, -0.16, 0.66, 0.16), 0.06)
    return path


def tag():
    """The outline of a small tag, 1.8 by 1.1, with its hole."""
    path = Path()
    path.rounded(box(0, 0, 1.8, 1.1), 0.12)
    path.circle(0.2, 0.2, 0.06)
    return path


def tick():
    """A tick of a ruler, 0.3 long."""
    path = Path()
    path.polyline([(0, 0), (0.3, 0)])
    return path


def park():
    """The way that the head takes when the job is done: clear of the part, then home."""
    path = Path()
    path.rapid(5.9, 3.9)
    path.rapid(5.9, 0.1)
    path.rapid(0, 0)
    return path


def arcs():
    """Arcs of every kind, one tool to each row, for looking at the viewers."""
    path = Path()
    for column, sweep in enumerate((30, 90, 180, 270, 330)):
        cx = 0.6 + column * 1.1
        for tool, clockwise in ((1, True), (2, False)):
            cy = 0.6 + (tool - 1) * 1.1
            path.tool(tool)
            path.polyline([(cx, cy), (cx + 0.4, cy)])
            path.arc(*polar(cx, cy, 0.4, -sweep if clockwise else sweep), cx, cy, clockwise)
            path.feed(cx, cy)
    path.tool(3)
    for column, turns in enumerate((0.25, 0.5, -0.25, -0.75, 2)):
        cx = 0.6 + column * 1.1
        path.rapid(cx + 0.4, 2.8)
        path.turns(turns, cx, 2.8)
        path.feed(cx, 2.8)
    path.tool(4)  # equal ends: full circles, one in each sense
    for radius in (0.4, 0.3, 0.2, 0.1):
        path.rapid(0.6 + radius, 3.9)
        path.arc(0.6 + radius, 3.9, 0.6, 3.9, radius in (0.4, 0.2))
    path.wave(1.3, 3.7, 1.6, 8)
    path.wave(1.3, 4.0, 1.6, 4)
    path.tool(5)  # a centre that is not as far from both ends
    path.polyline([(3.4, 4.3), (3.4, 3.7)])
    path.arc(4.2, 3.9, 3.9, 3.9, True)
    path.feed(4.2, 4.3)
    path.tool(6)  # moves along one axis, and dots
    path.rapid(4.6, 3.6)
    for statement in ("G01X5.400", "G01Y4.200", "G01X4.800", "G01Y3.800", "G01X5.200", "G01Y4.000"):
        path.add(statement)
    for column in range(4):
        path.dot(4.7 + column * 0.2, 4.35)
    return path


def rosette():
    """A rose of the engine lathe, 6 by 6: six tools, some four thousand statements."""
    path, centre = Path(), 3
    path.tool(1)
    for radius in (2.9, 2.84):
        path.circle(centre, centre, radius)
    path.tool(2)
    beads = 72
    corners = [polar(centre, centre, 2.68, 360 * i / beads) for i in range(beads + 1)]
    for clockwise in (True, False):
        path.rapid(*corners[0])
        for a, b in zip(corners, corners[1:]):
            path.arc(*b, (a[0] + b[0]) / 2, (a[1] + b[1]) / 2, clockwise)
    for tool, mean, swing, lobes, turns in ((3, 2.0, 0.36, 89, 5), (4, 1.32, 0.28, 55, 4)):
        path.tool(tool)
        steps = 440 * turns
        path.polyline([polar(centre, centre, mean + swing * math.sin(2 * math.pi * lobes * i / steps),
                             360 * turns * i / steps) for i in range(steps + 1)])
    path.tool(5)
    for petal in range(24):
        cx, cy = polar(centre, centre, 0.44, 15 * petal)
        path.circle(cx, cy, 0.44, 15 * petal)
    path.tool(6)
    for spoke in range(24):
        path.dot(*polar(centre, centre, 2.43, 15 * spoke))
    return path


def main(folder):
    jobs = {"LOGO": logo, "EMBLEM": emblem, "FRAME": frame, "HOLE": hole, "RULE": rule,
            "STAMP": stamp, "TAG": tag, "TICK": tick, "PARK": park, "ARCS": arcs, "ROSETTE": rosette}
    for name, job in jobs.items():
        job().save(os.path.join(folder, name + ".JOB"))
    with open(os.path.join(folder, "PLATE.BMP"), "wb") as out:
        out.write(plate())


if __name__ == "__main__":
    main(sys.argv[1])
