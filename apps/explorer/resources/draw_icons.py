#!/usr/bin/env python3
"""Draws the explorer's tool bar icons, in the manner of the library's. Run by hand; the files are committed."""

import importlib.util
import math
from pathlib import Path

HERE = Path(__file__).parent
LIBRARY = HERE.parents[2] / 'src' / 'OrvCameraGuiApi' / 'resources' / 'draw_icons.py'

spec = importlib.util.spec_from_file_location('library_icons', LIBRARY)
library = importlib.util.module_from_spec(spec)
spec.loader.exec_module(library)

GREY, BLUE, GREEN, ORANGE, WHITE = library.GREY, library.BLUE, library.GREEN, library.ORANGE, library.WHITE
circle, line, polygon, rectangle = library.circle, library.line, library.polygon, library.rectangle


def turned(points, angle):
    """Points around the middle of the canvas, turned clockwise as seen on the screen."""
    sine, cosine = math.sin(angle), math.cos(angle)
    return [(8 + (x - 8) * cosine - (y - 8) * sine, 8 + (x - 8) * sine + (y - 8) * cosine) for x, y in points]


def circling_arrow():
    """Three quarters of a circle, from the left over the top, and the arrow at its end."""
    ring = library.arc(8, 8, 5, math.pi / 4, 1.9)
    bend = turned([(13, 8)], -math.pi / 4)[0]
    head = polygon((bend[0] - 3.4, bend[1] + 0.8), (bend[0] + 1.9, bend[1] - 3.9), (bend[0] + 2.1, bend[1] + 1.6))
    return [(ring, BLUE), (head, BLUE)]


ICONS = {
    # A camera from the front, and what opens it.
    'opencamera': [(line((4.5, 3), (7.5, 3), width=2.4), GREY), (rectangle(1, 4, 15, 13.5), GREY),
                   (circle(8, 8.8, 3.7), WHITE), (circle(8, 8.8, 2.7), BLUE), (circle(13, 5.8, 0.8), ORANGE)],
    # A sheet with angle brackets.
    'opendescription': [(library.frame(2.5, 1, 13.5, 15, 1.4), GREY),
                        (line((6.8, 5.2), (4.9, 8), (6.8, 10.8), width=1.4), BLUE),
                        (line((9.2, 5.2), (11.1, 8), (9.2, 10.8), width=1.4), BLUE)],
    'refresh': circling_arrow(),
    # A clock.
    'poll': [(circle(8, 8, 7), GREY), (circle(8, 8, 5.5), WHITE),
             (line((8, 4.2), (8, 8), (10.6, 9.6), width=1.5), BLUE)],
    # A window with fields.
    'configwindow': [(library.frame(1, 2, 15, 14, 1.4), GREY), (rectangle(1, 2, 15, 5), GREY)]
    + [(line((4, y), (7, y), width=1.4), BLUE) for y in (7.6, 10.6)]
    + [(line((9.4, y), (12, y), width=1.4), ORANGE) for y in (7.6, 10.6)],
}


def main():
    for name, shapes in ICONS.items():
        (HERE / f'{name}.ico').write_bytes(library.ico(shapes))


if __name__ == '__main__':
    main()
