#!/usr/bin/env python3
"""Writes the station's stroke fonts, FONT1.fnt and FONT2.fnt, from the drawings in glyphs.py."""
import argparse
import pathlib
import sys

sys.dont_write_bytecode = True  # the sources stand in the tree that users build from

import glyphs
import outline
import specimen
import strokes

kMaxSegments = 255


def parts(name):
    """The parts of a glyph in the order of stroking: pairs of the part's name and its strokes."""
    if name in glyphs.BASE:
        return [(name, strokes.parse(glyphs.BASE[name]))]
    result = []
    for entry in glyphs.COMPOSED.get(name, []):
        source, *placing = (entry,) if isinstance(entry, str) else entry
        result += [(part, strokes.place(drawn, *placing)) for part, drawn in parts(source)]
    return result


def character(code):
    """The Windows-1252 character of a code; codes without one give an empty text."""
    return bytes([code]).decode("cp1252", errors="ignore")


def plain(name):
    return [line for _, drawn in parts(name) for line in strokes.flatten(drawn)]


def outlined(name):
    return outline.contours(name, parts(name))


def number(hundredths):
    text = f"{hundredths / 100:.3f}"
    return "0.000" if text == "-0.000" else text


def segments(lines):
    """The segments of one character as texts, without those that vanish when rounded."""
    result = []
    for points in lines:
        texts = [f"{number(x)},{number(y)}" for x, y in points]
        result += [f"{a},{b}" for a, b in zip(texts, texts[1:]) if a != b]
    return result


def font_bytes(make):
    lines = []
    for code in range(1, 256):
        texts = segments(make(character(code)))
        if len(texts) > kMaxSegments:
            raise SystemExit(f"code {code}: {len(texts)} segments, the limit is {kMaxSegments}")
        lines.append(f"{code}:{';'.join(texts)}\r\n")
    return "".join(lines).encode("ascii")


FONTS = {"FONT1.fnt": plain, "FONT2.fnt": outlined}


def main():
    station = pathlib.Path(__file__).resolve().parents[2] / "station"
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--out", type=pathlib.Path, default=station, help="folder of the fonts")
    parser.add_argument("--check", action="store_true", help="compare with the files, write none")
    parser.add_argument("--specimen", type=pathlib.Path, metavar="FILE.svg",
                        help="draw a written font into FILE.svg instead of writing fonts")
    parser.add_argument("--font", choices=FONTS, default="FONT1.fnt", help="which one the specimen shows")
    parser.add_argument("--text", action="append", metavar="LINE",
                        help="show LINE, not the table of all characters; may be repeated")
    options = parser.parse_args()
    if options.specimen:
        path = options.out / options.font
        options.specimen.write_text(specimen.draw(path, options.text), encoding="utf-8")
        return 0
    stale = []
    for name, make in FONTS.items():
        data, path = font_bytes(make), options.out / name
        if not options.check:
            path.write_bytes(data)
        elif not path.exists() or path.read_bytes() != data:
            stale.append(name)
    for name in stale:
        print(f"{name} differs from its drawing")
    return 1 if stale else 0


if __name__ == "__main__":
    sys.exit(main())
