"""The two pictures of the store page's shelves that stand alone: the print sheet, and one document on three devices."""

from shapely.geometry import LineString, Point

from kit.canvas import Canvas, from_polygon, linear, to_polygon
from kit.geometry import Path
from kit.palette import INK, SUN, TEAL, TEAL_DEEP
from kit.templates import fitted, fruit_slice, lines
from kit.type_outlines import fitted_size

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


def shared_document(c, screen):
    """The poster that all three devices show, fitted to the screen it is on, in the editor's grey surroundings."""
    left, top, right, bottom = screen.bounds()
    w, h = right - left, bottom - top
    page_height = min(h - 13, (w - 10) * 1.32)
    page_width = page_height / 1.32
    desk_and_poster(c, screen, left + (w - page_width) / 2, top + (h - page_height) / 2, page_width, page_height)


def phone_document(c, screen):
    """The same poster over the phone's whole width, with the editor's tools under it."""
    left, top, right, bottom = screen.bounds()
    desk_and_poster(c, screen, left + 3, top + 8, right - left - 6, bottom - top - 20)
    for i in range(3):
        c.fill(Path.ellipse((left + right) / 2 + (i - 1) * 8.5, bottom - 6.2, 2.2), TEAL if i == 1 else "#AEB8BB")
    c.fill(Path.rounded((left + right) / 2 - 5, top + 2.6, 10, 2.6, 1.3), INK)


def desk_and_poster(c, screen, x, y, width, height):
    left, top, right, bottom = screen.bounds()
    with c.clipped(screen) as inside:
        inside.fill(Path.rect(left, top, right - left, bottom - top), linear((left, top), (right, bottom), "#EEF1F0", "#DCE2E1"))
        frame = Path.rounded(x, y, width, height, width * 0.05)
        inside.soft_shadow(frame, 1, 2, 3, INK, 0.2, 4)
        with inside.placed(x, y) as place:
            with place.clipped(Path.rounded(0, 0, width, height, width * 0.05)) as sheet:
                swim_poster(sheet, width, height)


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


def editor_rails(c, screen):
    """Tool dots at the left of a wide screen, a panel at its right."""
    left, top, right, bottom = screen.bounds()
    with c.clipped(screen) as inside:
        inside.fill(Path.rect(left, top, 13, bottom - top), "#FFFFFF")
        for i in range(5):
            inside.fill(Path.rounded(left + 4, top + 8 + i * 11.5, 5, 5, 1.7), TEAL if i == 1 else "#B4BEC1")
        inside.fill(Path.rect(right - 36, top, 36, bottom - top), "#FFFFFF")
        lines(inside, right - 30, top + 8, (17, 23), INK, 0.4, 5.4, 2)
        for i, tone in enumerate(("#0A7C78", "#FF6F5B", "#FFC655")):
            inside.fill(Path.rounded(right - 30 + i * 9, top + 21, 7, 7, 2.2), tone)
        lines(inside, right - 30, top + 35, (24, 19, 23), INK, 0.22, 5.8, 2)


def laptop(c, x, y, dark):
    """Its screen is 150 x 98; its base reaches 14 further at both sides."""
    foot = y + 98
    base = Path().move(x - 14, foot).line(x + 164, foot).cubic(x + 164, foot + 5, x + 160, foot + 7.5, x + 155, foot + 7.5)
    base.line(x - 5, foot + 7.5).cubic(x - 10, foot + 7.5, x - 14, foot + 5, x - 14, foot).close()
    c.long_shadow(base, 12, 52, INK, 0.16)
    with c.clipped(Path.rect(0, 0, 343, foot)) as above:
        screen = device(above, x, y, 150, 98, 7, 4, dark)
    shared_document(c, screen)
    editor_rails(c, screen)
    c.fill(base, linear((0, foot), (0, foot + 8), *(("#8B979D", "#5C676D") if dark else ("#D9DEDF", "#A9B2B5"))))
    c.fill(Path.rounded(x + 60, foot, 30, 3, 1.5), INK, 0.22)


def cloud(c, x, y):
    """The place where the document lives, safe."""
    shape = to_polygon(Path.rounded(x - 26, y - 3, 52, 19, 9.5), 0.02)
    for dx, dy, radius in ((-10, -3, 11.5), (6, -7, 15)):
        shape = shape.union(Point(x + dx, y + dy).buffer(radius, 24))
    outline = from_polygon(shape.buffer(2, 10).buffer(-2, 10))
    c.long_shadow(outline, 9, 52, INK, 0.14)
    c.fill(outline, linear((x - 24, y - 21), (x + 24, y + 16), "#27B3AA", "#0A7C78"))
    c.fill(from_polygon(LineString([(x - 7, y + 2), (x - 2, y + 7), (x + 8.5, y - 4.5)]).buffer(1.8, 12)), "#FFFFFF")


def cloud_devices(dark):
    """The devices stand apart on one line, each of them and its shadow whole."""
    c = Canvas(343, 159)
    shared_document(c, device(c, 10, 58, 62, 84, 7, 3.6, dark))
    laptop(c, 96, 37, dark)
    phone_document(c, device(c, 284, 62, 42, 80, 9, 2.8, dark))
    cloud(c, 292, 31)
    return c


SCENES = {"PDFs0_StorePageShelfImage": pdfs, "iCloud_StorePageShelfImage": cloud_devices}


def make(folder):
    for name, draw in SCENES.items():
        draw(False).document.write(f"{folder}/{name}.svg")
        draw(True).document.write(f"{folder}/{name}~dark.svg")
