#!/usr/bin/env python3
"""Draws the basic actions' 16x16 bitmaps (24-bit BMP, magenta where transparent). The .bmp
files are committed; run this only to change them."""
import struct
import sys

KEY = (255, 0, 255)


class Canvas:
    def __init__(self):
        self.px = [[KEY] * 16 for _ in range(16)]

    def dot(self, x, y, c):
        if 0 <= x < 16 and 0 <= y < 16:
            self.px[y][x] = c

    def rect(self, x0, y0, x1, y1, fill, edge=None):
        for y in range(y0, y1 + 1):
            for x in range(x0, x1 + 1):
                border = x in (x0, x1) or y in (y0, y1)
                self.dot(x, y, edge if edge and border else fill)

    def hline(self, x0, x1, y, c):
        for x in range(x0, x1 + 1):
            self.dot(x, y, c)

    def line(self, x0, y0, x1, y1, c):
        steps = max(abs(x1 - x0), abs(y1 - y0), 1)
        for i in range(steps + 1):
            self.dot(round(x0 + (x1 - x0) * i / steps), round(y0 + (y1 - y0) * i / steps), c)

    def bmp(self):
        rows = b''.join(bytes(v for (r, g, b) in reversed_row for v in (b, g, r)) for reversed_row in reversed(self.px))
        header = struct.pack('<2sIHHI', b'BM', 54 + len(rows), 0, 0, 54)
        info = struct.pack('<IiiHHIIiiII', 40, 16, 16, 1, 24, 0, len(rows), 2835, 2835, 0, 0)
        return header + info + rows


INK = (40, 40, 40)
PAPER = (255, 255, 255)
GREY = (150, 150, 150)
BLUE = (40, 90, 180)
GREEN = (30, 140, 60)
ORANGE = (220, 130, 30)


def page(c):
    c.rect(2, 1, 12, 14, PAPER, GREY)
    for x, y in ((11, 1), (12, 1), (12, 2)):
        c.dot(x, y, KEY)
    c.line(10, 1, 12, 3, GREY)


def log_message():
    c = Canvas()
    c.rect(1, 2, 14, 11, PAPER, BLUE)
    c.line(4, 12, 4, 14, BLUE)
    c.line(4, 14, 7, 11, BLUE)
    for y, end in ((5, 11), (7, 12), (9, 9)):
        c.hline(3, end, y, INK)
    return c


def set_variable():
    c = Canvas()
    c.rect(0, 3, 15, 12, (255, 244, 200), ORANGE)
    c.line(2, 5, 6, 10, INK)
    c.line(6, 5, 2, 10, INK)
    c.hline(8, 13, 6, GREEN)
    c.hline(8, 13, 9, GREEN)
    return c


def write_text_file():
    c = Canvas()
    page(c)
    for y in (5, 7, 9):
        c.hline(4, 9, y, GREY)
    c.line(14, 6, 7, 13, ORANGE)
    c.line(15, 7, 8, 14, ORANGE)
    c.dot(6, 14, INK)
    return c


def run_program():
    c = Canvas()
    c.rect(0, 1, 15, 14, (235, 240, 250), BLUE)
    c.hline(1, 14, 2, BLUE)
    c.hline(1, 14, 3, BLUE)
    for y in range(5, 14):
        half = 4 - abs(y - 9) if y != 9 else 4
        c.hline(5, 5 + 2 * half, y, GREEN)
    return c


ICONS = {
    'WF_LOGMESSAGE': log_message,
    'WF_SETVARIABLE': set_variable,
    'WF_WRITETEXTFILE': write_text_file,
    'WF_RUNPROGRAM': run_program,
}

if __name__ == '__main__':
    folder = sys.argv[1] if len(sys.argv) > 1 else '.'
    for name, draw in ICONS.items():
        with open(f'{folder}/{name}.bmp', 'wb') as out:
            out.write(draw().bmp())
