"""Writes G-code jobs: moves, arcs with absolute centres, rounded corners. Y grows downward, G02 is clockwise."""
import math


class Path:
    def __init__(self):
        self.lines = ["G90"]

    def add(self, statement):
        self.lines.append(statement)

    def tool(self, number):
        self.add(f"M06T{number}")

    def rapid(self, x, y):
        self.add(f"G00X{number(x)}Y{number(y)}")

    def feed(self, x, y):
        self.add(f"G01X{number(x)}Y{number(y)}")

    def arc(self, x, y, cx, cy, clockwise):
        word = "G02" if clockwise else "G03"
        self.add(f"{word}X{number(x)}Y{number(y)}I{number(cx)}J{number(cy)}")

    def turns(self, turns, cx, cy):
        self.add(f"G05T{turns:g}I{number(cx)}J{number(cy)}P0")

    def polyline(self, points):
        self.rapid(*points[0])
        for point in points[1:]:
            self.feed(*point)

    def circle(self, cx, cy, radius, start=0):
        """From its point at `start` degrees, counter-clockwise from the right."""
        self.rapid(*polar(cx, cy, radius, start))
        self.turns(1, cx, cy)

    def dot(self, x, y):
        self.rapid(x, y)
        self.add("W1")

    def rounded(self, corners, radius):
        """A closed outline, begun in the middle of its first side."""
        start = middle(corners[0], corners[1])
        self.rapid(*start)
        ring = corners[1:] + corners[:1]
        for i, corner in enumerate(ring):
            before = unit(ring[i - 1], corner)
            after = unit(corner, ring[(i + 1) % len(ring)])
            self.corner(corner, before, after, radius)
        self.feed(*start)

    def corner(self, corner, before, after, radius):
        cross = before[0] * after[1] - before[1] * after[0]
        half_turn = math.atan2(abs(cross), before[0] * after[0] + before[1] * after[1]) / 2
        reach = radius * math.tan(half_turn)
        x, y = corner[0] - before[0] * reach, corner[1] - before[1] * reach
        side = radius if cross > 0 else -radius
        self.feed(x, y)
        self.arc(corner[0] + after[0] * reach, corner[1] + after[1] * reach,
                 x - before[1] * side, y + before[0] * side, cross > 0)

    def wave(self, x, y, length, count):
        """`count` arcs of a sixth of a turn, by turns above and below the line."""
        step = length / count
        self.rapid(x, y)
        for i in range(count):
            up = i % 2 == 0
            drop = step * math.sqrt(3) / 2
            self.arc(x + step * (i + 1), y, x + step * (i + 0.5), y + (drop if up else -drop), up)

    def save(self, name):
        with open(name, "wb") as out:
            out.write("".join(line + "\r\n" for line in self.lines).encode("ascii"))


def number(value):
    text = f"{value:.3f}"
    return text[1:] if float(text) == 0 and text.startswith("-") else text


def polar(cx, cy, radius, degrees):
    return cx + radius * math.cos(math.radians(degrees)), cy - radius * math.sin(math.radians(degrees))


def middle(a, b):
    return (a[0] + b[0]) / 2, (a[1] + b[1]) / 2


def unit(a, b):
    length = math.dist(a, b)
    return (b[0] - a[0]) / length, (b[1] - a[1]) / length


def box(left, top, right, bottom):
    """Clockwise from the upper left."""
    return [(left, top), (right, top), (right, bottom), (left, bottom)]
