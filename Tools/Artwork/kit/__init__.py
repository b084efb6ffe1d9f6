"""A small vector kit: paths, type outlines, photo-like scenes and a canvas that writes plain SVG Tiny."""
