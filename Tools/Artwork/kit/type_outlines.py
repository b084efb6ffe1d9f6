"""Text as outlines. Faces are found among the packaged, freely licensed fonts named in the README."""

import functools
import os

from fontTools.pens.basePen import BasePen
from fontTools.ttLib import TTFont
from shapely.geometry import Polygon

from .geometry import Path

ROOTS = ("/usr/share/fonts/opentype", "/usr/share/fonts/truetype")
FACES = {
    "sora": "sora/Sora-Regular.otf",
    "sora-semibold": "sora/Sora-SemiBold.otf",
    "sora-bold": "sora/Sora-Bold.otf",
    "sora-extrabold": "sora/Sora-ExtraBold.otf",
    "sora-light": "sora/Sora-Light.otf",
    "inter": "inter/Inter-Regular.otf",
    "inter-medium": "inter/Inter-Medium.otf",
    "inter-semibold": "inter/Inter-SemiBold.otf",
    "inter-bold": "inter/Inter-Bold.otf",
    "inter-black": "inter/Inter-Black.otf",
    "lobster": "lobster/lobster.otf",
    "bebas": "bebas-neue/BebasNeue-Bold.otf",
    "bebas-book": "bebas-neue/BebasNeue-Book.otf",
    "garamond": "ebgaramond/EBGaramond12-Regular.otf",
    "garamond-bold": "ebgaramond/EBGaramond12-Bold.otf",
    "garamond-italic": "ebgaramond/EBGaramond12-Italic.otf",
    "didot": "didot/GFSDidot.otf",
    "didot-bold": "didot/GFSDidotBold.otf",
    "didot-italic": "didot/GFSDidotItalic.otf",
    "kaushan": "kaushanscript/KaushanScript-Regular.otf",
    "spartan-bold": "league-spartan/LeagueSpartan-Bold.otf",
    "spartan-black": "league-spartan/LeagueSpartan-Black.otf",
    "quicksand": "quicksand/Quicksand-Medium.ttf",
    "quicksand-bold": "quicksand/Quicksand-Bold.ttf",
    "slab": "roboto/slab/RobotoSlab-Regular.otf",
    "slab-bold": "roboto/slab/RobotoSlab-Bold.otf",
    "arapey": "arapey/Arapey-Regular-Display.otf",
    "arapey-black": "arapey/Arapey-Black-Display.otf",
    "kaffeesatz": "yanone-kaffeesatz/YanoneKaffeesatz-Bold.otf",
    "dancing": "dancingscript/DancingScript-Bold.otf",
    "cherry": "cherrybomb/CherryBomb-Regular.otf",
    "oldstandard": "fonts-oldstandard/OldStandard-Regular.ttf",
    "oldstandard-italic": "fonts-oldstandard/OldStandard-Italic.ttf",
    "courier": "courier-prime/Courier Prime Bold.otf",
}


class OutlinePen(BasePen):
    """Collects a glyph's outline, flipped to y-down and scaled to one em."""

    def __init__(self, glyph_set, units_per_em):
        super().__init__(glyph_set)
        self.path = Path()
        self.scale = 1 / units_per_em

    def point(self, p):
        return (p[0] * self.scale, -p[1] * self.scale)

    def _moveTo(self, p):
        self.path.move(*self.point(p))

    def _lineTo(self, p):
        self.path.line(*self.point(p))

    def _curveToOne(self, p1, p2, p3):
        self.path.cubic(*self.point(p1), *self.point(p2), *self.point(p3))

    def _closePath(self):
        self.path.close()

    def _endPath(self):
        self.path.close()


class Face:
    """One font file: glyph outlines, advances and pair kerning, in ems."""

    def __init__(self, file):
        self.font = TTFont(file)
        self.units_per_em = self.font["head"].unitsPerEm
        self.glyph_set = self.font.getGlyphSet()
        self.character_map = self.font.getBestCmap()
        self.kerning_tables = list(self.read_kerning_tables())
        self.outlines = {}

    def read_kerning_tables(self):
        if "GPOS" not in self.font:
            return
        table = self.font["GPOS"].table
        indices = sorted(
            {
                index
                for record in table.FeatureList.FeatureRecord
                if record.FeatureTag == "kern"
                for index in record.Feature.LookupListIndex
            }
        )
        for index in indices:
            for subtable in table.LookupList.Lookup[index].SubTable:
                subtable = getattr(subtable, "ExtSubTable", subtable)
                if subtable.LookupType == 2:
                    yield subtable

    @functools.lru_cache(maxsize=None)
    def kerning(self, left, right):
        for subtable in self.kerning_tables:
            if left not in subtable.Coverage.glyphs:
                continue
            if subtable.Format == 1:
                pairs = subtable.PairSet[subtable.Coverage.glyphs.index(left)].PairValueRecord
                value = next((pair.Value1 for pair in pairs if pair.SecondGlyph == right), None)
                if value is None:
                    continue
            else:
                first = subtable.ClassDef1.classDefs.get(left, 0)
                second = subtable.ClassDef2.classDefs.get(right, 0)
                value = subtable.Class1Record[first].Class2Record[second].Value1
            return (getattr(value, "XAdvance", 0) or 0) / self.units_per_em
        return 0.0

    def outline(self, name):
        if name not in self.outlines:
            pen = OutlinePen(self.glyph_set, self.units_per_em)
            self.glyph_set[name].draw(pen)
            self.outlines[name] = without_overlaps(pen.path)
        return self.outlines[name]

    def advance(self, name):
        return self.glyph_set[name].width / self.units_per_em


def without_overlaps(path):
    """Some faces build a letter from overlapping strokes; the canvas fills by the even-odd rule, so those are joined first."""
    tolerance = 0.0006
    rings = [ring for ring in path.flattened(tolerance) if len(ring) >= 3]
    if len(rings) < 2:
        return path
    areas = [sum(x0 * y1 - x1 * y0 for (x0, y0), (x1, y1) in zip(ring, ring[1:] + ring[:1])) for ring in rings]
    solid_sign = max(areas, key=abs)
    solid, holes, even_odd = Polygon(), Polygon(), Polygon()
    for ring, area in zip(rings, areas):
        shape = Polygon(ring).buffer(0)
        even_odd = even_odd.symmetric_difference(shape)
        if area * solid_sign > 0:
            solid = solid.union(shape)
        else:
            holes = holes.union(shape)
    filled = solid.difference(holes)
    if abs(filled.area - even_odd.area) < 0.001 * filled.area:
        return path
    joined = Path()
    for part in filled.geoms if hasattr(filled, "geoms") else [filled]:
        for ring in [part.exterior, *part.interiors]:
            joined += Path.polygon(list(ring.simplify(0.0004).coords)[:-1])
    return joined


@functools.lru_cache(maxsize=None)
def face(name):
    for root in ROOTS:
        file = os.path.join(root, FACES[name])
        if os.path.exists(file):
            return Face(file)
    raise SystemExit(f"{FACES[name]}: font not installed (see the README for the packages)")


def layout(text, face_name, size, tracking):
    used = face(face_name)
    names = [used.character_map[ord(character)] for character in text]
    x, placed = 0.0, []
    for index, name in enumerate(names):
        if index:
            x += used.kerning(names[index - 1], name) * size + tracking * size
        placed.append((x, name))
        x += used.advance(name) * size
    return used, placed, x


def text_width(text, face_name, size, tracking=0.0):
    """The advance width; tracking is in ems."""
    return layout(text, face_name, size, tracking)[2]


def text_path(text, face_name, size, x=0.0, y=0.0, align="left", tracking=0.0):
    """Outlines of one line of text with its baseline at y; x is the left edge, middle or right edge."""
    used, placed, width = layout(text, face_name, size, tracking)
    x -= {"left": 0, "center": width / 2, "right": width}[align]
    path = Path()
    for offset, name in placed:
        for command in used.outline(name).commands:
            path.commands.append((command[0], *[(p[0] * size + x + offset, p[1] * size + y) for p in command[1:]]))
    return path


def fitted_size(text, face_name, width, tracking=0.0):
    """The size at which a line of text is exactly this wide."""
    return width / text_width(text, face_name, 1.0, tracking)
