"""Small single-purpose shapes: template icons (black, tinted where they are shown), the close discs and the terms fade."""

from shapely.geometry import LineString
from shapely.ops import unary_union

from kit.canvas import Canvas, from_polygon, linear
from kit.geometry import Path
from kit.palette import INK

BLACK = "#000000"


def stroked(lines, width):
    """One filled outline around round-ended strokes, so that a tint meets a single shape."""
    return from_polygon(unary_union([LineString(points).buffer(width / 2, 16) for points in lines]))


def template(width, height, lines, stroke_width):
    c = Canvas(width, height)
    c.fill(stroked(lines, stroke_width), BLACK)
    return c


def checkmark():
    return template(16, 16, [[(3.0, 8.5), (6.4, 11.9), (13.0, 4.6)]], 1.9)


def caret_right():
    return template(8, 14, [[(1.4, 1.5), (6.6, 7), (1.4, 12.5)]], 1.7)


def arrow_right():
    return template(24, 16, [[(1.6, 8), (21.8, 8)], [(15.6, 1.9), (22, 8), (15.6, 14.1)]], 2)


def chevron_right():
    return template(10, 10, [[(3.15, 1.2), (6.95, 5), (3.15, 8.8)]], 1.25)


def diamond():
    """A cut gem: table, girdle and pavilion."""
    outline = [(7.2, 4.1), (16.8, 4.1), (21.1, 9.6), (12, 20.4), (2.9, 9.6), (7.2, 4.1)]
    facets = [[(2.9, 9.6), (21.1, 9.6)], [(12, 4.1), (8.3, 9.6), (12, 20.4), (15.7, 9.6), (12, 4.1)]]
    return template(24, 24, [outline, *facets], 1.5)


def cross(center, reach):
    a, b = center - reach, center + reach
    return [[(a, a), (b, b)], [(b, a), (a, b)]]


def close(size, dark):
    """The same disc on every screen, in the middle of its picture. The hair of light at its rim lifts it off a dark one."""
    c = Canvas(size, size)
    middle = size / 2
    c.fill(Path.ellipse(middle, middle, 13), "#FFFFFF", 0.16 if dark else 0.5)
    c.fill(Path.ellipse(middle, middle, 12.2), "#2C3439" if dark else "#E7EAE9")
    c.fill(stroked(cross(middle, 4.3), 2), "#F3F5F4" if dark else INK)
    return c


def terms_gradient():
    """Clear above, paper at the very end, eased so that no edge shows, but in less than the height of a line's letters: what stands
    below is read or is gone, and never faint."""
    c = Canvas(375, 32)
    eased = ((0, 0), (0.75, 0), (0.79, 0.1), (0.83, 0.35), (0.87, 0.7), (0.91, 0.93), (0.95, 1), (1, 1))
    c.fill(Path.rect(0, 0, 375, 32), linear((0, 0), (0, 32), *[(offset, "#FFFFFF", share) for offset, share in eased]))
    return c


MODULE_ICONS = {
    "UpsellValuePropositionCheckmark": checkmark,
    "CaretRight": caret_right,
    "Button_Arrow_Right": arrow_right,
    "TermsGradient": terms_gradient,
    "CloseStorePageButton": lambda: close(30, False),
    "CloseStorePageButton~dark": lambda: close(30, True),
}
DESIGN_SYSTEM_ICONS = {
    "chevron.right": chevron_right,
    "xmark": lambda: close(26, False),
    "xmark~dark": lambda: close(26, True),
    "diamond24": diamond,
    "inAppMessageCloseIcon": lambda: close(26, False),
    "inAppMessageCloseIcon~dark": lambda: close(26, True),
}


def make(module_folder, design_system_folder):
    for icons, folder in ((MODULE_ICONS, module_folder), (DESIGN_SYSTEM_ICONS, design_system_folder)):
        for name, icon in icons.items():
            icon().document.write(f"{folder}/{name}.svg")
