"""The four pictures of the paywall's carousel. The wall of layouts and the library's mosaic are drawn here."""

from kit.canvas import Canvas, linear
from kit.geometry import Path, Transform
from kit.palette import TEAL
from kit.photos import SCENES, photo
from kit.stickers import sticker
from kit.templates import page
from kit.type_outlines import text_path
from header_background import header_c
from header_business import header_d
from paywall_stage import CENTER, FOOT_TOP, HEIGHT, WIDTH, bleed, deepen, scrim

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
    c.document.drawn_height = FOOT_TOP
    wall(c)
    c.document.drawn_height = HEIGHT
    c.fill(bleed(), linear((0, 0), (WIDTH * 0.7, HEIGHT), (0, "#FFF6E6", 0.34), (0.5, "#FFF6E6", 0.0), (1, "#1A2A2C", 0.22)))
    deepen(c, dark)
    scrim(c, dark, 92)
    with c.placed(CENTER - 47, 25, 5) as hero:
        outline = Path.rounded(0, 0, 104, 130, 7)
        # It floats well above the desk: its shadow is wide, soft and light.
        hero.soft_shadow(outline, 7, 13, 17, "#0F1E1C", 0.34, 14)
        page(hero, "market", 0, 0, 104, 130, 7)
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
    count, edge = 8, 10
    pitch = (width - 12) / count
    for i in range(count):
        for top in (y + 3.2, y + height - 3.2 - 4.4):
            c.fill(Path.rounded(x + 6 + i * pitch + (pitch - 6.4) / 2, top, 6.4, 4.4, 1.6), "#F6F1E6", 0.9)
    photo(c, "dusk", x + 5, y + edge + 1, width - 10, height - 2 * edge - 2, 4)
    cx, cy = x + width / 2, y + height / 2
    c.fill(Path.ellipse(cx, cy + 1.5, 13.5), "#1A1030", 0.28)
    c.fill(Path.ellipse(cx, cy, 12.5), "#FFFFFF")
    triangle = Path.smooth([(cx - 3.6, cy - 5.4), (cx + 5.7, cy), (cx - 3.6, cy + 5.4)], closed=True, tension=0.14)
    c.fill(triangle, TEAL)


def sticker_tile(c, x, y, width, height):
    tile(c, x, y, width, height, linear((x, y), (x + width, y + height), "#F2EDFF", "#CFC5F6"))
    for name, sx, sy, radius, turn in (
        ("daisy", 0.21, 0.27, 13, -8),
        ("bolt", 0.53, 0.24, 11, 12),
        ("heart", 0.81, 0.30, 11.5, 10),
        ("rainbow", 0.22, 0.72, 13, -6),
        ("cherries", 0.54, 0.68, 13, 4),
        ("lemon", 0.82, 0.74, 11.5, 0),
    ):
        sticker(c, name, x + width * sx, y + height * sy, radius, turn, 0.14)


def specimen_tile(c, x, y, width, height):
    """A large "Aa" between its guide lines, with other voices underneath."""
    tile(c, x, y, width, height, linear((x, y), (x + width, y + height), "#FFD67C", "#FBB443"))
    base, size = y + 63, 58
    cap_top = text_path("A", "arapey-black", size, 0, base).bounds()[1]
    for guide in (cap_top, base):
        c.fill(Path.rect(x + 8, guide, width - 16, 0.7), "#7A4A0A", 0.4)
    c.text("Aa", "arapey-black", size, x + width / 2, base, "#1B1512", "center")
    cell, top = (width - 24) / 3, y + height - 44
    for i, (text, face, size) in enumerate((("Gg", "lobster", 16), ("&", "garamond-italic", 20), ("R", "slab-bold", 19.5))):
        left = x + 8 + i * (cell + 4)
        c.fill(Path.rounded(left, top, cell, 34, 6), "#FFF4DA", 0.75)
        c.text(text, face, size, left + cell / 2, top + 23.4, "#3A2410", "center")


def shape_tile(c, x, y, width, height):
    tile(c, x, y, width, height, linear((x, y), (x + width, y + height), "#FF9A80", "#F2604C"))
    c.fill(
        Path.scalloped(x + width * 0.5, y + height * 0.5, 21, 8, 0.13),
        linear((x + 30, y), (x + 80, y + height), "#FFE7DC", "#FFC9B6"),
    )


# Where the mosaic stands.
FLOOR = 154


def reflection(c, x, width, color):
    """What the polished floor gives back of a tile: its colour, softly, and only right under it."""
    outline = Path.rounded(x, FLOOR + 2.5, width, 40, TILE_RADIUS)
    c.fill(outline, linear((0, FLOOR + 2.5), (0, FOOT_TOP + 4), (0, color, 0.30), (0.45, color, 0.10), (1, color, 0)))


def beach_tile(c, x, y, width, height):
    """Nothing but sand and water, as the close button lies on it."""
    outline = Path.rounded(x, y, width, height, TILE_RADIUS)
    c.soft_shadow(outline, 3, 6, 9, "#03100F", 0.34, 3)
    with c.clipped(outline) as inside:
        with inside.placed(x - 90, y) as shore:
            SCENES["surf"](shore, width + 90, height)


def header_b(dark):
    c = Canvas(WIDTH, HEIGHT)
    c.fill(bleed(), linear((0, 0), (WIDTH * 0.8, HEIGHT), "#14605D", "#0A3A3D", "#07242A"))
    top, middle = 24, 88
    photo_tile(c, "city", -40, top, 66, FLOOR - top)
    photo_tile(c, "foliage", 34, top, 106, middle - 8 - top)
    shape_tile(c, 34, middle, 106, FLOOR - middle)
    photo_tile(c, "lake", 148, top, 106, middle - 8 - top)
    film_tile(c, 148, middle, 106, FLOOR - middle)
    specimen_tile(c, 262, top, 90, FLOOR - top)
    beach_tile(c, 360, -18, 264, 76)
    sticker_tile(c, 360, 66, 92, FLOOR - 66)
    photo_tile(c, "coffee", 460, 66, 100, FLOOR - 66)
    photo_tile(c, "poppy", 568, 66, 66, FLOOR - 66)
    deepen(c, dark)
    scrim(c, dark, 134)
    for x, width, color in (
        (-40, 66, "#6A5FA8"),
        (34, 106, "#F2604C"),
        (148, 106, "#3A3554"),
        (262, 90, "#FBB443"),
        (360, 92, "#CFC5F6"),
        (460, 100, "#D9C3A3"),
        (568, 66, "#8FB9E8"),
    ):
        reflection(c, x, width, color)
    return c


PICTURES = {"paywallHeaderA": header_a, "paywallHeaderB": header_b, "paywallHeaderC": header_c, "paywallHeaderD": header_d}


def make(folder):
    for name, picture in PICTURES.items():
        picture(False).document.write(f"{folder}/{name}.svg")
        picture(True).document.write(f"{folder}/{name}~dark.svg")
