#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
# SPDX-License-Identifier: BSD-3-Clause

"""Draws the timing pictures of the strobe dialog into images/. Run by hand; the files are committed.

One picture for each choice of what the two strobes count their delay from: the start of the exposure or that of the
readout. Each is drawn on a canvas of 320 by 134 units, at as many and, as @2x, at twice as many pixels.

The pictures bring their own dark ground, like the screen of an oscilloscope, so that they read the same on light and
on dark palettes. Letters are drawn with a pen one unit wide, their stems in the middle of pixels, so that they are
sharp at both sizes.
"""

import math
import struct
from pathlib import Path

from draw_icons import blend, line, polygon

SIZE = (320, 134)

GROUND = (30, 36, 43)
BORDER = (98, 110, 122)
TEXT = (232, 236, 240)
GRID = (92, 104, 116)
BLUE = (96, 165, 240)
GREEN = (92, 200, 122)
YELLOW = (250, 196, 66)

# Places on the time axis.
AXIS_START, AXIS_END = 64, 312
EXPOSURE_START, READOUT_START, READOUT_END = 84, 192, 300

# Where a row's signal is low, and how much higher it is when active.
ROWS = (28, 60, 92, 124)
HEIGHT = 18


class Shape:
    """What is inside where the distance, in units, is negative. Nothing is outside the box."""

    def __init__(self, distance, points, margin):
        self.distance = distance
        xs, ys = zip(*points)
        self.box = (min(xs) - margin, min(ys) - margin, max(xs) + margin, max(ys) + margin)


def stroke(*points, width=1.0):
    # Where two curves meet, a point stands twice.
    points = points[:1] + tuple(end for start, end in zip(points, points[1:]) if math.dist(start, end) > 1e-6)
    return Shape(line(*points, width=width), points, width / 2)


def area(left, top, right, bottom):
    corners = ((left, top), (right, top), (right, bottom), (left, bottom))
    return Shape(polygon(*corners), corners, 0)


def arrow_head(x, y):
    corners = ((x, y), (x - 5, y + 3), (x - 5, y - 3))
    return Shape(polygon(*corners), corners, 0)


def bow(x, y, across, along, start, end):
    """Points on an ellipse with these half axes, from one angle to another, in degrees counterclockwise."""
    steps = max(2, round(abs(end - start) / 15))
    angles = (math.radians(start + (end - start) * i / steps) for i in range(steps + 1))
    return [(x + across * math.cos(angle), y - along * math.sin(angle)) for angle in angles]


# The pen's ways, on a base line at 0 with y downwards, and the width of each letter.
ROUND = bow(2.5, -3, 2, 2.5, 0, 360)
LETTERS = {
    ' ': (2, []),
    '1': (4, [[(0.9, -6.2), (2.5, -7.5), (2.5, -0.5)]]),
    '2': (5, [bow(2.5, -5.5, 2, 2, 165, -35) + [(0.5, -0.5), (4.5, -0.5)]]),
    'D': (6, [bow(2, -4, 3.5, 3.5, 90, -90) + [(0.5, -0.5), (0.5, -7.5), (2, -7.5)]]),
    'E': (5, [[(4.5, -7.5), (0.5, -7.5), (0.5, -0.5), (4.5, -0.5)], [(0.5, -4), (4, -4)]]),
    'R': (5, [[(0.5, -0.5), (0.5, -7.5)] + bow(2.75, -5.75, 1.75, 1.75, 90, -90) + [(0.5, -4)],
              [(2.5, -4), (4.5, -0.5)]]),
    'S': (5, [bow(2.5, -5.75, 2, 1.75, 30, 270) + bow(2.5, -2.25, 2, 1.75, 90, -150)]),
    'W': (9, [[(0.5, -7.5), (2.5, -0.5), (4.5, -6.5), (6.5, -0.5), (8.5, -7.5)]]),
    'a': (5, [ROUND, [(4.5, -5.5), (4.5, -0.5)]]),
    'b': (5, [ROUND, [(0.5, -8), (0.5, -0.5)]]),
    'd': (5, [ROUND, [(4.5, -8), (4.5, -0.5)]]),
    'e': (5, [[(0.5, -3)] + bow(2.5, -3, 2, 2.5, 0, 320)]),
    'h': (5, [[(0.5, -8), (0.5, -0.5)], bow(2.5, -3.5, 2, 2, 180, 0) + [(4.5, -0.5)]]),
    'i': (1, [[(0.5, -5.5), (0.5, -0.5)], [(0.5, -7.8), (0.5, -7.5)]]),
    'l': (1, [[(0.5, -8), (0.5, -0.5)]]),
    'o': (5, [ROUND]),
    'p': (5, [ROUND, [(0.5, -5.5), (0.5, 2)]]),
    'r': (3, [[(0.5, -5.5), (0.5, -0.5)], bow(2.5, -3.5, 2, 2, 180, 75)]),
    's': (4, [bow(2, -4.25, 1.5, 1.25, 30, 270) + bow(2, -1.75, 1.5, 1.25, 90, -150)]),
    't': (3, [[(1.5, -7.5), (1.5, -1.5), (2.5, -0.5), (3, -0.5)], [(0.2, -5.5), (3, -5.5)]]),
    'u': (5, [[(0.5, -5.5)] + bow(2.5, -2.5, 2, 2, 180, 360), [(4.5, -5.5), (4.5, -0.5)]]),
    'x': (5, [[(0.5, -5.5), (4.5, -0.5)], [(4.5, -5.5), (0.5, -0.5)]]),
    'y': (5, [[(0.5, -5.5), (2.5, -0.5)], [(4.5, -5.5), (2.2, 0.8), (0.8, 2)]]),
}


def advance(text):
    """The width of a text, with a gap of one unit after each letter."""
    return sum(LETTERS[letter][0] + 1 for letter in text)


def write(x, y, text, color=TEXT):
    shapes = []
    for letter in text:
        width, ways = LETTERS[letter]
        shapes += [(stroke(*((x + px, y + py) for px, py in way), width=1.1), color, 1) for way in ways]
        x += width + 1
    return shapes


def write_centered(left, right, y, text, color=TEXT):
    return write(round((left + right - advance(text) + 1) / 2), y, text, color)


def pulse(row, start, end, color):
    """A signal that is active between two times."""
    low, high = ROWS[row] - 0.5, ROWS[row] - HEIGHT + 0.5
    start, end = start + 0.5, end + 0.5
    way = ((AXIS_START, low), (start, low), (start, high), (end, high), (end, low), (AXIS_END, low))
    return [(area(start, high, end, low), color, 0.3), (stroke(*way, width=1.4), color, 1)]


def instant(x):
    """A dashed line from the first to the last row."""
    dashes = range(6, ROWS[-1], 6)
    return [(stroke((x + 0.5, y), (x + 0.5, y + 2)), GRID, 1) for y in dashes]


def strobe(row, reference, delay, width):
    start, end = reference + delay, reference + delay + width
    middle = ROWS[row] - 4.5
    way = stroke((reference + 1, middle), (start - 3, middle))
    return (pulse(row, start, end, YELLOW)
            + [(way, TEXT, 1), (arrow_head(start, middle), TEXT, 1),
               (area(reference - 0.5, ROWS[row] - HEIGHT, reference + 1.5, ROWS[row]), TEXT, 1)]
            + write_centered(reference + 1, start, ROWS[row] - 9, 'Delay')
            + write_centered(start, end, ROWS[row] - 5, 'Width'))


def frame():
    width, height = SIZE
    corners = ((0.5, 0.5), (width - 0.5, 0.5), (width - 0.5, height - 0.5), (0.5, height - 0.5), (0.5, 0.5))
    return [(stroke(*corners), BORDER, 1)]


def picture(first, second):
    """The shapes of the picture for these references of the two strobes."""
    names = ('Exposure', 'Readout', 'Strobe 1', 'Strobe 2')
    shapes = frame() + instant(EXPOSURE_START) + instant(READOUT_START)
    for low, name in zip(ROWS, names):
        shapes += write(9, low - 5, name)
    shapes += pulse(0, EXPOSURE_START, READOUT_START, BLUE) + pulse(1, READOUT_START, READOUT_END, GREEN)
    return shapes + strobe(2, first, 40, 52) + strobe(3, second, 52, 40)


def draw(shapes, scale):
    """The rows of pixels, from the top."""
    width, height = (scale * length for length in SIZE)
    rows = [[(*(part / 255 for part in GROUND), 1.0)] * width for _ in range(height)]
    for shape, color, opacity in shapes:
        left, top, right, bottom = (scale * place for place in shape.box)
        for y in range(max(0, math.floor(top) - 1), min(height, math.ceil(bottom) + 1)):
            for x in range(max(0, math.floor(left) - 1), min(width, math.ceil(right) + 1)):
                distance = shape.distance((x + 0.5) / scale, (y + 0.5) / scale) * scale
                coverage = max(0.0, min(1.0, 0.5 - distance))
                rows[y][x] = blend(rows[y][x], color, opacity * coverage)
    return rows


def indexed(rows):
    """A palette of at most 256 colors, and the rows as places in it: edges have fewer shades if they have to."""
    for step in (1, 2, 4, 8, 16, 32):
        colors = {}
        indices = [[colors.setdefault(tuple(min(255, round(255 * part / step) * step) for part in pixel[:3]),
                                      len(colors)) for pixel in row] for row in rows]
        if len(colors) <= 256:
            return list(colors), indices
    raise ValueError('too many colors')


def run_lengths(indices):
    """The compression that bitmap files call RLE8; rows from the bottom."""
    data = bytearray()
    for row in reversed(indices):
        x = 0
        while x < len(row):
            length = 1
            while length < 255 and x + length < len(row) and row[x + length] == row[x]:
                length += 1
            data += bytes((length, row[x]))
            x += length
        data += b'\0\0'
    return bytes(data[:-2]) + b'\0\1'


def bmp(rows):
    palette, indices = indexed(rows)
    data = run_lengths(indices)
    colors = b''.join(bytes((blue, green, red, 0)) for red, green, blue in palette)
    offset = 14 + 40 + len(colors)
    header = struct.pack('<IiiHHIIiiII', 40, len(rows[0]), len(rows), 1, 8, 1, len(data), 2835, 2835, len(palette), 0)
    return struct.pack('<2sIHHI', b'BM', offset + len(data), 0, 0, offset) + header + colors + data


PICTURES = {
    'strobeBothExp': (EXPOSURE_START, EXPOSURE_START),
    'strobe1Exp_strobe2Read': (EXPOSURE_START, READOUT_START),
    'strobe1Read_strobe2Exp': (READOUT_START, EXPOSURE_START),
    'strobeBothRead': (READOUT_START, READOUT_START),
}


def main():
    images = Path(__file__).parent / 'images'
    images.mkdir(exist_ok=True)
    for name, references in PICTURES.items():
        for suffix, scale in (('', 1), ('@2x', 2)):
            (images / f'{name}{suffix}.bmp').write_bytes(bmp(draw(picture(*references), scale)))


if __name__ == '__main__':
    main()
