#!/usr/bin/env python3
"""Draws every picture of the module and of its design system anew: make_artwork.py [family ...].

What it writes is kept in the repository; run it after a change to a script. Without a family it draws them all."""

import sys
from pathlib import Path

import icons
import logo
import paywall_headers
import promotion
import shelf_strips

ROOT = Path(__file__).resolve().parents[2]
MODULE_IMAGES = ROOT / "ProUpsells" / "Resources" / "Images"
DESIGN_SYSTEM_IMAGES = ROOT / "Platform" / "VelaUIKit" / "Resources" / "Images"

FAMILIES = {
    "headers": lambda: paywall_headers.make(MODULE_IMAGES),
    "icons": lambda: icons.make(MODULE_IMAGES, DESIGN_SYSTEM_IMAGES),
    "logo": lambda: logo.make(DESIGN_SYSTEM_IMAGES),
    "promotion": lambda: promotion.make(MODULE_IMAGES),
    "shelves": lambda: shelf_strips.make(MODULE_IMAGES),
}


def main(arguments):
    unknown = [name for name in arguments if name not in FAMILIES]
    if unknown:
        raise SystemExit(f"unknown family: {', '.join(unknown)} (known: {', '.join(FAMILIES)})")
    for folder in (MODULE_IMAGES, DESIGN_SYSTEM_IMAGES):
        folder.mkdir(parents=True, exist_ok=True)
    for name in arguments or FAMILIES:
        FAMILIES[name]()
        print(f"{name}: drawn")


if __name__ == "__main__":
    main(sys.argv[1:])
