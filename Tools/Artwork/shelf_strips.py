"""The pictures of the store page's shelves.

A strip is repeated 21 times with 16 between the copies, so its tiles stand 16 apart as well and differ from one another."""

import math

from shapely.geometry import LineString, Point

from kit.canvas import Canvas, from_polygon, linear, to_polygon
from kit.geometry import Path, Transform
from kit.palette import (CORAL, CORAL_DEEP, CORAL_PALE, INK, MIST, PAPER, SAND, SKY, SKY_DEEP, SKY_PALE, SUN, SUN_DEEP, SUN_PALE, TEAL,
                         TEAL_DEEP, TEAL_LIGHT, TEAL_PALE, VIOLET, VIOLET_DEEP, VIOLET_PALE, darker, lighter, mix)
from kit.photos import SCENES, blade, photo
from kit.stickers import STICKERS, sticker
from kit.templates import fitted, fruit_slice, lines
from kit.type_outlines import fitted_size, text_path, text_width

GAP = 16
NIGHT_PAGE = "#0F1315"


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
    grown = Path.ellipse(x, y, size / 2 + 1.3) if round_ else Path.rounded(x - size / 2 - 1.3, y - size / 2 - 1.3, size + 2.6, size + 2.6, 2.4)
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
    c.long_shadow(path, 22, 50, "#5A1B10", 0.16)
    c.fill(path, linear((cx - r, cy - r), (cx + r, cy + r), "#FF977D", "#EE5040"))
    selection(c, cx - 54, cy - 54, cx + 54, cy + 54, dark)


def shape_bezier(c, x, w, h, dark):
    points = [(0.18, 0.62), (0.34, 0.24), (0.66, 0.30), (0.83, 0.58), (0.60, 0.80), (0.36, 0.74)]
    nodes = [(x + px * w, py * h) for px, py in points]
    path = Path.smooth(nodes, closed=True, tension=0.62)
    c.long_shadow(path, 20, 50, "#1F155A", 0.16)
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
    c.long_shadow(path, 20, 50, "#5A3A08", 0.16)
    c.fill(path, linear((left, top), (left + width, top + height), "#FFDD86", "#F8B03B"))
    outline_frame(c, left, top, left + width, top + height, dark)
    for px, py in ((left + 18, top + 18), (left + width - 18, top + 18), (left + width - 18, top + height - 18), (left + 18, top + height - 18)):
        handle(c, px, py, 5.4, True, dark)
    slider(c, left, h - 23, width, 0.62, SUN_DEEP, dark)


def shape_union(c, x, w, h, dark):
    cy = h / 2
    first = Path.rounded(x + 24, cy - 48, 74, 74, 12)
    second = Path.ellipse(x + w - 62, cy + 14, 40)
    joined = from_polygon(to_polygon(first, 0.02).union(to_polygon(second, 0.02)))
    c.long_shadow(joined, 22, 50, "#03302E", 0.16)
    c.fill(joined, linear((x + 24, cy - 48), (x + w - 20, cy + 54), "#3CCBC1", "#0A7C78"))
    c.fill(from_polygon(to_polygon(first, 0.02).intersection(to_polygon(second, 0.02))), "#FFFFFF", 0.34)
    for path in (first, second):
        c.stroke(path, "#FFFFFF", 1.5, 0.9)


def shape_sides(c, x, w, h, dark):
    cx, cy, r = x + w / 2, h / 2 - 14, 43
    points = [(cx + r * math.cos(math.radians(-90 + i * 60)), cy + r * math.sin(math.radians(-90 + i * 60))) for i in range(6)]
    path = from_polygon(to_polygon(Path.polygon(points)).buffer(-5).buffer(5, 10))
    c.long_shadow(path, 20, 50, "#0B2F4A", 0.16)
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
    {"paper": ("#F7F1E4", "#EADFC8"), "ink": "#123F3B", "accent": "#0A7C78", "second": "#E08A5B", "face": "didot", "caps": "inter-medium",
     "words": ("Garden", "notes", "Grow slowly."), "photos": ("foliage", "still_life")},
    {"paper": ("#232A63", "#171B45"), "ink": "#FFFFFF", "accent": "#FFC655", "second": "#7C86EE", "face": "sora-bold", "caps": "inter-medium",
     "words": ("After", "dark", "Lights on."), "photos": ("city", "dusk")},
    {"paper": ("#FFDCCB", "#FFBFA6"), "ink": "#5A1F2B", "accent": "#F2604A", "second": "#FFF3E4", "face": "spartan-black", "caps": "inter-semibold",
     "words": ("Sun", "club", "Come along!"), "photos": ("surf", "poppy")},
)


def paper(c, theme, w, h):
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (w, h), *theme["paper"]))


def cover_page(c, theme, w, h):
    """The theme's name and its emblem."""
    paper(c, theme, w, h)
    first, second, _ = theme["words"]
    c.fill(Path.ellipse(w * 0.92, h * 0.96, h * 0.42), linear((w * 0.5, h * 0.5), (w, h), lighter(theme["accent"], 0.16), theme["accent"]))
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

LIBRARY = (("lake", 140), ("portrait", 74), ("arches", 104), ("surf", 93), ("city", 128), ("poppy", 84), ("road", 150), ("coffee", 93), ("dusk", 132), ("foliage", 80))


def photo_library(dark):
    row = Row(93, [width for _, width in LIBRARY])
    for (left, width), (scene, _) in zip(row.tiles(), LIBRARY):
        photo(row.canvas, scene, left, 0, width, row.height, 10)
    return row.canvas


# PDF: a print sheet with its marks, and what else comes off the press

def crop_marks(c, left, top, right, bottom, ink):
    """Two hairlines at each corner, clear of the trim."""
    for x, side in ((left, -1), (right, 1)):
        for y, end in ((top, -1), (bottom, 1)):
            c.fill(Path.rect(x - 0.4, y + (5 if end > 0 else -15), 0.8, 10), ink)
            c.fill(Path.rect(x + (5 if side > 0 else -15), y - 0.4, 10, 0.8), ink)


def registration(c, x, y, ink):
    c.fill(Path.ring(x, y, 3.6, 2.9), ink)
    c.fill(Path.rect(x - 5.4, y - 0.35, 10.8, 0.7), ink)
    c.fill(Path.rect(x - 0.35, y - 5.4, 0.7, 10.8), ink)


def print_sheet(c, x, y, width, height):
    sheet = Path.rounded(x, y, width, height, 2.5)
    c.long_shadow(sheet, 30, 50, INK, 0.16)
    c.soft_shadow(sheet, 2, 4, 7, INK, 0.13, 6)
    c.fill(sheet, linear((x, y), (x + width, y + height), "#FFFFFF", "#F4F2EC"))
    ink, margin = "#23292D", 21
    left, top, right, bottom = x + margin, y + margin, x + width - margin, y + height - margin
    with c.clipped(Path.rect(left - 3, top - 3, right - left + 6, bottom - top + 6)) as bleed:
        with bleed.placed(left - 3, top - 3) as poster:
            poster_art(poster, right - left + 6, bottom - top + 6)
    crop_marks(c, left, top, right, bottom, ink)
    registration(c, x + width / 2, y + 9.5, ink)
    registration(c, x + 9.5, y + height / 2, ink)
    registration(c, x + width - 9.5, y + height / 2, ink)
    for i, tone in enumerate(("#12A5DC", "#E2247F", "#FFD400", "#1B1B1B", "#B9BEC1")):
        c.fill(Path.rect(x + width / 2 - 25 + i * 10, y + height - 13, 9, 7), tone)


def poster_art(c, w, h):
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (w, h), "#FF8A6B", "#F25A45"))
    fruit_slice(c, w * 0.68, h * 0.77, w * 0.41, "#FFD95E", "#F3B32B", 12)
    fruit_slice(c, w * 0.13, h * 0.86, w * 0.25, "#FF9C5F", "#E8562B", -10)
    fitted(c, "FRESH", "bebas", 10, 10 + fitted_size("FRESH", "bebas", w - 20) * 0.72, w - 20, "#FFFFFF")
    c.text("press days", "lobster", 17, 10.5, 66, "#FFF1DC")


def business_card(c, x, y, degrees, face):
    with c.placed(x, y, degrees) as card:
        outline = Path.rounded(0, 0, 92, 54, 3)
        card.long_shadow(outline, 20, 50 - degrees, INK, 0.18)
        card.soft_shadow(outline, 1.5, 3, 5, INK, 0.13, 5)
        if face == "front":
            card.fill(outline, linear((0, 0), (92, 54), "#14938B", "#075553"))
            with card.clipped(outline) as inside:
                inside.fill(Path.scalloped(86, 4, 26, 8, 0.14), "#FFC655")
            card.text("Ada Quill", "sora-semibold", 11, 9, 34, "#FFFFFF")
            lines(card, 9, 40, (36,), "#FFFFFF", 0.7, 5, 2)
        else:
            card.fill(outline, linear((0, 0), (92, 54), "#FFFFFF", "#F1EEE6"))
            card.fill(Path.scalloped(17, 18, 9, 8, 0.14), "#FF6F5B")
            lines(card, 9, 35, (44, 34, 39), INK, 0.5, 5, 1.9)


def letter(c, x, y, degrees):
    with c.placed(x, y, degrees) as sheet:
        outline = Path.rounded(0, 0, 96, 132, 2.5)
        sheet.long_shadow(outline, 24, 50 - degrees, INK, 0.15)
        sheet.soft_shadow(outline, 2, 4, 6, INK, 0.12, 5)
        sheet.fill(outline, linear((0, 0), (96, 132), "#FFFFFF", "#F3F0E9"))
        sheet.fill(Path.rect(0, 6, 4, 120), TEAL)
        sheet.fill(Path.scalloped(19, 19, 7.5, 8, 0.14), SUN)
        sheet.text("Quill & Co", "didot", 12.5, 31, 23.3, INK)
        lines(sheet, 13, 42, (40,), INK, 0.6, 7, 2.2)
        lines(sheet, 13, 54, (70, 66, 70, 58, 70, 68, 44), INK, 0.28, 7, 2.2)
        sheet.text("Ada", "dancing", 16, 13, 119, TEAL_DEEP)


def pdf_badge(c, x, y):
    page_ = Path().move(x + 4, y).line(x + 26, y).line(x + 38, y + 12).line(x + 38, y + 46)
    page_.cubic(x + 38, y + 48.4, x + 36.4, y + 50, x + 34, y + 50).line(x + 4, y + 50)
    page_.cubic(x + 1.6, y + 50, x, y + 48.4, x, y + 46).line(x, y + 4).cubic(x, y + 1.6, x + 1.6, y, x + 4, y).close()
    c.long_shadow(page_, 16, 50, "#3A0E08", 0.22)
    c.fill(page_, linear((x, y), (x + 38, y + 50), "#FF8A74", "#EB5140"))
    c.fill(Path.polygon([(x + 26, y), (x + 38, y + 12), (x + 26, y + 12)]), "#FFC9BD")
    c.text("PDF", "sora-extrabold", 12.4, x + 19, y + 37, "#FFFFFF", "center", 0.02)


def pdfs(dark):
    c = Canvas(343, 217)
    first, last = ("#1E2629", "#171D20") if dark else ("#F7F3EB", "#E9E1D2")
    panel = Path.rounded(0, 0, 343, 217, 16)
    c.fill(panel, linear((0, 0), (343, 217), first, last))
    with c.clipped(panel) as desk:
        letter(desk, 30, 46, -9)
        print_sheet(desk, 104, 17, 140, 184)
        business_card(desk, 229, 58, 8, "front")
        business_card(desk, 214, 118, -5, "back")
        pdf_badge(desk, 286, 148)
    return c


# Cloud: one document on three devices

def device(c, x, y, width, height, radius, bezel, dark):
    outline = Path.rounded(x, y, width, height, radius)
    c.long_shadow(outline, 14, 52, INK, 0.16)
    c.fill(outline, linear((x, y), (x + width, y + height), *(("#5B666C", "#363F44") if dark else ("#333C42", "#14191D"))))
    return Path.rounded(x + bezel, y + bezel, width - 2 * bezel, height - 2 * bezel, max(1.5, radius - bezel))


def shared_document(c, screen, dark):
    """The poster that all three devices show, fitted to the screen it is on, in the editor's grey surroundings."""
    left, top, right, bottom = screen.bounds()
    w, h = right - left, bottom - top
    with c.clipped(screen) as inside:
        inside.fill(Path.rect(left, top, w, h), linear((left, top), (right, bottom), "#EEF1F0", "#DCE2E1"))
        page_height = min(h - 13, (w - 10) * 1.32)
        page_width = page_height / 1.32
        x, y = left + (w - page_width) / 2, top + (h - page_height) / 2
        frame = Path.rounded(x, y, page_width, page_height, page_width * 0.05)
        inside.soft_shadow(frame, 1, 2, 3, INK, 0.2, 4)
        with inside.placed(x, y) as place:
            with place.clipped(Path.rounded(0, 0, page_width, page_height, page_width * 0.05)) as sheet:
                swim_poster(sheet, page_width, page_height)
        return x, y, page_width, page_height


def swim_poster(c, w, h):
    u = w / 90
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (0, h), "#FFD48A", "#FFB37E"))
    c.fill(Path.ellipse(w * 0.66, h * 0.40, 20 * u), linear((w * 0.4, h * 0.2), (w * 0.9, h * 0.6), "#FF8A6B", "#F2604A"))
    for i, tone in enumerate(("#35B5AC", "#12918A", "#0B6E6E", "#0A5058")):
        y = h * (0.56 + i * 0.115)
        points = [(w * (-0.15 + k * 0.2), y + (4 * u if k % 2 else -4 * u) * (1 if i % 2 else -1)) for k in range(8)]
        c.fill(Path.smooth(points, tension=0.72).line(w * 1.3, h * 1.1).line(-w * 0.2, h * 1.1).close(), tone)
    c.text("Island", "sora-extrabold", 19 * u, 8 * u, 24 * u, "#0A4A50")
    c.text("hours", "sora-extrabold", 19 * u, 8 * u, 43 * u, "#0A4A50")


def editor_rails(c, screen, dark):
    """Tool dots at the left of a wide screen, a panel at its right."""
    left, top, right, bottom = screen.bounds()
    with c.clipped(screen) as inside:
        inside.fill(Path.rect(left, top, 15, bottom - top), "#FFFFFF")
        for i in range(5):
            inside.fill(Path.rounded(left + 4.5, top + 8 + i * 13, 6, 6, 2), TEAL if i == 1 else "#B4BEC1")
        inside.fill(Path.rect(right - 42, top, 42, bottom - top), "#FFFFFF")
        lines(inside, right - 36, top + 9, (20, 28), INK, 0.4, 6, 2.2)
        for i, tone in enumerate(("#0A7C78", "#FF6F5B", "#FFC655")):
            inside.fill(Path.rounded(right - 36 + i * 11, top + 24, 8.5, 8.5, 2.6), tone)
        lines(inside, right - 36, top + 41, (30, 24, 28), INK, 0.22, 6.5, 2.2)


def laptop(c, x, y, dark):
    screen = device(c, x, y, 182, 116, 8, 4.5, dark)
    shared_document(c, screen, dark)
    editor_rails(c, screen, dark)
    base = Path().move(x - 17, y + 116).line(x + 199, y + 116).cubic(x + 199, y + 122, x + 194, y + 124.5, x + 188, y + 124.5)
    base.line(x - 6, y + 124.5).cubic(x - 12, y + 124.5, x - 17, y + 122, x - 17, y + 116).close()
    c.fill(base, linear((0, y + 116), (0, y + 125), *(("#8B979D", "#5C676D") if dark else ("#D9DEDF", "#A9B2B5"))))
    c.fill(Path.rounded(x + 73, y + 116, 36, 3.6, 1.8), INK, 0.22)


def cloud(c, x, y, dark):
    """The place where the document lives, safe; a ring of the page's colour sets it off from the devices."""
    shape = to_polygon(Path.rounded(x - 30, y - 4, 60, 22, 11), 0.02)
    for dx, dy, radius in ((-12, -4, 13), (7, -8, 17)):
        shape = shape.union(Point(x + dx, y + dy).buffer(radius, 24))
    c.fill(from_polygon(shape.buffer(4, 12)), NIGHT_PAGE if dark else "#FFFFFF")
    c.fill(from_polygon(shape.buffer(2, 10).buffer(-2, 10)), linear((x - 28, y - 24), (x + 28, y + 18), "#27B3AA", "#0A7C78"))
    c.fill(from_polygon(LineString([(x - 8, y + 2), (x - 2, y + 8), (x + 10, y - 5)]).buffer(2, 12)), "#FFFFFF")


def cloud_devices(dark):
    c = Canvas(343, 159)
    laptop(c, 78, 22, dark)
    shared_document(c, device(c, 16, 52, 76, 97, 8, 4, dark), dark)
    shared_document(c, device(c, 270, 55, 48, 94, 10, 3, dark), dark)
    cloud(c, 272, 29, dark)
    return c


STRIPS = {
    "PDFs0_StorePageShelfImage": (pdfs, True),
    "iCloud_StorePageShelfImage": (cloud_devices, True),
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
