"""Die-cut stickers and ornaments. Each draws itself about the origin, about 1 unit in radius, on a canvas scaled by the caller."""

import math

from shapely.geometry import LineString
from shapely.ops import unary_union

from .canvas import Canvas, from_polygon, linear, radial, to_polygon
from .geometry import Path
from .palette import INK, SUN


def diagonal(radius, first, second):
    return linear((-radius, -radius), (radius, radius), first, second)


def lemon(c):
    c.fill(Path.ellipse(0, 0, 1), diagonal(0.8, "#FFD75A", "#F5AE2B"))
    c.fill(Path.ellipse(0, 0, 0.87), "#FFF6DC")
    for i in range(8):
        angle = i * 45 + 10
        points = []
        for degrees, reach in ((0, 0.13), (-19, 0.72), (-9, 0.8), (9, 0.8), (19, 0.72)):
            a = math.radians(angle + degrees)
            points.append((reach * math.cos(a), reach * math.sin(a)))
        c.fill(Path.smooth(points, closed=True, tension=0.22), "#FFCB45")


def daisy(c):
    petals = Path.scalloped(0, 0, 0.86, 8, 0.17)
    c.fill(petals, diagonal(0.8, "#FF9177", "#F05A49"))
    c.fill(Path.ellipse(0, 0, 0.36), diagonal(0.3, "#FFE08F", "#FFBE44"))
    for x in (-0.12, 0.12):
        c.fill(Path.ellipse(x, -0.05, 0.045), INK)
    c.stroke(Path.arc(0, 0.0, 0.15, 30, 150), INK, 0.055)


def heart(c):
    path = Path().move(0, 0.88).cubic(-0.42, 0.58, -1.0, 0.18, -1.0, -0.32).cubic(-1.0, -0.68, -0.74, -0.88, -0.48, -0.88)
    path.cubic(-0.26, -0.88, -0.1, -0.76, 0, -0.58).cubic(0.1, -0.76, 0.26, -0.88, 0.48, -0.88).cubic(
        0.74, -0.88, 1.0, -0.68, 1.0, -0.32
    )
    path.cubic(1.0, 0.18, 0.42, 0.58, 0, 0.88).close()
    c.fill(path, diagonal(0.8, "#8C7BE6", "#5341B6"))
    c.stroke(Path.arc(-0.46, -0.36, 0.28, 180, 268), "#FFFFFF", 0.12, 0.75)


def bolt(c):
    path = Path.polygon([(0.18, -1.0), (-0.62, 0.16), (-0.06, 0.16), (-0.22, 1.0), (0.62, -0.26), (0.06, -0.26)])
    c.fill(path, diagonal(0.8, "#FFD96F", "#F6A92C"))


def rainbow(c):
    for radius, tone in ((1.0, "#FF7A62"), (0.78, "#FFC655"), (0.56, "#3CB7AE"), (0.34, "#FFFFFF")):
        path = Path().move(-radius, 0.46).line(-radius, 0.3)
        path.cubic(-radius, 0.3 - radius * 0.5523 * 1.06, -radius * 0.5523, 0.3 - radius * 1.06, 0, 0.3 - radius * 1.06)
        path.cubic(radius * 0.5523, 0.3 - radius * 1.06, radius, 0.3 - radius * 0.5523 * 1.06, radius, 0.3).line(
            radius, 0.46
        ).close()
        c.fill(path, tone)


def bubble(c):
    shape = to_polygon(Path.rounded(-1.1, -0.8, 2.2, 1.3, 0.5)).union(
        to_polygon(Path.polygon([(-0.5, 0.3), (-0.62, 0.95), (0.12, 0.42)]))
    )
    c.fill(from_polygon(shape), diagonal(0.9, "#149089", "#085E5B"))
    c.text("hello!", "kaushan", 0.78, 0.0, 0.1, "#FFFFFF", "center")


def star(c):
    points = []
    for i in range(10):
        reach = 1.0 if i % 2 == 0 else 0.52
        a = math.radians(-90 + i * 36)
        points.append((reach * math.cos(a), reach * math.sin(a)))
    c.fill(Path.smooth(points, closed=True, tension=0.28), diagonal(0.8, "#FFDC7B", "#F7AE31"))
    for x in (-0.17, 0.17):
        c.fill(Path.ellipse(x, -0.08, 0.06), INK)
    c.stroke(Path.arc(0, 0.02, 0.2, 25, 155), INK, 0.07)


def cherries(c):
    c.stroke(Path().move(-0.45, 0.3).cubic(-0.4, -0.3, -0.1, -0.7, 0.25, -0.9), "#0B5F57", 0.1)
    c.stroke(Path().move(0.5, 0.4).cubic(0.55, -0.1, 0.5, -0.6, 0.25, -0.9), "#0B5F57", 0.1)
    leaf = Path().move(0.25, -0.9).cubic(-0.05, -1.15, -0.5, -1.05, -0.7, -0.72).cubic(-0.4, -0.55, 0.05, -0.6, 0.25, -0.9).close()
    c.fill(leaf, linear((-0.6, -1), (0.2, -0.6), "#54B79B", "#0E7A6B"))
    for x, y in ((-0.45, 0.5), (0.5, 0.58)):
        c.fill(Path.ellipse(x, y, 0.42), radial((x - 0.15, y - 0.18), 0.7, "#FF7F70", "#DD3B3F"))
        c.stroke(Path.arc(x, y, 0.26, 190, 250), "#FFFFFF", 0.07, 0.8)


def eye(c):
    lid = Path().move(-1.05, 0).cubic(-0.55, -0.82, 0.55, -0.82, 1.05, 0).cubic(0.55, 0.82, -0.55, 0.82, -1.05, 0).close()
    c.fill(lid, diagonal(0.8, "#FFFFFF", "#E6ECEC"))
    c.fill(Path.ellipse(0, 0, 0.52), diagonal(0.4, "#2FB7AE", "#0A6A67"))
    c.fill(Path.ellipse(0, 0, 0.26), INK)
    c.fill(Path.ellipse(-0.14, -0.16, 0.12), "#FFFFFF")


def tag(c):
    outline = Path.rounded(-1.05, -0.55, 2.1, 1.1, 0.26)
    c.fill(outline, diagonal(0.9, "#20292E", "#12171A"))
    c.fill(Path.ellipse(-0.76, 0, 0.12), "#FFFFFF")
    c.text("NEW", "sora-extrabold", 0.62, 0.16, 0.22, SUN, "center", 0.04)


def mushroom(c):
    stem = (
        Path()
        .move(-0.28, 0.1)
        .cubic(-0.22, 0.5, -0.4, 0.9, -0.3, 0.95)
        .line(0.3, 0.95)
        .cubic(0.4, 0.9, 0.22, 0.5, 0.28, 0.1)
        .close()
    )
    c.fill(stem, linear((-0.3, 0), (0.35, 0), "#FFF6E4", "#E5D3B4"))
    cap = (
        Path()
        .move(-1.0, 0.2)
        .cubic(-1.0, -0.55, -0.5, -0.95, 0, -0.95)
        .cubic(0.5, -0.95, 1.0, -0.55, 1.0, 0.2)
        .cubic(0.6, 0.36, -0.6, 0.36, -1.0, 0.2)
        .close()
    )
    c.fill(cap, diagonal(0.8, "#FF8068", "#E2463C"))
    for x, y, r in ((-0.45, -0.25, 0.17), (0.15, -0.52, 0.2), (0.55, -0.05, 0.14), (-0.05, 0.02, 0.11)):
        c.fill(Path.ellipse(x, y, r), "#FFF3E3")


def sunburst(c):
    c.fill(Path.star(0, 0, 1.0, 0.74, 14), diagonal(0.8, "#FF8A6E", "#EE5444"))
    c.text("yay", "lobster", 0.84, 0, 0.25, "#FFFFFF", "center")


STICKERS = {
    "lemon": lemon,
    "daisy": daisy,
    "heart": heart,
    "bolt": bolt,
    "rainbow": rainbow,
    "bubble": bubble,
    "star": star,
    "cherries": cherries,
    "eye": eye,
    "tag": tag,
    "mushroom": mushroom,
    "sunburst": sunburst,
}


def silhouette(draw):
    """The outline of everything a drawing paints, in its own units."""
    areas = []

    class Recorder(Canvas):
        def fill(self, path, paint, opacity=1.0):
            areas.append(to_polygon(path, 0.004).buffer(0))

        def stroke(self, path, color, width, opacity=1.0, cap="round", join="round"):
            for ring in path.flattened(0.01):
                areas.append(LineString(ring).buffer(width / 2, 10))

    draw(Recorder(4, 4))
    return unary_union(areas)


def sticker(c, name, x, y, radius, degrees=0.0, border=0.16, shadow=True):
    """A sticker with its white die-cut border, lying on a sheet."""
    draw = STICKERS[name]
    with c.placed(x, y, degrees, radius) as place:
        if border:
            area = silhouette(draw).buffer(border, 10)
            if hasattr(area, "geoms"):
                area = area.convex_hull
            outline = from_unit_polygon(area)
            if shadow:
                place.soft_shadow(outline, 0.05, 0.11, 0.16, "#12211F", 0.26, 3)
            place.fill(outline, "#FFFFFF")
        draw(place)


def from_unit_polygon(area):
    points = list(area.exterior.simplify(0.012).coords)[:-1]
    return Path.smooth(points, closed=True, tension=0.5)
