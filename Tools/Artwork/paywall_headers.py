"""The four pictures of the paywall's carousel. The wall of layouts and the library's mosaic are drawn here."""

from kit.canvas import Canvas, linear
from kit.geometry import Path, Transform
from kit.palette import TEAL
from kit.photos import photo
from kit.stickers import sticker
from kit.templates import page
from kit.type_outlines import text_path
from header_background import header_c
from header_business import header_d
from paywall_stage import CENTER, HEIGHT, WIDTH, bleed, deepen, scrim

# A: a wall of layouts

WALL = (
    ("quote", "collage", "night_swim"),
    ("recipe", "slow_story", "hiring"),
    ("podcast", "gig", "lake_story"),
    ("invitation", "menu", "breathe"),
    ("travel", "sale", "studio"),
    ("breathe", "night_swim", "hiring"),
    ("lake_story", "studio", "collage"),
)


def wall(c):
    """Columns of pages on the desk, seen at an angle."""
    plane = Transform.quad(660, 360, ((-44, 8), (560, -62), (716, 232), (-96, 330)))
    page_width, gap = 82, 12
    with c.mapped(plane) as desk:
        for column, names in enumerate(WALL):
            x = 6 + column * (page_width + gap)
            y = (-6, -52, -20, -66, -28, -58, -16)[column]
            for row, name in enumerate(names):
                height = (110, 138, 120)[(row + column) % 3]
                outline = Path.rounded(x, y, page_width, height, 5)
                desk.long_shadow(outline, 15, 58, "#5B4326", 0.30)
                page(desk, name, x, y, page_width, height, 5)
                y += height + gap


def header_a(dark):
    c = Canvas(WIDTH, HEIGHT)
    c.fill(bleed(), linear((0, 0), (WIDTH, HEIGHT), "#F8F0E3", "#E6D5BB"))
    c.document.drawn_height = 188
    wall(c)
    c.document.drawn_height = HEIGHT
    c.fill(bleed(), linear((0, 0), (WIDTH * 0.7, HEIGHT), (0, "#FFF6E6", 0.34), (0.5, "#FFF6E6", 0.0), (1, "#1A2A2C", 0.22)))
    deepen(c, dark)
    scrim(c, "#071B1E", 86)
    with c.placed(CENTER - 46, 20, 5) as hero:
        outline = Path.rounded(0, 0, 108, 144, 7)
        hero.long_shadow(outline, 62, 50, "#10211F", 0.42)
        hero.soft_shadow(outline, 5, 9, 12, "#0F1E1C", 0.30)
        page(hero, "market", 0, 0, 108, 144, 7)
    return c


# B: the library, four families in a mosaic

TILE_RADIUS = 12


def tile(c, x, y, width, height, paint):
    outline = Path.rounded(x, y, width, height, TILE_RADIUS)
    c.soft_shadow(outline, 3, 6, 9, "#03100F", 0.34, 3)
    c.fill(outline, paint)


def photo_tile(c, scene, x, y, width, height):
    c.soft_shadow(Path.rounded(x, y, width, height, TILE_RADIUS), 3, 6, 9, "#03100F", 0.34, 3)
    photo(c, scene, x, y, width, height, TILE_RADIUS)


def film_tile(c, x, y, width, height):
    """A film frame with its perforations and a play triangle."""
    tile(c, x, y, width, height, linear((x, y), (x + width, y + height), "#2B333B", "#14191D"))
    count, edge = 9, 11
    pitch = (width - 12) / count
    for i in range(count):
        for top in (y + 3.4, y + height - 3.4 - 5):
            c.fill(Path.rounded(x + 6 + i * pitch + (pitch - 6.4) / 2, top, 6.4, 5, 1.7), "#F6F1E6", 0.9)
    photo(c, "dusk", x + 5, y + edge + 1, width - 10, height - 2 * edge - 2, 4)
    cx, cy = x + width / 2, y + height / 2
    c.fill(Path.ellipse(cx, cy + 1.5, 15.5), "#1A1030", 0.28)
    c.fill(Path.ellipse(cx, cy, 14.5), "#FFFFFF")
    triangle = Path.smooth([(cx - 4.2, cy - 6.2), (cx + 6.6, cy), (cx - 4.2, cy + 6.2)], closed=True, tension=0.14)
    c.fill(triangle, TEAL)


def sticker_tile(c, x, y, width, height):
    tile(c, x, y, width, height, linear((x, y), (x + width, y + height), "#F2EDFF", "#CFC5F6"))
    with c.clipped(Path.rounded(x, y, width, height, TILE_RADIUS)) as sheet:
        for name, sx, sy, radius, turn in (
            ("daisy", 0.22, 0.30, 16, -8),
            ("bolt", 0.52, 0.25, 13, 12),
            ("heart", 0.82, 0.31, 13.5, 10),
            ("rainbow", 0.25, 0.80, 16, -6),
            ("cherries", 0.56, 0.73, 15.5, 4),
            ("lemon", 0.85, 0.78, 13, 0),
        ):
            sticker(sheet, name, x + width * sx, y + height * sy, radius, turn, 0.14)


def specimen_tile(c, x, y, width, height):
    """A large "Aa" between its guide lines, with other voices underneath."""
    tile(c, x, y, width, height, linear((x, y), (x + width, y + height), "#FFD67C", "#FBB443"))
    base, size = y + 76, 70
    cap_top = text_path("A", "arapey-black", size, 0, base).bounds()[1]
    for guide in (cap_top, base):
        c.fill(Path.rect(x + 9, guide, width - 18, 0.7), "#7A4A0A", 0.4)
    c.text("Aa", "arapey-black", size, x + width / 2, base, "#1B1512", "center")
    cell, top = (width - 26) / 3, y + height - 53
    for i, (text, face, size) in enumerate((("Gg", "lobster", 19), ("&", "garamond-italic", 24), ("R", "slab-bold", 23))):
        left = x + 8 + i * (cell + 5)
        c.fill(Path.rounded(left, top, cell, 44, 7), "#FFF4DA", 0.75)
        c.text(text, face, size, left + cell / 2, top + 29.5, "#3A2410", "center")


def shape_tile(c, x, y, width, height):
    tile(c, x, y, width, height, linear((x, y), (x + width, y + height), "#FF9A80", "#F2604C"))
    with c.clipped(Path.rounded(x, y, width, height, TILE_RADIUS)) as inside:
        inside.fill(
            Path.scalloped(x + width * 0.62, y + height * 0.5, 25, 8, 0.13),
            linear((x + 40, y), (x + 110, y + height), "#FFE7DC", "#FFC9B6"),
        )


def header_b(dark):
    c = Canvas(WIDTH, HEIGHT)
    c.fill(bleed(), linear((0, 0), (WIDTH * 0.8, HEIGHT), "#14605D", "#0A3A3D", "#07242A"))
    top, middle, foot = 14, 88, 168
    photo_tile(c, "foliage", -16, top, 124, middle - 8 - top)
    shape_tile(c, -16, middle, 124, foot - middle)
    photo_tile(c, "lake", 116, top, 126, foot - top)
    specimen_tile(c, 250, top, 110, foot - top)
    film_tile(c, 368, top, 116, middle - 8 - top)
    sticker_tile(c, 368, middle, 116, foot - middle)
    photo_tile(c, "coffee", 492, top, 124, 84)
    photo_tile(c, "poppy", 492, top + 92, 124, foot - top - 92)
    for scene, x, width in (
        ("surf", -16, 96),
        ("arches", 88, 120),
        ("city", 216, 110),
        ("still_life", 334, 96),
        ("road", 438, 178),
    ):
        photo_tile(c, scene, x, foot + 8, width, 90)
    deepen(c, dark)
    scrim(c, "#06191C", 118)
    return c


PICTURES = {"paywallHeaderA": header_a, "paywallHeaderB": header_b, "paywallHeaderC": header_c, "paywallHeaderD": header_d}


def make(folder):
    for name, picture in PICTURES.items():
        picture(False).document.write(f"{folder}/{name}.svg")
        picture(True).document.write(f"{folder}/{name}~dark.svg")
