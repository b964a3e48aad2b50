#!/usr/bin/env python3
"""Writes an artwork file and its pictures by hand, field by field, without any code of the library.

    make_golden.py FOLDER           writes them
    make_golden.py --check FOLDER   fails where the folder holds something else
"""
import pathlib
import struct
import sys
import zlib


def png(side, rgb):
    """A square of one colour; its data are stored uncompressed, so that every zlib writes the same bytes."""

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    rows = (b"\0" + bytes(rgb) * side) * side
    stored = b"\x78\x01\x01" + struct.pack("<HH", len(rows), 0xFFFF - len(rows)) + rows
    data = stored + struct.pack(">I", zlib.adler32(rows))
    header = struct.pack(">IIBBBBB", side, side, 8, 2, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", data) + chunk(b"IEND", b"")


def bmp(side, rgb):
    """A square of one colour, 24 bits a pixel; the side is a multiple of 4, so that rows need no filling."""
    pixels = bytes(reversed(rgb)) * side * side
    header = struct.pack("<IiiHHIIiiII", 40, side, side, 1, 24, 0, len(pixels), 0, 0, 0, 0)
    return b"BM" + struct.pack("<IHHI", 54 + len(pixels), 0, 0, 54) + header + pixels


def picture(form, data):
    return b"VXPI" + struct.pack("<I", form) + data


def group(*pictures):
    blob = b"IG\0" + struct.pack("<i", len(pictures))
    for key, data in pictures:
        blob += struct.pack("<iI", key, len(data)) + data
    return blob


def artwork_file(*groups):
    head = b"ZQAW2023CC\0" + struct.pack("<i", len(groups))
    offset = 51200
    for face_id, blob in groups:
        head += struct.pack("<iIQI12x", face_id, 0, offset, len(blob))
        offset += len(blob)
    return head.ljust(51200, b"\0") + b"".join(blob for _, blob in groups)


RED, BLUE, GREY = png(4, (255, 0, 0)), png(8, (0, 0, 255)), bmp(4, (128, 128, 128))
PNG, BMP, UNKNOWN_TO_ALL = 1, 4, 77

FILES = {
    "red-4x4.png": RED,
    "blue-8x8.png": BLUE,
    "grey-4x4.bmp": GREY,
    "golden.artwork": artwork_file(
        # normal in two sizes, disabled in one
        (20000000, group((0, picture(PNG, RED)), (1, picture(BMP, GREY)), (10, picture(PNG, BLUE)))),
        # no picture
        (10000003, group()),
        # an identifier for the second time; a key below 0, one that is never shown, a format of the future
        (20000000, group((-1, picture(PNG, BLUE)), (30, picture(UNKNOWN_TO_ALL, b"later")))),
        # a negative identifier; a picture without bytes
        (-5, group((23, picture(PNG, b"")))),
    ),
}


def main():
    check = sys.argv[1:2] == ["--check"]
    folder = pathlib.Path(sys.argv[-1])
    for name, data in FILES.items():
        if not check:
            (folder / name).write_bytes(data)
        elif (folder / name).read_bytes() != data:
            sys.exit(f"{folder / name}: not what this script writes")


main()
