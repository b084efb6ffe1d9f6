"""Renders a picture as the program will: preview.py <picture.svg> <out.png> [scale] [background] [left,top,width,height].

The optional rectangle, in points, cuts out a part of the picture."""

import sys
import time

from PyQt6.QtCore import QRectF
from PyQt6.QtGui import QColor, QImage, QPainter
from PyQt6.QtSvg import QSvgRenderer


def render(source, scale=2.0, background="#FFFFFF", part=None):
    renderer = QSvgRenderer(source)
    if not renderer.isValid():
        raise SystemExit(f"{source}: not a readable picture")
    size = renderer.defaultSize()
    left, top, width, height = part or (0, 0, size.width(), size.height())
    image = QImage(round(width * scale), round(height * scale), QImage.Format.Format_ARGB32_Premultiplied)
    image.fill(QColor(background))
    painter = QPainter(image)
    painter.setRenderHint(QPainter.RenderHint.Antialiasing)
    started = time.perf_counter()
    renderer.render(painter, QRectF(-left * scale, -top * scale, size.width() * scale, size.height() * scale))
    painter.end()
    return image, (time.perf_counter() - started) * 1000


if __name__ == "__main__":
    arguments = sys.argv[1:]
    part = tuple(float(value) for value in arguments[4].split(",")) if len(arguments) > 4 else None
    image, milliseconds = render(
        arguments[0], float(arguments[2]) if len(arguments) > 2 else 2.0, arguments[3] if len(arguments) > 3 else "#FFFFFF", part
    )
    image.save(arguments[1])
    print(f"{arguments[1]}: {image.width()} x {image.height()} pixels, {milliseconds:.1f} ms")
