"""What the four header pictures share: their size, their dark foot, their evening light.

They are shown filled into a band 254 high and 320 to 744 wide, with a white title at the bottom left and dots at the bottom right.
So each is 600 x 254: its middle 375 is a complete picture, its wings only go on with it, and its lower 90 points sink into ink."""

from kit.canvas import linear
from kit.geometry import Path

WIDTH, HEIGHT = 600, 254
CENTER = WIDTH / 2
BLEED = 2


def bleed():
    """The whole picture and a little more, so that no scale leaves a half-covered row of pixels at its edge."""
    return Path.rect(-BLEED, -BLEED, WIDTH + 2 * BLEED, HEIGHT + 2 * BLEED)


def scrim(c, ink, top=104, strength=0.98):
    """The calm dark foot under the title: an eased fade, solid where the text stands."""
    eased = ((0, 0), (0.12, 0.03), (0.26, 0.14), (0.4, 0.36), (0.52, 0.6), (0.64, 0.79), (0.76, 0.91), (0.88, 0.97), (1, 1))
    foot = 198
    c.fill(
        Path.rect(-BLEED, top, WIDTH + 2 * BLEED, HEIGHT + BLEED - top),
        linear((0, top), (0, foot), *[(offset, ink, strength * share) for offset, share in eased]),
    )


def deepen(c, dark):
    """The dark variant: the same picture in evening light."""
    if dark:
        c.fill(bleed(), linear((0, 0), (0, HEIGHT), (0, "#08161A", 0.20), (1, "#08161A", 0.08)))
