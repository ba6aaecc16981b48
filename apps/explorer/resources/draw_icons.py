#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
# SPDX-License-Identifier: BSD-3-Clause

"""Draws the explorer's tool bar icons, in the manner of the library's. Run by hand; the files are committed."""

import importlib.util
import math
from pathlib import Path

HERE = Path(__file__).parent
LIBRARY = HERE.parents[2] / 'src' / 'OrvCameraGuiApi' / 'resources' / 'draw_icons.py'

spec = importlib.util.spec_from_file_location('library_icons', LIBRARY)
library = importlib.util.module_from_spec(spec)
spec.loader.exec_module(library)

GREY, BLUE, GREEN, RED = library.GREY, library.BLUE, library.GREEN, library.RED
ORANGE, WHITE = library.ORANGE, library.WHITE
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


def lens(*signs):
    """A magnifying glass with that in it."""
    return [(line((10.5, 10.5), (14, 14), width=2.4), GREY), (circle(6.6, 6.6, 5.6), GREY),
            (circle(6.6, 6.6, 4.2), WHITE)] + [(sign, BLUE) for sign in signs]


def corner(x, y, dx, dy):
    """An angle with its arms towards the middle."""
    return line((x + dx, y), (x, y), (x, y + dy), width=1.7)


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
    'start': [(polygon((3.5, 1.5), (13.5, 8), (3.5, 14.5)), GREEN)],
    'stop': [(rectangle(2.5, 2.5, 13.5, 13.5), RED)],
    # As far as a line.
    'oneframe': [(polygon((2, 1.5), (10.5, 8), (2, 14.5)), GREEN), (rectangle(11.6, 1.5, 14, 14.5), GREEN)],
    # A picture between the corners of its view.
    'fit': [(rectangle(4.6, 5.4, 11.4, 10.6), BLUE)] + [
        (corner(x, y, dx, dy), GREY) for x, dx in ((1.6, 3.2), (14.4, -3.2)) for y, dy in ((2.4, 3.2), (13.6, -3.2))],
    # One to one.
    'pixels': [(rectangle(x, 3, x + 2.2, 13), BLUE) for x in (3, 10.8)] + [
        (polygon((x, 3), (x, 5.6), (x - 2.2, 6.4), (x - 2.2, 4.4)), BLUE) for x in (3.4, 11.2)] + [
        (circle(8, y, 1.1), GREY) for y in (6, 10.4)],
    'zoomin': lens(line((4.2, 6.6), (9, 6.6), width=1.5), line((6.6, 4.2), (6.6, 9), width=1.5)),
    'zoomout': lens(line((4.2, 6.6), (9, 6.6), width=1.5)),
    'histogram': [(line((1.5, 1.5), (1.5, 14.4), (14.6, 14.4), width=1.3), GREY)] + [
        (rectangle(x, top, x + 2.4, 13), BLUE) for x, top in ((3.1, 9), (6, 4), (8.9, 6.4), (11.8, 10.6))],
    # A disk.
    'savepicture': [(rectangle(1.5, 1.5, 14.5, 14.5), GREY), (rectangle(4, 1.5, 12, 6.2), WHITE),
                    (rectangle(9, 2.2, 10.8, 5.4), BLUE), (rectangle(3.6, 8.4, 12.4, 14.5), WHITE),
                    (line((5.4, 10.4), (10.6, 10.4), width=1.1), ORANGE),
                    (line((5.4, 12.5), (10.6, 12.5), width=1.1), ORANGE)],
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
