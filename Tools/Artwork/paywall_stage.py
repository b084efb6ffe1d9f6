"""What the four header pictures share: their size, their dark foot, their evening light.

They are shown filled into a band 254 high and 320 to 744 wide, with a white title of up to three lines at the bottom left, dots at
the bottom right and a close button at the top right. Taller screens cut off their upper 10 points.
So each is 600 x 254: its middle 320 is a complete picture, from 24 to 166 below its top, and clear of the close button. Its wings
only go on with it, and below 186 there is nothing but the dark that the title stands on."""

from kit.canvas import linear
from kit.geometry import Path
from kit.palette import NIGHT_PAGE

WIDTH, HEIGHT = 600, 254
CENTER = WIDTH / 2
BLEED = 2
# What the pictures end in: one dark of their own by day, the page itself by night.
DAY_FOOT = "#081B1E"


def bleed():
    """The whole picture and a little more, so that no scale leaves a half-covered row of pixels at its edge."""
    return Path.rect(-BLEED, -BLEED, WIDTH + 2 * BLEED, HEIGHT + 2 * BLEED)


FOOT_TOP = 186


def foot_color(dark):
    return NIGHT_PAGE if dark else DAY_FOOT


def scrim(c, dark, top=104):
    """The calm dark foot under the title: an eased fade, solid where the text stands."""
    eased = ((0, 0), (0.12, 0.03), (0.26, 0.14), (0.4, 0.36), (0.52, 0.6), (0.64, 0.79), (0.76, 0.91), (0.88, 0.97), (1, 1))
    c.fill(
        Path.rect(-BLEED, top, WIDTH + 2 * BLEED, HEIGHT + BLEED - top),
        linear((0, top), (0, FOOT_TOP), *[(offset, foot_color(dark), share) for offset, share in eased]),
    )


def deepen(c, dark):
    """The dark variant: the same picture in evening light."""
    if dark:
        c.fill(bleed(), linear((0, 0), (0, HEIGHT), (0, "#08161A", 0.20), (1, "#08161A", 0.08)))
