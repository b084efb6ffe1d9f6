"""The fourth header picture: a link page on a phone, its domain behind it, its visits rising."""


from kit.canvas import Canvas, linear
from kit.geometry import Path
from kit.palette import CORAL, CORAL_DEEP, INK, TEAL, TEAL_DEEP, VIOLET, lighter
from kit.photos import SCENES, photo
from kit.type_outlines import text_width
from paywall_stage import FOOT_TOP, HEIGHT, WIDTH, bleed, deepen, foot_color, scrim


def browser(c, x, y, width, height):
    """A shop's page under an address bar with its own name in it."""
    outline = Path.rounded(x, y, width, height, 11)
    c.soft_shadow(outline, 4, 8, 12, "#0B2540", 0.24, 9)
    c.fill(outline, "#FFFFFF")
    hero = y + 27
    with c.clipped(outline) as inside:
        inside.fill(Path.rect(x, y, width, 27), linear((x, y), (x, y + 27), "#F3F5F5", "#E6EAEB"))
        inside.fill(Path.rect(x, hero, width, 44), linear((x, hero), (x + width, hero + 44), "#FFE7C9", "#FFC98F"))
        inside.text("Fern & Oat", "arapey-black", 14.5, x + 55, hero + 21, "#3B2618")
        lines_at(inside, x + 55.5, hero + 28, (52, 36), "#3B2618")
        for i, scene in enumerate(("coffee", "poppy", "foliage", "arches")):
            photo(inside, scene, x + 55 + i * 44, hero + 51, 38, 34, 5)
    field = Path.rounded(x + 54, y + 5.2, width - 68, 16.6, 8.3)
    c.fill(field, "#FFFFFF")
    lock_x, lock_y = x + 65, y + 14
    c.stroke(Path.arc(lock_x, lock_y - 1.4, 2.1, 180, 360), TEAL, 1.2)
    c.fill(Path.rounded(lock_x - 3.2, lock_y - 1.4, 6.4, 5, 1.4), TEAL)
    c.text("fernandoat", "inter-semibold", 9.8, x + 72.5, y + 17.2, INK)
    c.text(".shop", "inter-semibold", 9.8, x + 72.5 + text_width("fernandoat", "inter-semibold", 9.8) + 0.2, y + 17.2, TEAL)


def lines_at(c, x, y, widths, paint, opacity=0.45, pitch=6, thickness=2.4):
    for i, width in enumerate(widths):
        c.fill(Path.rounded(x, y + i * pitch, width, thickness, thickness / 2), paint, opacity)


def phone_shadow(c, outline):
    """Soft, so that the address beside the phone stays readable."""
    c.soft_shadow(outline, 3, 7, 11, "#0B2540", 0.26, 10)


def phone(c, x, y, width, height):
    c.fill(Path.rounded(x, y, width, height, 18), linear((x, y), (x + width, y + height), "#2B343A", "#0F1316"))
    inset = 4
    screen = Path.rounded(x + inset, y + inset, width - 2 * inset, height - 2 * inset, 14.5)
    with c.clipped(screen) as page_:
        page_.fill(Path.rect(x, y, width, height), linear((x, y), (x + width, y + height), "#FFF3E4", "#FFD9C4"))
        page_.fill(Path.rect(x, y, width, 33), linear((x, y), (x + width, y + 33), "#17938B", "#0A6A67"))
    middle = x + width / 2
    c.fill(Path.rounded(middle - 13, y + 7, 26, 6, 3), "#0F1316")
    c.fill(Path.ellipse(middle, y + 34, 16), "#FFF3E4")
    with c.clipped(Path.ellipse(middle, y + 34, 14.2)) as avatar:
        with avatar.placed(middle - 14.3, y + 18.8) as face:
            SCENES["portrait"](face, 28.6, 30.4)
    c.text("Mara Fern", "sora-bold", 9.6, middle, y + 61, "#2B1B14", "center")
    left, bar_width = x + 11, width - 22
    for i, (label, tone) in enumerate((("Shop the bakes", TEAL), ("Book a class", CORAL_DEEP), ("Newsletter", VIOLET))):
        top = y + 68 + i * 19
        c.fill(
            Path.rounded(left, top, bar_width, 16, 8), linear((left, top), (left + bar_width, top + 16), lighter(tone, 0.1), tone)
        )
        c.text(label, "inter-semibold", 7.2, middle, top + 10.6, "#FFFFFF", "center")


def chart(c, x, y, width, height):
    outline = Path.rounded(x, y, width, height, 10)
    c.soft_shadow(outline, 3, 6, 9, "#0B2540", 0.26, 9)
    c.fill(outline, "#FFFFFF")
    c.text("Visits", "inter-medium", 7.8, x + 10, y + 15.6, "#5A6268")
    c.fill(Path.rounded(x + width - 39, y + 6.5, 30, 12.6, 6.3), "#D8F1EE")
    c.text("+38%", "inter-bold", 7.6, x + width - 24, y + 15.6, TEAL_DEEP, "center")
    base, count = y + height - 9, 6
    bar, gap = 7.8, (width - 20 - 6 * 7.8) / 5
    heights = (0.24, 0.36, 0.33, 0.54, 0.70, 1.0)
    for i, share in enumerate(heights):
        tall = share * (height - 38)
        left = x + 10 + i * (bar + gap)
        paint = linear((0, base - tall), (0, base), "#19A59D", TEAL) if i == count - 1 else "#BFE6E1"
        c.fill(Path.rounded(left, base - tall, bar, tall, 2.6), paint)
    points = [(x + 10 + bar / 2 + i * (bar + gap), base - heights[i] * (height - 38) - 5.5) for i in range(count)]
    c.stroke(Path.smooth(points), CORAL, 2)
    c.fill(Path.ellipse(*points[-1], 3.3), "#FFFFFF")
    c.fill(Path.ellipse(*points[-1], 2.3), CORAL)


def note(c, x, y, text, tone, mark):
    """What the links bring in, as it arrives on a desk: only wide screens have room for it."""
    width = text_width(text, "inter-semibold", 8.4) + 38
    outline = Path.rounded(x, y, width, 26, 13)
    c.soft_shadow(outline, 2, 5, 8, "#0B2540", 0.20, 7)
    c.fill(outline, "#FFFFFF")
    c.fill(Path.ellipse(x + 13, y + 13, 8.4), linear((x + 5, y + 5), (x + 21, y + 21), lighter(tone, 0.14), tone))
    c.stroke(Path.polyline([(x + 13 + px, y + 13 + py) for px, py in mark]), "#FFFFFF", 1.7)
    c.text(text, "inter-semibold", 8.4, x + 26, y + 16, INK)


CHECK = ((-3.2, 0.2), (-0.9, 2.5), (3.4, -2.3))
PLUS = ((-3.2, 0), (3.2, 0), (0, 0), (0, -3.2), (0, 3.2))


def header_d(dark):
    c = Canvas(WIDTH, HEIGHT)
    c.fill(bleed(), linear((0, 0), (WIDTH * 0.75, HEIGHT), "#BFE3FA", "#79BDEB", "#3F8DC6"))
    for left, width in ((-40, 120), (120, 70), (330, 150), (520, 60)):
        c.fill(
            Path.polygon([(left, -4), (left + width, -4), (left + width + 150, HEIGHT), (left + 150, HEIGHT)]),
            linear((0, 0), (0, 190), (0, "#FFFFFF", 0.30), (1, "#FFFFFF", 0)),
        )
    browser(c, 222, 58, 226, 130)
    note(c, 5, 56, "Booked", TEAL, CHECK)
    note(c, 13, 94, "12 fans", VIOLET, PLUS)
    note(c, 518, 80, "Sold out", CORAL_DEEP, CHECK)
    outline = Path.rounded(158, 24, 102, 206, 18)
    phone_shadow(c, outline)
    deepen(c, dark)
    scrim(c, dark, 104)
    phone(c, 158, 24, 102, 206)
    eased = ((0, 0), (0.25, 0.06), (0.5, 0.45), (0.75, 0.88), (1, 1))
    c.fill(
        Path.rect(156, 138, 106, 94),
        linear((0, 142), (0, FOOT_TOP - 8), *[(offset, foot_color(dark), share) for offset, share in eased]),
    )
    chart(c, 365, 96, 90, 62)
    return c
