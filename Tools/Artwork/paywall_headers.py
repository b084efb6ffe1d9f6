"""The four pictures of the paywall's carousel.

They are shown filled into a band 254 high and 320 to 744 wide, with a white title at the bottom left and dots at the bottom right.
So each is 600 x 254: its middle 375 is a complete picture, its wings only go on with it, and its lower 90 points sink into ink."""

import math

from shapely.affinity import translate
from shapely.geometry import box

from kit.canvas import Canvas, from_polygon, linear, radial
from kit.geometry import Path, Transform
from kit.palette import (CORAL, CORAL_DEEP, INK, NIGHT, PAPER, SAND, SKY, SUN, SUN_DEEP, TEAL, TEAL_DEEP, TEAL_LIGHT, TEAL_NIGHT, TEAL_PALE,
                         VIOLET, VIOLET_DEEP, WARM_PAPER, darker, lighter, mix)
from kit.photos import SCENES, blade, photo
from kit.stickers import silhouette, sticker
from kit.templates import PAGES, page
from kit.type_outlines import text_path, text_width

WIDTH, HEIGHT = 600, 254
CENTER = WIDTH / 2
BLEED = 2


def bleed():
    """The whole picture and a little more, so that no scale leaves a half-covered row of pixels at its edge."""
    return Path.rect(-BLEED, -BLEED, WIDTH + 2 * BLEED, HEIGHT + 2 * BLEED)


def scrim(c, ink, top=104, strength=0.98):
    """The calm dark foot under the title: an eased fade, solid where the text stands."""
    eased = ((0, 0), (0.12, 0.03), (0.26, 0.14), (0.4, 0.36), (0.52, 0.6), (0.64, 0.79), (0.76, 0.91), (0.88, 0.97), (1, 1))
    foot = 198
    c.fill(Path.rect(-BLEED, top, WIDTH + 2 * BLEED, HEIGHT + BLEED - top), linear((0, top), (0, foot), *[(offset, ink, strength * share) for offset, share in eased]))


def deepen(c, dark):
    """The dark variant: the same picture in evening light."""
    if dark:
        c.fill(bleed(), linear((0, 0), (0, HEIGHT), (0, "#08161A", 0.20), (1, "#08161A", 0.08)))


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
        for name, sx, sy, radius, turn in (("daisy", 0.22, 0.30, 16, -8), ("bolt", 0.52, 0.25, 13, 12), ("heart", 0.82, 0.31, 13.5, 10),
                                           ("rainbow", 0.25, 0.80, 16, -6), ("cherries", 0.56, 0.73, 15.5, 4), ("lemon", 0.85, 0.78, 13, 0)):
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
        inside.fill(Path.scalloped(x + width * 0.62, y + height * 0.5, 25, 8, 0.13), linear((x + 40, y), (x + 110, y + height), "#FFE7DC", "#FFC9B6"))


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
    for scene, x, width in (("surf", -16, 96), ("arches", 88, 120), ("city", 216, 110), ("still_life", 334, 96), ("road", 438, 178)):
        photo_tile(c, scene, x, foot + 8, width, 90)
    deepen(c, dark)
    scrim(c, "#06191C", 118)
    return c


# C: one plant, half in its room, half cut out

def curved_leaf(c, base, bend, tip, width, tone):
    """A leaf along a curved rib. The half that faces the light, up and to the left, is the brighter one."""
    rib, left, right = [], [], []
    steps = 9
    for i in range(steps + 1):
        t = i / steps
        x = (1 - t) ** 2 * base[0] + 2 * t * (1 - t) * bend[0] + t * t * tip[0]
        y = (1 - t) ** 2 * base[1] + 2 * t * (1 - t) * bend[1] + t * t * tip[1]
        dx = 2 * (1 - t) * (bend[0] - base[0]) + 2 * t * (tip[0] - bend[0])
        dy = 2 * (1 - t) * (bend[1] - base[1]) + 2 * t * (tip[1] - bend[1])
        length = math.hypot(dx, dy)
        reach = width / 2 * math.sin(math.pi * t ** 0.86) ** 0.82 if 0 < t < 1 else 0
        rib.append((x, y))
        left.append((x + dy / length * reach, y - dx / length * reach))
        right.append((x - dy / length * reach, y + dx / length * reach))
    halves = [Path(Path.smooth(side).commands + [("L", rib[-1])] + Path.smooth(rib[::-1]).commands[1:]).close() for side in (left, right)]
    left_is_lit = sum(x + y for x, y in left) < sum(x + y for x, y in right)
    for half, lit in zip(halves, (left_is_lit, not left_is_lit)):
        first, last = (tone, lighter(tone, 0.30)) if lit else (darker(tone, 0.34), darker(tone, 0.06))
        c.fill(half, linear(base, tip, first, last))
    c.stroke(Path.smooth(rib[:-1]), lighter(tone, 0.48), 0.9, 0.75)


LEAVES = (
    # stem's foot, where the leaf begins, its bend and its tip, all from the middle of the pot's mouth; width and tone. The back comes first.
    ((-1, 0), (-4, -36), (-16, -78), (-5, -103), 29, "#126E64"),
    ((2, 0), (12, -30), (44, -66), (44, -95), 30, "#0F655D"),
    ((-3, 0), (-15, -26), (-52, -56), (-58, -84), 31, "#15766A"),
    ((4, 0), (22, -18), (62, -34), (84, -58), 29, "#187D70"),
    ((-4, 0), (-24, -14), (-66, -28), (-92, -48), 28, "#1C8877"),
    ((1, 0), (5, -26), (24, -58), (16, -82), 27, "#209180"),
    ((-1, 0), (-7, -16), (-32, -44), (-29, -70), 25, "#279B87"),
    ((5, 0), (20, -6), (54, -16), (73, -12), 22, "#2BA18C"),
    ((-5, 0), (-20, -4), (-52, -14), (-74, -6), 22, "#31A891"),
    ((2, 0), (9, -8), (34, -32), (45, -44), 21, "#3BB39A"),
    ((-1, 0), (-5, -6), (-18, -28), (-12, -46), 19, "#4ABFA5"),
)


def plant(c, x, mouth):
    """Leaves in a coral pot on a wooden stand; the mouth of the pot is centred at (x, mouth)."""
    wood = linear((x - 26, 0), (x + 26, 0), "#C98F58", "#8E5A34")
    for side in (-1, 1):
        c.fill(Path.polygon([(x + side * 17, mouth + 30), (x + side * 21.5, mouth + 30), (x + side * 26, mouth + 64), (x + side * 22.6, mouth + 64)]), wood)
    c.fill(Path.rounded(x - 22, mouth + 47, 44, 4.4, 2.2), wood)
    for foot, base, bend, tip, width, tone in LEAVES:
        foot, base, bend, tip = ((x + px * 0.95, mouth + py * 0.95) for px, py in (foot, base, bend, tip))
        c.stroke(Path.polyline([foot, base]), darker(tone, 0.12), 2.2)
        curved_leaf(c, base, bend, tip, width, tone)
    pot = Path().move(x - 25, mouth).line(x + 25, mouth).cubic(x + 24, mouth + 22, x + 21, mouth + 40, x + 17, mouth + 47)
    pot.cubic(x + 15, mouth + 50.5, x - 15, mouth + 50.5, x - 17, mouth + 47).cubic(x - 21, mouth + 40, x - 24, mouth + 22, x - 25, mouth).close()
    c.fill(pot, linear((x - 25, 0), (x + 25, 0), (0, "#FF9A80"), (0.35, "#FB6F58"), (1, "#C9402F")))
    c.fill(Path.rounded(x - 28, mouth - 4, 56, 12, 4.5), linear((x - 28, 0), (x + 28, 0), (0, "#FFAF97"), (0.4, "#FF7F68"), (1, "#D54C3B")))


def room(c):
    c.fill(Path.rect(-BLEED, -BLEED, CENTER + BLEED, HEIGHT + 2 * BLEED), linear((0, 0), (CENTER, HEIGHT * 0.8), "#FBDDB8", "#F0B288"))
    for left in (52, 122):
        c.fill(Path.polygon([(left, -4), (left + 60, -4), (left + 122, 140), (left + 62, 140)]),
               linear((left, 0), (left + 100, 140), (0, "#FFF7E8", 0.7), (1, "#FFF7E8", 0.15)))
    frame = Path.rounded(128, 28, 56, 70, 3)
    c.long_shadow(frame, 18, 50, "#7A3F1E", 0.30)
    c.fill(frame, linear((128, 28), (184, 98), "#9C6238", "#6E4023"))
    c.fill(Path.rect(131.5, 31.5, 49, 63), "#FFF9EF")
    photo(c, "dusk", 138, 38.5, 36, 49, 1)
    shelf = Path.rounded(4, 110, 98, 5, 2)
    c.long_shadow(shelf, 12, 60, "#7A3F1E", 0.24)
    c.fill(shelf, linear((4, 110), (102, 115), "#A86C3C", "#7E4B29"))
    for x, width, height, tone, turn in ((14, 9, 42, TEAL, 0), (24, 11, 36, VIOLET, 0), (36, 8, 46, SUN_DEEP, 0), (45, 12, 38, "#E8694F", 0), (64, 9, 40, "#3C8FC9", -9)):
        with c.placed(x, 110, turn) as book:
            book.fill(Path.rounded(0, -height, width, height, 1.6), linear((0, 0), (width, 0), lighter(tone, 0.14), darker(tone, 0.12)))
            book.fill(Path.rect(0, -height + 6, width, 1.6), "#FFF4DC", 0.7)
    c.fill(Path.rect(0, 164, CENTER, 90), linear((0, 164), (0, HEIGHT), "#A9633A", "#6B3A22"))


def checkerboard(c, left):
    c.fill(Path.rect(left, -BLEED, WIDTH + BLEED - left, HEIGHT + 2 * BLEED), "#FFFFFF")
    cell, squares = 12, Path()
    for row in range(int(HEIGHT / cell) + 1):
        for column in range(int((WIDTH - left) / cell) + 1):
            if (row + column) % 2:
                squares += Path.rect(left + column * cell, row * cell, cell, min(cell, HEIGHT - row * cell))
    c.fill(squares, "#DCE3E5")


def ripple(c, x, y):
    """A tap: rings running out from a fingertip."""
    for radius, width, opacity in ((38, 1.2, 0.35), (27, 1.8, 0.6), (17, 2.4, 0.95)):
        c.stroke(Path.ellipse(x, y, radius), "#FFFFFF", width, opacity)
    c.fill(Path.ellipse(x + 1, y + 2.5, 10.6), "#06302F", 0.3)
    c.fill(Path.ellipse(x, y, 10), "#FFFFFF")
    c.fill(Path.ellipse(x, y, 6.2), linear((x - 6, y - 6), (x + 6, y + 6), "#14A39B", TEAL))


def header_c(dark):
    c = Canvas(WIDTH, HEIGHT)
    room(c)
    checkerboard(c, CENTER)
    deepen(c, dark)
    scrim(c, "#071A1C", 104)
    mouth = 114
    area = silhouette(lambda pen: plant(pen, CENTER, mouth))
    half = box(CENTER, -10, WIDTH, HEIGHT)
    with c.clipped(Path.rect(-50, -10, CENTER + 50, HEIGHT + 10)) as left:
        left.fill(from_polygon(translate(area, 9, 10)), linear((CENTER - 90, 20), (CENTER, 150), (0, "#6B2F14", 0.30), (1, "#6B2F14", 0.14)))
    c.fill(from_polygon(area.buffer(4.2, 8).intersection(half)), TEAL_LIGHT)
    c.fill(from_polygon(area.buffer(2.6, 8).intersection(half)), "#FFFFFF")
    plant(c, CENTER, mouth)
    c.fill(Path.rect(CENTER - 1, 0, 2, HEIGHT), linear((0, 0), (0, HEIGHT), (0, "#FFFFFF", 1), (0.7, "#FFFFFF", 0.95), (1, "#FFFFFF", 0)))
    ripple(c, CENTER, 78)
    return c


# D: a link page on a phone, its domain behind it, its visits rising

def browser(c, x, y, width, height):
    """A shop's page under an address bar with its own name in it."""
    outline = Path.rounded(x, y, width, height, 11)
    c.long_shadow(outline, 34, 52, "#0B2540", 0.30)
    c.soft_shadow(outline, 2, 5, 9, "#0B2540", 0.15, 7)
    c.fill(outline, "#FFFFFF")
    with c.clipped(outline) as inside:
        inside.fill(Path.rect(x, y, width, 28), linear((x, y), (x, y + 28), "#F3F5F5", "#E6EAEB"))
        hero = y + 28
        inside.fill(Path.rect(x, hero, width, 62), linear((x, hero), (x + width, hero + 62), "#FFE7C9", "#FFC98F"))
        photo(inside, "still_life", x + width - 112, hero, 112, 62)
        inside.text("Fern & Oat", "arapey-black", 16.5, x + 94, hero + 29, "#3B2618")
        lines_at(inside, x + 94.5, hero + 36.5, (62, 44), "#3B2618")
        for i, scene in enumerate(("coffee", "poppy", "foliage", "arches")):
            photo(inside, scene, x + 94 + i * 54, hero + 70, 47, 44, 5)
    field = Path.rounded(x + 92, y + 5.5, 150, 17, 8.5)
    c.fill(field, "#FFFFFF")
    lock_x, lock_y = x + 103, y + 14.4
    c.stroke(Path.arc(lock_x, lock_y - 1.4, 2.1, 180, 360), TEAL, 1.2)
    c.fill(Path.rounded(lock_x - 3.2, lock_y - 1.4, 6.4, 5, 1.4), TEAL)
    c.text("fernandoat", "inter-semibold", 9.6, x + 110.5, y + 17.6, INK)
    c.text(".shop", "inter-semibold", 9.6, x + 110.5 + text_width("fernandoat", "inter-semibold", 9.6) + 0.2, y + 17.6, TEAL)


def lines_at(c, x, y, widths, paint, opacity=0.45, pitch=6, thickness=2.4):
    for i, width in enumerate(widths):
        c.fill(Path.rounded(x, y + i * pitch, width, thickness, thickness / 2), paint, opacity)


def phone_shadow(c, outline):
    c.long_shadow(outline, 24, 40, "#0B2540", 0.42)
    c.soft_shadow(outline, 2, 5, 9, "#0B2540", 0.16, 8)


def phone(c, x, y, width, height):
    c.fill(Path.rounded(x, y, width, height, 19), linear((x, y), (x + width, y + height), "#2B343A", "#0F1316"))
    inset = 4.2
    screen = Path.rounded(x + inset, y + inset, width - 2 * inset, height - 2 * inset, 15.5)
    with c.clipped(screen) as page_:
        page_.fill(Path.rect(x, y, width, height), linear((x, y), (x + width, y + height), "#FFF3E4", "#FFD9C4"))
        page_.fill(Path.rect(x, y, width, 38), linear((x, y), (x + width, y + 38), "#17938B", "#0A6A67"))
    middle = x + width / 2
    c.fill(Path.rounded(middle - 14, y + 8, 28, 6.6, 3.3), "#0F1316")
    c.fill(Path.ellipse(middle, y + 39, 18.5), "#FFF3E4")
    with c.clipped(Path.ellipse(middle, y + 39, 16.4)) as avatar:
        with avatar.placed(middle - 16.5, y + 21.5) as face:
            SCENES["portrait"](face, 33, 35)
    c.text("Mara Fern", "sora-bold", 10, middle, y + 70, "#2B1B14", "center")
    c.text("small-batch bakes", "inter-medium", 6.2, middle, y + 79, "#7A5A48", "center")
    left, bar_width = x + 12, width - 24
    for i, (label, tone) in enumerate((("Shop the bakes", TEAL), ("Book a class", CORAL_DEEP), ("Newsletter", VIOLET))):
        top = y + 86 + i * 20.5
        c.fill(Path.rounded(left, top, bar_width, 17, 8.5), linear((left, top), (left + bar_width, top + 17), lighter(tone, 0.1), tone))
        c.text(label, "inter-semibold", 7.2, middle, top + 11.2, "#FFFFFF", "center")


def chart(c, x, y, width, height):
    outline = Path.rounded(x, y, width, height, 11)
    c.long_shadow(outline, 18, 52, "#0B2540", 0.30)
    c.soft_shadow(outline, 1, 4, 7, "#0B2540", 0.15, 6)
    c.fill(outline, "#FFFFFF")
    c.text("Visits", "inter-medium", 8.2, x + 11, y + 17.5, "#5A6268")
    c.fill(Path.rounded(x + width - 42, y + 8, 32, 13.5, 6.75), "#D8F1EE")
    c.text("+38%", "inter-bold", 8, x + width - 26, y + 17.8, TEAL_DEEP, "center")
    base, count = y + height - 11, 6
    bar, gap = 8.6, (width - 22 - 6 * 8.6) / 5
    heights = (0.24, 0.36, 0.33, 0.54, 0.70, 1.0)
    for i, share in enumerate(heights):
        tall = share * (height - 42)
        left = x + 11 + i * (bar + gap)
        paint = linear((0, base - tall), (0, base), "#19A59D", TEAL) if i == count - 1 else "#BFE6E1"
        c.fill(Path.rounded(left, base - tall, bar, tall, 3), paint)
    points = [(x + 11 + bar / 2 + i * (bar + gap), base - heights[i] * (height - 42) - 6.5) for i in range(count)]
    c.stroke(Path.smooth(points), CORAL, 2.2)
    c.fill(Path.ellipse(*points[-1], 3.6), "#FFFFFF")
    c.fill(Path.ellipse(*points[-1], 2.5), CORAL)


def header_d(dark):
    c = Canvas(WIDTH, HEIGHT)
    c.fill(bleed(), linear((0, 0), (WIDTH * 0.75, HEIGHT), "#BFE3FA", "#79BDEB", "#3F8DC6"))
    for left, width in ((-40, 120), (120, 70), (330, 150), (520, 60)):
        c.fill(Path.polygon([(left, -4), (left + width, -4), (left + width + 150, HEIGHT), (left + 150, HEIGHT)]),
               linear((0, 0), (0, 190), (0, "#FFFFFF", 0.30), (1, "#FFFFFF", 0)))
    browser(c, 176, 30, 312, 150)
    phone_shadow(c, Path.rounded(147, 9, 110, 222, 19))
    deepen(c, dark)
    scrim(c, "#071A20", 112)
    phone(c, 147, 9, 110, 222)
    c.fill(Path.rounded(146, 8, 112, 224, 19.5), linear((0, 128), (0, 196), (0, "#071A20", 0), (0.3, "#071A20", 0.12), (0.75, "#071A20", 0.88), (1, "#071A20", 0.98)))
    chart(c, 358, 86, 100, 78)
    return c


PICTURES = {"paywallHeaderA": header_a, "paywallHeaderB": header_b, "paywallHeaderC": header_c, "paywallHeaderD": header_d}


def make(folder):
    for name, picture in PICTURES.items():
        picture(False).document.write(f"{folder}/{name}.svg")
        picture(True).document.write(f"{folder}/{name}~dark.svg")
