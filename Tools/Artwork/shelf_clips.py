"""The two clips of the store page's shelves, for light and dark surroundings.

They stand on the page's own background and keep clear of their edges, so they may be shown fitted or filled."""

from dataclasses import dataclass

from shapely.geometry import LineString

from kit.canvas import from_polygon, linear
from kit.clip_writer import Clip
from kit.geometry import Path
from kit.motion import ease, span
from kit.palette import INK, TEAL, TEAL_LIGHT, lighter, mix
from kit.photos import SCENES
from kit.templates import lines
from kit.type_outlines import fitted_size, text_width

WIDTH = 343


@dataclass(frozen=True)
class Surroundings:
    page: str
    blank: str  # an empty card or tile
    slot: str  # an empty place on it
    shadow: float
    guide: str  # the selection frame


LIGHT = Surroundings("#FFFFFF", "#EEF0EE", "#D5DBDA", 0.15, TEAL)
# The page is #0F1315; video colours come back a step darker, so the clip starts a step lighter.
DARK = Surroundings("#101516", "#20272B", "#343D42", 0.0, TEAL_LIGHT)


def page_ground(c, height, around):
    c.fill(Path.rect(-2, -2, WIDTH + 4, height + 4), around.page)


# A template being filled in

CARD_WIDTH, CARD_HEIGHT = 107, 143
SPACING = 124
# How far from either side the cards have faded into the page.
FADE = 88


@dataclass(frozen=True)
class Template:
    paper: tuple
    ink: str
    accent: str
    scene: str
    headline: str
    face: str
    button: str
    photo: tuple  # left, top, width, height
    headline_top: float
    text_top: float
    button_top: float


TEMPLATES = (
    Template(
        ("#FFF6E9", "#FBE3CB"), "#5A2B1B", "#E8593F", "arches", "Casa Sol", "didot", "Book a stay", (8, 8, 91, 70), 84, 107, 122
    ),
    Template(
        ("#2B2F78", "#191B4D"), "#FFFFFF", "#FFC655", "city", "Open late", "sora-bold", "Reserve", (8, 46, 91, 66), 10, 33, 120
    ),
)


def blank_card(c, template, around):
    """The places that the template leaves for its owner."""
    c.fill(Path.rounded(0, 0, CARD_WIDTH, CARD_HEIGHT, 8), around.blank)
    left, top, width, height = template.photo
    c.fill(Path.rounded(left, top, width, height, 5), around.slot)
    cx, cy = left + width / 2, top + height / 2
    hills = Path.smooth([(cx - 17, cy + 11), (cx - 7, cy - 2), (cx, cy + 6), (cx + 7, cy - 5), (cx + 17, cy + 11)], tension=0.3)
    c.fill(hills.close(), around.blank)
    c.fill(Path.ellipse(cx - 9, cy - 9, 3.6), around.blank)
    c.fill(Path.rounded(9, template.headline_top + 3, 70, 10, 5), around.slot)
    lines(c, 9, template.text_top, (86, 62), around.slot, 1, 6, 2.6)
    c.fill(Path.rounded(9, template.button_top, 52, 15, 7.5), around.slot)


def filled_card(c, template, done):
    """The same card with its parts put in one after another; done runs from 0 to 1."""
    paper = ease(span(done, 0.0, 0.16))
    if paper > 0:
        outline = Path.rounded(0, 0, CARD_WIDTH, CARD_HEIGHT, 8)
        c.fill(outline, linear((0, 0), (CARD_WIDTH, CARD_HEIGHT), *template.paper), paper)
        faint = mix(template.ink, template.paper[0], 0.82)
        left, top, width, height = template.photo
        c.fill(Path.rounded(left, top, width, height, 5), faint, paper)
        c.fill(Path.rounded(9, template.headline_top + 3, 70, 10, 5), faint, paper * (1 - span(done, 0.38, 0.44)))
        lines(c, 9, template.text_top, (86, 62), faint, paper, 6, 2.6)
        c.fill(Path.rounded(9, template.button_top, 52, 15, 7.5), faint, paper)
    fill_photo(c, template, ease(span(done, 0.14, 0.36)))
    fill_headline(c, template, span(done, 0.40, 0.64))
    fill_text(c, template, done)


def fill_photo(c, template, shown):
    if shown <= 0.01:
        return
    left, top, width, height = template.photo
    inset_x, inset_y = width / 2 * (1 - shown), height / 2 * (1 - shown)
    window = Path.rounded(left + inset_x, top + inset_y, width - 2 * inset_x, height - 2 * inset_y, 5)
    with c.clipped(window) as inside:
        with inside.placed(left + width / 2, top + height / 2, 0, 1.16 - 0.16 * shown) as zoomed:
            with zoomed.placed(-width / 2, -height / 2) as place:
                SCENES[template.scene](place, width, height)


def fill_headline(c, template, typed):
    count = round(typed * len(template.headline))
    if count == 0:
        return
    size = min(fitted_size(template.headline, template.face, 88), 20)
    base = template.headline_top + 16
    word = template.headline[:count]
    c.text(word, template.face, size, 9, base, template.ink)
    if typed < 1:
        x = 9 + text_width(word.rstrip() or word, template.face, size) + 1.6
        c.fill(Path.rect(x, base - size * 0.78, 1.4, size * 0.98), template.accent)


def fill_text(c, template, done):
    for i, width in enumerate((86, 62)):
        shown = ease(span(done, 0.62 + i * 0.06, 0.76 + i * 0.06))
        if shown > 0.02:
            c.fill(Path.rounded(9, template.text_top + i * 6, width * shown, 2.6, 1.3), template.ink, 0.62)
    button = ease(span(done, 0.82, 0.94))
    if button > 0.01:
        with c.placed(35, template.button_top + 7.5, 0, 0.9 + 0.1 * button, button) as place:
            place.fill(Path.rounded(-26, -7.5, 52, 15, 7.5), template.accent)
            place.text(
                template.button, "inter-semibold", 6.8, 0, 2.5, "#FFFFFF" if template.ink != "#FFFFFF" else "#1B1D4F", "center"
            )


def guide(c, template, done, around):
    """The editor's frame, gliding from one part to the next."""
    left, top, width, height = template.photo
    stations = (
        (left, top, width, height),
        (7, template.headline_top, 93, 20),
        (7, template.text_top - 3.5, 93, 15),
        (7, template.button_top - 2, 56, 19),
    )
    arrivals = (0.10, 0.38, 0.62, 0.80)
    frame = stations[0]
    for station, at in zip(stations[1:], arrivals[1:]):
        share = ease(span(done, at - 0.07, at + 0.02))
        frame = tuple(a + (b - a) * share for a, b in zip(frame, station))
    opacity = span(done, 0.04, 0.10) * (1 - span(done, 0.94, 0.99))
    if opacity <= 0.01:
        return
    x, y, w, h = frame
    corners = [(x, y), (x + w, y), (x + w, y + h), (x, y + h)]
    c.fill(from_polygon(LineString(corners + corners[:1]).buffer(0.65, join_style=2)), around.guide, opacity)
    for px, py in corners:
        c.fill(Path.rounded(px - 3, py - 3, 6, 6, 1.8), around.guide, opacity)
        c.fill(Path.rounded(px - 1.9, py - 1.9, 3.8, 3.8, 1), "#FFFFFF", opacity)


def fade_into_page(c, around):
    """Cards come and go at both sides without being cut."""
    eased = ((0, 1), (0.04, 1), (0.16, 0.96), (0.3, 0.85), (0.44, 0.66), (0.58, 0.42), (0.72, 0.2), (0.86, 0.05), (1, 0))
    stops = [(offset, around.page, share) for offset, share in eased]
    c.fill(Path.rect(-2, -2, FADE + 2, 175), linear((0, 0), (FADE, 0), *stops))
    c.fill(Path.rect(WIDTH - FADE, -2, FADE + 2, 175), linear((WIDTH, 0), (WIDTH - FADE, 0), *stops))


def templates(c, phase, around):
    page_ground(c, 171, around)
    # The loop opens on a finished template.
    phase = (phase + 0.37) % 1
    current = int(phase * 2)
    within = phase * 2 - current
    slide = ease(span(within, 0.82, 1.0))
    done = span(within, 0.02, 0.70)
    for offset in (-2, -1, 1, 2, 0):
        template = TEMPLATES[(current + offset) % 2]
        place = offset - slide
        distance = min(1.0, abs(place))
        scale = 1 - 0.14 * distance
        with c.placed(WIDTH / 2 + place * SPACING, 85.5, 0, scale) as middle:
            with middle.placed(-CARD_WIDTH / 2, -CARD_HEIGHT / 2) as card:
                outline = Path.rounded(0, 0, CARD_WIDTH, CARD_HEIGHT, 8)
                if around.shadow:
                    card.soft_shadow(outline, 1.5, 4, 5, INK, around.shadow * (1.15 - 0.5 * distance), 9)
                blank_card(card, template, around)
                filled = 1.0 if offset < 0 else done if offset == 0 else 0.0
                filled_card(card, template, filled)
                card.fill(outline, around.page, 0.42 * distance)
                if offset == 0:
                    guide(card, template, done, around)
    fade_into_page(c, around)


# A brand landing on its board

BOARD = {"logo": (13, 12, 142, 172), "colors": (165, 12, 165, 78), "type": (165, 100, 165, 84)}
COLORS = ("#0A7C78", "#FF6F5B", "#FFC655", "#6D5BD0", "#D9C4A2")


def emblem(c, x, y, radius, paint, core):
    c.fill(Path.scalloped(x, y, radius, 8, 0.13), paint)
    c.fill(Path.ellipse(x, y, radius * 0.42), core)


def plus(c, box, around, opacity):
    x, y, w, h = box
    cx, cy = x + w / 2, y + h / 2
    c.fill(Path.rounded(cx - 7, cy - 1.2, 14, 2.4, 1.2), around.slot, opacity)
    c.fill(Path.rounded(cx - 1.2, cy - 7, 2.4, 14, 1.2), around.slot, opacity)


def present(phase, land, leave):
    """0 before an element lands and after it leaves, 1 while it stays; each move takes a tenth of the loop."""
    return ease(span(phase, land, land + 0.10)) * (1 - ease(span(phase, leave, leave + 0.08)))


def logo_tile(c, phase, around):
    x, y, w, h = BOARD["logo"]
    outline = Path.rounded(x, y, w, h, 14)
    cx, cy = x + w / 2, y + h / 2
    flood = present(phase, 0.06, 0.90)
    c.fill(outline, around.blank)
    plus(c, BOARD["logo"], around, 1 - min(1, flood * 3))
    if flood > 0.01:
        with c.clipped(outline) as inside:
            inside.fill(Path.ellipse(cx, cy, 118 * flood), linear((x, y), (x + w, y + h), "#14938B", "#075A57"))
    landed = present(phase, 0.12, 0.88)
    if landed > 0.01:
        with c.placed(cx, cy - 14, -30 * (1 - landed), 1.5 - 0.5 * landed, landed) as mark:
            emblem(mark, 0, 0, 29, linear((-29, -29), (29, 29), "#FFDC82", "#FFB53E"), "#0A6A67")
    named = present(phase, 0.18, 0.87)
    if named > 0.01:
        with c.placed(cx, cy + 40 + 8 * (1 - named), opacity=named) as name:
            name.text("Quill & Co", "didot", fitted_size("Quill & Co", "didot", 98), 0, 0, "#FFFFFF", "center")
            name.text("PAPER GOODS", "inter-medium", 6.6, 0, 14, "#D8F1EE", "center", 0.24)


def color_tile(c, phase, around):
    x, y, w, h = BOARD["colors"]
    c.fill(Path.rounded(x, y, w, h, 14), around.blank)
    for i, tone in enumerate(COLORS):
        sx, sy = x + 21 + i * 30.8, y + h / 2
        c.fill(Path.ellipse(sx, sy, 11.6), around.slot)
        dropped = present(phase, 0.26 + i * 0.035, 0.86 + i * 0.008)
        if dropped > 0.01:
            with c.placed(sx, sy - 22 * (1 - dropped), opacity=min(1, dropped * 1.6)) as swatch:
                swatch.fill(Path.ellipse(0, 0, 13), linear((-10, -10), (10, 10), lighter(tone, 0.10), tone))


def type_tile(c, phase, around):
    x, y, w, h = BOARD["type"]
    outline = Path.rounded(x, y, w, h, 14)
    c.fill(outline, around.blank)
    shown = present(phase, 0.46, 0.87)
    plus(c, BOARD["type"], around, 1 - min(1, shown * 3))
    if shown <= 0.01:
        return
    ink = "#F3F5F4" if around is DARK else INK
    with c.clipped(outline) as inside:
        with inside.placed(x + 18, y + 61 + 60 * (1 - shown)) as letters:
            letters.text("Aa", "didot", 58, 0, 0, ink)
        for i, (word, face, size) in enumerate((("Headlines", "didot", 14.5), ("Small print", "inter-medium", 9.4))):
            late = present(phase, 0.52 + i * 0.04, 0.86)
            with inside.placed(x + 92 + 18 * (1 - late), y + 40 + i * 17, opacity=late) as sample:
                sample.text(word, face, size, 0, 0, ink, opacity=1 if i == 0 else 0.75)


def branding(c, phase, around):
    page_ground(c, 196, around)
    # The loop opens on the finished board, so that a still of its start shows the thing.
    phase = (phase + 0.72) % 1
    logo_tile(c, phase, around)
    color_tile(c, phase, around)
    type_tile(c, phase, around)


SHELF = (
    Clip("StorePageTemplatesVideo", WIDTH, 171, 6, lambda c, phase: templates(c, phase, LIGHT)),
    Clip("StorePageTemplatesVideo_dark", WIDTH, 171, 6, lambda c, phase: templates(c, phase, DARK)),
    Clip("StorePageBrandingVideo", WIDTH, 196, 5, lambda c, phase: branding(c, phase, LIGHT)),
    Clip("StorePageBrandingVideo_dark", WIDTH, 196, 5, lambda c, phase: branding(c, phase, DARK)),
)
