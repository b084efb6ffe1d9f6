"""The product's logo: a sheet folded into an M, the name in the display face, a capsule for the Pro edition."""

from shapely.geometry import Polygon

from kit.canvas import Canvas, from_polygon, linear
from kit.geometry import Path
from kit.palette import INK
from kit.type_outlines import fitted_size, text_path

WIDTH, HEIGHT = 208, 26
MARK_WIDTH, CAPSULE_WIDTH, CAPSULE_HEIGHT, GAP = 24.0, 39.0, 18.0, 7.5


def panel(x0, top0, x1, top1, tall, radius=0.9):
    """One panel of the folded sheet, its corners slightly eased."""
    shape = Polygon([(x0, top0), (x1, top1), (x1, top1 + tall), (x0, top0 + tall)])
    return from_polygon(shape.buffer(-radius, 8).buffer(radius, 8))


def mark(c, x, y, size, bright, deep):
    """Four panels of a folded sheet; those that face the light are bright. Fills size x size at (x, y)."""
    width, drop, tall = size / 4, size * 0.22, size * 0.78
    for i in range(4):
        high, low = y, y + drop
        first, last = (high, low) if i % 2 == 0 else (low, high)
        left, right = x + i * width, x + (i + 1) * width
        tones = bright if i % 2 == 1 else deep
        c.fill(
            panel(left + (0.18 if i else 0), first, right - (0.18 if i < 3 else 0), last, tall),
            linear((left, y), (right, y + size), *tones),
        )


def with_pro_badge(dark):
    c = Canvas(WIDTH, HEIGHT)
    bright, deep = (("#7BE6DD", "#3CCBC1"), ("#2AA79F", "#13807A")) if dark else (("#1FA79F", "#12918A"), ("#0A706C", "#085A57"))
    mark(c, 0, 1, MARK_WIDTH, bright, deep)
    name_left = MARK_WIDTH + GAP
    name_width = WIDTH - name_left - GAP - CAPSULE_WIDTH
    size = fitted_size("Marwick Folio", "sora-semibold", name_width, -0.012)
    cap_height = -text_path("M", "sora-semibold", size).bounds()[1]
    name = text_path("Marwick Folio", "sora-semibold", size, name_left, HEIGHT / 2 + cap_height / 2, tracking=-0.012)
    c.fill(name, "#F3F5F4" if dark else INK)
    left, top = WIDTH - CAPSULE_WIDTH, (HEIGHT - CAPSULE_HEIGHT) / 2
    c.fill(Path.rounded(left, top, CAPSULE_WIDTH, CAPSULE_HEIGHT, CAPSULE_HEIGHT / 2), "#3CCBC1" if dark else "#0A7C78")
    label_size = 10.6
    label_height = -text_path("P", "sora-bold", label_size).bounds()[1]
    label = text_path("PRO", "sora-bold", label_size, left + CAPSULE_WIDTH / 2 + 0.2, HEIGHT / 2 + label_height / 2, "center", 0.05)
    c.fill(label, "#0B1B1C" if dark else "#FFFFFF")
    return c


def make(folder):
    with_pro_badge(False).document.write(f"{folder}/marwickFolioWithProBadge.svg")
    with_pro_badge(True).document.write(f"{folder}/marwickFolioWithProBadge~dark.svg")
