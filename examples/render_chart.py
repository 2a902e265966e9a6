#!/usr/bin/env python3
# SPDX-License-Identifier: Apache-2.0
"""Renders the example picture: a chart as an uncalibrated camera sees it.

usage: examples/render_chart.py            writes chart-16bit.png and chart-16bit.grid beside itself
       examples/render_chart.py --corners "x,y x,y x,y x,y" --scale S --srgb FILE.png
                                           writes another view of the chart, at S times the size
                                           and with the curve that screens expect

The picture is what a 12-bit camera with neutral settings delivers in a 16-bit file: linear, with
the colours mixed by overlapping filters, under a light with a cast that falls off to one side,
darker towards the corners, and noisy. The chart is turned a little and seen at an angle.
"""

import argparse
import math
import random
import struct
import zlib
from pathlib import Path

WIDTH, HEIGHT = 800, 560
SEED = 20260101

# Target colours of the chart in linear light, 0 to 255.
TARGETS = [
    (44.138, 20.936, 14.471), (144.92, 74.616, 55.685), (26.445, 49.942, 84.531),
    (25.909, 37.971, 13.23), (56.507, 55.02, 110.82), (27.58, 131.14, 105.23),
    (190.57, 51.144, 7.1641), (14.698, 26.806, 102.75), (144.5, 21.469, 30.518),
    (28.316, 10.787, 36.46), (88.1, 129.69, 12.609), (202.61, 91.635, 5.2384),
    (4.3702, 12.8, 74.525), (14.289, 76.536, 17.524), (116.23, 7.7307, 10.421),
    (218.62, 144.69, 1.7558), (136.07, 22.59, 78.425), (9.5177, 62.971, 102.12),
    (232.76, 233.26, 227.91), (147.89, 150.94, 151.31), (90.528, 93.179, 93.746),
    (48.483, 48.92, 49.246), (21.758, 22.664, 23.614), (7.732, 7.9376, 8.3507),
]
FRAME = (6.0, 6.2, 6.5)
TABLE = (62.0, 51.0, 43.0)

# Upper left, upper right, lower left, lower right of the 6 by 4 cells, in pixels.
CORNERS = ((118, 96), (690, 84), (106, 470), (700, 482))
PATCH_SHARE = 0.86   # of a cell's width and height; the rest is the frame between the patches
FRAME_WIDTH = 0.06   # around the cells, as a share of the chart

# Rows: what the red, green and blue pixels see of red, green and blue light.
CROSSTALK = ((0.78, 0.17, 0.05), (0.20, 0.66, 0.14), (0.04, 0.24, 0.72))
LIGHT = (0.80, 1.0, 0.62)
EXPOSURE = 1.10
FULL_WELL = 30000.0  # electrons at 4096 counts
READ_NOISE = 9.0     # electrons


def homography(corners):
    """Maps the pixel plane onto the unit square of the chart."""
    (x0, y0), (x1, y1), (x3, y3), (x2, y2) = corners
    dx1, dx2, sx = x1 - x2, x3 - x2, x0 - x1 + x2 - x3
    dy1, dy2, sy = y1 - y2, y3 - y2, y0 - y1 + y2 - y3
    det = dx1 * dy2 - dx2 * dy1
    g, h = (sx * dy2 - dx2 * sy) / det, (dx1 * sy - sx * dy1) / det
    a, b, c = x1 - x0 + g * x1, x3 - x0 + h * x3, x0
    d, e, f = y1 - y0 + g * y1, y3 - y0 + h * y3, y0
    forward = (a, b, c, d, e, f, g, h, 1.0)
    a, b, c, d, e, f, g, h, i = forward
    return (e * i - f * h, c * h - b * i, b * f - c * e, f * g - d * i, a * i - c * g,
            c * d - a * f, d * h - e * g, b * g - a * h, a * e - b * d)


def scene_colour(u, v):
    """Light that the scene sends from chart position (u, v), which is 0 to 1 on the cells."""
    if not (-FRAME_WIDTH <= u <= 1 + FRAME_WIDTH and -FRAME_WIDTH <= v <= 1 + FRAME_WIDTH):
        return TABLE
    column, row = math.floor(u * 6), math.floor(v * 4)
    if not (0 <= column < 6 and 0 <= row < 4):
        return FRAME
    margin = (1 - PATCH_SHARE) / 2
    inside = margin <= u * 6 - column <= 1 - margin and margin <= v * 4 - row <= 1 - margin
    return TARGETS[row * 6 + column] if inside else FRAME


def light_at(x, y):
    """Share of the light at a pixel: falls off to the right and towards the corners."""
    dx, dy = (x - WIDTH / 2) / (WIDTH / 2), (y - HEIGHT / 2) / (WIDTH / 2)
    return (1.0 - 0.02 * dx) * (1.0 - 0.03 * (dx * dx + dy * dy))


def camera_counts(colour, share, noise):
    """12-bit counts of one pixel."""
    light = [value / 255.0 * cast * share for value, cast in zip(colour, LIGHT)]
    counts = []
    for row in CROSSTALK:
        signal = EXPOSURE * sum(weight * value for weight, value in zip(row, light))
        electrons = signal * FULL_WELL
        electrons += noise.gauss(0.0, 1.0) * math.sqrt(max(electrons, 0.0) + READ_NOISE**2)
        counts.append(min(4095, max(0, round(electrons / FULL_WELL * 4096.0))))
    return counts


def srgb_curve(count):
    """12-bit counts with the sRGB curve."""
    value = count / 4096.0
    encoded = value * 12.92 if value <= 0.0031308 else 1.055 * value ** (1 / 2.4) - 0.055
    return min(4095, round(encoded * 4096.0))


def render(corners, scale, curve):
    noise = random.Random(SEED)
    m = homography(corners)
    samples = ((0.25, 0.25), (0.75, 0.25), (0.25, 0.75), (0.75, 0.75))
    rows = []
    for row_index in range(int(HEIGHT * scale)):
        y = row_index / scale
        row = bytearray(b"\0")
        for column_index in range(int(WIDTH * scale)):
            x = column_index / scale
            total = [0.0, 0.0, 0.0]
            for sx, sy in samples:
                px, py = x + sx / scale, y + sy / scale
                w = m[6] * px + m[7] * py + m[8]
                colour = scene_colour((m[0] * px + m[1] * py + m[2]) / w,
                                      (m[3] * px + m[4] * py + m[5]) / w)
                total = [t + c / 4.0 for t, c in zip(total, colour)]
            for count in camera_counts(total, light_at(x, y), noise):
                row += struct.pack(">H", curve(count) << 4)
        rows.append(bytes(row))
    return b"".join(rows)


def chunk(kind, data):
    body = kind + data
    return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))


def write_png(path, corners, scale, curve):
    size = int(WIDTH * scale), int(HEIGHT * scale)
    header = struct.pack(">IIBBBBB", *size, 16, 2, 0, 0, 0)
    pixels = zlib.compress(render(corners, scale, curve), 9)
    path.write_bytes(
        b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", pixels) + chunk(b"IEND", b""))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("file", nargs="?", type=Path)
    parser.add_argument("--corners", default=" ".join(f"{x},{y}" for x, y in CORNERS))
    parser.add_argument("--scale", type=float, default=1.0)
    parser.add_argument("--srgb", action="store_true")
    options = parser.parse_args()
    corners = [tuple(float(value) for value in point.split(",")) for point in options.corners.split()]
    here = Path(__file__).resolve().parent
    curve = srgb_curve if options.srgb else int
    write_png(options.file or here / "chart-16bit.png", corners, options.scale, curve)
    if not options.file:
        (here / "chart-16bit.grid").write_text(options.corners + "\n", encoding="utf-8")


if __name__ == "__main__":
    main()
