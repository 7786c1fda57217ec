"""Cuts the disc's two typefaces from Routed Gothic; run by FontForge: lettering.py SOURCE TARGET FAMILY WEIGHT.

Only what a Polish catalogue needs is kept, the Polish letters that the source lacks are built, the strokes are made
heavier by WEIGHT font units, and the result bears a name of its own, as the source's licence (SIL Open Font License
1.1, reserved name) asks of a changed font.
"""

import os
import sys

import fontforge

POLISH = "ĄĆĘŁŃÓŚŹŻąćęłńóśźż"
SIGNS = "„”‚’–—…•·«»§°±×÷©€½¼²³"

source, target, family, weight = sys.argv[1], sys.argv[2], sys.argv[3], int(sys.argv[4])
font = fontforge.open(source)
licence = font.copyright
font.is_quadratic = False
wanted = {*range(0x20, 0x7F), 0xA0, *map(ord, POLISH + SIGNS)}
for glyph in list(font.glyphs()):
    if glyph.unicode in wanted:
        glyph.unlinkRef()
for glyph in list(font.glyphs()):
    if glyph.unicode not in wanted and glyph.glyphname != ".notdef":
        font.removeGlyph(glyph)


def pen_strokes(glyph, *lines):
    """Adds lines of the source's own pen to a glyph; each line is a list of points, joined by a smooth curve if it has four."""
    scratch = font.createChar(-1, "scratch")
    scratch.clear()
    pen = scratch.glyphPen()
    for line in lines:
        pen.moveTo(line[0])
        for point in line[1:] if len(line) < 4 else [curve(line, k / 8) for k in range(1, 9)]:
            pen.lineTo(point)
        pen.endPath()
    scratch.stroke("circular", PEN)
    glyph.foreground += scratch.foreground
    font.removeGlyph("scratch")


def curve(points, t):
    """The point at t on the Bezier curve of four points."""
    u = 1 - t
    return tuple(u**3 * a + 3 * u * u * t * b + 3 * u * t * t * c + t**3 * d for a, b, c, d in zip(*points))


def derive(letter, base, *lines):
    """Builds a missing letter from another and lines of the pen."""
    source_glyph = font[ord(base)]
    glyph = font.createChar(ord(letter))
    glyph.foreground = source_glyph.foreground
    glyph.width = source_glyph.width
    pen_strokes(glyph, *lines)


def ogonek(base, inset):
    left, _, right, _ = font[ord(base)].boundingBox()
    x = right - PEN / 2 - inset
    return [(x, 30), (x - 110, -50), (x - 120, -170), (x + 20, -150)]


stem = font[ord("l")].boundingBox()
PEN = font[ord("-")].boundingBox()[3] - font[ord("-")].boundingBox()[1]
for letter, base, inset in (("Ą", "A", 0), ("ą", "a", 0), ("Ę", "E", 40), ("ę", "e", 90)):
    derive(letter, base, ogonek(base, inset))
box = font[ord("L")].boundingBox()
derive("Ł", "L", [(box[0] - 70, 250), (box[0] + 260, 460)])
derive("ł", "l", [(stem[0] - 62, 310), (stem[0] + PEN + 62, 440)])
dots = font.createChar(ord("…"))
for k in range(3):
    dots.addReference("period", (1, 0, 0, 1, k * font[ord(".")].width, 0))
dots.width = 3 * font[ord(".")].width
dots.unlinkRef()

for glyph in font.glyphs():
    if weight and glyph.foreground:
        width = glyph.width
        glyph.removeOverlap()
        glyph.changeWeight(weight, "auto", 0, 0, "auto")
        glyph.width = width + weight // 2
        glyph.round()
missing = sorted(chr(code) for code in wanted if code not in {g.unicode for g in font.glyphs()})
if set(missing) & set(POLISH):
    sys.exit(f"letters missing in {source}: {missing}")
font.fontname = family.replace(" ", "")
font.familyname = font.fullname = family
font.weight = "Regular"
font.sfnt_names = ()
for entry, text in (
    ("Family", family),
    ("SubFamily", "Regular"),
    ("Fullname", family),
    ("UniqueID", f"{family} 1.0"),
    ("Version", "Version 1.0"),
    ("Copyright", licence.split("This Font Software")[0].strip()),
    ("License", "This Font Software is licensed under the SIL Open Font License, Version 1.1."),
    ("License URL", "https://openfontlicense.org"),
):
    font.appendSFNTName("English (US)", entry, text)
# A line of 1.45 em, with most of the air above: so set, a caption stands in the middle of the menu's hover box.
ASCENT, DESCENT = 1100, 380
font.os2_winascent_add = font.os2_windescent_add = font.os2_typoascent_add = font.os2_typodescent_add = False
font.hhea_ascent_add = font.hhea_descent_add = False
font.os2_winascent = font.os2_typoascent = font.hhea_ascent = ASCENT
font.os2_windescent, font.os2_typodescent, font.hhea_descent = DESCENT, -DESCENT, -DESCENT
font.os2_typolinegap = font.hhea_linegap = 0
font.os2_weight = 400
font.os2_stylemap = 64
font.macstyle = 0
with open(os.path.join(os.path.dirname(target), "OFL.txt"), "w", encoding="utf-8") as out:
    out.write(licence.strip() + "\n")
font.generate(target, flags=("opentype",))
print(family, len(list(font.glyphs())), "glyphs; not in the source:", "".join(missing))
