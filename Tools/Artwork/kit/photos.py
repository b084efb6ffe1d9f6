"""Photo-like scenes in flat shapes and soft gradients. Each fills the rectangle (0, 0, width, height); the caller clips."""

import math
import random

from .canvas import linear, radial
from .geometry import Path, Transform
from .palette import CORAL, VIOLET, darker, lighter


def ridge(width, height, points):
    """Ground below a smooth skyline given in shares of the size."""
    path = Path.smooth([(x * width, y * height) for x, y in points])
    return path.line(width * points[-1][0], height * 1.02).line(width * points[0][0], height * 1.02).close()


def dusk(c, w, h):
    c.fill(
        Path.rect(0, 0, w, h), linear((0, 0), (w * 0.25, h), (0, "#5B4BB8"), (0.38, "#E9776C"), (0.66, "#FFC67A"), (1, "#FFE3B0"))
    )
    r = min(w, h) * 0.15
    c.fill(
        Path.ellipse(w * 0.63, h * 0.47, r * 2.6), radial((w * 0.63, h * 0.47), r * 2.6, (0, "#FFF3D0", 0.75), (1, "#FFE3A8", 0))
    )
    c.fill(Path.ellipse(w * 0.63, h * 0.47, r), linear((w * 0.5, h * 0.35), (w * 0.72, h * 0.6), "#FFF7E2", "#FFD98B"))
    c.fill(
        ridge(w, h, [(-0.1, 0.60), (0.12, 0.50), (0.3, 0.575), (0.47, 0.53), (0.72, 0.61), (0.9, 0.52), (1.1, 0.58)]),
        linear((0, h * 0.5), (0, h * 0.8), "#C0688C", "#8B559B"),
    )
    c.fill(
        ridge(w, h, [(-0.1, 0.69), (0.15, 0.66), (0.38, 0.72), (0.63, 0.63), (0.85, 0.70), (1.1, 0.65)]),
        linear((0, h * 0.62), (0, h * 0.95), "#6E4A9A", "#47388A"),
    )
    c.fill(
        ridge(w, h, [(-0.1, 0.84), (0.2, 0.76), (0.5, 0.83), (0.8, 0.79), (1.1, 0.86)]),
        linear((0, h * 0.76), (0, h), "#37306E", "#1C2148"),
    )


LAKE_FAR = ((-0.1, 0.6), (0.16, 0.30), (0.27, 0.41), (0.36, 0.33), (0.62, 0.6))
LAKE_PEAK = ((0.3, 0.6), (0.66, 0.16), (1.05, 0.6))
LAKE_LIT_SIDE = ((0.66, 0.16), (0.70, 0.32), (0.64, 0.40), (0.68, 0.6), (0.3, 0.6))
LAKE_SNOW = (
    (0.66, 0.16),
    (0.754, 0.267),
    (0.72, 0.30),
    (0.70, 0.27),
    (0.675, 0.33),
    (0.64, 0.27),
    (0.61, 0.31),
    (0.573, 0.267),
)
LAKE_SHORE = ((-0.1, 0.55), (0.1, 0.50), (0.25, 0.565), (0.5, 0.575), (0.75, 0.545), (0.92, 0.50), (1.1, 0.54))
WATERLINE = 0.6


def lake(c, w, h):
    def area(points):
        return Path.polygon([(w * x, h * y) for x, y in points])

    def mirrored(points):
        """As the water gives it back: upside down and a little shorter."""
        return [(x, WATERLINE + (WATERLINE - y) * 0.82) for x, y in points]

    def sinking(color, opacity):
        return linear((0, h * WATERLINE), (0, h * 0.98), (0, color, opacity), (1, color, opacity * 0.3))

    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (0, h * 0.6), "#7CC4F2", "#DDF0F6", "#FDF1DC"))
    c.fill(area(LAKE_FAR), linear((0, h * 0.3), (0, h * 0.62), "#9FB6D6", "#C9D6E2"))
    c.fill(area(LAKE_PEAK), linear((w * 0.4, h * 0.2), (w * 0.9, h * 0.6), "#7A8FBC", "#5B7299"))
    c.fill(area(LAKE_LIT_SIDE), linear((w * 0.4, h * 0.2), (w * 0.6, h * 0.6), "#C5D1E6", "#8FA5CB"))
    c.fill(area(LAKE_SNOW), "#FFFFFF")
    c.fill(ridge(w, h, LAKE_SHORE), "#2E6B6B")
    c.fill(Path.rect(0, h * WATERLINE, w, h * 0.42), linear((0, h * WATERLINE), (0, h), "#8CC9CE", "#3E8F9A", "#17606B"))
    c.fill(area(mirrored(LAKE_PEAK)), sinking("#3F5E8C", 0.62))
    c.fill(area(mirrored(LAKE_LIT_SIDE)), sinking("#B9CBE4", 0.50))
    c.fill(area(mirrored(LAKE_SNOW)), "#FFFFFF", 0.34)
    shore = [(w * x, h * y) for x, y in mirrored(LAKE_SHORE)]
    c.fill(Path.smooth(shore).line(w * 1.1, h * WATERLINE).line(-w * 0.1, h * WATERLINE).close(), "#1D5559", 0.85)
    for x, y, length in ((0.04, 0.70, 0.22), (0.58, 0.76, 0.34), (0.24, 0.83, 0.24), (0.66, 0.90, 0.26), (0.06, 0.94, 0.3)):
        c.fill(Path.rounded(w * x, h * y, w * length, h * 0.012, h * 0.006), "#E9F6F3", 0.4)


def arches(c, w, h):
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (w, h), "#F7DCC3", "#EDB793"))
    c.fill(Path.polygon([(0, 0), (w * 0.95, 0), (0, h * 0.72)]), "#FFF1DE", 0.45)
    floor = h * 0.8
    c.fill(Path.rect(0, floor, w, h * 0.22), linear((0, floor), (0, h), "#D98D6B", "#BF6E53"))

    def arch(x, width, top, fill):
        r = width / 2
        path = Path().move(x, floor).line(x, top + r)
        path.cubic(x, top + r * 0.4477, x + r * 0.4477, top, x + r, top).cubic(
            x + r * 1.5523, top, x + width, top + r * 0.4477, x + width, top + r
        )
        c.fill(path.line(x + width, floor).close(), fill)

    arch(w * 0.14, w * 0.46, h * 0.24, linear((w * 0.14, 0), (w * 0.6, 0), "#C97A58", "#E79E76"))
    arch(w * 0.21, w * 0.39, h * 0.30, linear((0, h * 0.3), (0, floor), "#5FB5D6", "#CDEBF2"))
    c.fill(Path.rect(w * 0.21, h * 0.62, w * 0.39, floor - h * 0.62), linear((0, h * 0.62), (0, floor), "#1C7C88", "#0E5B66"))
    arch(w * 0.70, w * 0.24, h * 0.42, linear((w * 0.7, 0), (w * 0.94, 0), "#B9694B", "#D98D6B"))
    c.fill(Path.polygon([(w * 0.21, floor), (w * 0.60, floor), (w * 0.86, h), (w * 0.40, h)]), "#FFE3C2", 0.5)


def foliage(c, w, h):
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (w, h), "#CFE9DB", "#7DBFA9"))
    s = max(w, h)
    for x, y, length, degrees, tone in [
        (1.05, 1.0, 0.95, -132, "#2F8F7C"),
        (-0.05, 0.55, 0.8, -28, "#0E6A60"),
        (0.2, 1.08, 0.9, -72, "#0A4F4B"),
        (1.05, 0.05, 0.62, 152, "#54A98F"),
    ]:
        c.fill(
            blade(w * x, h * y, s * length, s * length * 0.36, degrees),
            linear((w * x, h * y), (w * 0.4, h * 0.3), darker(tone, 0.2), lighter(tone, 0.16)),
        )
        tip = (
            w * x + s * length * 0.93 * math.cos(math.radians(degrees)),
            h * y + s * length * 0.93 * math.sin(math.radians(degrees)),
        )
        c.stroke(Path.polyline([(w * x, h * y), tip]), lighter(tone, 0.38), s * 0.008, 0.65)


def blade(x, y, length, width, degrees):
    """A broad leaf with a pointed tip, symmetric about its rib."""
    path = Path().move(0, 0).cubic(length * 0.12, -width * 0.62, length * 0.62, -width * 0.72, length, 0)
    path.cubic(length * 0.62, width * 0.72, length * 0.12, width * 0.62, 0, 0).close()
    return path.transformed(Transform.translation(x, y) @ Transform.rotation(degrees))


def still_life(c, w, h):
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (w, h), "#F3D9CC", "#E3B3A5"))
    table = h * 0.68
    c.fill(Path.rect(0, table, w, h), linear((0, table), (0, h), "#8E3F46", "#6B2B3B"))
    c.fill(Path.polygon([(w * 0.0, 0), (w * 0.62, 0), (w * 0.28, table), (0, table)]), "#FFF0E2", 0.4)
    m = min(w, h * 0.79)
    x = w * 0.42
    c.fill(
        Path.polygon(
            [
                (x - m * 0.1, table + m * 0.09),
                (x + m * 0.16, table + m * 0.09),
                (w * 1.05, table + m * 0.24),
                (w * 1.05, table + m * 0.32),
                (x, table + m * 0.14),
            ]
        ),
        "#3A1424",
        0.3,
    )
    vase = Path().move(x - m * 0.05, table - m * 0.40).line(x + m * 0.05, table - m * 0.40)
    vase.cubic(x + m * 0.045, table - m * 0.26, x + m * 0.18, table - m * 0.22, x + m * 0.17, table - m * 0.06)
    vase.cubic(x + m * 0.165, table + m * 0.06, x + m * 0.12, table + m * 0.11, x, table + m * 0.11)
    vase.cubic(x - m * 0.12, table + m * 0.11, x - m * 0.165, table + m * 0.06, x - m * 0.17, table - m * 0.06)
    vase.cubic(x - m * 0.18, table - m * 0.22, x - m * 0.045, table - m * 0.26, x - m * 0.05, table - m * 0.40).close()
    for degrees, length in ((-112, 0.36), (-82, 0.44), (-56, 0.38)):
        end = (x + m * length * math.cos(math.radians(degrees)), table - m * 0.38 + m * length * math.sin(math.radians(degrees)))
        c.stroke(Path.polyline([(x, table - m * 0.38), end]), "#4C7A5C", m * 0.014)
        c.fill(
            Path.scalloped(end[0], end[1], m * 0.085, 6, 0.16, degrees),
            linear((end[0] - m * 0.08, end[1] - m * 0.08), (end[0] + m * 0.08, end[1] + m * 0.08), "#FFF4DE", "#FFC655"),
        )
        c.fill(Path.ellipse(end[0], end[1], m * 0.028), "#D9793A")
    c.fill(vase, linear((x - m * 0.18, 0), (x + m * 0.18, 0), "#3FA39C", "#0A6C69", "#07504F"))
    ox, oy = x + m * 0.34, table + m * 0.03
    c.fill(Path.ellipse(ox, oy, m * 0.1), radial((ox - m * 0.04, oy - m * 0.05), m * 0.17, "#FFC07A", "#F07C3C", "#C9502E"))


def coffee(c, w, h):
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (w, h), "#EFE3D0", "#D9C3A3"))
    m = min(w, h)
    x, y = w * 0.54, h * 0.52
    c.fill(
        Path.ellipse(x + m * 0.09, y + m * 0.11, m * 0.39),
        radial((x + m * 0.09, y + m * 0.11), m * 0.39, (0, "#5C4326", 0.5), (0.7, "#5C4326", 0.3), (1, "#5C4326", 0)),
    )
    c.fill(Path.ellipse(x, y, m * 0.37), linear((x - m * 0.3, y - m * 0.3), (x + m * 0.3, y + m * 0.3), "#FFFFFF", "#DDE6E2"))
    c.fill(Path.ellipse(x, y, m * 0.27), linear((x - m * 0.2, y - m * 0.2), (x + m * 0.2, y + m * 0.2), "#D6DEDA", "#F7FAF8"))
    with c.placed(x, y, 40) as handle:
        handle.fill(
            Path.rounded(m * 0.18, -m * 0.045, m * 0.2, m * 0.09, m * 0.045),
            linear((0, -m * 0.05), (0, m * 0.05), "#17867F", "#0A5F5C"),
        )
    c.fill(Path.ellipse(x, y, m * 0.225), linear((x - m * 0.2, y - m * 0.2), (x + m * 0.2, y + m * 0.2), "#19958D", "#0A5F5C"))
    c.fill(Path.ellipse(x, y, m * 0.19), linear((x - m * 0.15, y - m * 0.15), (x + m * 0.15, y + m * 0.15), "#5A3220", "#9A6238"))
    heart = (
        Path()
        .move(0, m * 0.1)
        .cubic(-m * 0.16, 0, -m * 0.1, -m * 0.12, 0, -m * 0.045)
        .cubic(m * 0.1, -m * 0.12, m * 0.16, 0, 0, m * 0.1)
        .close()
    )
    with c.placed(x, y, -24) as foam:
        foam.fill(heart, linear((0, -m * 0.1), (0, m * 0.1), "#FFF3DD", "#EBC898"))


def city(c, w, h):
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (0, h), "#1D2458", "#5A3F91", "#D9687E", "#FFB27A"))
    c.fill(Path.ellipse(w * 0.25, h * 0.22, min(w, h) * 0.09), "#FFF1D2")
    generator = random.Random(11)
    for tone, low, high, steps in (("#4A3A85", 0.38, 0.60, 7), ("#231F4F", 0.50, 0.74, 6)):
        x = -0.04
        for _ in range(steps + 4):
            width = generator.uniform(0.10, 0.18)
            top = generator.uniform(low, high)
            c.fill(
                Path.rounded(w * x, h * top, w * width, h * (1.1 - top), min(w, h) * 0.012),
                linear((0, h * top), (0, h), tone, darker(tone, 0.4)),
            )
            if tone == "#231F4F":
                for row in range(5):
                    for column in range(2):
                        if generator.random() < 0.5:
                            c.fill(
                                Path.rect(
                                    w * (x + width * (0.24 + 0.36 * column)),
                                    h * (top + 0.05 + row * 0.075),
                                    w * width * 0.18,
                                    h * 0.03,
                                ),
                                "#FFD27F",
                                0.9,
                            )
            x += width + generator.uniform(0.0, 0.02)


def portrait(c, w, h):
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (w, h), "#FFCF6E", "#F39A4B"))
    m = min(w, h * 0.8)
    x, base = w * 0.5, h * 1.0
    c.fill(Path.ellipse(x, h * 0.46, m * 0.52), "#FFE3A6", 0.55)
    body = (
        Path().move(x - m * 0.46, base + 2).cubic(x - m * 0.45, base - m * 0.28, x - m * 0.2, base - m * 0.36, x, base - m * 0.36)
    )
    body.cubic(x + m * 0.2, base - m * 0.36, x + m * 0.45, base - m * 0.28, x + m * 0.46, base + 2).close()
    c.fill(Path.ellipse(x + m * 0.015, base - m * 0.68, m * 0.235, m * 0.27), "#2A1B2E")
    c.fill(body, linear((x - m * 0.4, base - m * 0.3), (x + m * 0.4, base), "#1B8F88", "#085553"))
    c.fill(Path.rounded(x - m * 0.08, base - m * 0.52, m * 0.16, m * 0.24, m * 0.08), "#B9694B")
    c.fill(Path.ellipse(x, base - m * 0.63, m * 0.165, m * 0.2), linear((x - m * 0.15, 0), (x + m * 0.17, 0), "#E9A27C", "#CC7B59"))
    hair = (
        Path()
        .move(x - m * 0.2, base - m * 0.60)
        .cubic(x - m * 0.2, base - m * 0.9, x + m * 0.17, base - m * 0.92, x + m * 0.2, base - m * 0.62)
    )
    hair.cubic(x + m * 0.12, base - m * 0.70, x + m * 0.02, base - m * 0.74, x - m * 0.04, base - m * 0.78).cubic(
        x - m * 0.08, base - m * 0.72, x - m * 0.15, base - m * 0.68, x - m * 0.2, base - m * 0.60
    ).close()
    c.fill(hair, "#2A1B2E")


def surf(c, w, h):
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (w, h), "#F6E2BD", "#E8C790"))
    for shift, tone, alpha in (
        (0.0, "#FFFFFF", 0.95),
        (0.045, "#BFE9E2", 1),
        (0.12, "#5CC5BE", 1),
        (0.25, "#1A9A98", 1),
        (0.42, "#0B6F78", 1),
        (0.62, "#0A4F60", 1),
    ):
        points = []
        for i in range(-1, 10):
            t = i / 8
            wave = 0.035 * math.sin(t * 9.4 + shift * 6) + 0.02 * math.sin(t * 21 + 1.3 + shift * 11)
            points.append((w * (0.34 + shift + wave + 0.22 * (1 - t)), h * t))
        path = Path.smooth(points)
        c.fill(path.line(w * 1.1, h * 1.1).line(w * 1.1, -h * 0.1).close(), tone, alpha)
    m = min(w, h)
    with c.placed(w * 0.2, h * 0.6, -18) as towel:
        towel.fill(Path.rounded(m * 0.02, m * 0.02, m * 0.13, m * 0.24, m * 0.02), "#8A6A3C", 0.35)
        towel.fill(Path.rounded(0, 0, m * 0.13, m * 0.24, m * 0.02), CORAL)
        towel.fill(Path.rect(0, m * 0.05, m * 0.13, m * 0.03), "#FFF3E0")
        towel.fill(Path.rect(0, m * 0.16, m * 0.13, m * 0.03), "#FFF3E0")
    c.fill(Path.ellipse(w * 0.17 + m * 0.02, h * 0.34 + m * 0.025, m * 0.11), "#8A6A3C", 0.3)
    for i in range(8):
        wedge = Path().move(w * 0.17, h * 0.34)
        arc = Path.arc(w * 0.17, h * 0.34, m * 0.11, i * 45, i * 45 + 45)
        wedge = Path(wedge.commands + [("L", arc.commands[0][1])] + arc.commands[1:]).close()
        c.fill(wedge, "#FFFFFF" if i % 2 else VIOLET)


def poppy(c, w, h):
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (w, h), "#BFDDF5", "#8FB9E8"))
    m = min(w, h)
    for x, y, r, stem in ((0.3, 0.62, 0.2, 12), (0.68, 0.38, 0.27, -8)):
        cx, cy = w * x, h * y
        c.stroke(Path().move(cx, cy).quadratic(cx + m * stem / 100, h * 0.8, cx + m * stem / 60, h * 1.05), "#2F7B62", m * 0.026)
        for k, turn in enumerate((200, 320, 80)):
            px, py = cx + m * r * 0.42 * math.cos(math.radians(turn)), cy + m * r * 0.42 * math.sin(math.radians(turn))
            c.fill(
                Path.blob(px, py, m * r * 0.72, (1, 1.08, 0.96, 1.06, 0.98, 1.05), turn),
                linear((px - m * r, py - m * r), (px + m * r, py + m * r), "#FF8F73", "#E5443C"),
            )
        c.fill(Path.ellipse(cx, cy, m * r * 0.26), "#2B1A2B")
        c.fill(Path.ellipse(cx - m * r * 0.05, cy - m * r * 0.05, m * r * 0.1), "#FFC655")


def road(c, w, h):
    c.fill(Path.rect(0, 0, w, h), linear((0, 0), (0, h * 0.55), "#F9D9A8", "#FBEBD2"))
    c.fill(Path.ellipse(w * 0.5, h * 0.46, min(w, h) * 0.16), "#FF8A6B")
    c.fill(
        ridge(w, h, [(-0.1, 0.48), (0.2, 0.40), (0.4, 0.47), (0.65, 0.42), (0.85, 0.36), (1.1, 0.46)]),
        linear((0, h * 0.4), (0, h * 0.6), "#D98A73", "#BB6A62"),
    )
    c.fill(Path.rect(0, h * 0.53, w, h * 0.5), linear((0, h * 0.53), (0, h), "#C98159", "#8E4C45"))
    c.fill(
        Path.polygon([(w * 0.485, h * 0.53), (w * 0.515, h * 0.53), (w * 0.86, h), (w * 0.14, h)]),
        linear((0, h * 0.53), (0, h), "#5B4657", "#2F2839"),
    )
    for t0, t1 in ((0.02, 0.08), (0.16, 0.30), (0.46, 0.72), (0.9, 1.2)):
        y0, y1 = h * (0.53 + 0.47 * t0), h * (0.53 + 0.47 * t1)
        c.fill(
            Path.polygon(
                [
                    (w * (0.5 - 0.012 * t0), y0),
                    (w * (0.5 + 0.012 * t0), y0),
                    (w * (0.5 + 0.014 * t1), y1),
                    (w * (0.5 - 0.014 * t1), y1),
                ]
            ),
            "#FFE3A8",
        )


SCENES = {
    "dusk": dusk,
    "lake": lake,
    "arches": arches,
    "foliage": foliage,
    "still_life": still_life,
    "coffee": coffee,
    "city": city,
    "portrait": portrait,
    "surf": surf,
    "poppy": poppy,
    "road": road,
}


def photo(c, scene, x, y, width, height, radius=0.0):
    """A scene in a rounded frame."""
    with c.placed(x, y) as frame:
        with frame.clipped(Path.rounded(0, 0, width, height, radius)) as inside:
            SCENES[scene](inside, width, height)
