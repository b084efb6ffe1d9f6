"""Time in clips: phases run from 0 to 1 over one loop, and every drawing is the same at 0 and at 1."""

import math


def clamp(value):
    return max(0.0, min(1.0, value))


def span(phase, start, end):
    """How far the phase has come through a part of the loop."""
    return clamp((phase - start) / (end - start))


def ease(value):
    """In and out."""
    return value * value * value * (value * (6 * value - 15) + 10)


def ease_out(value):
    return 1 - (1 - value) ** 3


def there_and_back(phase, rise_end, fall_start, rise_start=0.0, fall_end=1.0):
    """Up to 1, held, and down again."""
    return ease(span(phase, rise_start, rise_end)) * (1 - ease(span(phase, fall_start, fall_end)))


def swing(phase, turns=1, shift=0.0):
    return math.sin(2 * math.pi * (phase * turns + shift))
