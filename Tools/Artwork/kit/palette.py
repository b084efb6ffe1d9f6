"""The house colours, and small arithmetic on them. Colours are "#rrggbb"."""

INK = "#15191C"
INK_SOFT = "#5A6268"
PAPER = "#FFFFFF"
WARM_PAPER = "#FBF7F0"
MIST = "#F4F5F3"
SAND = "#EFE6D8"
SAND_DEEP = "#DDCDB6"
TEAL = "#0A7C78"
TEAL_DEEP = "#085E5B"
TEAL_NIGHT = "#0B3436"
TEAL_LIGHT = "#3CCBC1"
TEAL_PALE = "#D8F1EE"
CORAL = "#FF6F5B"
CORAL_DEEP = "#D94B3D"
CORAL_PALE = "#FFD9CF"
SUN = "#FFC655"
SUN_DEEP = "#EFA02E"
SUN_PALE = "#FFEDC4"
VIOLET = "#6D5BD0"
VIOLET_DEEP = "#43368F"
VIOLET_PALE = "#E2DDF8"
SKY = "#7CC4F2"
SKY_DEEP = "#3C8FC9"
SKY_PALE = "#DCEFFB"
NIGHT_PAGE = "#0F1315"


def channels(color):
    return tuple(int(color[i : i + 2], 16) for i in (1, 3, 5))


def mix(first, second, share):
    """The first colour with a share (0 to 1) of the second in it."""
    return "#" + "".join(f"{round(a + (b - a) * share):02X}" for a, b in zip(channels(first), channels(second)))


def lighter(color, share):
    return mix(color, "#FFFFFF", share)


def darker(color, share):
    return mix(color, "#0B1418", share)
