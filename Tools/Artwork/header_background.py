"""The third header picture: one plant, half in its room, half cut out by a tap."""

import math

from shapely.affinity import scale as scaled
from shapely.affinity import translate
from shapely.geometry import box

from kit.canvas import Canvas, from_polygon, linear, radial
from kit.geometry import Path, Transform
from kit.palette import SUN_DEEP, TEAL, TEAL_LIGHT, VIOLET, darker, lighter
from kit.photos import photo
from kit.stickers import silhouette
from paywall_stage import BLEED, CENTER, FOOT_TOP, HEIGHT, WIDTH, deepen, scrim


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
        reach = width / 2 * math.sin(math.pi * t**0.86) ** 0.82 if 0 < t < 1 else 0
        rib.append((x, y))
        left.append((x + dy / length * reach, y - dx / length * reach))
        right.append((x - dy / length * reach, y + dx / length * reach))
    halves = [
        Path(Path.smooth(side).commands + [("L", rib[-1])] + Path.smooth(rib[::-1]).commands[1:]).close() for side in (left, right)
    ]
    left_is_lit = sum(x + y for x, y in left) < sum(x + y for x, y in right)
    for half, lit in zip(halves, (left_is_lit, not left_is_lit)):
        first, last = (tone, lighter(tone, 0.30)) if lit else (darker(tone, 0.34), darker(tone, 0.06))
        c.fill(half, linear(base, tip, first, last))
    c.stroke(Path.smooth(rib[:-1]), lighter(tone, 0.48), 0.9, 0.75)


LEAVES = (
    # From the middle of the pot's mouth: the foot of the stem, where the leaf begins, its bend, its tip; then width and tone.
    # The back comes first.
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


def plant(c):
    """Leaves in a coral pot on a wooden stand; the mouth of the pot is centred at the origin."""
    x = mouth = 0
    wood = linear((x - 26, 0), (x + 26, 0), "#C98F58", "#8E5A34")
    for side in (-1, 1):
        c.fill(
            Path.polygon(
                [
                    (x + side * 17, mouth + 30),
                    (x + side * 21.5, mouth + 30),
                    (x + side * 26, mouth + 58),
                    (x + side * 22.6, mouth + 58),
                ]
            ),
            wood,
        )
    c.fill(Path.rounded(x - 22, mouth + 47, 44, 4.4, 2.2), wood)
    for foot, base, bend, tip, width, tone in LEAVES:
        foot, base, bend, tip = ((x + px * 0.95, mouth + py * 0.95) for px, py in (foot, base, bend, tip))
        c.stroke(Path.polyline([foot, base]), darker(tone, 0.12), 2.2)
        curved_leaf(c, base, bend, tip, width, tone)
    pot = Path().move(x - 25, mouth).line(x + 25, mouth).cubic(x + 24, mouth + 22, x + 21, mouth + 40, x + 17, mouth + 47)
    pot.cubic(x + 15, mouth + 50.5, x - 15, mouth + 50.5, x - 17, mouth + 47).cubic(
        x - 21, mouth + 40, x - 24, mouth + 22, x - 25, mouth
    ).close()
    c.fill(pot, linear((x - 25, 0), (x + 25, 0), (0, "#FF9A80"), (0.35, "#FB6F58"), (1, "#C9402F")))
    c.fill(
        Path.rounded(x - 28, mouth - 4, 56, 12, 4.5),
        linear((x - 28, 0), (x + 28, 0), (0, "#FFAF97"), (0.4, "#FF7F68"), (1, "#D54C3B")),
    )


def room(c):
    c.fill(
        Path.rect(-BLEED, -BLEED, CENTER + BLEED, HEIGHT + 2 * BLEED), linear((0, 0), (CENTER, HEIGHT * 0.8), "#FBDDB8", "#EBA87C")
    )
    for left in (52, 122):
        c.fill(
            Path.polygon([(left, -4), (left + 60, -4), (left + 122, 140), (left + 62, 140)]),
            linear((left, 0), (left + 100, 140), (0, "#FFF7E8", 0.7), (1, "#FFF7E8", 0.15)),
        )
    frame = Path.rounded(158, 45, 44, 54, 3)
    c.long_shadow(frame, 14, 50, "#7A3F1E", 0.26)
    c.fill(frame, linear((158, 45), (202, 99), "#9C6238", "#6E4023"))
    c.fill(Path.rect(161, 48, 38, 48), "#FFF9EF")
    photo(c, "dusk", 166, 53.5, 28, 37, 1)
    shelf = Path.rounded(4, 104, 78, 5, 2)
    c.long_shadow(shelf, 12, 60, "#7A3F1E", 0.24)
    c.fill(shelf, linear((4, 104), (82, 109), "#A86C3C", "#7E4B29"))
    for x, width, height, tone, turn in (
        (11, 9, 42, TEAL, 0),
        (21, 11, 36, VIOLET, 0),
        (33, 8, 46, SUN_DEEP, 0),
        (42, 12, 38, "#E8694F", 0),
        (61, 9, 40, "#3C8FC9", -9),
    ):
        with c.placed(x, 104, turn) as book:
            book.fill(
                Path.rounded(0, -height, width, height, 1.6), linear((0, 0), (width, 0), lighter(tone, 0.14), darker(tone, 0.12))
            )
            book.fill(Path.rect(0, -height + 6, width, 1.6), "#FFF4DC", 0.7)


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


def plant_at(c, x, mouth, scale):
    with c.placed(x, mouth, 0, scale) as place:
        plant(place)


def floor_shade(c, x, y):
    """The stand's shade where it meets the floor; the wall runs into the floor without an edge."""
    with c.mapped(Transform.translation(x + 10, y) @ Transform.scale(1, 0.13)) as flat:
        flat.fill(Path.ellipse(0, 0, 56), radial((0, 0), 56, (0, "#4A1E0C", 0.55), (0.5, "#4A1E0C", 0.26), (1, "#4A1E0C", 0)))


def product_card(c, x, y):
    """What the cut-out is good for: the same plant on a page of its own. Only wide screens have room for it."""
    outline = Path.rounded(x, y, 74, 90, 8)
    c.soft_shadow(outline, 3, 6, 9, "#06302F", 0.20, 8)
    c.fill(outline, linear((x, y), (x + 74, y + 90), "#FFDC82", "#FFB53E"))
    c.fill(Path.ellipse(x + 37, y + 43, 28.5), "#FFF1CC", 0.75)
    plant_at(c, x + 37, y + 50, 0.35)
    c.text("New leaf", "sora-bold", 10.5, x + 37, y + 82, "#5A2B00", "center")


SCALE, MOUTH = 0.86, 111


def header_c(dark):
    c = Canvas(WIDTH, HEIGHT)
    area = scaled(silhouette(plant), SCALE, SCALE, origin=(0, 0))
    area = translate(area, CENTER, MOUTH)
    room(c)
    with c.clipped(Path.rect(-50, -10, CENTER + 50, HEIGHT + 10)) as left:
        floor_shade(left, CENTER, MOUTH + 57 * SCALE)
    checkerboard(c, CENTER)
    deepen(c, dark)
    scrim(c, dark, 92)
    product_card(c, 517, 60)
    half = box(CENTER, -10, WIDTH, HEIGHT)
    with c.clipped(Path.rect(-50, -10, CENTER + 50, HEIGHT + 10)) as left:
        left.fill(
            from_polygon(translate(area, 8, 9)),
            linear((CENTER - 80, 20), (CENTER, 140), (0, "#6B2F14", 0.26), (1, "#6B2F14", 0.12)),
        )
    c.fill(from_polygon(area.buffer(4.0, 8).intersection(half)), TEAL_LIGHT)
    c.fill(from_polygon(area.buffer(2.5, 8).intersection(half)), "#FFFFFF")
    plant_at(c, CENTER, MOUTH, SCALE)
    c.fill(
        Path.rect(CENTER - 1, -BLEED, 2, FOOT_TOP + BLEED),
        linear((0, 0), (0, FOOT_TOP), (0, "#FFFFFF", 1), (0.6, "#FFFFFF", 0.95), (0.92, "#FFFFFF", 0)),
    )
    ripple(c, CENTER, 80)
    return c
