"""The drifting strips of the store page's shelves.

A strip is repeated 21 times with 16 between the copies, so its tiles stand 16 apart as well and differ from one another."""

import math

from shapely.affinity import scale
from shapely.geometry import LineString

from kit.canvas import Canvas, from_polygon, linear, to_polygon
from kit.geometry import Path
from kit.palette import (
    CORAL,
    INK,
    NIGHT_PAGE,
    SKY,
    SKY_DEEP,
    SUN,
    SUN_DEEP,
    TEAL,
    TEAL_LIGHT,
    VIOLET,
    VIOLET_DEEP,
    darker,
    lighter,
    mix,
)
from kit.photos import SCENES, photo
from kit.stickers import STICKERS, silhouette, sticker
from kit.templates import lines
from kit.type_outlines import fitted_size, text_path

GAP = 16


def ground(tone, dark):
    """A tile's quiet background in a colour family: pale by day, deep by night."""
    first, last = (mix(tone, NIGHT_PAGE, 0.70), mix(tone, NIGHT_PAGE, 0.80)) if dark else (lighter(tone, 0.84), lighter(tone, 0.70))
    return first, last


class Row:
    """Lays tiles out from the left, one gap apart."""

    def __init__(self, height, widths):
        self.height, self.widths = height, widths
        self.canvas = Canvas(sum(widths) + GAP * (len(widths) - 1), height)
        self.left = 0

    def tiles(self):
        for width in self.widths:
            yield self.left, width
            self.left += width + GAP


# Shapes under the hand of their editor


def guide_color(dark):
    return TEAL_LIGHT if dark else TEAL


def handle(c, x, y, size=6.4, round_=False, dark=False):
    outline = Path.ellipse(x, y, size / 2) if round_ else Path.rounded(x - size / 2, y - size / 2, size, size, 1.5)
    grown = (
        Path.ellipse(x, y, size / 2 + 1.3)
        if round_
        else Path.rounded(x - size / 2 - 1.3, y - size / 2 - 1.3, size + 2.6, size + 2.6, 2.4)
    )
    c.fill(grown, guide_color(dark))
    c.fill(outline, "#FFFFFF")


def selection(c, left, top, right, bottom, dark):
    outline_frame(c, left, top, right, bottom, dark)
    middle = (left + right) / 2
    c.fill(Path.rect(middle - 0.6, top - 15, 1.2, 15), guide_color(dark))
    handle(c, middle, top - 15, 6.4, True, dark)
    for x in (left, right):
        for y in (top, bottom):
            handle(c, x, y, dark=dark)
    for x, y in ((middle, bottom), (left, (top + bottom) / 2), (right, (top + bottom) / 2)):
        handle(c, x, y, 5.4, dark=dark)


def shade(c, path, length, tone, dark):
    """A shape's long shadow: in its own deep tone by day, stronger and without colour by night."""
    c.long_shadow(path, length, 50, *(("#04080A", 0.40) if dark else (tone, 0.16)))


def outline_frame(c, left, top, right, bottom, dark):
    frame = [(left, top), (right, top), (right, bottom), (left, bottom), (left, top)]
    c.fill(from_polygon(LineString(frame).buffer(0.7, join_style=2)), guide_color(dark))


def slider(c, x, y, width, share, tone, dark):
    c.fill(Path.rounded(x, y - 2, width, 4, 2), "#FFFFFF" if dark else INK, 0.16)
    c.fill(Path.rounded(x, y - 2, width * share, 4, 2), tone)
    c.fill(Path.ellipse(x + width * share, y + 1, 7.4), "#0B1417", 0.18)
    c.fill(Path.ellipse(x + width * share, y, 7), "#FFFFFF")


def shape_selected_star(c, x, w, h, dark):
    cx, cy, r = x + w / 2, h / 2 + 7, 46
    path = Path.scalloped(cx, cy, r, 9, 0.13, 4)
    shade(c, path, 22, "#5A1B10", dark)
    c.fill(path, linear((cx - r, cy - r), (cx + r, cy + r), "#FF977D", "#EE5040"))
    selection(c, cx - 54, cy - 54, cx + 54, cy + 54, dark)


def shape_bezier(c, x, w, h, dark):
    points = [(0.18, 0.62), (0.34, 0.24), (0.66, 0.30), (0.83, 0.58), (0.60, 0.80), (0.36, 0.74)]
    nodes = [(x + px * w, py * h) for px, py in points]
    path = Path.smooth(nodes, closed=True, tension=0.62)
    shade(c, path, 20, "#1F155A", dark)
    c.fill(path, linear((x + w * 0.2, h * 0.2), (x + w * 0.8, h * 0.8), "#9C8CF0", "#5846BE"))
    c.stroke(path, guide_color(dark), 1.6)
    for i, (px, py) in enumerate(nodes):
        if i in (1, 3):
            dx, dy = ((26, -13), (7, 27))[i == 3]
            c.stroke(Path.polyline([(px - dx, py - dy), (px + dx, py + dy)]), guide_color(dark), 1.2)
            handle(c, px - dx, py - dy, 4.6, True, dark)
            handle(c, px + dx, py + dy, 4.6, True, dark)
        handle(c, px, py, 6.2, dark=dark)


def shape_corners(c, x, w, h, dark):
    left, top, width, height = x + 32, 34, w - 64, h - 78
    path = Path.rounded(left, top, width, height, 25)
    shade(c, path, 20, "#5A3A08", dark)
    c.fill(path, linear((left, top), (left + width, top + height), "#FFDD86", "#F8B03B"))
    outline_frame(c, left, top, left + width, top + height, dark)
    for px, py in (
        (left + 18, top + 18),
        (left + width - 18, top + 18),
        (left + width - 18, top + height - 18),
        (left + 18, top + height - 18),
    ):
        handle(c, px, py, 5.4, True, dark)
    slider(c, left, h - 23, width, 0.62, SUN_DEEP, dark)


def shape_union(c, x, w, h, dark):
    cy = h / 2
    first = Path.rounded(x + 24, cy - 48, 74, 74, 12)
    second = Path.ellipse(x + w - 62, cy + 14, 40)
    joined = from_polygon(to_polygon(first, 0.02).union(to_polygon(second, 0.02)))
    shade(c, joined, 22, "#03302E", dark)
    c.fill(joined, linear((x + 24, cy - 48), (x + w - 20, cy + 54), "#3CCBC1", "#0A7C78"))
    c.fill(from_polygon(to_polygon(first, 0.02).intersection(to_polygon(second, 0.02))), "#FFFFFF", 0.34)
    for path in (first, second):
        c.stroke(path, "#FFFFFF", 1.5, 0.9)


def shape_sides(c, x, w, h, dark):
    cx, cy, r = x + w / 2, h / 2 - 14, 43
    points = [(cx + r * math.cos(math.radians(-90 + i * 60)), cy + r * math.sin(math.radians(-90 + i * 60))) for i in range(6)]
    path = from_polygon(to_polygon(Path.polygon(points)).buffer(-5).buffer(5, 10))
    shade(c, path, 20, "#0B2F4A", dark)
    c.fill(path, linear((cx - r, cy - r), (cx + r, cy + r), "#93D2F8", "#3E93CF"))
    pill = Path.rounded(cx - 45, h - 40, 90, 24, 12)
    c.fill(pill, "#2A3338" if dark else "#FFFFFF")
    ink = "#F3F5F4" if dark else INK
    c.fill(Path.rounded(cx - 35, h - 29, 10, 2, 1), ink)
    c.text("6", "inter-bold", 13, cx, h - 23.3, ink, "center")
    c.fill(Path.rounded(cx + 25, h - 29, 10, 2, 1), ink)
    c.fill(Path.rounded(cx + 29, h - 33, 2, 10, 1), ink)


def shape_swatches(c, x, w, h, dark):
    cx, cy = x + w / 2, h / 2 - 16
    with c.placed(cx, cy, -6) as place:
        heart = from_polygon(scale(silhouette(STICKERS["heart"]), 46, 46, origin=(0, 0)))
        shade(place, heart, 20, "#2A2440", dark)
    with c.placed(cx, cy, -6, 46) as place:
        STICKERS["heart"](place)
    heart_colors = ("#6D5BD0", "#FF6F5B", "#FFC655", "#0A7C78", "#7CC4F2")
    pill = Path.rounded(cx - 62, h - 42, 124, 28, 14)
    c.fill(pill, "#2A3338" if dark else "#FFFFFF")
    for i, tone in enumerate(heart_colors):
        sx, sy = cx - 46 + i * 23, h - 28
        if i == 0:
            c.fill(Path.ring(sx, sy, 10, 8.4), TEAL_LIGHT if dark else TEAL)
        c.fill(Path.ellipse(sx, sy, 6.8), tone)


def shapes(dark):
    row = Row(161, (172, 196, 168, 178, 150, 166))
    families = (CORAL, VIOLET, SUN, TEAL_LIGHT, SKY, "#B9AF9F")
    drawings = (shape_selected_star, shape_bezier, shape_corners, shape_union, shape_sides, shape_swatches)
    for (left, width), tone, draw in zip(row.tiles(), families, drawings):
        first, last = ground(tone, dark)
        outline = Path.rounded(left, 0, width, row.height, 14)
        row.canvas.fill(outline, linear((left, 0), (left + width, row.height), first, last))
        with row.canvas.clipped(outline) as inside:
            draw(inside, left, width, row.height, dark)
    return row.canvas


# Layout collections: three themes, each in several pages

THEMES = (
    {
        "paper": ("#F7F1E4", "#EADFC8"),
        "ink": "#123F3B",
        "accent": "#0A7C78",
        "second": "#E08A5B",
        "face": "didot",
        "caps": "inter-medium",
        "words": ("Garden", "notes", "Grow slowly."),
        "photos": ("foliage", "still_life"),
    },
    {
        "paper": ("#232A63", "#171B45"),
        "ink": "#FFFFFF",
        "accent": "#FFC655",
        "second": "#7C86EE",
        "face": "sora-bold",
        "caps": "inter-medium",
        "words": ("After", "dark", "Lights on."),
        "photos": ("city", "dusk"),
    },
    {
        "paper": ("#FFDCCB", "#FFBFA6"),
        "ink": "#5A1F2B",
        "accent": "#F2604A",
        "second": "#FFF3E4",
        "face": "spartan-black",
        "caps": "inter-semibold",
        "words": ("Sun", "club", "Come along!"),
        "photos": ("surf", "poppy"),
    },
)


def paper(c, theme, w, h):
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (w, h), *theme["paper"]))


def cover_page(c, theme, w, h):
    """The theme's name and its emblem."""
    paper(c, theme, w, h)
    first, second, _ = theme["words"]
    c.fill(
        Path.ellipse(w * 0.92, h * 0.96, h * 0.42),
        linear((w * 0.5, h * 0.5), (w, h), lighter(theme["accent"], 0.16), theme["accent"]),
    )
    c.fill(Path.ellipse(w * 0.92, h * 0.96, h * 0.26), theme["second"])
    size = min(fitted_size(first, theme["face"], w - 22), 29)
    c.text(first, theme["face"], size, 10, 14 + size * 0.74, theme["ink"])
    c.text(second, theme["face"], size, 10, 14 + size * 1.72, theme["ink"])
    c.fill(Path.rounded(10.5, h - 14, 18, 2.4, 1.2), theme["accent"] if theme["ink"] != "#FFFFFF" else "#FFFFFF")


def photo_page(c, theme, w, h):
    """A photo with a caption bar."""
    paper(c, theme, w, h)
    photo(c, theme["photos"][0], 7, 7, w - 14, h - 36, 5)
    lines(c, 8, h - 21, (w * 0.52, w * 0.34), theme["ink"], 0.75, 6, 2.4)
    c.fill(Path.rounded(w - 27, h - 21.5, 19, 11, 5.5), theme["accent"])


def split_page(c, theme, w, h):
    """Half photo, half words."""
    paper(c, theme, w, h)
    with c.clipped(Path.rect(0, 0, w * 0.46, h)) as left:
        SCENES[theme["photos"][1]](left, w * 0.46, h)
    x = w * 0.46 + 11
    width = w - x - 10
    size = min(fitted_size(theme["words"][2], theme["face"], width), 19)
    c.text(theme["words"][2], theme["face"], size, x, h * 0.36, theme["ink"])
    lines(c, x, h * 0.36 + 11, (width * 0.96, width * 0.86, width * 0.6), theme["ink"], 0.5, 7, 2.4)
    c.fill(Path.rounded(x, h - 26, 40, 14, 7), theme["accent"])
    lines(c, x + 20, h - 20.2, (20,), "#FFFFFF" if theme["accent"] != "#FFC655" else "#171B45", 0.95, 6, 2.4, "center")


def layout_collections(dark):
    kinds = ((cover_page, 92), (photo_page, 92), (split_page, 178))
    orders = ((0, 2, 1), (1, 0, 2), (2, 0, 1))
    plan = [(THEMES[i], *kinds[k]) for i, order in enumerate(orders) for k in order]
    row = Row(117, [width for _, _, width in plan])
    for (left, width), (theme, draw, _) in zip(row.tiles(), plan):
        with row.canvas.placed(left, 0) as place:
            with place.clipped(Path.rounded(0, 0, width, row.height, 9)) as inside:
                draw(inside, theme, width, row.height)
    return row.canvas


# Fonts: one word each, in its own voice

VOICES = (
    # width, word, face, size, background, ink, label
    (150, "Bonjour", "didot-italic", 38, ("#FFE3D9", "#FFC6B4"), "#7A1F1A", "Didone italic"),
    (118, "LOUD", "bebas", 66, ("#20262B", "#12171A"), "#FFC655", "Tall capitals"),
    (156, "Sweetheart", "lobster", 33, ("#8574E0", "#5A49BF"), "#FFFFFF", "Sign script"),
    (128, "Bloom", "cherry", 46, ("#FFD679", "#FBB443"), "#5A2B00", "Bubbly"),
    (154, "modern", "sora-extrabold", 36, ("#14938B", "#085E5B"), "#FFFFFF", "Geometric"),
    (146, "Dear you,", "courier", 26, ("#F5EFE2", "#E4D8C1"), "#2A2A2A", "Typewriter"),
    (140, "Bravo", "kaushan", 48, ("#BCE1FA", "#84C4EE"), "#0B3A5A", "Brush"),
)


def fonts(dark):
    row = Row(98, [voice[0] for voice in VOICES])
    for (left, width), (_, word, face, size, paper_, ink, label) in zip(row.tiles(), VOICES):
        c = row.canvas
        outline = Path.rounded(left, 0, width, row.height, 12)
        c.fill(outline, linear((left, 0), (left + width, row.height), *paper_))
        # Words are set on their optical middle, above the label.
        size = min(size, fitted_size(word, face, width - 32))
        _, top, _, bottom = text_path(word, face, size).bounds()
        c.text(word, face, size, left + width / 2, 43 - (top + bottom) / 2, ink, "center")
        c.text(label, "inter-medium", 8.6, left + width / 2, row.height - 11.5, ink, "center", 0.03, 0.78)
    return row.canvas


# Graphics: stickers on colour, ornaments

GRAPHICS = (
    # width, background family, stickers as (name, x, y, radius, degrees)
    (98, VIOLET, (("daisy", 49, 50, 31, -8),)),
    (150, SUN, (("rainbow", 44, 52, 27, -8), ("bubble", 107, 50, 26, 6))),
    (98, TEAL, (("cherries", 49, 50, 30, 4),)),
    (98, CORAL, (("eye", 49, 49, 30, -6),)),
    (150, SKY_DEEP, (("star", 44, 49, 29, -10), ("heart", 107, 50, 27, 10))),
    (98, "#1D262B", (("lemon", 49, 49, 31, 0),)),
    (150, CORAL, (("tag", 50, 42, 30, -12), ("bolt", 112, 52, 28, 10))),
    (98, TEAL_LIGHT, (("mushroom", 49, 50, 30, -4),)),
    (98, VIOLET_DEEP, (("sunburst", 49, 49, 31, -10),)),
)


def graphics(dark):
    row = Row(98, [tile[0] for tile in GRAPHICS])
    for (left, width), (_, tone, stickers) in zip(row.tiles(), GRAPHICS):
        outline = Path.rounded(left, 0, width, row.height, 12)
        row.canvas.fill(outline, linear((left, 0), (left + width, row.height), lighter(tone, 0.14), darker(tone, 0.12)))
        with row.canvas.clipped(outline) as inside:
            for name, x, y, radius, degrees in stickers:
                sticker(inside, name, left + x, y, radius, degrees, 0.13)
    return row.canvas


# Photos of the library

LIBRARY = (
    ("lake", 140),
    ("portrait", 74),
    ("arches", 104),
    ("surf", 93),
    ("city", 128),
    ("poppy", 84),
    ("road", 150),
    ("coffee", 93),
    ("dusk", 132),
    ("foliage", 80),
)


def photo_library(dark):
    row = Row(93, [width for _, width in LIBRARY])
    for (left, width), (scene, _) in zip(row.tiles(), LIBRARY):
        photo(row.canvas, scene, left, 0, width, row.height, 10)
    return row.canvas


STRIPS = {
    "Shapes_StorePageShelfImage": (shapes, True),
    "Layout collections_": (layout_collections, False),
    "Fonts0_StorePageShelfImage": (fonts, False),
    "Graphics0_StorePageShelfImage": (graphics, False),
    "videoSectionImages_StorePageShelfImage": (photo_library, False),
}


def make(folder):
    for name, (draw, has_dark) in STRIPS.items():
        draw(False).document.write(f"{folder}/{name}.svg")
        if has_dark:
            draw(True).document.write(f"{folder}/{name}~dark.svg")
