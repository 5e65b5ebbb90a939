#!/usr/bin/env python3
"""Draws the package's 16x16, 256-colour bitmaps: one per action type ID and CC_LOGO.

Each glyph is a base picture (document, clipboard, box, ...) with an optional badge in the
lower right corner. Run it from anywhere; it writes NAME.bmp beside itself, or into the
folder given as the only argument.
"""
import os
import struct
import sys

SIZE = 16

# Palette index -> (R, G, B). Index 0 is the background; hosts key transparency off the
# lower left pixel, which every glyph leaves as background.
COLOURS = {
    '.': (255, 0, 255),   # background
    'k': (0, 0, 0),
    'w': (255, 255, 255),
    'g': (128, 128, 128),
    'l': (192, 192, 192),
    'b': (0, 64, 192),
    'c': (96, 160, 255),
    'G': (0, 144, 0),
    'r': (208, 0, 0),
    'y': (255, 208, 0),
    'o': (200, 120, 0),
    'n': (120, 72, 24),
}
PALETTE = list(COLOURS)

BASES = {
    'document': [
        "kkkkkkkkk.......",
        "kwwwwwwwkk......",
        "kwwwwwwwkwk.....",
        "kwggggwwkkkk....",
        "kwwwwwwwwwwk....",
        "kwggggggggwk....",
        "kwwwwwwwwwwk....",
        "kwggggggggwk....",
        "kwwwwwwwwwwk....",
        "kwggggggggwk....",
        "kwwwwwwwwwwk....",
        "kwggggggwwwk....",
        "kwwwwwwwwwwk....",
        "kkkkkkkkkkkk....",
        "................",
        "................",
    ],
    'clipboard': [
        "....kkkkk.......",
        "nnnnkyyykknnn...",
        "nwwwkkkkkwwwn...",
        "nwwwwwwwwwwwn...",
        "nwGwggggggwwn...",
        "nwwwwwwwwwwwn...",
        "nwGwggggggwwn...",
        "nwwwwwwwwwwwn...",
        "nwGwggggggwwn...",
        "nwwwwwwwwwwwn...",
        "nwGwggggwwwwn...",
        "nwwwwwwwwwwwn...",
        "nnnnnnnnnnnnn...",
        "................",
        "................",
        "................",
    ],
    'box': [
        "................",
        "......kkkk......",
        "....kkccccckk...",
        "..kkcccccccccck.",
        "..kbkkcccccckbk.",
        "..kbbbkkcckkbbk.",
        "..kbbbbbkkbbbbk.",
        "..kbbbbbkbbbbbk.",
        "..kbbbbbkbbbbbk.",
        "..kbbbbbkbbbbbk.",
        "..kkbbbbkbbbbkk.",
        "....kkbbkbbkk...",
        "......kkkkk.....",
        "................",
        "................",
        "................",
    ],
    'tag': [
        "................",
        "......kkkkkkkkk.",
        ".....kyyyyyyyyk.",
        "....kyyyyyyyyyk.",
        "...kyyykyyyyyyk.",
        "..kyyykwkyyyyyk.",
        ".kyyyyykyyyyyyk.",
        "..kyyyyyyyyyyyk.",
        "...kyyyyyyyyyyk.",
        "....kyyyyyyyyyk.",
        ".....kyyyyyyyyk.",
        "......kkkkkkkkk.",
        "................",
        "................",
        "................",
        "................",
    ],
    'magnifier': [
        "................",
        "....kkkkk.......",
        "...kcccccg......",
        "..kcwwccccg.....",
        ".kcwcccccccg....",
        ".kcwcccccccg....",
        ".kccccccccck....",
        ".kccccccccck....",
        "..kcccccccg.....",
        "...kcccccgnn....",
        "....kkkkk.nnn...",
        "...........nnn..",
        "............nnn.",
        ".............nn.",
        "................",
        "................",
    ],
    'terminal': [
        "................",
        "kkkkkkkkkkkkkkkk",
        "kllllllllllllllk",
        "kkkkkkkkkkkkkkkk",
        "kkGkkkkkkkkkkkkk",
        "kkkGkkkkkkkkkkkk",
        "kkkkGkkkkkkkkkkk",
        "kkkGkkkkkkkkkkkk",
        "kkGkkGGGGkkkkkkk",
        "kkkkkkkkkkkkkkkk",
        "kkkkkkkkkkkkkkkk",
        "kkkkkkkkkkkkkkkk",
        "kkkkkkkkkkkkkkkk",
        "kkkkkkkkkkkkkkkk",
        "................",
        "................",
    ],
    'spec': [
        "kkkkkkkkkkk.....",
        "kwwwwwwwwwk.....",
        "kwbbbwbbwwk.....",
        "kwwwwwwwwwk.....",
        "kwwbbwbbbwk.....",
        "kwwwwwwwwwk.....",
        "kwbbbbwbbwk.....",
        "kwwwwwwwwwk.....",
        "kwwbbbwbbwk.....",
        "kwwwwwwwwwk.....",
        "kwbbwbbbwwk.....",
        "kwwwwwwwwwk.....",
        "kkkkkkkkkkk.....",
        "................",
        "................",
        "................",
    ],
    'flag': [
        "................",
        "..kkkkkkkkkk....",
        "..krrrrrrrrrk...",
        "..krrrrrrrrrrk..",
        "..krrrrrrrrrk...",
        "..kkkkkkkkkk....",
        "..k.............",
        "..k.............",
        "..k.............",
        "..k.............",
        "..k.............",
        "..k.............",
        "gggggggggggggggg",
        "................",
        "................",
        "................",
    ],
    'arrows': [
        "................",
        ".....kkkkk..k...",
        "...kkGGGGGkkGk..",
        "..kGGkkkkkGGGk..",
        "..kGk.....kGGk..",
        ".kGk.....kGGGk..",
        ".kGk.....kkkkk..",
        ".kk.............",
        ".............kk.",
        "..kkkkk.....kbk.",
        "..kbbbk.....kbk.",
        "..kbbk.....kbk..",
        "..kbbbkkkkkbbk..",
        "..kbkkbbbbbkk...",
        "...k..kkkkk.....",
        "................",
    ],
    'letters': [
        "................",
        "....kkkkkkkk....",
        "..kkbbbbbbbbkk..",
        ".kbbbbbbbbbbbbk.",
        ".kbwwwbbbbwwwbk.",
        "kbwbbbbbbwbbbbbk",
        "kbwbbbbbbwbbbbbk",
        "kbwbbbbbbwbbbbbk",
        "kbwbbbbbbwbbbbbk",
        "kbwbbbbbbwbbbbbk",
        "kbwbbbbbbwbbbbbk",
        ".kbwwwbbbbwwwbk.",
        ".kbbbbbbbbbbbbk.",
        "..kkbbbbbbbbkk..",
        "....kkkkkkkk....",
        "................",
    ],
}

# Badges sit with their lower right corner on the bitmap's.
BADGES = {
    'out': [
        "....k..",
        "....kk.",
        "kkkkkGk",
        "kGGGGGG",
        "kkkkkGk",
        "....kk.",
        "....k..",
    ],
    'in': [
        "..k....",
        ".kk....",
        "kbkkkkk",
        "bbbbbbk",
        "kbkkkkk",
        ".kk....",
        "..k....",
    ],
    'cross': [
        "rr...rr",
        "rrr.rrr",
        ".rrrrr.",
        "..rrr..",
        ".rrrrr.",
        "rrr.rrr",
        "rr...rr",
    ],
    'plus': [
        "..kkk..",
        "..kyk..",
        "kkkykkk",
        "kyyyyyk",
        "kkkykkk",
        "..kyk..",
        "..kkk..",
    ],
    'check': [
        "......G",
        ".....GG",
        "G...GG.",
        "GG.GG..",
        ".GGG...",
        "..G....",
        ".......",
    ],
    'equals': [
        "kkkkkkk",
        "kwwwwwk",
        "kbbbbbk",
        "kwwwwwk",
        "kbbbbbk",
        "kwwwwwk",
        "kkkkkkk",
    ],
    'locked': [
        "..kkk..",
        ".kk.kk.",
        ".k...k.",
        ".k...k.",
        "kkkkkkk",
        "kyyyyyk",
        "kyykyyk",
        "kyyyyyk",
        "kkkkkkk",
    ],
    'unlocked': [
        "..kkk..",
        ".kk.kk.",
        ".....k.",
        ".....k.",
        "kkkkkkk",
        "kyyyyyk",
        "kyykyyk",
        "kyyyyyk",
        "kkkkkkk",
    ],
    'down': [
        "..kkk..",
        "..kGk..",
        "..kGk..",
        "kkkGkkk",
        ".kGGGk.",
        "..kGk..",
        "...k...",
    ],
    'up': [
        "...k...",
        "..kok..",
        ".koook.",
        "kkkokkk",
        "..kok..",
        "..kok..",
        "..kkk..",
    ],
    'smalltag': [
        "..kkkkk",
        ".kyyyyk",
        "kykyyyk",
        ".kyyyyk",
        "..kkkkk",
        ".......",
        ".......",
    ],
}

GLYPHS = {
    'CC_UPDATE': ('arrows', None),
    'CC_CHECKOUT': ('document', 'out'),
    'CC_CHECKIN': ('document', 'in'),
    'CC_UNCHECKOUT': ('document', 'cross'),
    'CC_FINDCHECKOUTS': ('magnifier', None),
    'CC_MKELEM': ('document', 'plus'),
    'CC_MKLBTYPE': ('tag', 'plus'),
    'CC_LABEL': ('tag', None),
    'CC_MKATTRTYPE': ('spec', 'equals'),
    'CC_APPLYATTR': ('document', 'equals'),
    'CC_APPLYATTR_OBJ': ('box', 'equals'),
    'CC_LOCK': ('document', 'locked'),
    'CC_UNLOCK': ('document', 'unlocked'),
    'CC_LOCK_OBJ': ('box', 'locked'),
    'CC_UNLOCK_OBJ': ('box', 'unlocked'),
    'CC_GENERIC': ('terminal', None),
    'CC_GETCONFIGSPEC': ('spec', 'down'),
    'CC_SETCONFIGSPEC': ('spec', 'up'),
    'UCM_MAKEACTIVITY': ('clipboard', 'plus'),
    'UCM_SETACTIVITY': ('clipboard', 'check'),
    'UCM_CHECKIN': ('clipboard', 'in'),
    'UCM_UNCHECKOUT': ('clipboard', 'cross'),
    'UCM_MAKEBL': ('flag', None),
    'UCM_MAKEBL_LABEL': ('flag', 'smalltag'),
    'CC_LOGO': ('letters', None),
}


def compose(base, badge):
    rows = [list(row) for row in BASES[base]]
    if badge:
        art = BADGES[badge]
        top = SIZE - len(art)
        left = SIZE - len(art[0])
        for y, row in enumerate(art):
            for x, pixel in enumerate(row):
                if pixel != '.':
                    rows[top + y][left + x] = pixel
    for row in rows:
        if len(row) != SIZE:
            raise ValueError(f"{base}: row of {len(row)} pixels, expected {SIZE}")
    if len(rows) != SIZE:
        raise ValueError(f"{base}: {len(rows)} rows, expected {SIZE}")
    return rows


def encode_bmp(rows):
    palette = b''.join(struct.pack('<BBBB', b, g, r, 0) for r, g, b in COLOURS.values())
    palette += b'\0' * (256 * 4 - len(palette))
    # Rows are stored bottom up; 16 bytes a row needs no padding.
    pixels = b''.join(bytes(PALETTE.index(p) for p in row) for row in reversed(rows))
    offset = 14 + 40 + len(palette)
    info = struct.pack('<IiiHHIIiiII', 40, SIZE, SIZE, 1, 8, 0, len(pixels), 2835, 2835, 256, 0)
    header = struct.pack('<2sIHHI', b'BM', offset + len(pixels), 0, 0, offset)
    return header + info + palette + pixels


def write_atomically(path, data):
    temporary = path + '.tmp'
    with open(temporary, 'wb') as out:
        out.write(data)
    os.replace(temporary, path)


def main():
    target = sys.argv[1] if len(sys.argv) > 1 else os.path.dirname(os.path.abspath(__file__))
    for name, (base, badge) in GLYPHS.items():
        write_atomically(os.path.join(target, name + '.bmp'), encode_bmp(compose(base, badge)))


if __name__ == '__main__':
    main()
