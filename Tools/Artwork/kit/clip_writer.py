"""Turns drawings of time into silent H.264 clips: each frame is drawn as a picture, rendered, and piped to ffmpeg."""

import subprocess
from dataclasses import dataclass
from typing import Callable

from PyQt6.QtCore import QByteArray, QRectF
from PyQt6.QtGui import QColor, QImage, QPainter
from PyQt6.QtSvg import QSvgRenderer

from .canvas import Canvas

FRAMES_PER_SECOND = 24


@dataclass(frozen=True)
class Clip:
    """A loop. The drawing gets a canvas of width x height points and a phase in [0, 1)."""

    name: str
    width: float
    height: float
    seconds: float
    draw: Callable[[Canvas, float], None]
    quality: int = 15

    def frame(self, phase, scale=2, background="#FFFFFF"):
        canvas = Canvas(self.width, self.height)
        self.draw(canvas, phase)
        renderer = QSvgRenderer(QByteArray(canvas.document.svg().encode()))
        image = QImage(round(self.width * scale), round(self.height * scale), QImage.Format.Format_RGB32)
        image.fill(QColor(background))
        painter = QPainter(image)
        painter.setRenderHint(QPainter.RenderHint.Antialiasing)
        renderer.render(painter, QRectF(0, 0, image.width(), image.height()))
        painter.end()
        return image

    def write(self, folder):
        count = round(self.seconds * FRAMES_PER_SECOND)
        size = f"{round(self.width * 2)}x{round(self.height * 2)}"
        command = [
            "ffmpeg",
            "-hide_banner",
            "-loglevel",
            "error",
            "-y",
            "-f",
            "rawvideo",
            "-pixel_format",
            "bgra",
            "-video_size",
            size,
            "-framerate",
            str(FRAMES_PER_SECOND),
            "-i",
            "-",
            "-vf",
            "scale=out_color_matrix=bt601:out_range=tv:flags=accurate_rnd+full_chroma_int,format=yuv420p",
            "-an",
            "-c:v",
            "libx264",
            "-profile:v",
            "high",
            "-preset",
            "veryslow",
            "-tune",
            "animation",
            "-crf",
            str(self.quality),
            "-threads",
            "1",
            "-x264-params",
            # A change of quality from the last picture to the first would be a jump: those on both sides of the seam get more bits.
            f"zones=0,0,b=2/{count - 2},{count - 1},b=3",
            "-g",
            "48",
            "-bf",
            "2",
            "-color_range",
            "tv",
            "-colorspace",
            "smpte170m",
            "-color_primaries",
            "bt709",
            "-color_trc",
            "iec61966-2-1",
            "-map_metadata",
            "-1",
            "-fflags",
            "+bitexact",
            "-flags:v",
            "+bitexact",
            "-movflags",
            "+faststart",
            f"{folder}/{self.name}.mp4",
        ]
        encoder = subprocess.Popen(command, stdin=subprocess.PIPE)
        for index in range(count):
            image = self.frame(index / count)
            bits = image.constBits()
            bits.setsize(image.sizeInBytes())
            encoder.stdin.write(bytes(bits))
        encoder.stdin.close()
        if encoder.wait() != 0:
            raise SystemExit(f"{self.name}: ffmpeg failed")
