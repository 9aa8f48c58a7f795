"""Specimen pictures of a font file: a table of all characters, or lines of text."""
kColumns = 16
kUnit = 60


def read(path):
    """Segments of each code as lists of four numbers."""
    table = {}
    for line in path.read_bytes().decode("ascii").splitlines():
        code, body = line.split(":")
        table[int(code)] = [tuple(map(float, s.split(","))) for s in body.split(";") if s]
    return table


def _glyph(segs, x, y):
    path = "".join(f"M{a + x:.3f} {b + y:.3f}L{c + x:.3f} {d + y:.3f}" for a, b, c, d in segs)
    return f'<path d="{path}"/>'


def _table(table):
    parts, guides, labels = [], [], []
    shown = [code for code in range(32, 256) if table.get(code)]
    for n, code in enumerate(shown):
        x, y = (n % kColumns) * 1.5 + 0.25, (n // kColumns) * 2.3 + 0.6
        guides.append(f"M{x} {y}h1v1.5h-1zM{x} {y + 1}h1")
        labels.append(f'<text x="{x}" y="{y + 1.65}">{code}</text>')
        parts.append(_glyph(table[code], x, y))
    rows = -(-len(shown) // kColumns)
    head = f'<path d="{"".join(guides)}" stroke="#bcd" stroke-width=".008"/>'
    codes = f'<g stroke="none" fill="#888" font-size=".14" font-family="sans-serif">{"".join(labels)}</g>'
    return head + "".join(parts) + codes, kColumns * 1.5, rows * 2.3


def _lines(table, texts):
    parts = []
    for row, text in enumerate(texts):
        for column, code in enumerate(text.encode("cp1252")):
            parts.append(_glyph(table[code], column + 0.3, row * 2.1 + 0.6))
    return "".join(parts), max(map(len, texts)) + 0.6, len(texts) * 2.1 + 0.3


def draw(path, texts=None):
    """The specimen of the font file as an SVG text."""
    table = read(path)
    body, width, height = _lines(table, texts) if texts else _table(table)
    return (f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}"'
            f' width="{width * kUnit:.0f}" height="{height * kUnit:.0f}">'
            '<rect width="100%" height="100%" fill="white"/>'
            '<g fill="none" stroke="black" stroke-width=".025" stroke-linecap="round"'
            ' stroke-linejoin="round">'
            f"{body}</g></svg>\n")
