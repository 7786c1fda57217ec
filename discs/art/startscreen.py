"""The start picture and the strip under it."""

import creatures
import parts
import scenes
import svg

WIDTH, HEIGHT, STRIP = 640, 450, 30


def logo(x, y, size, name="BATYSKAF"):
    """The disc's name in cast brass."""
    style = f'font-family="{svg.DISPLAY}" font-weight="600" font-size="{size}" letter-spacing="{size * .1:.1f}" text-anchor="middle"'
    return (
        f'<text x="{x + size * .05}" y="{y + size * .07}" {style} fill="#00080b" opacity=".75" filter="url(#blur3)">{name}</text>'
        f'<g filter="url(#bevel2)"><text x="{x}" y="{y}" {style} fill="url(#castBrass)">{name}</text></g>'
    )


LOGO_DEFS = svg.gradient(
    "castBrass", [(0, "#fff3cf"), (0.45, "#e4bb6c"), (0.5, "#a87932"), (0.56, "#d7aa5b"), (1, "#8a5f25")]
)


def picture():
    w, h = WIDTH, HEIGHT
    vx, vy, vs = 268, 132, 1.0
    lx, ly = scenes.lamp(vx, vy, vs)
    body = f"""<rect width="{w}" height="{h}" fill="url(#sea)"/>{scenes.rays(w, h, 11, 12)}
<g filter="url(#blur2)">{scenes.ridge(w, 420, 170, 5, "#0c4a55", 9, .55)}</g>
<g filter="url(#blur1)">{scenes.ridge(w, 440, 120, 9, "#083642", 12, .8)}</g>
{scenes.chimney(556, 436, 150, 66, 3)}{scenes.chimney(612, 446, 100, 56, 6)}{scenes.chimney(500, 448, 78, 44, 9)}
<path d="M{vx + 166 * vs},{vy - 14} V-10" stroke="#05242b" stroke-width="1.4" opacity=".7"/>
{scenes.beam(lx, ly, 330, 92, 154, .95)}{scenes.beam(lx, ly, 250, 40, 150, .6)}
<g transform="translate(134,306) scale(-.52,.52) rotate(4)">{creatures.coelacanth()}</g>
{scenes.vessel(vx, vy, vs)}
{scenes.snow(w, h, 130, 8, 90)}{parts.bubbles(vx + 250, 20, 40, 130, 26, 12)}{parts.bubbles(80, 130, 26, 120, 10, 3)}
{scenes.ridge(w, 452, 62, 21, "#03161c", 13)}{scenes.ridge(w, 462, 40, 33, "#010a0e", 10)}
{_kelp(w)}
<rect width="{w}" height="{h}" fill="url(#vignette)"/>
{logo(320, 74, 66)}
{svg.text(320, 104, "PŁYTA Z GŁĘBIN  •  NUMER 7", 17, "#eafff4", anchor="middle", extra='letter-spacing="4"')}
{_frame(w, h)}"""
    defs = (
        scenes.DEFS
        + creatures.DEFS
        + LOGO_DEFS
        + "".join([svg.radial("vignette", [(0, "#000", 0), (0.7, "#000", 0), (1, "#000", 0.55)], 0.5, 0.42, 0.75)])
    )
    return svg.document(w, h, body, defs)


def _kelp(w):
    out = []
    for x, height, lean in ((22, 120, 14), (40, 86, -10), (58, 60, 9), (w - 250, 60, 10), (w - 236, 44, -7)):
        out.append(
            f'<path d="M{x},452 q{lean},{-height * .3} 0,{-height * .55} q{-lean},{-height * .25} {lean * .4},{-height * .45}" '
            f'fill="none" stroke="#02151a" stroke-width="5" stroke-linecap="round"/>'
        )
        for k in range(5):
            ly = 452 - height * (0.15 + k * 0.17)
            side = 1 if k % 2 else -1
            out.append(
                f'<path d="M{x + lean * .2},{ly} q{side * 12},{-10} {side * 16},{-22} q{-side * 12},{6} {-side * 16},{22} Z" fill="#02151a"/>'
            )
    return "".join(out)


def _frame(w, h):
    return (
        f'<path d="M0,0 H{w} V{h} H0 Z M7,7 V{h - 2} H{w - 7} V7 Z" fill="{svg.BRASS}" fill-rule="evenodd" filter="url(#bevel2)"/>'
        + "".join(
            parts.screw(x, y, 2.6, x + y) for x, y in ((3.6, 3.6), (w - 3.6, 3.6), (3.6, h / 2), (w - 3.6, h / 2))
        )
    )


def strip():
    w, h = WIDTH, STRIP
    lamps = "".join(
        f'<circle cx="{x}" cy="16" r="3.6" fill="#05161a"/><circle cx="{x}" cy="16" r="2.6" fill="{c}"/>'
        f'<circle cx="{x - .8}" cy="15.2" r=".9" fill="#fff" opacity=".8"/>'
        for x, c in (
            (26, "#ffb84d"),
            (40, "#ffb84d"),
            (54, "#35534a"),
            (586, "#35534a"),
            (600, "#35534a"),
            (614, "#ff6a3d"),
        )
    )
    body = (
        f'<rect width="{w}" height="{h}" fill="url(#enamelV)"/><rect width="{w}" height="{h}" fill="{svg.BRASS}" filter="url(#bevel2)"/>'
        + parts.recess(7, 5, w - 14, 20, 8, "#061c21", 2)
        + lamps
        + svg.text(
            w / 2,
            20,
            "Zamykamy właz, zaczynamy zanurzenie...",
            14,
            "#ffdf9e",
            anchor="middle",
            extra='letter-spacing="1.5"',
        )
    )
    return svg.document(w, h, body, parts.DEFS)
