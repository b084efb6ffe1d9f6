"""The ten moving posters of the video library, 94 x 167 points each, seamless loops."""

import math
import random

from kit.canvas import linear, radial
from kit.clip_writer import Clip
from kit.geometry import Path
from kit.motion import ease, ease_out, span, swing, there_and_back
from kit.palette import TEAL_DEEP, darker, lighter, mix
from kit.photos import blade
from kit.stickers import STICKERS
from kit.type_outlines import fitted_size, text_path, text_width

W, H = 94, 167


def backdrop(c, *stops, end=(W, H)):
    c.fill(Path.rect(-2, -2, W + 4, H + 4), linear((0, 0), end, *stops))


def waves(c, y, amplitude, wavelength, shift, paint, opacity=1.0):
    """Water below a wavy line that has moved by a share of its wavelength."""
    points, x = [], -wavelength * 2 + shift * wavelength
    while x < W + wavelength * 2:
        points += [(x, y - amplitude), (x + wavelength / 2, y + amplitude)]
        x += wavelength
    path = Path.smooth(points, tension=0.72)
    c.fill(path.line(points[-1][0], H + 10).line(points[0][0], H + 10).close(), paint, opacity)


# Kinetic type in the manner of the nineties: a block of letters that looks around


def squiggle(c, x, y, color):
    c.stroke(Path.smooth([(x, y), (x + 4, y - 4), (x + 8, y), (x + 12, y - 4), (x + 16, y)], tension=0.7), color, 2.2)


def nineties(c, phase):
    backdrop(c, "#46D2C8", "#0F9A93")
    # Each row stands half a column further right, and one round moves the pattern on by exactly one row.
    pitch, step = 47, H / 3
    for row in range(-1, 4):
        for column in range(-1, 3):
            x = (7 + column * pitch + (row + phase) * pitch / 2 + pitch) % (4 * pitch) - pitch
            y = (row + phase) * step
            squiggle(c, x, y + 10, "#FF6F5B")
            with c.placed(x + 26, y + 28, 360 * phase) as spun:
                spun.stroke(Path.polygon([(-5, 4), (5, 4), (0, -5)]), "#FFE28A", 1.9)
            for i in range(4):
                c.fill(Path.ellipse(x + 3 + (i % 2) * 5.5, y + 32 + (i // 2) * 5.5, 1.25), "#FFFFFF", 0.9)
            c.fill(Path.rounded(x + 20, y + 44, 13, 4.4, 2.2), "#6D5BD0")
    size = fitted_size("90s", "spartan-black", 70)
    lean = (6 * swing(phase), 6 + 3 * swing(phase, 1, 0.25))
    base = H / 2 + size * 0.36
    steps = 9
    for i in range(steps, 0, -1):
        share = i / steps
        tone = mix("#5140B4", "#2A1F6E", share)
        c.fill(text_path("90s", "spartan-black", size, W / 2 + lean[0] * share, base + lean[1] * share, "center"), tone)
    front = text_path("90s", "spartan-black", size, W / 2, base, "center")
    c.fill(front, linear((0, base - size * 0.7), (0, base), "#FFE28A", "#FFB43F"))
    c.fill(Path.rounded(W / 2 - 31, base + 15, 62, 15, 7.5), "#2A1F6E")
    c.text("REWIND", "sora-extrabold", 8.4, W / 2 + 0.8, base + 25.6, "#FFFFFF", "center", 0.18)


# Confetti


def confetti(c, phase):
    backdrop(c, "#FF8E74", "#EE4F41")
    generator = random.Random(42)
    pieces = []
    for _ in range(58):
        pieces.append(
            (
                generator.uniform(0, W),
                generator.random(),
                generator.choice((1, 1, 2)),
                generator.choice((1, -1, 2)),
                generator.uniform(3, 8),
                generator.uniform(2.6, 4.6),
                generator.choice(("#FFC655", "#FFFFFF", "#3CCBC1", "#6D5BD0", "#7CC4F2", "#FFE3A8")),
                generator.random(),
            )
        )
    def fall(drawn):
        for x, start, falls, turns, sway, length, tone, shift in drawn:
            y = ((start + phase * falls) % 1) * (H + 24) - 12
            with c.placed(x + sway * swing(phase, falls, shift), y, 360 * turns * phase + 360 * shift) as piece:
                flip = 0.35 + 0.65 * abs(math.cos(2 * math.pi * (phase * 2 + shift)))
                piece.fill(Path.rounded(-length / 2, -length * flip * 0.7, length, length * 1.4 * flip, 0.8), tone)

    fall(pieces)
    # The words stand on a card, so that nothing falls across them.
    with c.placed(W / 2, H / 2, 2.5 * swing(phase), 1 + 0.02 * swing(phase, 2)) as card:
        outline = Path.rounded(-38, -29, 76, 58, 8)
        card.soft_shadow(outline, 2, 4, 5, "#7A1512", 0.34, 5)
        card.fill(outline, linear((-38, -29), (38, 29), "#FFFDF8", "#FFF0DC"))
        size = fitted_size("Hooray", "cherry", 64)
        card.text("Hooray", "cherry", size, 0, size * 0.12, "#D9382C", "center")
        card.text("you are invited", "inter-bold", 7.6, 0, 18.5, "#4A1F1C", "center")


# A lipstick that draws a stroke


def along(points, share):
    """What comes before a share of a line's length, ending exactly there."""
    lengths = [math.dist(a, b) for a, b in zip(points, points[1:])]
    left, shown = share * sum(lengths), points[:1]
    for (x0, y0), (x1, y1), length in zip(points, points[1:], lengths):
        part = min(1, left / length)
        shown.append((x0 + (x1 - x0) * part, y0 + (y1 - y0) * part))
        left -= length
        if left <= 0:
            break
    return shown


def lipstick_tube(c):
    """The lipstick, its tip at the origin."""
    bullet = Path().move(-9.5, 40).line(-9.5, 9).cubic(-9.5, -1, 2, -5.5, 9.5, -3.5).line(9.5, 40).close()
    case = Path.rounded(-15, 50, 30, 80, 3)
    for part in (bullet, Path.rounded(-11.5, 34, 23, 18, 1.6), case):
        c.fill(part.moved(6, 4), "#8E2A22", 0.14)
    c.fill(bullet, linear((-9.5, 0), (9.5, 0), "#FF7A6B", "#E5443F", "#B8242B"))
    c.fill(
        Path.rounded(-11.5, 34, 23, 18, 1.6),
        linear((-11.5, 0), (11.5, 0), (0, "#FFE9B0"), (0.3, "#FFF8E0"), (0.6, "#E0A94A"), (1, "#B97C26")),
    )
    c.fill(case, linear((-15, 0), (15, 0), (0, "#3A434A"), (0.25, "#56616A"), (1, "#15191C")))
    c.fill(Path.rect(-15, 56, 30, 2.2), "#FFD98B")


def lipstick(c, phase):
    backdrop(c, "#FFE0D8", "#FFB3A6")
    # The loop opens on the finished stroke, so that a still of its start shows the thing.
    phase = (phase + 0.52) % 1
    c.fill(Path.polygon([(-10, -5), (34, -5), (W + 16, H + 5), (46, H + 5)]), "#FFFFFF", 0.3)
    c.text("lippy", "lobster", 31, W / 2, 38, "#B8242B", "center")
    line = Path.smooth([(16, 76), (32, 64), (47, 74), (62, 63), (78, 71)], tension=0.7).flattened(0.02)[0]
    drawn = along(line, ease(span(phase, 0.04, 0.50)))
    stays = 1 - ease(span(phase, 0.70, 0.90))
    if phase > 0.04 and stays > 0.01:
        c.stroke(Path.polyline(drawn), "#E5443F", 14, stays)
        c.stroke(Path.polyline([(x, y - 3) for x, y in drawn]), "#FF7A6B", 2.8, 0.8 * stays)
    # The tip is where the stroke ends; afterwards it goes back through the air.
    back = ease(span(phase, 0.66, 0.98))
    (x0, y0), (x1, y1) = drawn[-1], line[0]
    x, y = x0 + (x1 - x0) * back, y0 + (y1 - y0) * back + 30 * math.sin(math.pi * back)
    with c.placed(x, y, 13 * (x - W / 2) / 31) as held:
        lipstick_tube(held)


# Film night: a leader counting down between two perforated edges


def film(c, phase):
    backdrop(c, "#1A2025", "#0C1013")
    pitch = H / 9
    for i in range(-1, 10):
        y = (i * pitch + phase * 3 * pitch) % (H + pitch) - pitch
        for x in (4.2, W - 11.2):
            c.fill(Path.rounded(x, y + 4, 7, 9.6, 2), "#F6EFE0")
    left, top, width, height = 16, 15, 62, 108
    c.fill(Path.rounded(left, top, width, height, 4), linear((left, top), (left + width, top + height), "#FBF3E2", "#E4D3B2"))
    cx, cy, radius = W / 2, top + height / 2, 24
    turn = (phase * 3) % 1
    with c.clipped(Path.rounded(left, top, width, height, 4)) as frame:
        wedge = Path.arc(cx, cy, 90, -90, -90 + 360 * max(turn, 0.004))
        frame.fill(Path([("M", (cx, cy)), ("L", wedge.commands[0][1])] + wedge.commands[1:]).close(), "#C9AE7E", 0.55)
        frame.fill(Path.rect(cx - 0.5, top, 1, height), "#3A332A", 0.55)
        frame.fill(Path.rect(left, cy - 0.5, width, 1), "#3A332A", 0.55)
    for r in (radius, radius + 4.5):
        c.stroke(Path.ellipse(cx, cy, r), "#3A332A", 1.3)
    number = str(3 - min(2, int(phase * 3)))
    size = 46
    _, up, _, down = text_path(number, "bebas", size).bounds()
    c.text(number, "bebas", size, cx, cy - (up + down) / 2, "#E5503F", "center")
    c.text("FILM NIGHT", "bebas", fitted_size("FILM NIGHT", "bebas", 62, 0.02), W / 2, 144, "#FFFFFF", "center", 0.02)
    c.text("Fri, on the roof", "inter-medium", 6.4, W / 2, 155, "#F6D9A0", "center")


# A seed that becomes a flower


def grow(c, phase):
    backdrop(c, "#FFF4D9", "#CDEBDD", end=(0, H))
    # The loop opens on the flower in bloom.
    up = there_and_back((phase + 0.55) % 1, 0.48, 0.82)
    sway = 3.5 * swing(phase, 2) * up
    for i, letter in enumerate("grow"):
        c.text(letter, "quicksand-bold", 27, 13.5 + (0, 17.4, 29, 44.6)[i] + 0, 34 - 1.8 * swing(phase, 1, -i * 0.12), TEAL_DEEP)
    foot, top = 137, 137 - 78 * up
    x = W / 2
    if up > 0.02:
        bend = [(x, foot), (x + 3, foot - (foot - top) * 0.35), (x - 2 + sway * 0.5, foot - (foot - top) * 0.7), (x + sway, top)]
        c.stroke(Path.smooth(bend), "#1C8A79", 3.2)
        for at, side, length, tone in (
            (0.22, -1, 30, "#2A9C86"),
            (0.34, 1, 32, "#1C8A79"),
            (0.54, -1, 25, "#3BB39A"),
            (0.66, 1, 23, "#2A9C86"),
        ):
            open_ = ease_out(span(up, at, min(1, at + 0.4)))
            if open_ > 0.03:
                y = foot - (foot - top) * at
                angle = -90 + side * (22 + 42 * open_) + sway
                lx = x + sway * at * 0.5 + 1.5 * math.sin(at * 9)
                c.fill(
                    blade(lx, y, length * open_, length * 0.46 * open_, angle),
                    linear((lx, y), (lx + side * length, y - length * 0.6), darker(tone, 0.18), lighter(tone, 0.22)),
                )
        bloom = ease_out(span(up, 0.62, 1))
        if bloom > 0.02:
            with c.placed(x + sway, top, 40 * bloom + sway * 2, 16.5 * bloom) as flower:
                STICKERS["daisy"](flower)
    mound = Path().move(-4, H + 4).line(-4, 146).cubic(18, 134, 74, 130, W + 4, 144).line(W + 4, H + 4).close()
    c.fill(mound, linear((0, 132), (0, H), "#9A6240", "#5E3826"))
    c.fill(Path.rounded(12, 152, 12, 2.6, 1.3), "#C98F62", 0.6)
    c.fill(Path.rounded(62, 148, 16, 2.6, 1.3), "#C98F62", 0.5)
    c.fill(Path.rounded(38, 159, 10, 2.6, 1.3), "#C98F62", 0.4)


# Odd socks on a line


def sock(c, x, y, degrees, body, stripe, toe):
    with c.placed(x, y, degrees, 0.84) as place:
        outline = Path().move(-11, 0).line(11, 0).line(11.5, 36).cubic(11.5, 42, 14, 45, 20, 49)
        outline.cubic(30, 56, 31, 68, 20, 70).cubic(10, 72, -2, 66, -8, 60).cubic(-12, 56, -12.5, 50, -12.5, 44).close()
        place.fill(outline, linear((-12, 0), (26, 66), lighter(body, 0.14), darker(body, 0.08)))
        with place.clipped(outline) as knit:
            for i in range(4):
                knit.fill(Path.rect(-20, 13 + i * 9.4, 60, 4.6), stripe)
            knit.fill(Path.ellipse(24, 64, 13), toe)
            knit.fill(Path.ellipse(-14, 58, 10.5), toe)
            knit.fill(Path.rect(-20, -1, 60, 8.5), toe)
        place.fill(Path.rounded(-2.2, -7, 4.4, 13, 1.6), linear((-2, 0), (3, 0), "#F6D29A", "#C98F58"))


def socks(c, phase):
    backdrop(c, "#FFD976", "#FBAE3C")
    c.fill(Path.polygon([(-10, -5), (30, -5), (104, H), (60, H)]), "#FFFFFF", 0.16)
    c.text("ODD SOCK", "bebas", fitted_size("ODD SOCK", "bebas", 70), W / 2, 136, "#4A2A05", "center")
    c.text("appreciation day", "inter-semibold", 6.9, W / 2, 148, "#4A2A05", "center")
    c.stroke(Path.smooth([(-6, 30), (26, 36), (64, 35.5), (100, 28)]), "#7A4A0A", 1.1)
    sock(c, 20, 33.5, 5 * swing(phase, 1, 0.25), "#0F9A93", "#FFF3D6", "#FF6F5B")
    sock(c, 58, 35, 5 * swing(phase, 1, 0.11), "#6D5BD0", "#FFC655", "#7CC4F2")


# A cup of tea from above, its motto going round


def teacup(c, phase):
    """On its saucer, around the origin."""
    c.fill(Path.ellipse(6, 8, 33), radial((6, 8), 33, (0, "#5C4326", 0.5), (0.75, "#5C4326", 0.28), (1, "#5C4326", 0)))
    c.fill(Path.ellipse(0, 0, 31), linear((-25, -25), (25, 25), "#FFFFFF", "#D9E2DE"))
    with c.placed(0, 0, 38) as grip:
        grip.fill(Path.rounded(16, -4, 15, 8, 4), linear((0, -4), (0, 4), "#FF8A6E", "#D94B3D"))
    c.fill(Path.ellipse(0, 0, 21.5), linear((-18, -18), (18, 18), "#FF8F74", "#D94B3D"))
    c.fill(Path.ellipse(0, 0, 18.4), linear((-15, -15), (15, 15), "#A9521C", "#DF9440"))
    with c.clipped(Path.ellipse(0, 0, 18.4)) as tea:
        for i in range(3):
            with tea.placed(0, 0, 360 * phase * 2 + i * 120) as swirl:
                swirl.stroke(Path.smooth([(2, 0), (7, 4), (10, 11), (6, 18)], tension=0.7), "#F6C98B", 1.8, 0.75)
    with c.placed(0, 0, 360 * phase * 2 + 30) as leaf_:
        leaf_.fill(blade(-6, 3, 12, 6, -26), linear((-6, 3), (6, -3), "#0E6A5F", "#3BA58D"))


def teaspin(c, phase):
    backdrop(c, "#F3E8D5", "#DCC7A2")
    cx, cy = W / 2, 68
    with c.placed(cx, cy, scale=0.84) as place:
        teacup(place, phase)
    motto, radius, size = "TEA TIME • TEA TIME • ", 30.8, 8.8
    widths = [text_width(letter, "sora-bold", size) + 1 for letter in motto]
    for i, letter in enumerate(motto):
        turn = (sum(widths[:i]) + widths[i] / 2) / sum(widths)
        with c.placed(cx, cy, 360 * (turn + phase)) as place:
            place.text(letter, "sora-bold", size, 0, -radius, "#8A3F1D", "center")
    c.text("Steep", "didot-italic", 25, W / 2, 138, "#4A2A16", "center")
    c.text("three minutes", "inter-medium", 6.8, W / 2, 150, "#4A2A16", "center")


# A pineapple among its drifting slices


def pineapple_ring(c, x, y, radius, degrees):
    with c.placed(x, y, degrees) as slice_:
        slice_.fill(Path.scalloped(0, 0, radius, 12, 0.05), linear((-radius, -radius), (radius, radius), "#FFD75E", "#F2A51F"))
        slice_.fill(Path.ellipse(0, 0, radius * 0.84), "#FFE58C")
        for i in range(10):
            slice_.stroke(
                Path.polyline(
                    [
                        (radius * 0.42 * math.cos(i * math.pi / 5), radius * 0.42 * math.sin(i * math.pi / 5)),
                        (radius * 0.72 * math.cos(i * math.pi / 5), radius * 0.72 * math.sin(i * math.pi / 5)),
                    ]
                ),
                "#F2B43A",
                radius * 0.08,
            )
        slice_.fill(Path.ellipse(0, 0, radius * 0.27), "#F06A5E")


def pineapple(c, phase):
    backdrop(c, "#FF8C84", "#E8525C")
    for x, start, radius, turns in ((10, 0.05, 14, 1), (84, 0.30, 17, -1), (16, 0.55, 11, -1), (80, 0.78, 12, 1)):
        y = H + 24 - ((start + phase) % 1) * (H + 48)
        pineapple_ring(c, x + 2.5 * swing(phase, 1, start), y, radius, 360 * turns * phase)
    with c.placed(W / 2, 120, 5 * swing(phase)) as fruit:
        for degrees, length in ((-128, 26), (-52, 26), (-146, 20), (-34, 20), (-108, 31), (-72, 31), (-90, 35)):
            fruit.fill(blade(0, -56, length, length * 0.36, degrees), linear((0, -56), (0, -92), "#0B6A5F", "#54B79B"))
        body = Path.ellipse(0, -28, 23, 31)
        fruit.fill(body, linear((-20, -56), (20, 2), "#FFD75E", "#EE9320"))
        with fruit.clipped(body) as skin:
            for i in range(-5, 6):
                skin.stroke(Path.smooth([(i * 10 - 34, -62), (i * 10, -28), (i * 10 + 34, 6)]), "#B96A12", 1.1, 0.6)
                skin.stroke(Path.smooth([(i * 10 + 34, -62), (i * 10, -28), (i * 10 - 34, 6)]), "#B96A12", 1.1, 0.6)
    # The slices dive into the juice, so that none of them passes behind the word.
    waves(c, 119, 2.2, 47, -phase, "#F0757B", 0.55)
    waves(c, 122, 2.4, 47, phase + 0.4, linear((0, 118), (0, H), "#C42A48", "#8F1A3C"))
    c.text("juicy", "lobster", 29, W / 2, 149, "#FFF3D6", "center")


# A sale tag on its string


def sale_tag(c, phase):
    backdrop(c, "#4FA8E8", "#1C4FA8")
    size = fitted_size("SALE", "bebas", 62)
    pitch = text_width("SALE ", "bebas", size)
    for row in range(4):
        way = 1 if row % 2 else -1
        offset = (phase * way) % 1
        for copy in range(-2, 3):
            c.text("SALE", "bebas", size, copy * pitch + offset * pitch + (row % 2) * 20, 40 + row * 42, "#FFFFFF", opacity=0.14)
    with c.placed(W / 2, -10, 9 * swing(phase), 0.96) as swung:
        swung.stroke(Path.polyline([(0, 0), (0, 58)]), "#FFFFFF", 1.1, 0.9)
        outline = Path().move(-8, 50).line(8, 50).line(26, 68).cubic(27.4, 69.4, 28, 71, 28, 73).line(28, 132)
        outline.cubic(28, 135.4, 25.4, 138, 22, 138).line(-22, 138).cubic(-25.4, 138, -28, 135.4, -28, 132).line(-28, 73).cubic(
            -28, 71, -27.4, 69.4, -26, 68
        ).close()
        swung.fill(outline.moved(5, 6), "#0A2458", 0.28)
        swung.fill(outline, linear((-28, 50), (28, 138), "#FFDC82", "#FFB53E"))
        swung.fill(Path.ellipse(0, 61, 4), "#2B68BE")
        swung.text("minus", "lobster", 15, 0, 87, "#1B2F5E", "center")
        swung.text("50", "spartan-black", 36, -1, 115, "#1B2F5E", "center", -0.02)
        swung.text("percent", "inter-bold", 8.4, 0, 128, "#1B2F5E", "center")
    c.text("until Sunday", "inter-semibold", 7.4, W / 2, 154, "#FFFFFF", "center")


# Sun, sea and a small boat


def summer(c, phase):
    backdrop(c, "#FFE9B8", "#FFC48A", end=(0, H))
    cx, cy = W / 2, 82
    for i in range(12):
        angle = math.radians(i * 30 + 30 * phase)
        spread = math.radians(7)
        points = [(cx, cy)] + [(cx + 150 * math.cos(angle + d), cy + 150 * math.sin(angle + d)) for d in (-spread, spread)]
        c.fill(Path.polygon(points), "#FFFFFF", 0.30)
    c.fill(Path.ellipse(cx, cy, 27), linear((cx - 20, cy - 20), (cx + 20, cy + 20), "#FF9A73", "#F2604A"))
    waves(c, 97, 2.6, 47, -phase, linear((0, 92), (0, 125), "#5CC5BE", "#35A9A4"))
    with c.placed(30 + 3 * swing(phase), 105 + 1.8 * swing(phase, 1, 0.2), 4 * swing(phase, 1, 0.1)) as boat:
        boat.fill(Path.polygon([(1, -30), (1, -4), (20, -4)]), "#FFFFFF")
        boat.fill(Path.polygon([(-1.4, -26), (-1.4, -4), (-13, -4)]), "#FFE0D4")
        hull = (
            Path().move(-17, -1).line(22, -1).cubic(19, 6, 14, 8.5, 8, 8.5).line(-7, 8.5).cubic(-12, 8.5, -15, 5, -17, -1).close()
        )
        boat.fill(hull, linear((-17, -1), (22, 8), "#FF8A6E", "#C93F33"))
    waves(c, 111, 2.8, 47, 0.4 + phase, linear((0, 106), (0, 140), "#1FA29C", "#0F8583"))
    waves(c, 126, 3.0, 47, 0.1 - phase, linear((0, 122), (0, 155), "#0F8583", "#0A6A6E"))
    waves(c, 143, 3.0, 47, 0.7 + phase, linear((0, 138), (0, H), "#0A6A6E", "#074F58"))
    size = fitted_size("Summer", "lobster", 76)
    for i, letter in enumerate("Summer"):
        c.text(
            letter, "lobster", size, 9 + text_width("Summer"[:i], "lobster", size), 38 + 2.2 * swing(phase, 1, -i * 0.11), "#D9432F"
        )


# The two that move all over get a little less quality, so that no clip is much larger than the others.
LIBRARY = (
    Clip("90s3D", W, H, 4, nineties, quality=18),
    Clip("LHxVELA_Confetti", W, H, 4, confetti),
    Clip("LIPPY", W, H, 4, lipstick),
    Clip("VELA_FILM", W, H, 3, film),
    Clip("VELA_GROW", W, H, 5, grow),
    Clip("VELA_SOCKS-", W, H, 4, socks),
    Clip("VELA_TEASPIN", W, H, 6, teaspin),
    Clip("PINEAPPLE", W, H, 5, pineapple),
    Clip("sale_blue", W, H, 4, sale_tag, quality=16),
    Clip("Summer", W, H, 4, summer),
)
