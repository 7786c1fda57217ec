"""The main window: the vessel's console, drawn beyond the window's edges so that the edge strips can be cut from it."""

import area
import creatures
import layout
import outline
import parts
import svg

MARGIN = 40
VIEW = (-MARGIN, -MARGIN, outline.WIDTH + 2 * MARGIN, outline.HEIGHT + 2 * MARGIN)

_EXTENSIONS = "".join(
    [
        '<rect x="-80" y="136" width="84" height="81" {0}/>',
        '<rect x="208" y="-80" width="205" height="84" {0}/>',
        *[f'<rect x="660" y="{y}" width="80" height="10" {{0}}/>' for y, _ in outline.RIGHT_STRIPS],
    ]
)
_EVERYWHERE = 'x="-80" y="-80" width="840" height="660"'


def silhouette(attributes=""):
    return outline.window_shapes(attributes) + _EXTENSIONS.format(attributes)


def hull():
    """The body with its rounded edge and the brass moulding that follows the outline.

    Everything is drawn a pixel wider than the window, so that no pixel on its edge is half empty.
    """
    shape = silhouette('stroke-width="2" stroke-linejoin="round"')
    return f"""
<g filter="url(#hull)" fill="#3a706c" stroke="#3a706c">{shape}</g>
<g clip-path="url(#outline)"><rect {_EVERYWHERE} fill="url(#hullPaint)" opacity=".55"/>
<g filter="url(#hammer)" opacity=".6"><rect {_EVERYWHERE} fill="url(#hullPaint)"/></g></g>
<g clip-path="url(#outline)"><g filter="url(#blur3)" opacity=".75" transform="translate(2,3)"><g filter="url(#hollow)">{shape}</g></g></g>
<g filter="url(#bevel2)"><g filter="url(#hollow)" fill="{svg.BRASS}" stroke="{svg.BRASS}">{shape}</g></g>"""


def hull_defs():
    # The moulding is what remains of the silhouette when its core, shrunk by the moulding's width, is taken out. The
    # renderer shrinks by ten device pixels at most, hence in two steps.
    return f"""<clipPath id="outline">{silhouette()}</clipPath>
{svg.gradient("hullPaint", [(0, "#5f9a91"), (.3, "#3d7571"), (.75, "#265355"), (1, "#183c3f")], 0, 40, 0, 496, "userSpaceOnUse")}
<filter id="hollow" {_EVERYWHERE} filterUnits="userSpaceOnUse">
<feMorphology in="SourceAlpha" operator="erode" radius="2.7"/>
<feMorphology operator="erode" radius="2.7" result="core"/>
<feComposite in="SourceGraphic" in2="core" operator="out"/></filter>"""


def shaft():
    """The hoist that rises from the console to the screen's upper edge."""
    pipes = [
        (208, 9, "brass"),
        (221, 30, "enamel"),
        (255, 14, "copper"),
        (275, 71, "steel"),
        (352, 14, "rubber"),
        (370, 30, "enamel"),
        (404, 9, "brass"),
    ]
    out = ['<rect x="203" y="-80" width="226" height="150" fill="#050d10"/>']
    for x, width, metal in pipes:
        out.append(f'<rect x="{x}" y="-80" width="{width}" height="150" fill="url(#{metal}H)"/>')
    out.append('<rect x="206" y="8" width="209" height="70" fill="url(#shaftShade)"/>')
    # A service pipe with its dome on the right, a rod on the left.
    out.append(
        '<path d="M413,60 V22 q0,-10 8,-10 q8,0 8,10 V60 Z" fill="url(#copperH)"/>'
        '<rect x="412" y="30" width="18" height="6" fill="url(#brassH)" filter="url(#bevel1)"/>'
        '<rect x="202" y="9" width="6" height="50" fill="url(#steelH)"/>'
    )
    for y, height in ((14, 10), (51, 21)):
        out.append(
            f'<rect x="202" y="{y + 3}" width="228" height="{height}" fill="#000" opacity=".55" '
            f'filter="url(#blur2)"/>'
            f'<rect x="{202 if y > 40 else 206}" y="{y}" width="{228 if y > 40 else 209}" height="{height}" '
            f'fill="url(#collar)" filter="url(#bevel2)"/>'
        )
    out += [parts.hex_bolt(x, 62, 4.6, 15) for x in (213, 231, 249, 383, 401, 419)]
    out.append(parts.engraved(316, 66.5, "BATYSKAF", 12.5, spacing=3.4, font=svg.PLATE))
    out += [parts.screw(x, 19, 2.2, x) for x in (213, 236, 385, 408)]
    return "".join(out)


def arm():
    """The arm that leaves the console to the left."""
    return f"""
<rect x="-80" y="136" width="96" height="81" fill="url(#enamelV)"/>
<rect x="-80" y="136" width="96" height="7" fill="url(#brassV)"/><rect x="-80" y="210" width="96" height="7" fill="url(#brassV)"/>
<rect x="-80" y="170" width="96" height="2" fill="#000" opacity=".25"/>
<rect x="-80" y="172" width="96" height="1" fill="#fff" opacity=".18"/>
<path d="M20,108 L6,124 V229 L20,245 Z" fill="#000" opacity=".5" filter="url(#blur3)"/>
<path d="M22,98 L7,112 V240 L22,256 Z" fill="url(#flange)" filter="url(#bevel2)"/>"""


def fittings():
    """The three stuffing boxes on the right, turned of brass, with the lines that leave them."""
    out = []
    for top, height in outline.RIGHT_STRIPS:
        middle = top + height / 2
        for x, width, half, metal in (
            (667, 100, 5, "copper"),
            (646, 22, 6.5, "steel"),
            (630, 19, 8.5, "brass"),
            (604, 28, 15, "brass"),
            (592, 14, 20, "brass"),
        ):
            out.append(
                f'<rect x="{x}" y="{middle - half}" width="{width}" height="{2 * half}" ' f'fill="url(#{metal}V)"/>'
            )
        for x in (611, 616, 621, 626):
            out.append(
                f'<rect x="{x}" y="{middle - 15}" width="1.6" height="30" fill="#000" opacity=".35"/>'
                f'<rect x="{x + 1.6}" y="{middle - 15}" width="1" height="30" fill="#fff" opacity=".25"/>'
            )
        for x, half in ((604, 15), (630, 15), (646, 9)):
            out.append(
                f'<rect x="{x - 1.2}" y="{middle - half}" width="2.4" height="{2 * half}" fill="#000" opacity=".4"/>'
            )
        out.append(
            f'<rect x="588" y="{middle - 21}" width="5" height="44" fill="#000" opacity=".45" filter="url(#blur2)"/>'
        )
        out += [parts.screw(598, middle + d, 2.2, 30 + d) for d in (-14, 14)]
    return "".join(out)


def title_plate():
    return (
        parts.frame(114, 111, 436, 29, 3.5, 3, bevel="bevel1")
        + parts.recess(114, 111, 436, 29, 3, "url(#night)")
        + '<path d="M116,113 h432 l-30,12 h-402 Z" fill="#fff" opacity=".05"/>'
    )


def crown():
    """Between the shoulders: two manometers and the coelacanth in relief."""
    fish = parts.coelacanth(0, 0, 1, "#c99b50")
    return (
        f'<ellipse cx="318" cy="93" rx="62" ry="17" fill="#000" opacity=".5" filter="url(#blur2)" '
        f'transform="translate(1,2)"/>'
        f'<ellipse cx="318" cy="92" rx="62" ry="15.5" fill="{svg.BRASS}" filter="url(#bevel1)"/>'
        f'<ellipse cx="318" cy="92" rx="56" ry="12" fill="url(#sunk)"/>'
        f'<ellipse cx="318" cy="92" rx="56" ry="12" fill="none" stroke="#fff0c0" stroke-opacity=".5" '
        f'transform="translate(.4,.7)" stroke-width=".7"/>'
        f'<g transform="translate(280,80) scale(.34,.25)" filter="url(#reliefFish)">{fish}</g>'
        + parts.gauge(226, 90, 14, 0.62, "bar")
        + parts.gauge(410, 90, 14, 0.28, "°C")
    )


def grille():
    """The loudspeaker on the left shoulder."""
    x, y, w, h = 98, 74, 66, 28
    slots = "".join(
        f'<path d="M{x + 7 + k * 6.5:.1f},{y + h - 4} l8,{8 - h}" stroke="#010607" stroke-width="3" stroke-linecap="round"/>'
        f'<path d="M{x + 8.6 + k * 6.5:.1f},{y + h - 4} l8,{8 - h}" stroke="#fff" stroke-width=".7" opacity=".3"/>'
        for k in range(8)
    )
    return parts.frame(x, y, w, h, 2.6, 6, bevel="bevel1") + parts.recess(x, y, w, h, 6, "#1d4a4c", 2) + slots


def depth_gauge():
    """The column on the right edge: a glass tube with the depth's scale."""
    x, y, w, h = 581, 112, 11, 176
    marks = "".join(
        f'<rect x="{x + w - (6 if k % 5 == 0 else 3.5)}" y="{y + 8 + k * 8}" width="{6 if k % 5 == 0 else 3}" '
        f'height="1" fill="{svg.IVORY}" opacity=".75"/>'
        for k in range(21)
    )
    return (
        parts.frame(x, y, w, h, 3, 5, bevel="bevel1")
        + parts.recess(x, y, w, h, 5, "#06181c", 2)
        + f'<rect x="{x + 2}" y="{y + 96}" width="5" height="{h - 100}" rx="3" fill="url(#lampTube)"/>'
        + f'<rect x="{x + 2}" y="{y + 3}" width="2" height="{h - 6}" rx="1" fill="#fff" opacity=".35"/>{marks}'
    )


def window_port():
    cx, cy = 53, 177
    view = (
        f'<rect x="{cx - 40}" y="{cy - 40}" width="80" height="80" fill="url(#portSea)"/>'
        f'<g opacity=".5"><path d="M{cx - 4},{cy - 40} l-26,80 h16 l18,-80 Z" fill="#c9fff0" opacity=".35"/>'
        f'<path d="M{cx + 12},{cy - 40} l4,80 h14 l-8,-80 Z" fill="#c9fff0" opacity=".25"/></g>'
        + f'<g transform="translate({cx + 1},{cy - 1}) scale(-.118,.118)">{creatures.coelacanth()}</g>'
        + f'<path d="M{cx - 40},{cy + 18} q14,-8 26,-2 q16,8 30,-1 q12,-6 26,2 v30 h-82 Z" fill="#03131a"/>'
        + parts.bubbles(cx - 20, cy - 24, 8, 18, 5, 3)
    )
    return parts.porthole(cx, cy, 37, 26, view)


def knobs():
    """The two round housings on the lower left; the buttons stand on them."""
    out = []
    for key in ("Hlp", "Info"):
        cx, cy = layout.centre(layout.BUTTONS[key])
        out.append(
            f'<circle cx="{cx}" cy="{cy}" r="25.5" fill="#071316"/>' + parts.ring(cx, cy, 25, 22.5, "#6d7f80", "bevel1")
        )
    return "".join(out)


def side_plate():
    return (
        parts.plate(41, 262, 46, 42, 3, screws=False)
        + "".join(parts.screw(x, y, 1.8, x) for x in (45, 83) for y in (266, 300))
        + parts.engraved(64, 277, "PŁYTA", 9, spacing=0.6)
        + parts.engraved(64, 296, "Nr 7", 16)
    )


def console():
    """The lower edge: sockets for the entry's buttons, and the producer's place."""
    out = []
    for key in ("Start", "Pauza", "Stop"):
        x, y, w, h = layout.BUTTONS[key]
        out.append(parts.recess(x - 1, y - 1, w + 2, h + 2, 7, "#0a1d20", 3))
    for x in range(380, 426, 9):
        out.append(
            f'<circle cx="{x + 2}" cy="477" r="2.6" fill="#04100f"/>'
            f'<circle cx="{x + 2.3}" cy="477.6" r="2.6" fill="none" stroke="#fff" stroke-opacity=".3" stroke-width=".6"/>'
        )
    return "".join(out) + parts.screw(90, 477, 3.4, 20) + parts.screw(572, 477, 3.4, 120)


def detail_bed():
    """What lies under the menu area: the bed of an entry's description, requirements and pictures."""
    x, y, w, h = layout.AREA
    out = [
        f'<rect x="{x}" y="{y}" width="{w}" height="{h}" fill="url(#bed)"/>',
        f'<g filter="url(#hammer)" opacity=".35"><rect x="{x}" y="{y}" width="{w}" height="{h}" fill="url(#bed)"/></g>',
    ]
    for bx, by, bw, bh in (layout.NOTE, layout.REQUIREMENTS, layout.SHOTS):
        out.append(
            f'<rect x="{bx - 2}" y="{by - 1}" width="{bw + 5}" height="{bh + 4}" fill="#000" opacity=".5" '
            f'filter="url(#blur2)"/>'
        )
        out.append(
            f'<path d="M{bx - 3},{by - 3} h{bw + 6} v{bh + 6} h{-bw - 6} Z M{bx},{by} v{bh} h{bw} v{-bh} Z" '
            f'fill="{svg.BRASS}" fill-rule="evenodd" filter="url(#bevel1)"/>'
        )
        out.append(f'<rect x="{bx}" y="{by}" width="{bw}" height="{bh}" fill="#f4efdf"/>')
    start, top, end = layout.TRACK
    out.append(parts.recess(start - 4, top - 2, end - start + 11, 13, 6, "#06181c", 2))
    out.append(
        "".join(
            f'<rect x="{start + 1 + (end - start) * k / 20:.1f}" y="{top + (2 if k % 5 == 0 else 4)}" width="1" '
            f'height="{5 if k % 5 == 0 else 2}" fill="#8fb5a8" opacity=".75"/>'
            for k in range(21)
        )
    )
    out += [parts.screw(sx, sy, 3, sx + sy) for sx, sy in ((104, 194), (104, 448), (558, 194), (558, 448))]
    return "".join(out)


def drawing():
    """The whole scene; the menu area's place bears the detail view's bed, with the strip's twin above it."""
    x, y, w, h = layout.AREA
    body = f"""<rect {_EVERYWHERE} fill="#000"/>{hull()}
<g clip-path="url(#outline)">{arm()}{shaft()}{fittings()}{knobs()}</g>
{parts.frame(x - 1, y - 1, w + 2, h + 2, 6, 2)}
{detail_bed()}
<g transform="translate({x + layout.LINE[0]},{y + layout.LINE[1]})">{area.line_strip()}</g>
{crown()}{grille()}{title_plate()}{depth_gauge()}{window_port()}{side_plate()}{console()}
{"".join(parts.screw(sx, sy, 3, sx * 3) for sx, sy in ((48, 240), (590, 98), (590, 462), (62, 470), (48, 116)))}"""
    defs = (
        parts.DEFS
        + creatures.DEFS
        + area.STRIP_DEFS
        + hull_defs()
        + "".join(
            [
                svg.gradient("shaftShade", [(0, "#000", 0), (1, "#000", 0.35)]),
                svg.gradient(
                    "collar",
                    [
                        (0, "#6b4c1e"),
                        (0.18, "#d9b065"),
                        (0.32, "#fff0c6"),
                        (0.5, "#c1964f"),
                        (0.8, "#7b5522"),
                        (1, "#3c280d"),
                    ],
                    x2=1,
                    y2=0,
                ),
                svg.gradient("flange", svg.BRASS_STOPS, 0, 110, 0, 245, "userSpaceOnUse"),
                svg.lighting("reliefFish", 3.4, 15, shine=0.75, exponent=28),
                svg.radial("sunk", [(0, "#6d5020"), (0.8, "#4a3412"), (1, "#2a1c08")]),
                svg.gradient("night", [(0, "#04131a"), (1, "#0d2b30")]),
                svg.gradient("bed", [(0, "#86aba2"), (1, "#4f7b76")]),
                svg.gradient("lampTube", [(0, "#fff0b0"), (0.2, "#ffb84d"), (1, "#c2561d")]),
                svg.radial("portSea", [(0, "#c4fff0"), (0.4, "#46b3b0"), (1, "#0c4a55")], 0.55, 0.05, 1),
            ]
        )
    )
    return svg.document(VIEW[2], VIEW[3], body, defs, VIEW)
