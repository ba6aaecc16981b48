#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
# SPDX-License-Identifier: BSD-3-Clause

"""Draws the icons of the library. Run by hand; the files are committed.

Those of the feature tree's buttons go into images/, at 16 and, as @2x, at 32 pixels; those of windows and of the
configuration window's buttons into icons/, with all sizes in one file each, and so do those that labels show as
pixmaps, with one size a file.

Each icon is a list of shapes on a canvas of 16 by 16 units, painted one over the other. A shape is a function that
tells the distance of a point from its border, in units, negative inside; from that the edges are smoothed. Colors are
of medium lightness, so that they stand out on light and on dark palettes alike.
"""

import math
import struct
import zlib
from pathlib import Path

GREY = (122, 135, 148)
BLUE = (58, 132, 212)
GREEN = (46, 157, 84)
RED = (217, 57, 50)
ORANGE = (224, 122, 24)
WHITE = (255, 255, 255)


def circle(x, y, radius):
    return lambda px, py: math.hypot(px - x, py - y) - radius


def line(*points, width):
    """A line through all points, with round ends and corners."""

    def segment(px, py, start, end):
        (ax, ay), (bx, by) = start, end
        dx, dy = bx - ax, by - ay
        along = max(0.0, min(1.0, ((px - ax) * dx + (py - ay) * dy) / (dx * dx + dy * dy)))
        return math.hypot(px - ax - along * dx, py - ay - along * dy)

    return lambda px, py: min(segment(px, py, *ends) for ends in zip(points, points[1:])) - width / 2


def arc(x, y, radius, opening, width):
    """A circle that is open to the right, by that angle to each side of the horizontal."""

    def distance(px, py):
        angle = abs(math.atan2(py - y, px - x))
        if angle >= opening:
            return abs(math.hypot(px - x, py - y) - radius) - width / 2
        ends = (math.cos(opening) * radius, math.sin(opening) * radius)
        return math.hypot(px - x - ends[0], abs(py - y) - ends[1]) - width / 2

    return distance


def polygon(*points):
    """A convex shape; the points go clockwise as seen on the screen."""
    edges = list(zip(points, points[1:] + points[:1]))

    def distance(px, py):
        return max(((px - ax) * (by - ay) - (py - ay) * (bx - ax)) / math.hypot(bx - ax, by - ay)
                   for (ax, ay), (bx, by) in edges)

    return distance


def rectangle(left, top, right, bottom):
    return polygon((left, top), (right, top), (right, bottom), (left, bottom))


def frame(left, top, right, bottom, width):
    outside = rectangle(left, top, right, bottom)
    inside = rectangle(left + width, top + width, right - width, bottom - width)
    return lambda px, py: max(outside(px, py), -inside(px, py))


def without(shape, *holes):
    return lambda px, py: max(shape(px, py), *(-hole(px, py) for hole in holes))


def node_boxes(sign):
    """Two tree nodes, one behind the other; the sign tells what becomes of them."""
    behind = without(frame(4, 1, 15, 12, 1), rectangle(0, 3, 13, 16))
    return [(behind, GREY), (frame(1, 4, 12, 15, 1), BLUE)] + [(shape, BLUE) for shape in sign]


def slider(y, knob):
    """A line with a knob on it, with a gap around the knob."""
    bar = without(rectangle(1, y, 15, y + 1), circle(knob, y + 0.5, 2.7))
    return [(bar, GREY), (circle(knob, y + 0.5, 1.8), GREY)]


LETTER_C = (arc(4, 12, 2.6, 0.75, 1.5), ORANGE)
LETTER_W = (line((8.2, 9.4), (9.7, 14.4), (11.3, 10.2), (12.9, 14.4), (14.4, 9.4), width=1.4), BLUE)

MINUS = [rectangle(4, 9, 9, 10)]
PLUS = MINUS + [rectangle(6, 7, 7, 12)]

BACKSPACE = without(polygon((5.5, 3), (15, 3), (15, 13), (5.5, 13), (0.8, 8)),
                    line((7.2, 5.7), (11.8, 10.3), width=1.5), line((7.2, 10.3), (11.8, 5.7), width=1.5))

ICONS = {
    'collapse_all': node_boxes(MINUS),
    'expand_all': node_boxes(PLUS),
    'ok': [(circle(8, 8, 7.2), GREEN), (line((4.6, 8.3), (7.1, 10.8), (11.4, 5.6), width=1.9), WHITE)],
    'err': [(circle(8, 8, 7.2), RED), (line((8, 4), (8, 8.6), width=2), WHITE), (circle(8, 11.7, 1.2), WHITE)],
    'clear_left': [(BACKSPACE, GREY)],
    'options': slider(3, 10) + slider(8, 5) + slider(13, 11),
    'options-c': slider(3, 10) + [LETTER_C],
    'options-w': slider(3, 10) + [LETTER_W],
    'options-cw': slider(3, 10) + [LETTER_C, LETTER_W],
}

CAMERA = without(rectangle(1, 4.5, 15, 13.5), circle(8, 9, 3.9))
FINDER = polygon((5.5, 2.5), (10.5, 2.5), (11.5, 4.6), (4.5, 4.6))

WINDOW_ICONS = {
    'orvicon': [(CAMERA, GREY), (FINDER, GREY), (circle(8, 9, 3.2), BLUE), (circle(6.9, 7.9, 0.9), WHITE),
                (circle(13, 6.4, 0.8), GREEN)],
}



def lamp(color):
    return [(circle(8, 8, 7), tuple(part * 2 // 3 for part in color)), (circle(8, 8, 6), color),
            (circle(6.2, 5.8, 1.5), tuple((part + 2 * 255) // 3 for part in color))]


def plug(left, right, color):
    """A cable from edge to edge, with a plug that ends at left and a socket that begins at right."""
    cable = [line((0.5, 8), (left - 5, 8), width=1.6), line((right + 5, 8), (15.5, 8), width=1.6)]
    return ([(shape, GREY) for shape in cable]
            + [(rectangle(left - 5, 3, left, 13), color), (rectangle(right, 3, right + 5, 13), color)])


def pulses(color, *edges):
    """A signal along the time axis that changes at each edge, beginning low."""
    points, y = [(1, 11)], 11
    for x in edges:
        points += [(x, y), (x, 15 - y)]
        y = 15 - y
    return [(rectangle(1, 13.5, 15, 14.5), GREY), (line(*points, (15, y), width=1.4), color)]


# Of the buttons that open the feature dialogs.
BUTTON_ICONS = {
    'frameab': [(frame(1, 1, 10.5, 10.5, 1.6), GREY), (frame(5.5, 5.5, 15, 15, 1.6), BLUE)],
    'trigger': [(polygon((10, 0.8), (8.6, 8.8), (3, 8.8)), ORANGE), (polygon((7.4, 6.8), (13, 6.8), (6, 15.2)), ORANGE)],
    'pulse': pulses(BLUE, 3, 6, 9, 12),
    'strobe': [(circle(8, 8, 3), ORANGE)]
    + [(line((8 + 4.6 * x, 8 + 4.6 * y), (8 + 6.6 * x, 8 + 6.6 * y), width=1.5), ORANGE)
       for x, y in ((math.cos(turn * math.pi / 4), math.sin(turn * math.pi / 4)) for turn in range(8))],
    'dataout': [(frame(1, 2.5, 9.5, 13.5, 1.5), GREY), (rectangle(5, 7.2, 11, 8.8), GREEN),
                (polygon((10.5, 4.2), (15.2, 8), (10.5, 11.8)), GREEN)],
    'color': [(circle(8, 5.2, 3.6), RED), (circle(5.1, 10.4, 3.6), GREEN), (circle(10.9, 10.4, 3.6), BLUE)],
}

# Of the status bar.
LINK_ICONS = {
    'connected': plug(7.8, 8.2, GREEN),
    'disconnected': plug(6, 10, RED),
}

LAMPS = {'greenball': lamp(GREEN), 'redball': lamp(RED)}


def blend(below, color, coverage):
    """Paints over a pixel (red, green, blue, opacity), all from 0 to 1."""
    opacity = coverage + below[3] * (1 - coverage)
    if opacity == 0:
        return below
    rgb = [(c / 255 * coverage + b * below[3] * (1 - coverage)) / opacity for c, b in zip(color, below)]
    return (*rgb, opacity)


def draw(shapes, scale):
    """The rows of pixels of an icon, as PNG wants them."""
    size = 16 * scale
    rows = bytearray()
    for y in range(size):
        rows.append(0)  # no filter
        for x in range(size):
            pixel = (0.0, 0.0, 0.0, 0.0)
            for shape, color in shapes:
                distance = shape((x + 0.5) / scale, (y + 0.5) / scale) * scale
                pixel = blend(pixel, color, max(0.0, min(1.0, 0.5 - distance)))
            rows += bytes(round(255 * part) for part in pixel)
    return size, bytes(rows)


def chunk(kind, data):
    return struct.pack('>I', len(data)) + kind + data + struct.pack('>I', zlib.crc32(kind + data))


def png(size, rows):
    header = struct.pack('>IIBBBBB', size, size, 8, 6, 0, 0, 0)
    return (b'\x89PNG\r\n\x1a\n' + chunk(b'IHDR', header) + chunk(b'IDAT', zlib.compress(rows, 9))
            + chunk(b'IEND', b''))


def ico(shapes, scales=(1, 2, 3, 4)):
    """An icon file of PNG pictures, one for each scale of 16 pixels."""
    pictures = [(16 * scale, png(*draw(shapes, scale))) for scale in scales]
    directory = struct.pack('<HHH', 0, 1, len(pictures))
    offset = len(directory) + 16 * len(pictures)
    for size, data in pictures:
        directory += struct.pack('<BBBBHHII', size, size, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
    return directory + b''.join(data for _, data in pictures)


def main():
    images = Path(__file__).parent / 'images'
    icons = Path(__file__).parent / 'icons'
    images.mkdir(exist_ok=True)
    icons.mkdir(exist_ok=True)
    for name, shapes in ICONS.items():
        for suffix, scale in (('', 1), ('@2x', 2)):
            (images / f'{name}{suffix}.png').write_bytes(png(*draw(shapes, scale)))
    for name, shapes in {**WINDOW_ICONS, **BUTTON_ICONS}.items():
        (icons / f'{name}.ico').write_bytes(ico(shapes))
    for name, shapes in {**LAMPS, **LINK_ICONS}.items():
        for suffix, scale in (('', 1), ('@2x', 2)):
            (icons / f'{name}{suffix}.ico').write_bytes(ico(shapes, (scale,)))


if __name__ == '__main__':
    main()
