"""Fittings that several pictures share: screws, plates, frames, portholes, gauges, the coelacanth."""

import math
import random

import svg

# The coelacanth, the disc's own fish, looking left; about 224 by 100 units.
COELACANTH_BODY = (
    "M4,50 C8,36 26,23 52,20 C66,18 80,19 92,22 C120,26 150,35 168,40 C178,42 184,43 190,45 L190,57 "
    "C160,66 120,76 84,78 C56,80 24,74 10,62 C5,58 3,55 4,50 Z"
)
COELACANTH_FINS = [
    "M160,40 C170,26 184,19 193,20 C201,28 205,38 205,46 L205,56 C205,66 200,78 193,83 C182,81 170,72 160,62 Z",
    "M200,46 C210,43 219,46 223,51 C219,57 210,59 200,56 Z",
    "M70,21 C74,8 84,-2 99,-1 C103,8 105,18 104,25 Z",
    "M122,29 C124,20 132,11 146,9 C152,16 149,28 141,35 Z",
    "M58,65 C64,70 68,82 83,97 C90,102 99,100 99,94 C96,84 84,70 74,63 Z",
    "M100,75 C106,80 111,92 124,99 C131,100 134,95 131,89 C126,80 118,73 112,71 Z",
    "M128,69 C134,76 139,87 152,91 C159,91 160,85 155,78 C149,70 142,66 138,65 Z",
]


def coelacanth(x, y, scale, fill, flip=False):
    """The fish as one silhouette with its upper left corner at x, y."""
    turn = f"translate({x + 224 * scale},{y}) scale({-scale},{scale})" if flip else f"translate({x},{y}) scale({scale})"
    paths = "".join(f'<path d="{d}"/>' for d in [COELACANTH_BODY, *COELACANTH_FINS])
    return f'<g transform="{turn}" fill="{fill}">{paths}</g>'


def screw(x, y, radius=3.2, angle=35):
    """A slotted brass screw."""
    a = math.radians(angle)
    dx, dy = math.cos(a) * radius * 0.8, math.sin(a) * radius * 0.8
    return (
        f'<circle cx="{x + .5}" cy="{y + .7}" r="{radius + .8}" fill="#000" opacity=".5"/>'
        f'<circle cx="{x}" cy="{y}" r="{radius}" fill="url(#screw)"/>'
        f'<path d="M{x - dx},{y - dy} L{x + dx},{y + dy}" stroke="#2a1a06" stroke-width="1"/>'
        f'<path d="M{x - dx},{y - dy + .8} L{x + dx},{y + dy + .8}" stroke="#fff3d0" stroke-width=".5" opacity=".6"/>'
    )


def hex_bolt(x, y, radius=4.5, angle=0):
    points = " ".join(
        f"{x + radius * math.cos(math.radians(angle + k * 60)):.2f},"
        f"{y + radius * math.sin(math.radians(angle + k * 60)):.2f}"
        for k in range(6)
    )
    return (
        f'<circle cx="{x + .6}" cy="{y + .8}" r="{radius + 1}" fill="#000" opacity=".45"/>'
        f'<polygon points="{points}" fill="#c39a55" filter="url(#bevel1)"/>'
        f'<circle cx="{x}" cy="{y}" r="{radius * .5}" fill="url(#screw)"/>'
    )


def box_path(x, y, w, h, r):
    """A rounded rectangle as path data."""
    return (
        f"M{x + r},{y} h{w - 2 * r} a{r},{r} 0 0 1 {r},{r} v{h - 2 * r} a{r},{r} 0 0 1 {-r},{r} "
        f"h{-(w - 2 * r)} a{r},{r} 0 0 1 {-r},{-r} v{-(h - 2 * r)} a{r},{r} 0 0 1 {r},{-r} Z"
    )


def frame(x, y, w, h, width, radius=4, fill=svg.BRASS, bevel="bevel2"):
    """A raised frame round the rectangle x, y, w, h; it lies outside it."""
    outer = box_path(x - width, y - width, w + 2 * width, h + 2 * width, radius + width)
    inner = box_path(x, y, w, h, radius)
    return (
        f'<path d="{outer}" fill="#000" opacity=".55" filter="url(#blur2)" transform="translate(1.5,2)"/>'
        f'<path d="{outer} {inner}" fill-rule="evenodd" fill="{fill}" filter="url(#{bevel})"/>'
    )


def recess(x, y, w, h, radius, fill, depth=4):
    """A sunken field: dark above and left, a light edge below and right."""
    shape = box_path(x, y, w, h, radius)
    name = f"recess{x}_{y}_{w}_{h}".replace(".", "p").replace("-", "m")
    return (
        f'<clipPath id="{name}"><path d="{shape}"/></clipPath>'
        f'<path d="{shape}" fill="none" stroke="#fff" stroke-opacity=".35" stroke-width="1" '
        f'transform="translate(.7,.9)"/><path d="{shape}" fill="{fill}"/><g clip-path="url(#{name})">'
        f'<path d="{box_path(x - 20, y - 20, w + 40, h + 40, radius)} {shape}" fill="#000" fill-rule="evenodd" '
        f'opacity=".75" filter="url(#blur3)" transform="translate({depth * .6},{depth})"/></g>'
    )


def plate(x, y, w, h, radius=3, fill="url(#brassPlate)", screws=True):
    """A brass plate with a screw at each end."""
    shape = box_path(x, y, w, h, radius)
    ends = "".join(screw(sx, y + h / 2, 2.4, a) for sx, a in ((x + 6, 20), (x + w - 6, 70))) if screws else ""
    return (
        f'<path d="{shape}" fill="#000" opacity=".6" filter="url(#blur1)" transform="translate(1,1.6)"/>'
        f'<path d="{shape}" fill="{fill}" filter="url(#bevel1)"/>{ends}'
    )


def engraved(x, y, content, size, colour="#33220a", anchor="middle", spacing=0, font=svg.LEGEND):
    """Lettering cut into a plate."""
    extra = f'letter-spacing="{spacing}"'
    return svg.text(x + 0.5, y + 0.8, content, size, "#ffeebd", font, anchor, extra + ' opacity=".65"') + svg.text(
        x, y, content, size, colour, font, anchor, extra
    )


def ring(cx, cy, outer, inner, fill=svg.BRASS, bevel="bevel2"):
    circle = "M{0},{1} a{2},{2} 0 1 0 {3},0 a{2},{2} 0 1 0 -{3},0 Z"
    shape = f"{circle.format(cx - outer, cy, outer, 2 * outer)} {circle.format(cx - inner, cy, inner, 2 * inner)}"
    return (
        f'<path d="{shape}" fill-rule="evenodd" fill="#000" opacity=".6" filter="url(#blur2)" transform="translate(1.5,2)"/>'
        f'<path d="{shape}" fill-rule="evenodd" fill="{fill}" filter="url(#{bevel})"/>'
    )


def porthole(cx, cy, outer, inner, view, bolts=8):
    """A brass porthole; `view` is drawn behind its glass."""
    name = f"port{cx}_{cy}".replace(".", "p")
    middle = (outer + inner) / 2
    ring_bolts = "".join(
        screw(
            cx + middle * math.cos(2 * math.pi * (k + 0.5) / bolts),
            cy + middle * math.sin(2 * math.pi * (k + 0.5) / bolts),
            (outer - inner) * 0.22,
            k * 40,
        )
        for k in range(bolts)
    )
    return (
        f'<clipPath id="{name}"><circle cx="{cx}" cy="{cy}" r="{inner + .5}"/></clipPath>'
        f'<g clip-path="url(#{name})">{view}'
        f'<circle cx="{cx + 3}" cy="{cy + 4}" r="{inner + 5}" fill="none" stroke="#000" stroke-width="10" '
        f'opacity=".6" filter="url(#blur3)"/>'
        f'<ellipse cx="{cx - inner * .28}" cy="{cy - inner * .42}" rx="{inner * .55}" ry="{inner * .34}" '
        f'fill="url(#glassShine)" transform="rotate(-28 {cx - inner * .28} {cy - inner * .42})"/></g>'
        f"{ring(cx, cy, outer, inner)}"
        f'<circle cx="{cx}" cy="{cy}" r="{inner + 1.4}" fill="none" stroke="#20140a" stroke-width="1.2" opacity=".7"/>'
        f"{ring_bolts}"
    )


def gauge(cx, cy, radius, value, caption, colour=svg.SIGNAL, ticks=10):
    """A round manometer; `value` from 0 to 1 turns its hand."""
    marks = []
    for k in range(ticks + 1):
        a = math.radians(135 + 270 * k / ticks)
        inner = radius * (0.70 if k % 5 == 0 else 0.78)
        marks.append(
            f'<path d="M{cx + inner * math.cos(a):.2f},{cy + inner * math.sin(a):.2f} '
            f'L{cx + radius * .9 * math.cos(a):.2f},{cy + radius * .9 * math.sin(a):.2f}" '
            f'stroke="{svg.INK}" stroke-width="{1.1 if k % 5 == 0 else .6}"/>'
        )
    a = math.radians(135 + 270 * value)
    hand = (
        f'<path d="M{cx - radius * .2 * math.cos(a):.2f},{cy - radius * .2 * math.sin(a):.2f} '
        f'L{cx + radius * .8 * math.cos(a):.2f},{cy + radius * .8 * math.sin(a):.2f}"'
    )
    return f'<circle cx="{cx}" cy="{cy}" r="{radius}" fill="url(#ivory)"/>{"".join(marks)}' + svg.text(
        cx, cy + radius * 0.62, caption, radius * 0.34, svg.INK, anchor="middle"
    ) + f'{hand} stroke="#000" stroke-width="2" opacity=".3" transform="translate(.6,1)"/>' + f'{hand} stroke="#8c2415" stroke-width="1.5"/>' + f'<circle cx="{cx}" cy="{cy}" r="{radius * .14}" fill="url(#screw)"/>' + f'<ellipse cx="{cx - radius * .2}" cy="{cy - radius * .45}" rx="{radius * .6}" ry="{radius * .35}" ' f'fill="url(#glassShine)"/>' + ring(
        cx, cy, radius + 4, radius - 0.2
    )


def bubbles(x, y, w, h, count, seed, colour="#bfeee6"):
    """Bubbles that rise in the rectangle, larger towards its top."""
    dice = random.Random(seed)
    out = []
    for _ in range(count):
        px, py = x + dice.random() * w, y + dice.random() * h
        r = (0.5 + dice.random() * 1.8) * (1.5 - (py - y) / h)
        out.append(
            f'<circle cx="{px:.1f}" cy="{py:.1f}" r="{r:.1f}" fill="{colour}" fill-opacity=".16" '
            f'stroke="{colour}" stroke-opacity=".65" stroke-width=".5"/>'
            f'<circle cx="{px - r * .35:.1f}" cy="{py - r * .35:.1f}" r="{r * .25:.2f}" fill="#fff" opacity=".8"/>'
        )
    return "".join(out)


DEFS = svg.radial("screw", [(0, "#fff3cc"), (0.45, "#c99e57"), (1, "#5d4118")], fx=0.32, fy=0.28)
