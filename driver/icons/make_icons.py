#!/usr/bin/env python3
"""Draws the icons of the sample printers and packs them into icon containers.

Usage: make_icons.py FOLDER     (writes S300.icns and T500.icns)

A container is the word "icns", its length, and per picture a type ("ic07" 128, "ic08" 256 pixels),
a length and a PNG; lengths count their own eight bytes and are big-endian.
"""

import pathlib
import struct
import sys
import zlib

PAPER, TRAY, SLOT = (250, 250, 247), (205, 208, 212), (38, 42, 48)
# Body and stripes of each printer; the stripes stand for its inks.
PRINTERS = {
    "S300": ((70, 82, 96), [(0, 158, 200), (206, 44, 120), (244, 196, 48), (30, 30, 34)]),
    "T500": ((92, 98, 104), [(30, 30, 34), (110, 112, 116)]),
}
PICTURES = {b"ic07": 128, b"ic08": 256}
SAMPLES = 4  # per pixel and direction


def rectangles(body, stripes):
    """(left, top, right, bottom, colour) in units of the picture's edge, later ones on top."""
    yield 0.26, 0.08, 0.74, 0.40, PAPER
    yield 0.10, 0.34, 0.90, 0.72, body
    yield 0.18, 0.60, 0.82, 0.66, SLOT
    yield 0.22, 0.63, 0.78, 0.90, PAPER
    yield 0.14, 0.88, 0.86, 0.93, TRAY
    width = 0.36 / len(stripes)
    for index, colour in enumerate(stripes):
        left = 0.32 + index * width
        yield left, 0.72, left + 0.8 * width, 0.82, colour


def pixels(size, shapes):
    """RGBA rows, each pixel the mean of its samples."""
    shapes = list(shapes)

    def colour_at(x, y):
        for left, top, right, bottom, colour in reversed(shapes):
            if left <= x < right and top <= y < bottom:
                return colour
        return None

    for row in range(size):
        line = bytearray()
        for column in range(size):
            found = [
                colour_at((column + (i + 0.5) / SAMPLES) / size, (row + (j + 0.5) / SAMPLES) / size)
                for i in range(SAMPLES)
                for j in range(SAMPLES)
            ]
            covered = [colour for colour in found if colour]
            mean = [sum(c[k] for c in covered) // max(len(covered), 1) for k in range(3)]
            line += bytes([*mean, 255 * len(covered) // len(found)])
        yield bytes(line)


def png(size, rows):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    header = struct.pack(">IIBBBBB", size, size, 8, 6, 0, 0, 0)
    data = zlib.compress(b"".join(b"\0" + row for row in rows), 9)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", data) + chunk(b"IEND", b"")


def container(body, stripes):
    entries = b""
    for kind, size in PICTURES.items():
        picture = png(size, pixels(size, rectangles(body, stripes)))
        entries += kind + struct.pack(">I", len(picture) + 8) + picture
    return b"icns" + struct.pack(">I", len(entries) + 8) + entries


def main():
    folder = pathlib.Path(sys.argv[1])
    for name, (body, stripes) in PRINTERS.items():
        (folder / f"{name}.icns").write_bytes(container(body, stripes))


if __name__ == "__main__":
    main()
