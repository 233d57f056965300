#!/usr/bin/env python3
"""Writes a small, complete MD2 model: a tetrahedron whose four faces are unwrapped on a
32 x 24 skin, with one skin name, one frame and an empty list of GL commands.

    python3 tests/data/make_md2.py tests/data/tetra-32x24.md2
"""
import struct
import sys

SKIN_W, SKIN_H = 32, 24
SKINS = [b"models/tetra/skin.pcx"]
XYZ = [(0, 0, 0), (255, 0, 0), (128, 255, 0), (128, 128, 255)]  # packed vertex bytes
ST = [(2, 2), (29, 2), (15, 21), (2, 21), (29, 21)]  # skin pixels
TRIS = [  # vertex indices, texture coordinate indices
    ((0, 1, 2), (0, 1, 2)),
    ((0, 1, 3), (0, 1, 4)),
    ((1, 2, 3), (1, 2, 4)),
    ((2, 0, 3), (2, 0, 3)),
]
GLCMDS = [0]  # the terminator alone

frame = struct.pack("<3f3f16s", 0.25, 0.25, 0.25, -32.0, -32.0, -32.0, b"stand01")
frame += b"".join(struct.pack("<4B", x, y, z, 0) for x, y, z in XYZ)

lumps = [
    b"".join(struct.pack("<64s", name) for name in SKINS),
    b"".join(struct.pack("<2h", s, t) for s, t in ST),
    b"".join(struct.pack("<6h", *xyz, *st) for xyz, st in TRIS),
    frame,
    b"".join(struct.pack("<i", c) for c in GLCMDS),
]
offsets, at = [], 68
for lump in lumps:
    offsets.append(at)
    at += len(lump)

header = struct.pack(
    "<4s16i", b"IDP2", 8, SKIN_W, SKIN_H, len(frame), len(SKINS), len(XYZ), len(ST),
    len(TRIS), len(GLCMDS), 1, *offsets, at)
with open(sys.argv[1], "wb") as out:
    out.write(header + b"".join(lumps))
