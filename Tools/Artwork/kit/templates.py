"""Small page layouts as the application would offer them. Each fills the rectangle (0, 0, width, height); the caller clips.

Lengths are laid out on a page 90 wide and scaled to the width; the height is free within believable ratios."""

import math

from .canvas import linear
from .geometry import Path
from .palette import CORAL, CORAL_DEEP, INK, SUN, SUN_DEEP, TEAL_LIGHT, VIOLET, VIOLET_DEEP, WARM_PAPER, darker, lighter
from .photos import SCENES, blade, photo
from .type_outlines import fitted_size


def fitted(c, text, face, x, y, width, paint, align="left", tracking=0.0, opacity=1.0):
    """One line set to an exact width; returns its size."""
    size = fitted_size(text, face, width, tracking)
    c.text(text, face, size, x, y, paint, align, tracking, opacity)
    return size


def lines(c, x, y, widths, paint, opacity=0.5, pitch=4.6, thickness=1.7, align="left"):
    """Greeked body text."""
    for i, width in enumerate(widths):
        left = x if align == "left" else x - width / 2
        c.fill(Path.rounded(left, y + i * pitch, width, thickness, thickness / 2), paint, opacity)


def fruit_slice(c, x, y, radius, flesh, rind, turn=0.0, wedges=8):
    """A round slice of citrus."""
    c.fill(Path.ellipse(x, y, radius), linear((x - radius, y - radius), (x + radius, y + radius), lighter(rind, 0.12), rind))
    c.fill(Path.ellipse(x, y, radius * 0.88), lighter(rind, 0.82))
    for i in range(wedges):
        angle = turn + i * 360 / wedges
        spread = 360 / wedges * 0.43
        points = []
        for degrees, reach in ((0, 0.13), (-spread, 0.74), (-spread * 0.45, 0.82), (spread * 0.45, 0.82), (spread, 0.74)):
            a = math.radians(angle + degrees)
            points.append((x + radius * reach * math.cos(a), y + radius * reach * math.sin(a)))
        c.fill(Path.smooth(points, closed=True, tension=0.22), flesh)


def sale(c, w, h):
    u = w / 90
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (w, h), "#FF8468", "#F2543F"))
    c.fill(Path.ellipse(w * 0.80, h * 0.16, 25 * u), linear((w * 0.55, 0), (w, h * 0.3), "#FFDB8A", "#FFC04B"))
    c.text("Summer", "lobster", 17 * u, 8 * u, h * 0.30, "#FFF6E6")
    size = fitted_size("SALE", "bebas", 76 * u)
    c.text("SALE", "bebas", size, 7 * u, h * 0.30 + size * 0.80, "#FFFFFF")
    c.text("SALE", "bebas", size, 7 * u, h * 0.30 + size * 1.50, "#FFFFFF", opacity=0.38)
    if h > w * 1.55:
        c.text("SALE", "bebas", size, 7 * u, h * 0.30 + size * 2.20, "#FFFFFF", opacity=0.16)
    c.fill(Path.rounded(7 * u, h - 16 * u, 37 * u, 9.5 * u, 4.75 * u), "#15191C")
    c.text("Up to 40% off", "inter-semibold", 4.5 * u, 25.5 * u, h - 9.6 * u, "#FFFFFF", "center")
    lines(c, 62 * u, h - 13.5 * u, (21 * u, 14 * u), "#FFFFFF", 0.75, 4 * u, 1.4 * u)


def slow_story(c, w, h):
    u = w / 90
    SCENES["dusk"](c, w, h)
    c.text("Slow", "garamond-italic", 31 * u, 9 * u, 30 * u, "#FFFFFF")
    c.text("evenings", "garamond-italic", 22 * u, 9 * u, 49 * u, "#FFFFFF")
    c.fill(Path.rounded(9 * u, 57 * u, 20 * u, 1.2 * u, 0.6 * u), "#FFFFFF", 0.9)
    lines(c, 9 * u, h - 17 * u, (40 * u, 29 * u), "#FFFFFF", 0.85, 5 * u, 1.8 * u)
    c.stroke(Path.ellipse(w - 15 * u, h - 14 * u, 6 * u), "#FFFFFF", 1 * u, 0.9)
    c.stroke(
        Path.polyline([(w - 17 * u, h - 16.4 * u), (w - 13.4 * u, h - 14 * u), (w - 17 * u, h - 11.6 * u)]),
        "#FFFFFF",
        1.1 * u,
        0.95,
    )


def menu(c, w, h):
    u = w / 90
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (w, h), "#FCF7EC", "#F2E7D3"))
    c.stroke(Path.rounded(4.5 * u, 4.5 * u, w - 9 * u, h - 9 * u, 3 * u), "#0A5F5C", 0.7 * u, 0.75)
    for turn, side in ((-150, -1), (-120, -1), (-60, 1), (-30, 1)):
        c.fill(
            blade(w / 2, 18.5 * u, 9.5 * u, 4.4 * u, turn),
            linear((w / 2, 19 * u), (w / 2 + side * 8 * u, 10 * u), "#0A5F5C", "#3BA096"),
        )
    c.fill(Path.ellipse(w / 2, 18.8 * u, 2.2 * u), SUN_DEEP)
    c.text("Oat & Ember", "didot", 12.4 * u, w / 2, 33.5 * u, "#1F2A2A", "center")
    c.text("SUPPER", "inter-medium", 3.6 * u, w / 2, 40.5 * u, CORAL_DEEP, "center", 0.28)
    y, rows = 49 * u, int((h - 60 * u) / (9.6 * u))
    for row in range(rows):
        width = (34, 27, 38, 30, 24, 33, 29)[row % 7] * u
        lines(c, 11 * u, y, (width, width * 0.66), "#1F2A2A", 0.72 if row % 4 else 0.8, 3.5 * u, 1.5 * u)
        c.text(("12", "9", "16", "11", "8", "14", "10")[row % 7], "didot", 5.4 * u, w - 11 * u, y + 3.2 * u, "#1F2A2A", "right")
        y += 9.6 * u


def invitation(c, w, h):
    u = w / 90
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (w, h), "#E9E4FB", "#CFC6F3"))
    r = 33 * u
    top, foot = h * 0.10, h * 0.92
    arch = Path().move(w / 2 - r, foot).line(w / 2 - r, top + r)
    arch.cubic(w / 2 - r, top + r * 0.4477, w / 2 - r * 0.5523, top, w / 2, top).cubic(
        w / 2 + r * 0.5523, top, w / 2 + r, top + r * 0.4477, w / 2 + r, top + r
    )
    c.fill(arch.line(w / 2 + r, foot).close(), linear((0, top), (w, foot), "#FFFDFA", "#F6EFFA"))
    for x, y, length, turn, tone in (
        (0.5 * w - 30 * u, foot, 34, -78, VIOLET),
        (0.5 * w - 35 * u, foot, 27, -104, "#9C8BE6"),
        (0.5 * w - 22 * u, foot, 22, -50, "#8470DA"),
        (0.5 * w + 32 * u, foot, 32, -104, "#E58B86"),
        (0.5 * w + 36 * u, foot, 23, -76, CORAL),
        (0.5 * w + 22 * u, foot, 20, -132, "#F4B39B"),
    ):
        c.fill(
            blade(x, y, length * u, length * 0.3 * u, turn),
            linear((x, y), (x, y - length * u), darker(tone, 0.22), lighter(tone, 0.12)),
        )
    c.text("Please join us", "garamond-italic", 6.6 * u, w / 2, h * 0.30, "#4B3E86", "center")
    c.text("Ines", "dancing", 20 * u, w / 2, h * 0.46, VIOLET_DEEP, "center")
    c.text("& Theo", "dancing", 20 * u, w / 2, h * 0.60, VIOLET_DEEP, "center")
    c.text("14 JUNE", "inter-medium", 3.9 * u, w / 2, h * 0.69, "#4B3E86", "center", 0.24)


def quote(c, w, h):
    u = w / 90
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (w, h), "#12867F", "#07514F"))
    c.text("“", "arapey-black", 52 * u, 6 * u, 43 * u, SUN)
    size, y = 14.6 * u, h * 0.5
    for i, line in enumerate(("Make it", "simple, then", "make it", "yours.")):
        c.text(line, "garamond", size, 9 * u, y + (i - 0.6) * size * 1.06, "#F4FBF9")
    c.fill(Path.rounded(9 * u, h - 13 * u, 14 * u, 1.4 * u, 0.7 * u), SUN)
    lines(c, 27 * u, h - 13.1 * u, (24 * u,), "#F4FBF9", 0.7, 4 * u, 1.5 * u)


def market(c, w, h):
    u = w / 90
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (w, h), "#FFE9B8", "#FFD37A"))
    for i, word in enumerate(("Sunday", "Market")):
        fitted(c, word, "spartan-black", 8 * u, (24 + i * 19.5) * u, 74 * u if word == "Market" else 74 * u, "#0B4F4D")
    fruit_slice(c, w * 0.26, h * 0.80, 21 * u, "#FF8A55", "#F36B3B", 12)
    fruit_slice(c, w * 0.76, h * 0.68, 25 * u, "#FFD95E", "#F3B32B", -8)
    c.fill(blade(w * 0.42, h * 0.66, 21 * u, 10 * u, -118), linear((w * 0.42, h * 0.66), (w * 0.34, h * 0.5), "#0B6A5F", "#43A58C"))
    c.fill(blade(w * 0.44, h * 0.66, 17 * u, 8 * u, -70), linear((w * 0.44, h * 0.66), (w * 0.5, h * 0.52), "#0E7F70", "#6BC0A4"))
    c.text("9–2, Quay Street", "inter-semibold", 4.8 * u, 8.4 * u, 53 * u, "#0B4F4D")


def night_swim(c, w, h):
    u = w / 90
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (0, h), "#1B1F55", "#2E2A78"))
    c.fill(Path.ellipse(w * 0.70, h * 0.27, 17 * u), linear((w * 0.5, h * 0.1), (w * 0.9, h * 0.4), "#FFF0CB", "#FFC96B"))
    tones = ("#4B46B4", "#5C63D6", "#4F8FE0", "#52B9DF", "#7EDCD3")
    for i, tone in enumerate(tones):
        y = h * (0.50 + i * 0.105)
        points = [(w * (-0.15 + k * 0.2), y + (4.2 * u if k % 2 else -4.2 * u) * (1 if i % 2 else -1)) for k in range(8)]
        c.fill(Path.smooth(points, tension=0.72).line(w * 1.3, h * 1.1).line(-w * 0.2, h * 1.1).close(), tone)
    c.text("Night", "sora-bold", 18.5 * u, 8 * u, 24 * u, "#FFFFFF")
    c.text("swim", "sora-bold", 18.5 * u, 8 * u, 43 * u, "#FFFFFF")
    c.text("FRI 8 PM", "inter-bold", 5 * u, 8.4 * u, h - 9 * u, "#12224E", tracking=0.12)
    c.text("LIDO", "inter-bold", 5 * u, w - 8.4 * u, h - 9 * u, "#12224E", "right", 0.12)


def collage(c, w, h):
    u = w / 90
    c.fill(Path.rect(0, 0, w, h), WARM_PAPER)
    gap = 3 * u
    top = (h - 24 * u) * 0.56
    photo(c, "arches", 6 * u, 6 * u, 46 * u, top, 3 * u)
    photo(c, "poppy", 52 * u + gap, 6 * u, 32 * u - gap, top * 0.52, 3 * u)
    photo(c, "surf", 52 * u + gap, 6 * u + top * 0.52 + gap, 32 * u - gap, top * 0.48 - gap, 3 * u)
    photo(c, "foliage", 6 * u, 6 * u + top + gap, 78 * u, h - 30 * u - top - gap, 3 * u)
    c.text("July, in pieces", "oldstandard-italic", 11.2 * u, 7 * u, h - 11.5 * u, INK)
    lines(c, 7 * u, h - 7.4 * u, (30 * u,), INK_LINE, 0.5, 4 * u, 1.3 * u)


INK_LINE = "#3A4348"


def studio(c, w, h):
    u = w / 90
    SCENES["still_life"](c, w, h * 0.74)
    c.fill(Path.rect(0, h * 0.70, w, h * 0.31), "#FFF9F2")
    c.text("Clay", "didot", 25 * u, 8 * u, h * 0.70 + 21 * u, "#6B2B3B")
    c.text("STUDIO", "inter-medium", 4 * u, 60 * u, h * 0.70 + 13 * u, "#6B2B3B", tracking=0.22)
    lines(c, 60 * u, h * 0.70 + 17 * u, (20 * u,), "#6B2B3B", 0.45, 4 * u, 1.4 * u)
    lines(c, 8.5 * u, h - 9 * u, (34 * u,), "#6B2B3B", 0.5, 4 * u, 1.5 * u)


def recipe(c, w, h):
    u = w / 90
    c.fill(Path.rect(0, 0, w, h), "#FFFDF8")
    SCENES["coffee"](c, w, h * 0.58)
    c.text("Flat white", "arapey-black", 15.6 * u, 8 * u, h * 0.58 + 16 * u, "#3B2618")
    lines(c, 8 * u, h * 0.58 + 21.5 * u, (70 * u, 64 * u, 42 * u)[: 3 if h > w * 1.2 else 2], "#3B2618", 0.42, 5 * u, 1.8 * u)


def breathe(c, w, h):
    u = w / 90
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (w, h), "#FBEFE6", "#F6DCCF"))
    cx, cy = w * 0.5, h * 0.60
    for radius, tone in ((36, "#F2876C"), (28.5, "#FFC37A"), (21, "#5FB9AE"), (13.5, "#0A6A67")):
        r = radius * u
        path = Path().move(cx - r, cy).cubic(cx - r, cy - r * 0.5523, cx - r * 0.5523, cy - r, cx, cy - r)
        path.cubic(cx + r * 0.5523, cy - r, cx + r, cy - r * 0.5523, cx + r, cy).close()
        c.fill(path, linear((cx - r, cy - r), (cx + r, cy), lighter(tone, 0.14), tone))
    c.text("breathe", "quicksand-bold", 16.6 * u, w / 2, cy + 20 * u, "#0B4F4D", "center", 0.02)
    lines(c, w / 2, cy + 27 * u, (42 * u, 28 * u)[: 2 if h > w * 1.25 else 1], "#0B4F4D", 0.45, 4.6 * u, 1.6 * u, "center")


def hiring(c, w, h):
    u = w / 90
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (w, h), "#F8F5EE", "#EAE3D6"))
    c.fill(Path.rounded(w * 0.42, h * 0.40, w * 0.75, h * 0.75, 24 * u), linear((w * 0.4, h * 0.4), (w, h), "#FF9A73", "#F2604A"))
    c.fill(Path.rounded(-w * 0.3, h * 0.62, w * 0.62, h * 0.6, 22 * u), linear((0, h * 0.6), (w * 0.3, h), "#8674DF", "#5443B4"))
    c.text("We’re", "sora-extrabold", 17 * u, 8 * u, 24 * u, INK)
    c.text("hiring", "sora-extrabold", 17 * u, 8 * u, 42.5 * u, INK)
    lines(c, 8.4 * u, 49 * u, (40 * u, 31 * u), INK, 0.45, 4.8 * u, 1.7 * u)
    c.fill(Path.rounded(w - 43 * u, h - 19 * u, 35 * u, 10.5 * u, 5.25 * u), "#FFFFFF")
    c.text("Apply", "inter-bold", 5.6 * u, w - 25.5 * u, h - 11.8 * u, INK, "center")


def travel(c, w, h):
    u = w / 90
    c.fill(Path.rect(0, 0, w, h), "#FFFFFF")
    photo(c, "surf", 5 * u, 5 * u, w - 10 * u, h - 29 * u, 3 * u)
    c.text("Lagos", "kaushan", 19 * u, 6.5 * u, h - 8.5 * u, "#0A5F66")
    lines(c, 57 * u, h - 15 * u, (26 * u, 18 * u), "#0A5F66", 0.5, 4.6 * u, 1.5 * u)


def podcast(c, w, h):
    u = w / 90
    SCENES["portrait"](c, w, h)
    fitted(c, "Small talk", "sora-extrabold", 8 * u, 20 * u, 74 * u, "#2A1B2E")
    c.fill(Path.rounded(8 * u, h - 17 * u, w - 16 * u, 10 * u, 5 * u), "#2A1B2E", 0.92)
    c.fill(Path.polygon([(13.5 * u, h - 14.6 * u), (13.5 * u, h - 9.4 * u), (18 * u, h - 12 * u)]), SUN)
    for i in range(17):
        bar = (2.2, 3.6, 5.4, 3, 4.6, 6, 3.8, 2.4, 4.4, 5.8, 3.2, 2, 3.8, 5, 2.8, 4, 2.2)[i] * u
        c.fill(Path.rounded(22.5 * u + i * 3.4 * u, h - 12 * u - bar / 2, 1.6 * u, bar, 0.8 * u), "#FFFFFF", 0.9 if i < 7 else 0.45)


def lake_story(c, w, h):
    u = w / 90
    SCENES["lake"](c, w, h)
    c.text("Go", "didot-bold", 30 * u, w / 2, 33 * u, "#17384A", "center")
    c.text("further", "didot-italic", 21 * u, w / 2, 52 * u, "#17384A", "center")
    c.fill(Path.rounded(w / 2 - 22 * u, h - 20 * u, 44 * u, 11 * u, 5.5 * u), "#FFFFFF", 0.95)
    c.text("Plan a trip", "inter-semibold", 5.4 * u, w / 2, h - 12.6 * u, "#0F4450", "center")


def gig(c, w, h):
    u = w / 90
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (w, h), "#15191C", "#23303A"))
    for i in range(5):
        r = (38 - i * 7.2) * u
        path = (
            Path()
            .move(w * 0.5 - r, h * 0.47)
            .cubic(w * 0.5 - r, h * 0.47 + r * 0.5523, w * 0.5 - r * 0.5523, h * 0.47 + r, w * 0.5, h * 0.47 + r)
        )
        path.cubic(w * 0.5 + r * 0.5523, h * 0.47 + r, w * 0.5 + r, h * 0.47 + r * 0.5523, w * 0.5 + r, h * 0.47).close()
        c.fill(path, (CORAL, SUN, TEAL_LIGHT, VIOLET, "#15191C")[i])
    fitted(c, "LOW TIDE", "bebas", 8 * u, h * 0.47 - 7 * u, 74 * u, "#FFFFFF")
    c.text("Trio, live", "inter-medium", 5.4 * u, 8.4 * u, h - 9 * u, "#FFFFFF", opacity=0.85)
    c.text("9 PM", "inter-bold", 5.4 * u, w - 8.4 * u, h - 9 * u, SUN, "right")


PAGES = {
    "sale": sale,
    "slow_story": slow_story,
    "menu": menu,
    "invitation": invitation,
    "quote": quote,
    "market": market,
    "night_swim": night_swim,
    "collage": collage,
    "studio": studio,
    "recipe": recipe,
    "breathe": breathe,
    "hiring": hiring,
    "travel": travel,
    "podcast": podcast,
    "lake_story": lake_story,
    "gig": gig,
}


def page(c, name, x, y, width, height, radius=5.0):
    """A layout on a rounded page."""
    with c.placed(x, y) as sheet:
        with sheet.clipped(Path.rounded(0, 0, width, height, radius)) as inside:
            PAGES[name](inside, width, height)
