#!/usr/bin/env python3
"""Draws every picture and clip of the module and of its design system anew: make_artwork.py [family ...].

What it writes is kept in the repository; run it after a change to a script. Without a family it draws them all."""

import os
import sys
from pathlib import Path

# Clips are rendered without a screen.
os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")

import icons
import library_clips
import logo
import paywall_headers
import promotion
import shelf_clips
import shelf_scenes
import shelf_strips

ROOT = Path(__file__).resolve().parents[2]
MODULE_IMAGES = ROOT / "ProUpsells" / "Resources" / "Images"
MODULE_CLIPS = ROOT / "ProUpsells" / "Resources" / "Clips"
DESIGN_SYSTEM_IMAGES = ROOT / "Platform" / "VelaUIKit" / "Resources" / "Images"


def write_clips(clips):
    for clip in clips:
        clip.write(MODULE_CLIPS)


FAMILIES = {
    "headers": lambda: paywall_headers.make(MODULE_IMAGES),
    "icons": lambda: icons.make(MODULE_IMAGES, DESIGN_SYSTEM_IMAGES),
    "logo": lambda: logo.make(DESIGN_SYSTEM_IMAGES),
    "promotion": lambda: promotion.make(MODULE_IMAGES),
    "strips": lambda: shelf_strips.make(MODULE_IMAGES),
    "scenes": lambda: shelf_scenes.make(MODULE_IMAGES),
    "library-clips": lambda: write_clips(library_clips.LIBRARY),
    "shelf-clips": lambda: write_clips(shelf_clips.SHELF),
}


def main(arguments):
    unknown = [name for name in arguments if name not in FAMILIES]
    if unknown:
        raise SystemExit(f"unknown family: {', '.join(unknown)} (known: {', '.join(FAMILIES)})")
    for folder in (MODULE_IMAGES, MODULE_CLIPS, DESIGN_SYSTEM_IMAGES):
        folder.mkdir(parents=True, exist_ok=True)
    for name in arguments or FAMILIES:
        FAMILIES[name]()
        print(f"{name}: drawn")


if __name__ == "__main__":
    main(sys.argv[1:])
