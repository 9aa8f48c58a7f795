"""Outlines of strokes: the contour of a round pen of some width that runs along them.

Every chord of a stroke becomes a convex polygon, every turn and end a fan around its point.
The contour is the border of the union of all these: each polygon edge less what lies inside
the other polygons, chained into closed lines.
"""
import math

import glyphs
import strokes

kPenWidth = 12.5
# Glyphs with little room between their strokes take a finer pen.
kFinePens = {
    11.0: "ÆŒæœ$&",
    9.5: "#*¢£¥€ß«»¤ð",
    7.5: "%@©®ªº¼½¾‰§™²³¹¶",
}
# Accents and the like are finer, and stand higher so that they keep clear of the letter.
kPartPen = 8.0
kAccentLift = -4.0
# Factor in X, so that the pen's width leaves the gap between neighbouring letters open.
kNarrowing = 0.86
kTolerance = 0.3
kDotRadius = 2.5

# Turns up to this many degrees are mitred, sharper ones are rounded.
kMitreLimit = 40.0
# Chords of a round turn span up to this many degrees.
kRoundStep = 36.0
# Contours are joined and straightened within these distances, in cell hundredths.
kJoin = 0.2
kStraight = 0.06
# Holes smaller than this (square hundredths) would only smear.
kSmallestHole = 9.0
_EPSILON = 1e-6


def _pen_width(name):
    return next((pen for pen, names in kFinePens.items() if name and name in names), kPenWidth)


def _fit(drawn, width):
    """Shrinks a drawing so that its outline, not its strokes, reaches from 0 to 100."""
    rise = 1.0 - width / 100.0
    return strokes.place(drawn, kNarrowing, rise, 50.0 * (1.0 - kNarrowing), width / 2.0)


def _normal(p, q, r):
    length = math.hypot(q[0] - p[0], q[1] - p[1])
    return ((p[1] - q[1]) / length * r, (q[0] - p[0]) / length * r)


def _fan(centre, start, sweep, r):
    """A pie slice from the angle start through sweep, both in degrees."""
    count = max(1, math.ceil(abs(sweep) / kRoundStep - 0.01))
    points = [centre]
    for n in range(count + 1):
        angle = math.radians(start + sweep * n / count)
        points.append((centre[0] + r * math.cos(angle), centre[1] + r * math.sin(angle)))
    return points


def _polygons(line, r):
    """The convex polygons that a round pen of radius r covers along a line."""
    points = [p for n, p in enumerate(line) if n == 0 or math.dist(p, line[n - 1]) > 1e-4]
    closed = math.dist(points[0], points[-1]) < 1e-4
    count = len(points) - 1
    normals = [_normal(points[n], points[n + 1], r) for n in range(count)]
    # Offset of each chord's two ends; mitred where two chords meet at a small turn.
    ends = [[normal, normal] for normal in normals]
    result = []
    for n in range(count if closed else count - 1):
        here, after, at = normals[n], normals[(n + 1) % count], points[n + 1]
        cross = here[0] * after[1] - here[1] * after[0]
        turn = math.degrees(math.atan2(cross, here[0] * after[0] + here[1] * after[1]))
        room = min(math.dist(at, points[n]), math.dist(at, points[(n + 1) % count + 1]))
        if abs(turn) <= kMitreLimit and 2.0 * r * math.tan(math.radians(abs(turn) / 2.0)) < room:
            scale = 1.0 / (1.0 + math.cos(math.radians(turn)))
            mitre = ((here[0] + after[0]) * scale, (here[1] + after[1]) * scale)
            ends[n][1] = ends[(n + 1) % count][0] = mitre
        else:
            side = -1.0 if turn > 0 else 1.0
            start = math.degrees(math.atan2(side * here[1], side * here[0]))
            result.append(_fan(at, start, turn, r))
    if not closed:
        first, last = normals[0], normals[-1]
        result.append(_fan(points[0], math.degrees(math.atan2(first[1], first[0])), 180.0, r))
        result.append(_fan(points[-1], math.degrees(math.atan2(-last[1], -last[0])), 180.0, r))
    for n in range(count):
        (ax, ay), (bx, by) = points[n], points[n + 1]
        (ux, uy), (vx, vy) = ends[n]
        result.append([(ax + ux, ay + uy), (bx + vx, by + vy), (bx - vx, by - vy), (ax - ux, ay - uy)])
    return [_oriented(polygon) for polygon in result]


def _area(polygon):
    return 0.5 * sum(p[0] * q[1] - q[0] * p[1] for p, q in zip(polygon, polygon[1:] + polygon[:1]))


def _oriented(polygon):
    return polygon if _area(polygon) > 0 else polygon[::-1]


def _covered(p, q, polygon, owner_is_later):
    """The stretch of the edge p to q, as two fractions, that a polygon hides; None for none.

    An edge that runs along the polygon's own is hidden when they face each other; of two that
    coincide the earlier polygon's stays.
    """
    low, high = 0.0, 1.0
    dx, dy = q[0] - p[0], q[1] - p[1]
    for a, b in zip(polygon, polygon[1:] + polygon[:1]):
        ex, ey = b[0] - a[0], b[1] - a[1]
        length = math.hypot(ex, ey)
        if length < 1e-9:
            continue
        # Distances of p and q from the edge's line, positive inside.
        from_p = (ex * (p[1] - a[1]) - ey * (p[0] - a[0])) / length
        from_q = (ex * (q[1] - a[1]) - ey * (q[0] - a[0])) / length
        if abs(from_p) < _EPSILON and abs(from_q) < _EPSILON:
            if ex * dx + ey * dy > 0 and not owner_is_later:
                return None
        elif from_p <= _EPSILON and from_q <= _EPSILON:
            return None
        elif from_p < 0:
            low = max(low, from_p / (from_p - from_q))
        elif from_q < 0:
            high = min(high, from_p / (from_p - from_q))
    return (low, high) if high - low > 1e-9 else None


def _uncovered(p, q, spans):
    """The pieces of the edge p to q outside the spans."""
    at, pieces = 0.0, []
    for low, high in sorted(spans) + [(1.0, 1.0)]:
        if low > at + 1e-7:
            pieces.append((at, low))
        at = max(at, high)
    return [tuple((p[0] + (q[0] - p[0]) * t, p[1] + (q[1] - p[1]) * t) for t in piece) for piece in pieces]


def _border(polygons):
    boxes = []
    for polygon in polygons:
        xs, ys = zip(*polygon)
        boxes.append((min(xs) - _EPSILON, max(xs) + _EPSILON, min(ys) - _EPSILON, max(ys) + _EPSILON))
    result = []
    for own, polygon in enumerate(polygons):
        for p, q in zip(polygon, polygon[1:] + polygon[:1]):
            spans = []
            for other, (left, right, top, bottom) in enumerate(boxes):
                if (other == own or max(p[0], q[0]) < left or min(p[0], q[0]) > right
                        or max(p[1], q[1]) < top or min(p[1], q[1]) > bottom):
                    continue
                span = _covered(p, q, polygons[other], own > other)
                if span:
                    spans.append(span)
            result += _uncovered(p, q, spans)
    return result


def _chain(edges):
    """Joins edges end to start into closed lines; all run with the inside on the same side."""
    pending = [edge for edge in edges if math.dist(*edge) > 1e-4]
    result = []
    while pending:
        line = list(pending.pop(0))
        while len(line) < 3 or math.dist(line[-1], line[0]) > kJoin:
            nearest = min(pending, key=lambda edge: math.dist(edge[0], line[-1]), default=None)
            if nearest is None or math.dist(nearest[0], line[-1]) > kJoin:
                raise ValueError(f"contour open at {line[-1]}")
            pending.remove(nearest)
            line.append(nearest[1])
        line[-1] = line[0]
        result.append(line)
    return result


def _straightened(line):
    """Drops the points that lie on the straight way between their neighbours."""
    kept = [line[0]]
    for n in range(1, len(line) - 1):
        a, b, c = kept[-1], line[n], line[n + 1]
        length = math.dist(a, c)
        off = abs((c[0] - a[0]) * (b[1] - a[1]) - (c[1] - a[1]) * (b[0] - a[0])) / max(length, 1e-9)
        if off > kStraight or length < math.dist(a, b):
            kept.append(b)
    return kept + [line[-1]]


def contours(name, parts):
    """The closed outlines of a glyph, outer ones and holes; parts are pairs of a part's name and
    its drawing."""
    polygons, width = [], _pen_width(name)
    for part, drawn in parts:
        fitted = _fit(drawn, width)
        if part in glyphs.ACCENTS:
            fitted = strokes.place(fitted, dy=kAccentLift)
        radius = (min(width, kPartPen) if part in glyphs.FINE_PARTS else width) / 2.0
        for line in strokes.flatten(fitted, kTolerance, kDotRadius):
            polygons += _polygons(line, radius)
    lines = [_straightened(line) for line in _chain(_border(polygons))]
    return [line for line in lines if abs(_area(line[:-1])) > kSmallestHole]
