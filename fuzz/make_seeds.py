#!/usr/bin/env python3
"""Writes the seeds of the artwork fuzzers into corpus/: small blobs and files, well formed and damaged.

The files' groups lie right behind their tables, within the head, so that the seeds stay small."""
import pathlib
import struct

CORPUS = pathlib.Path(__file__).parent / "corpus"


def picture(data, form=1):
    return b"IMG:" + struct.pack("<i", form) + data


def blob(*pictures, count=None):
    data = b"IG\0" + struct.pack("<i", len(pictures) if count is None else count)
    for key, content in pictures:
        data += struct.pack("<iI", key, len(content)) + content
    return data


def artwork(*groups, count=None):
    offset = 15 + 32 * len(groups)
    head = b"ZQAW2023CC\0" + struct.pack("<i", len(groups) if count is None else count)
    for face_id, data in groups:
        head += struct.pack("<iIQI12x", face_id, 0, offset, len(data))
        offset += len(data)
    return head + b"".join(data for _, data in groups)


TWO = blob((0, picture(b"red")), (12, picture(b"blue", 4)))
GROUPS = {
    "empty": blob(),
    "two_pictures": TWO,
    "repeated_key": blob((1, picture(b"a")), (1, picture(b"b"))),
    "foreign_picture": blob((0, b"\x89PNG"), (-1, b"")),
    "lying_count": blob((0, picture(b"a")), count=0x7FFFFFFF),
    "lying_length": TWO[:11] + b"\xff\xff\xff\xff" + TWO[15:],
    "other_flag": b"IX" + TWO[2:],
}
FILES = {
    "no_groups": artwork(),
    "two_groups": artwork((20000000, TWO), (10000000, blob())),
    "repeated_identifier": artwork((5, TWO), (5, blob())),
    "lying_count": artwork((5, TWO), count=0x7FFFFFFF),
    "beyond_2_63": artwork((5, TWO))[:23] + b"\xff" * 12 + artwork((5, TWO))[35:],
    "cut_table": artwork((5, TWO), (6, TWO))[:60],
    "other_magic": b"ZQAW2024CC\0" + artwork((5, TWO))[11:],
}
for target, seeds in (("artwork_group", GROUPS), ("artwork_file", FILES)):
    (CORPUS / target).mkdir(parents=True, exist_ok=True)
    for name, data in seeds.items():
        (CORPUS / target / name).write_bytes(data)
