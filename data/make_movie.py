#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes swf/twk.swf, the movie that pages show: a pale banner with two stripes and, between them, the text that the page
hands over in the variable "texxxto".  data/make_movie.py FILE writes it, data/make_movie.py --check FILE compares."""
import sys
from struct import pack

TWIPS = 20  # to a pixel; all lengths are in twips
WIDTH, HEIGHT = 450 * TWIPS, 75 * TWIPS


def bits(*fields):
    """Pairs of (width, value), negative values as two's complement, filled up to whole bytes."""
    text = "".join(format(value & ((1 << width) - 1), f"0{width}b") for width, value in fields if width)
    text += "0" * (-len(text) % 8)
    return int(text, 2).to_bytes(len(text) // 8, "big")


def signed_width(*values):
    return max((v if v >= 0 else ~v).bit_length() + 1 if v else 0 for v in values)


def rectangle(left, right, top, bottom):
    width = signed_width(left, right, top, bottom)
    return bits((5, width), *((width, edge) for edge in (left, right, top, bottom)))


def tag(code, body=b""):
    return pack("<H", code << 6 | len(body)) + body


def straight(vertical, length):
    width = max(signed_width(length), 2)
    return [(2, 0b11), (4, width - 2), (1, 0), (1, vertical), (width, length)]


def stripe(shape, colour, top, bottom):
    """A filled rectangle over the whole width."""
    move = max(signed_width(top), 2 if top == 0 else 0)
    edges = [(4, 1), (4, 0), (6, 0b000101), (5, move), (move, 0), (move, top), (1, 1)]
    for vertical, length in ((0, WIDTH), (1, bottom - top), (0, -WIDTH), (1, top - bottom)):
        edges += straight(vertical, length)
    fill = pack("BB", 1, 0) + bytes.fromhex(colour) + b"\0"
    return tag(2, pack("<H", shape) + rectangle(0, WIDTH, top, bottom) + fill + bits(*edges, (6, 0)))


def text_field(field, font):
    box = rectangle(15 * TWIPS, WIDTH - 15 * TWIPS, 21 * TWIPS, 60 * TWIPS)
    # It has a first text, a variable, a colour, a font and a place (centred); it can be neither changed nor selected.
    return tag(37, pack("<H", field) + box + bytes.fromhex("8d30") + pack("<HH", font, 24 * TWIPS) +
               bytes.fromhex("1f4e5fff") + pack("<BHHHH", 2, 0, 0, 0, 0) + b"texxxto\0Tarnwick\0")


def movie():
    name = b"_sans"
    body = rectangle(0, WIDTH, 0, HEIGHT) + pack("<HH", 12 << 8, 1)  # 12 frames a second, one frame
    body += tag(9, bytes.fromhex("ffffff"))
    body += stripe(1, "e6f2f4", 0, HEIGHT) + stripe(2, "2f8f9d", 68 * TWIPS, 72 * TWIPS)
    body += stripe(3, "f2b134", 3 * TWIPS, 5 * TWIPS)
    body += tag(48, pack("<HBBB", 10, 0, 0, len(name)) + name + pack("<HH", 0, 2)) + text_field(11, 10)
    for depth, shown in enumerate((1, 2, 3, 11), 1):
        body += tag(26, pack("<BHHB", 6, depth, shown, 0))
    body += tag(1) + tag(0)
    return b"FWS\x05" + pack("<I", len(body) + 8) + body


if __name__ == "__main__":
    if len(sys.argv) == 3 and sys.argv[1] == "--check":
        with open(sys.argv[2], "rb") as delivered:
            sys.exit(0 if delivered.read() == movie() else "the movie is not as it is made here")
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    with open(sys.argv[1], "wb") as made:
        made.write(movie())
