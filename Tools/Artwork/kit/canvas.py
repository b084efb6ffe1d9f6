"""A canvas that maps, clips and records filled shapes, and writes them as SVG Tiny.

The readers of these files know no clip paths, masks, filters or text, so everything is resolved here: transforms are
applied to the points, clipping is done by polygon arithmetic, text arrives as outlines.
"""

import math
from contextlib import contextmanager
from dataclasses import dataclass

from shapely.affinity import translate
from shapely.geometry import LineString, MultiPolygon, Polygon, box
from shapely.ops import unary_union

from .geometry import Path, Transform
from .palette import INK
from .type_outlines import text_path


@dataclass(frozen=True)
class Linear:
    """A gradient from one point to another. Stops are (offset, colour) or (offset, colour, opacity)."""

    start: tuple
    end: tuple
    stops: tuple


@dataclass(frozen=True)
class Radial:
    center: tuple
    radius: float
    stops: tuple


def linear(start, end, *stops):
    return Linear(start, end, spread_stops(stops))


def radial(center, radius, *stops):
    return Radial(center, radius, spread_stops(stops))


def spread_stops(stops):
    """Bare colours are spread evenly; tuples keep their own offsets."""
    last = max(1, len(stops) - 1)
    return tuple(stop if isinstance(stop, tuple) else (i / last, stop) for i, stop in enumerate(stops))


def number(value):
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    return "0" if text in ("-0", "") else text


def fine(value):
    text = f"{value:.5f}".rstrip("0").rstrip(".")
    return "0" if text in ("-0", "") else text


def path_data(path, page_size):
    """Compact relative path data in hundredths of a point; empty when the path lies wholly off the page."""
    points = path.points()
    if not points:
        return ""
    xs, ys = [p[0] for p in points], [p[1] for p in points]
    margin = 12
    if max(xs) < -margin or max(ys) < -margin or min(xs) > page_size[0] + margin or min(ys) > page_size[1]:
        return ""
    data, last, x, y, start = [], "", 0, 0, (0, 0)
    for command in path.commands:
        if command[0] == "Z":
            data.append("z")
            last, (x, y) = "z", start
            continue
        target = [(round(px * 100), round(py * 100)) for px, py in command[1:]]
        letter = "M" if command[0] == "M" else command[0].lower()
        origin = (0, 0) if letter == "M" else (x, y)
        if letter == "l" and target[0][1] == y:
            letter, values = "h", [target[0][0] - x]
        elif letter == "l" and target[0][0] == x:
            letter, values = "v", [target[0][1] - y]
        else:
            values = [value for px, py in target for value in (px - origin[0], py - origin[1])]
        x, y = target[-1]
        if letter == "M":
            start = (x, y)
        text = "" if letter == last and letter != "M" else letter
        for value in values:
            word = hundredths(value)
            text += word if not text or text[-1].isalpha() or word[0] == "-" else " " + word
        if data and text[0] not in "-" and not text[0].isalpha():
            text = " " + text
        data.append(text)
        last = letter
    return "".join(data)


def hundredths(value):
    sign, whole, part = "-" if value < 0 else "", abs(value) // 100, abs(value) % 100
    decimals = f".{part:02d}".rstrip("0") if part else ""
    return f"{sign}{whole if whole or not part else ''}{decimals}"


class Document:
    """What all canvases of one picture share: its size, its gradients and its elements."""

    def __init__(self, width, height):
        self.width, self.height = width, height
        # What begins below this line is left out; a picture lowers it while it draws what will be covered anyway.
        self.drawn_height = height
        self.gradients = {}
        self.elements = []

    def gradient_reference(self, markup):
        name = self.gradients.setdefault(markup, f"g{len(self.gradients)}")
        return f"url(#{name})"

    def svg(self):
        lines = [
            f'<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" width="{number(self.width)}" '
            f'height="{number(self.height)}" viewBox="0 0 {number(self.width)} {number(self.height)}">'
        ]
        if self.gradients:
            lines.append("<defs>")
            lines += [markup.replace("@", name, 1) for markup, name in self.gradients.items()]
            lines.append("</defs>")
        return "\n".join(lines + self.elements + ["</svg>"]) + "\n"

    def write(self, file):
        with open(file, "w", encoding="utf-8") as out:
            out.write(self.svg())


def to_polygon(path, tolerance=0.04):
    """The even-odd area of a path."""
    area = Polygon()
    for ring in path.flattened(tolerance):
        if len(ring) >= 3:
            area = area.symmetric_difference(Polygon(ring).buffer(0))
    return area


def from_polygon(area):
    path = Path()
    parts = area.geoms if hasattr(area, "geoms") else [area]
    for part in parts:
        if isinstance(part, Polygon) and not part.is_empty and part.area > 0.004:
            for ring in [part.exterior, *part.interiors]:
                points = list(ring.simplify(0.03).coords)[:-1]
                if len(points) >= 3:
                    path += Path.polygon(points)
    return path


class Canvas:
    def __init__(self, width=0, height=0, document=None, transform=None, clip=None, opacity=1.0):
        self.document = document or Document(width, height)
        self.transform = transform or Transform()
        self.clip = clip
        self.opacity = opacity

    def derived(self, transform=None, clip=None, opacity=1.0):
        return Canvas(
            document=self.document,
            transform=self.transform @ transform if transform else self.transform,
            clip=clip if clip is not None else self.clip,
            opacity=self.opacity * opacity,
        )

    @contextmanager
    def placed(self, x, y, degrees=0.0, scale=1.0, opacity=1.0):
        """A canvas whose origin stands at (x, y), turned and scaled about it."""
        yield self.derived(Transform.translation(x, y) @ Transform.rotation(degrees) @ Transform.scale(scale), opacity=opacity)

    @contextmanager
    def mapped(self, transform, opacity=1.0):
        yield self.derived(transform, opacity=opacity)

    @contextmanager
    def clipped(self, path):
        area = to_polygon(path.transformed(self.transform))
        yield self.derived(clip=area if self.clip is None else self.clip.intersection(area))

    # Painting

    def fill(self, path, paint, opacity=1.0):
        device = self.visible(path.transformed(self.transform))
        if device is None:
            return
        self.emit(device, self.paint_attributes(paint, path, opacity * self.opacity))

    def stroke(self, path, color, width, opacity=1.0, cap="round", join="round"):
        anchor = path.points()[0]
        device_width = width * self.transform.scale_at(anchor)
        device = path.transformed(self.transform)
        if self.clip is None:
            attributes = f'fill="none" stroke="{color}" stroke-width="{number(device_width)}"'
            attributes += f' stroke-linecap="{cap}" stroke-linejoin="{join}"'
            alpha = opacity * self.opacity
            if alpha < 0.999:
                attributes += f' stroke-opacity="{number(alpha)}"'
            self.emit(device, attributes)
            return
        styles = {"round": 1, "flat": 2, "butt": 2, "square": 3}
        lines = []
        for run, ring in zip(device.subpaths(), device.flattened()):
            closed = run[-1][0] == "Z"
            lines.append(LineString(ring + ring[:1] if closed else ring))
        area = unary_union(
            [line.buffer(device_width / 2, 12, cap_style=styles[cap], join_style=1 if join == "round" else 2) for line in lines]
        )
        shape = from_polygon(area.intersection(self.clip))
        if shape.commands:
            self.emit(shape, self.paint_attributes(color, path, opacity * self.opacity))

    def text(self, text, face, size, x, y, paint=INK, align="left", tracking=0.0, opacity=1.0):
        self.fill(text_path(text, face, size, x, y, align, tracking), paint, opacity)

    def visible(self, device):
        if self.clip is None:
            return device
        points = device.points()
        if not points:
            return None
        xs, ys = [p[0] for p in points], [p[1] for p in points]
        reach = box(min(xs), min(ys), max(xs), max(ys))
        if self.clip.contains(reach):
            return device
        if not self.clip.intersects(reach):
            return None
        shape = from_polygon(to_polygon(device).intersection(self.clip))
        return shape if shape.commands else None

    def paint_attributes(self, paint, path, alpha):
        if isinstance(paint, str):
            fill = paint
        else:
            fill = self.document.gradient_reference(self.gradient_markup(paint, path))
        opacity = "" if alpha > 0.999 else f' fill-opacity="{number(alpha)}"'
        return f'fill="{fill}"{opacity}'

    def gradient_markup(self, paint, path):
        xs, ys = zip(*path.points())
        center = ((min(xs) + max(xs)) / 2, (min(ys) + max(ys)) / 2)
        matrix = self.transform.local_affine(center)
        where = 'id="@" gradientUnits="userSpaceOnUse"'
        if any(abs(a - b) > 1e-4 for a, b in zip(matrix, (1, 0, 0, 1, 0, 0))):
            where += f' gradientTransform="matrix({" ".join(fine(v) for v in matrix)})"'
        stops = ""
        for offset, color, *alpha in paint.stops:
            transparency = f' stop-opacity="{number(alpha[0])}"' if alpha and alpha[0] < 0.999 else ""
            stops += f'<stop offset="{number(offset)}" stop-color="{color}"{transparency}/>'
        if isinstance(paint, Linear):
            (x1, y1), (x2, y2) = paint.start, paint.end
            return (
                f'<linearGradient {where} x1="{number(x1)}" y1="{number(y1)}" x2="{number(x2)}" y2="{number(y2)}">'
                f"{stops}</linearGradient>"
            )
        (cx, cy), radius = paint.center, paint.radius
        return f'<radialGradient {where} cx="{number(cx)}" cy="{number(cy)}" r="{number(radius)}">{stops}</radialGradient>'

    def emit(self, path, attributes):
        data = path_data(path, (self.document.width, self.document.drawn_height))
        if data:
            self.document.elements.append(f'<path d="{data}" fill-rule="evenodd" {attributes}/>')

    # Light

    def soft_shadow(self, path, x=0.0, y=4.0, blur=10.0, color=INK, opacity=0.16, steps=5):
        """A blurred shadow from a few stacked outlines, largest and faintest first."""
        area = to_polygon(path.transformed(self.transform), 0.15)
        scale = self.transform.scale_at(path.points()[0])
        share = 1 - (1 - opacity) ** (1 / steps)
        for step in range(steps):
            grow = (0.5 - (step + 0.5) / steps) * blur * 2 * scale * 0.9
            ring = area.buffer(grow, 8)
            shape = from_polygon_coarse(ring)
            if not shape.commands:
                continue
            device = Canvas(document=self.document, clip=self.clip)
            device.fill(shape.moved(x * scale, y * scale), color, share * self.opacity)

    def long_shadow(self, path, length, degrees=52.0, color=INK, opacity=0.2):
        """The gentle long shadow of the house: the outline swept away from the light, fading out."""
        outline = path.transformed(self.transform)
        scale = self.transform.scale_at(path.points()[0])
        dx, dy = length * scale * math.cos(math.radians(degrees)), length * scale * math.sin(math.radians(degrees))
        area = to_polygon(outline, 0.1)
        swept = from_polygon_coarse(sweep(area, dx, dy))
        left, top, right, bottom = area.bounds
        middle = ((left + right) / 2, (top + bottom) / 2)
        # The fade begins inside the object, so that its far edge still stands in shade.
        device = Canvas(document=self.document, clip=self.clip)
        reach = (
            abs(right - left) * abs(math.cos(math.radians(degrees))) + abs(bottom - top) * abs(math.sin(math.radians(degrees)))
        ) / 2
        ux, uy = math.cos(math.radians(degrees)), math.sin(math.radians(degrees))
        start = (middle[0] + ux * reach * 0.35, middle[1] + uy * reach * 0.35)
        end = (middle[0] + ux * (reach + length * scale), middle[1] + uy * (reach + length * scale))
        device.fill(
            swept,
            linear(start, end, (0, color, opacity * self.opacity), (0.5, color, opacity * self.opacity * 0.42), (1, color, 0.0)),
        )


def sweep(area, dx, dy):
    """Everything that an area passes over on its way."""
    moved = translate(area, dx, dy)
    pieces = [area, moved]
    for part in polygons(area):
        ring = list(part.exterior.simplify(0.08).coords)
        for (x0, y0), (x1, y1) in zip(ring, ring[1:]):
            pieces.append(Polygon([(x0, y0), (x1, y1), (x1 + dx, y1 + dy), (x0 + dx, y0 + dy)]).buffer(0.02, join_style=2))
    return unary_union(pieces)


def polygons(area):
    return sorted(area.geoms if isinstance(area, MultiPolygon) else [area], key=lambda part: part.centroid.x)


def from_polygon_coarse(area):
    path = Path()
    for part in polygons(area):
        if not part.is_empty and part.geom_type == "Polygon":
            path += Path.polygon(list(part.exterior.simplify(0.06).coords)[:-1])
    return path
