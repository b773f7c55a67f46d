#!/usr/bin/env python3
"""Writes two-sided.pdf, the sample document: a front and a back page with crosses to compare.

Held against the light, the crosses of both sides coincide if the printer is in register. The ticks,
one millimetre apart, show by how much they do not.
"""

import sys

MM = 72 / 25.4
WIDTH, HEIGHT = 595.276, 841.89  # A4, in points
CROSSES = [(30, 30), (180, 30), (105, 148.5), (30, 267), (180, 267)]  # in millimetres
ARM = 10


def line(x1, y1, x2, y2):
    return f"{x1 * MM:.2f} {y1 * MM:.2f} m {x2 * MM:.2f} {y2 * MM:.2f} l S\n"


def cross(x, y):
    marks = line(x - ARM, y, x + ARM, y) + line(x, y - ARM, x, y + ARM)
    for tick in range(-ARM, ARM + 1):
        length = 1.5 if tick % 5 == 0 else 0.8
        marks += line(x + tick, y - length, x + tick, y + length)
        marks += line(x - length, y + tick, x + length, y + tick)
    return marks


def text(x, y, size, words):
    return f"BT /F1 {size} Tf {x * MM:.2f} {y * MM:.2f} Td ({words}) Tj ET\n"


def page(side, lines):
    content = "0.4 w\n" + "".join(cross(x, y) for x, y in CROSSES)
    content += text(30, 230, 36, side)
    for number, words in enumerate(lines):
        content += text(30, 218 - 7 * number, 12, words)
    return content.encode("ascii")


def stream(data):
    return b"<< /Length %d >>\nstream\n" % len(data) + data + b"endstream"


def leaf(contents):
    return (
        f"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 {WIDTH} {HEIGHT}] "
        f"/Resources << /Font << /F1 7 0 R >> >> /Contents {contents} 0 R >>"
    ).encode("ascii")


def document():
    front = page("Front", ["Print this sheet two-sided and hold it against the light.",
                           "The crosses of both sides should lie over each other."])
    back = page("Back", ["Ticks are 1 mm apart: read off how far the back is out,",
                         "and set its offset to the opposite, in steps of 0.1 mm."])
    objects = [
        b"<< /Type /Catalog /Pages 2 0 R >>",
        b"<< /Type /Pages /Kids [3 0 R 4 0 R] /Count 2 >>",
        leaf(5),
        leaf(6),
        stream(front),
        stream(back),
        b"<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>",
    ]
    pdf, offsets = b"%PDF-1.4\n", []
    for number, body in enumerate(objects, start=1):
        offsets.append(len(pdf))
        pdf += b"%d 0 obj\n" % number + body + b"\nendobj\n"
    table = b"".join(b"%010d 00000 n \n" % offset for offset in offsets)
    size = len(objects) + 1
    return (
        pdf
        + b"xref\n0 %d\n0000000000 65535 f \n" % size
        + table
        + b"trailer\n<< /Size %d /Root 1 0 R >>\nstartxref\n%d\n%%%%EOF\n" % (size, len(pdf))
    )


if __name__ == "__main__":
    with open(sys.argv[1] if len(sys.argv) > 1 else "two-sided.pdf", "wb") as file:
        file.write(document())
