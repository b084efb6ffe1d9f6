"""The sample picture for design-time previews: three layouts fanned out on teal."""

from kit.canvas import Canvas, linear
from kit.geometry import Path
from kit.templates import page

WIDTH, HEIGHT = 375, 254


def fanned_pages():
    c = Canvas(WIDTH, HEIGHT)
    c.fill(Path.rect(0, 0, WIDTH, HEIGHT), linear((0, 0), (WIDTH, HEIGHT), "#1A9A92", "#0A6360", "#07393D"))
    for left in (-30, 120, 250):
        c.fill(Path.polygon([(left, -4), (left + 70, -4), (left + 190, HEIGHT + 4), (left + 120, HEIGHT + 4)]), "#FFFFFF", 0.06)
    for name, x, y, degrees in (("night_swim", 76, 66, -13), ("sale", 187.5, 44, 0), ("invitation", 299, 66, 13)):
        with c.placed(x, y, degrees) as fan:
            outline = Path.rounded(-54, 0, 108, 152, 7)
            fan.long_shadow(outline, 40, 52, "#03211F", 0.40)
            fan.soft_shadow(outline, 2, 5, 9, "#03211F", 0.2, 6)
            page(fan, name, -54, 0, 108, 152, 7)
    return c


def make(folder):
    fanned_pages().document.write(f"{folder}/SubscriptionPromotionHeaderImage.svg")
