"""The fourth header picture: a link page on a phone, its domain behind it, its visits rising."""


from kit.canvas import Canvas, linear
from kit.geometry import Path
from kit.palette import CORAL, CORAL_DEEP, INK, TEAL, TEAL_DEEP, VIOLET, lighter
from kit.photos import SCENES, photo
from kit.type_outlines import text_width
from paywall_stage import HEIGHT, WIDTH, bleed, deepen, scrim


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
        c.fill(
            Path.rounded(left, top, bar_width, 17, 8.5), linear((left, top), (left + bar_width, top + 17), lighter(tone, 0.1), tone)
        )
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
        c.fill(
            Path.polygon([(left, -4), (left + width, -4), (left + width + 150, HEIGHT), (left + 150, HEIGHT)]),
            linear((0, 0), (0, 190), (0, "#FFFFFF", 0.30), (1, "#FFFFFF", 0)),
        )
    browser(c, 176, 30, 312, 150)
    phone_shadow(c, Path.rounded(147, 9, 110, 222, 19))
    deepen(c, dark)
    scrim(c, "#071A20", 112)
    phone(c, 147, 9, 110, 222)
    c.fill(
        Path.rounded(146, 8, 112, 224, 19.5),
        linear((0, 128), (0, 196), (0, "#071A20", 0), (0.3, "#071A20", 0.12), (0.75, "#071A20", 0.88), (1, "#071A20", 0.98)),
    )
    chart(c, 358, 86, 100, 78)
    return c
