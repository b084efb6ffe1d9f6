"""Points, transforms and paths. Lengths are points, angles are degrees, y grows downwards."""

import math


class Transform:
    """A 3 x 3 projective matrix, row by row; an affine one ends in (0, 0, 1)."""

    def __init__(self, rows=((1, 0, 0), (0, 1, 0), (0, 0, 1))):
        self.rows = tuple(tuple(float(value) for value in row) for row in rows)

    @staticmethod
    def translation(x, y):
        return Transform(((1, 0, x), (0, 1, y), (0, 0, 1)))

    @staticmethod
    def scale(x, y=None):
        return Transform(((x, 0, 0), (0, x if y is None else y, 0), (0, 0, 1)))

    @staticmethod
    def rotation(degrees, center=(0, 0)):
        c, s = math.cos(math.radians(degrees)), math.sin(math.radians(degrees))
        turn = Transform(((c, -s, 0), (s, c, 0), (0, 0, 1)))
        return Transform.translation(*center) @ turn @ Transform.translation(-center[0], -center[1])

    @staticmethod
    def quad(width, height, corners):
        """Maps the rectangle (0, 0, width, height) onto four corners: top left, top right, bottom right, bottom left."""
        (x0, y0), (x1, y1), (x2, y2), (x3, y3) = corners
        dx1, dx2, sx = x1 - x2, x3 - x2, x0 - x1 + x2 - x3
        dy1, dy2, sy = y1 - y2, y3 - y2, y0 - y1 + y2 - y3
        det = dx1 * dy2 - dx2 * dy1
        g, h = (sx * dy2 - dx2 * sy) / det, (dx1 * sy - sx * dy1) / det
        unit = Transform(((x1 - x0 + g * x1, x3 - x0 + h * x3, x0), (y1 - y0 + g * y1, y3 - y0 + h * y3, y0), (g, h, 1)))
        return unit @ Transform.scale(1 / width, 1 / height)

    def __matmul__(self, other):
        a, b = self.rows, other.rows
        return Transform(tuple(tuple(sum(a[i][k] * b[k][j] for k in range(3)) for j in range(3)) for i in range(3)))

    def __call__(self, point):
        x, y = point
        (a, b, c), (d, e, f), (g, h, i) = self.rows
        w = g * x + h * y + i
        return ((a * x + b * y + c) / w, (d * x + e * y + f) / w)

    def local_affine(self, point):
        """The best affine stand-in around a point: (a, b, c, d, e, f) in SVG's matrix order."""
        x, y = point
        px, py = self(point)
        qx, qy = self((x + 0.01, y))
        rx, ry = self((x, y + 0.01))
        a, b, c, d = (qx - px) * 100, (qy - py) * 100, (rx - px) * 100, (ry - py) * 100
        return (a, b, c, d, px - a * x - c * y, py - b * x - d * y)

    def scale_at(self, point):
        a, b, c, d, _, _ = self.local_affine(point)
        return math.sqrt(abs(a * d - b * c))


class Path:
    """A list of commands: ("M", p), ("L", p), ("C", p1, p2, p), ("Z",)."""

    def __init__(self, commands=()):
        self.commands = list(commands)

    # Building

    def move(self, x, y):
        self.commands.append(("M", (x, y)))
        return self

    def line(self, x, y):
        self.commands.append(("L", (x, y)))
        return self

    def cubic(self, x1, y1, x2, y2, x, y):
        self.commands.append(("C", (x1, y1), (x2, y2), (x, y)))
        return self

    def quadratic(self, cx, cy, x, y):
        x0, y0 = self.current()
        return self.cubic(x0 + (cx - x0) * 2 / 3, y0 + (cy - y0) * 2 / 3, x + (cx - x) * 2 / 3, y + (cy - y) * 2 / 3, x, y)

    def close(self):
        self.commands.append(("Z",))
        return self

    def current(self):
        for command in reversed(self.commands):
            if command[0] != "Z":
                return command[-1]
        return (0, 0)

    def __add__(self, other):
        return Path(self.commands + other.commands)

    # Ready-made shapes

    @staticmethod
    def polygon(points):
        path = Path().move(*points[0])
        for point in points[1:]:
            path.line(*point)
        return path.close()

    @staticmethod
    def polyline(points):
        path = Path().move(*points[0])
        for point in points[1:]:
            path.line(*point)
        return path

    @staticmethod
    def rect(x, y, width, height):
        return Path.polygon([(x, y), (x + width, y), (x + width, y + height), (x, y + height)])

    @staticmethod
    def rounded(x, y, width, height, radius):
        """A rectangle with the family's continuous corners; a full capsule where the radius is half the side."""
        radius = min(radius, width / 2, height / 2)
        if radius <= 0:
            return Path.rect(x, y, width, height)
        reach = min(1.4 * radius, width / 2, height / 2)
        softness = reach / radius
        # The corner's middle must lie where a circle's would.
        hold = reach * ((8 * 0.2929 / softness - 1) / 3)
        r, b = x + width, y + height
        path = Path().move(x + reach, y).line(r - reach, y).cubic(r - hold, y, r, y + hold, r, y + reach)
        path.line(r, b - reach).cubic(r, b - hold, r - hold, b, r - reach, b)
        path.line(x + reach, b).cubic(x + hold, b, x, b - hold, x, b - reach)
        return path.line(x, y + reach).cubic(x, y + hold, x + hold, y, x + reach, y).close()

    @staticmethod
    def ellipse(cx, cy, rx, ry=None):
        ry = rx if ry is None else ry
        k = 0.5522847
        path = Path().move(cx + rx, cy)
        path.cubic(cx + rx, cy + k * ry, cx + k * rx, cy + ry, cx, cy + ry)
        path.cubic(cx - k * rx, cy + ry, cx - rx, cy + k * ry, cx - rx, cy)
        path.cubic(cx - rx, cy - k * ry, cx - k * rx, cy - ry, cx, cy - ry)
        return path.cubic(cx + k * rx, cy - ry, cx + rx, cy - k * ry, cx + rx, cy).close()

    @staticmethod
    def arc(cx, cy, radius, start, end):
        """An open arc from one angle to another, clockwise on the screen when the end is larger."""
        count = max(1, math.ceil(abs(end - start) / 60))
        step = math.radians((end - start) / count)
        k = 4 / 3 * math.tan(step / 4)
        angle = math.radians(start)
        path = Path().move(cx + radius * math.cos(angle), cy + radius * math.sin(angle))
        for _ in range(count):
            x0, y0 = path.current()
            nx, ny = cx + radius * math.cos(angle + step), cy + radius * math.sin(angle + step)
            path.cubic(
                x0 - k * radius * math.sin(angle),
                y0 + k * radius * math.cos(angle),
                nx + k * radius * math.sin(angle + step),
                ny - k * radius * math.cos(angle + step),
                nx,
                ny,
            )
            angle += step
        return path

    @staticmethod
    def ring(cx, cy, outer, inner):
        return Path.ellipse(cx, cy, outer) + Path.ellipse(cx, cy, inner).reversed()

    @staticmethod
    def smooth(points, closed=False, tension=0.5):
        """A Catmull-Rom curve through points."""
        count = len(points)
        at = (lambda i: points[i % count]) if closed else (lambda i: points[max(0, min(count - 1, i))])
        path = Path().move(*points[0])
        for i in range(count if closed else count - 1):
            p0, p1, p2, p3 = at(i - 1), at(i), at(i + 1), at(i + 2)
            k = tension / 3 * 2
            path.cubic(
                p1[0] + (p2[0] - p0[0]) * k / 2,
                p1[1] + (p2[1] - p0[1]) * k / 2,
                p2[0] - (p3[0] - p1[0]) * k / 2,
                p2[1] - (p3[1] - p1[1]) * k / 2,
                p2[0],
                p2[1],
            )
        return path.close() if closed else path

    @staticmethod
    def star(cx, cy, outer, inner, count, turn=-90):
        points = []
        for i in range(count * 2):
            radius = outer if i % 2 == 0 else inner
            angle = math.radians(turn + i * 180 / count)
            points.append((cx + radius * math.cos(angle), cy + radius * math.sin(angle)))
        return Path.polygon(points)

    @staticmethod
    def scalloped(cx, cy, radius, count, depth, turn=0):
        """A badge with soft waves along its edge."""
        points = []
        for i in range(count * 2):
            reach = radius * (1 + depth * (1 if i % 2 == 0 else -1))
            angle = math.radians(turn + i * 180 / count)
            points.append((cx + reach * math.cos(angle), cy + reach * math.sin(angle)))
        return Path.smooth(points, closed=True, tension=0.62)

    @staticmethod
    def blob(cx, cy, radius, offsets, turn=0):
        count = len(offsets)
        points = []
        for i, offset in enumerate(offsets):
            angle = math.radians(turn + i * 360 / count)
            points.append((cx + radius * offset * math.cos(angle), cy + radius * offset * math.sin(angle)))
        return Path.smooth(points, closed=True, tension=0.66)

    # Changing

    def transformed(self, transform):
        return Path([(command[0], *[transform(point) for point in command[1:]]) for command in self.commands])

    def moved(self, x, y):
        return self.transformed(Transform.translation(x, y))

    def reversed(self):
        """The same closed outline run the other way, for holes."""
        result = Path()
        for points in self.subpaths():
            nodes = [points[0][-1]]
            for command in points[1:]:
                if command[0] != "Z":
                    nodes.extend(command[1:])
            index = len(nodes) - 1
            result.move(*nodes[index])
            for command in reversed([c for c in points[1:] if c[0] != "Z"]):
                if command[0] == "L":
                    index -= 1
                    result.line(*nodes[index])
                else:
                    result.cubic(*nodes[index - 1], *nodes[index - 2], *nodes[index - 3])
                    index -= 3
            result.close()
        return result

    # Reading

    def subpaths(self):
        runs = []
        for command in self.commands:
            if command[0] == "M":
                runs.append([])
            runs[-1].append(command)
        return runs

    def points(self):
        return [point for command in self.commands for point in command[1:]]

    def bounds(self):
        """Left, top, right, bottom of the drawn outline."""
        points = [point for ring in self.flattened(0.05) for point in ring]
        xs, ys = [p[0] for p in points], [p[1] for p in points]
        return (min(xs), min(ys), max(xs), max(ys))

    def flattened(self, tolerance=0.04):
        """Rings of straight lines, one for each subpath."""
        rings = []
        for run in self.subpaths():
            ring = [run[0][1]]
            for command in run[1:]:
                if command[0] == "L":
                    ring.append(command[1])
                elif command[0] == "C":
                    ring.extend(flatten_cubic(ring[-1], *command[1:], tolerance))
            rings.append(ring)
        return rings


def flatten_cubic(p0, p1, p2, p3, tolerance):
    bend = max(
        math.hypot(p0[0] - 2 * p1[0] + p2[0], p0[1] - 2 * p1[1] + p2[1]),
        math.hypot(p1[0] - 2 * p2[0] + p3[0], p1[1] - 2 * p2[1] + p3[1]),
    )
    count = max(1, min(48, math.ceil(math.sqrt(0.75 * bend / tolerance))))
    points = []
    for i in range(1, count + 1):
        t = i / count
        a, b, c, d = (1 - t) ** 3, 3 * t * (1 - t) ** 2, 3 * t * t * (1 - t), t**3
        points.append((a * p0[0] + b * p1[0] + c * p2[0] + d * p3[0], a * p0[1] + b * p1[1] + c * p2[1] + d * p3[1]))
    return points
