"""Stroke paths: the small language in which the glyphs are drawn, and its flattening.

A path is a text of commands. Coordinates are hundredths of the cell: capital top 0,
baseline 100, X from 0 to 100, Y downward.

    M x y             lift the pen and start a stroke
    L x y             straight line
    H x y             quarter turn that leaves horizontally and arrives vertically
    V x y             quarter turn that leaves vertically and arrives horizontally
    C x y x y x y     cubic curve
    A cx cy rx ry a b arc from angle a to angle b in degrees, 0 at the right, 90 at the
                      top; it continues the stroke if that ends at its start
    D x y             a dot

L repeats without its letter, so "M 15 100 L 15 0 85 100 85 0" is an N.
"""
import math

# Arcs are superellipses of this exponent: a trace squarer than an ellipse, which fills the
# square cell better.
kRoundness = 2.2
# Largest distance of a chord from its curve, in cell hundredths.
kTolerance = 0.3
kDotRadius = 4.0

_COUNTS = {"M": 2, "L": 2, "H": 2, "V": 2, "C": 6, "A": 6, "D": 2}


def _arc_point(piece, angle):
    _, cx, cy, rx, ry, _, _ = piece
    c, s = math.cos(math.radians(angle)), math.sin(math.radians(angle))
    reach = (abs(c) ** kRoundness + abs(s) ** kRoundness) ** (-1.0 / kRoundness)
    return (cx + rx * reach * c, cy - ry * reach * s)


def _near(p, q):
    return abs(p[0] - q[0]) < 0.02 and abs(p[1] - q[1]) < 0.02


def parse(text):
    """Returns strokes: each a list of pieces, the first of them ('M', x, y)."""
    tokens = text.split()
    strokes, command, at, i = [], None, None, 0
    while i < len(tokens):
        if tokens[i].isalpha():
            command = tokens[i]
            i += 1
        count = _COUNTS[command]
        v = [float(t) for t in tokens[i : i + count]]
        i += count
        if command == "M":
            strokes.append([("M", *v)])
        elif command == "D":
            strokes.append([("D", *v)])
        elif command in "HV":
            # The radii carry the sense of the turn: an arc with negative ones is mirrored.
            if command == "H":
                arc = (at[0], v[1], v[0] - at[0], v[1] - at[1], 90.0, 0.0)
            else:
                arc = (v[0], at[1], at[0] - v[0], at[1] - v[1], 0.0, 90.0)
            strokes[-1].append(("A", *arc))
        elif command == "A":
            start = _arc_point(("A", *v), v[4])
            if not strokes or at is None or not _near(at, start):
                strokes.append([("M", *start)])
            strokes[-1].append(("A", *v))
        else:
            strokes[-1].append((command, *v))
        last = strokes[-1][-1]
        at = _arc_point(last, last[6]) if last[0] == "A" else last[-2:]
        if last[0] == "D":
            at = None
        if command == "M":
            command = "L"
    return strokes


def place(strokes, sx=1.0, sy=1.0, dx=0.0, dy=0.0):
    """Scales about (0, 0), then shifts. Negative scales mirror."""
    result = []
    for stroke in strokes:
        moved = []
        for piece in stroke:
            if piece[0] == "A":
                _, cx, cy, rx, ry, a, b = piece
                moved.append(("A", cx * sx + dx, cy * sy + dy, rx * sx, ry * sy, a, b))
            else:
                v = list(piece[1:])
                v[0::2] = [x * sx + dx for x in v[0::2]]
                v[1::2] = [y * sy + dy for y in v[1::2]]
                moved.append((piece[0], *v))
        result.append(moved)
    return result


def _chords(radius, sweep, tolerance):
    """Number of chords that keep a turn of sweep degrees within the tolerance."""
    step = 2.0 * math.acos(max(0.0, 1.0 - tolerance / max(radius, 2.0 * tolerance)))
    return max(2, math.ceil(math.radians(abs(sweep)) / step - 0.01))


def _cubic(p0, v, tolerance):
    p1, p2, p3 = v[0:2], v[2:4], v[4:6]
    bend = max(math.hypot(p0[k] - 2 * p1[k] + p2[k], p1[k] - 2 * p2[k] + p3[k]) for k in (0, 1))
    count = max(2, math.ceil(math.sqrt(0.75 * bend / tolerance)))
    for n in range(1, count + 1):
        t = n / count
        w = ((1 - t) ** 3, 3 * t * (1 - t) ** 2, 3 * t * t * (1 - t), t ** 3)
        yield tuple(w[0] * p0[k] + w[1] * p1[k] + w[2] * p2[k] + w[3] * p3[k] for k in (0, 1))


def flatten(strokes, tolerance=kTolerance, dot=kDotRadius):
    """Returns polylines, one for each stroke, as lists of points."""
    lines = []
    for stroke in strokes:
        points = []
        for piece in stroke:
            if piece[0] == "D":
                x, y = piece[1:]
                points = [(x + dot * math.cos(math.radians(a)), y - dot * math.sin(math.radians(a)))
                          for a in range(90, 451, 45)]
            elif piece[0] == "A":
                _, _, _, rx, ry, a, b = piece
                count = _chords(max(abs(rx), abs(ry)), b - a, tolerance)
                points += [_arc_point(piece, a + (b - a) * n / count) for n in range(1, count + 1)]
            elif piece[0] == "C":
                points += list(_cubic(points[-1], piece[1:], tolerance))
            else:
                points.append(tuple(piece[1:]))
        lines.append(points)
    return lines
