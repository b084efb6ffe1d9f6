#!/usr/bin/env python3
"""Makes the small fonts of the tests: usage: make_fonts.py FOLDER

Weighty.ttf   a variable font: "I" is a stem, 100 units wide at weight 100 and 900 at weight 900; "Ì" the same, without a mark
Layers.ttf    U+1F600 and U+2194 are a red square under a small blue one, U+2605 is a plain square, U+25D4 a corner under an arc
Pixels.ttf    U+1F600 is a green picture of 32 × 16 pixels at 32 pixels per em
Strikes.ttf   U+1F600 is a picture at 32, 160 and 300 pixels per em, as wide as an em and half as high; at 160 pixels U+1F601 and
              U+1F602 are 544 pixels wide and high, U+1F603 and U+1F604 one more
Small.ttf     U+1F600 is a picture at 32 and at 100 pixels per em
All have 1000 units per em."""
import pathlib
import struct
import sys
import zlib

from fontTools.fontBuilder import FontBuilder
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.ttLib import newTable
from fontTools.ttLib.tables.sbixGlyph import Glyph as PictureGlyph
from fontTools.ttLib.tables.sbixStrike import Strike
from fontTools.ttLib.tables.TupleVariation import TupleVariation

UNITS_PER_EM = 1000


def square(left, bottom, right, top):
    pen = TTGlyphPen(None)
    pen.moveTo((left, bottom))
    for corner in ((left, top), (right, top), (right, bottom)):
        pen.lineTo(corner)
    pen.closePath()
    return pen.glyph()


def quarter():
    """Two straight sides and an arc of a parabola: five sixths of a square of 600."""
    pen = TTGlyphPen(None)
    pen.moveTo((0, 0))
    pen.lineTo((0, 600))
    pen.qCurveTo((600, 600), (600, 0))
    pen.closePath()
    return pen.glyph()


def builder(family, glyphs, characters, advances):
    made = FontBuilder(UNITS_PER_EM, isTTF=True)
    made.setupGlyphOrder([".notdef", *glyphs])
    made.setupCharacterMap(characters)
    made.setupGlyf({".notdef": square(50, 0, 450, 700), **glyphs})
    bounds = made.font["glyf"]
    made.setupHorizontalMetrics({name: (advances.get(name, 500), getattr(bounds[name], "xMin", 0)) for name in [".notdef", *glyphs]})
    made.setupHorizontalHeader(ascent=800, descent=-200)
    made.setupOS2(sTypoAscender=800, sTypoDescender=-200, usWinAscent=800, usWinDescent=200)
    made.setupNameTable({"familyName": family, "styleName": "Regular"})
    made.setupPost()
    # No time in the files.
    made.font.recalcTimestamp = False
    made.font["head"].created = made.font["head"].modified = 0
    return made


def variable():
    made = builder("Weighty", {"I": square(0, 0, 100, 700)}, {ord("I"): "I", 0x00CC: "I"}, {"I": 200})
    made.setupFvar([("wght", 100, 100, 900, "Weight")], [])
    # The square's four corners, then the places of the advance and the other three.
    wider = [(0, 0), (0, 0), (800, 0), (800, 0), (0, 0), (800, 0), (0, 0), (0, 0)]
    made.setupGvar({"I": [TupleVariation({"wght": (0.0, 1.0, 1.0)}, wider)], ".notdef": []})
    return made


def layers():
    glyphs = {"face": square(0, 0, 1000, 1000), "under": square(0, 0, 1000, 1000), "over": square(250, 250, 750, 750),
              "star": square(0, 0, 500, 500), "quarter": quarter()}
    made = builder("Layers", glyphs, {0x1F600: "face", 0x2194: "face", 0x2605: "star", 0x25D4: "quarter"}, {"face": 1000})
    made.setupCOLR({"face": [("under", 0), ("over", 1)]})
    made.setupCPAL([[(1, 0, 0, 1), (0, 0, 1, 1)]])
    return made


def png(width, height, rgba):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    rows = (b"\0" + bytes(rgba) * width) * height
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b""))


def add_strikes(made, sizes):
    """Green pictures: their sizes by pixels per em and by glyph."""
    table = newTable("sbix")
    table.version, table.flags, table.numStrikes, table.strikes = 1, 1, len(sizes), {}
    for ppem, glyphs in sizes.items():
        strike = table.strikes[ppem] = Strike(ppem=ppem, resolution=72)
        strike.glyphs = {name: PictureGlyph(glyphName=name) for name in made.font.getGlyphOrder()}
        for name, (width, height) in glyphs.items():
            strike.glyphs[name] = PictureGlyph(glyphName=name, graphicType="png ", imageData=png(width, height, (0, 255, 0, 255)))
    made.font["sbix"] = table


def pixels():
    made = builder("Pixels", {"face": square(0, 0, 1000, 500)}, {0x1F600: "face"}, {"face": 1000})
    add_strikes(made, {32: {"face": (32, 16)}})
    return made


def strikes():
    sizes = {"face": None, "wide": (544, 1), "high": (1, 544), "wider": (545, 1), "higher": (1, 545)}
    made = builder("Strikes", {name: square(0, 0, 1000, 500) for name in sizes}, {0x1F600 + n: name for n, name in enumerate(sizes)},
                   {name: 1000 for name in sizes})
    add_strikes(made, {ppem: {name: size or (ppem, ppem // 2) for name, size in sizes.items() if size is None or ppem == 160}
                       for ppem in (32, 160, 300)})
    return made


def small():
    made = builder("Small", {"face": square(0, 0, 1000, 500)}, {0x1F600: "face"}, {"face": 1000})
    add_strikes(made, {ppem: {"face": (ppem, ppem // 2)} for ppem in (32, 100)})
    return made


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    for name, make in (("Weighty", variable), ("Layers", layers), ("Pixels", pixels), ("Strikes", strikes), ("Small", small)):
        make().save(folder / f"{name}.ttf")


if __name__ == "__main__":
    main()
