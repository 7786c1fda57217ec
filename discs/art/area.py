"""The menu area: its screen, the strip below the top level, the sliders of menu and screenshots."""

import math

import layout
import parts
import svg


def screen():
    """The dark glass of the sonar, calm enough for white labels and dim ones."""
    _, _, w, h = layout.AREA
    cx, cy = w * 0.62, h * 1.04
    rings = "".join(
        f'<circle cx="{cx}" cy="{cy}" r="{r}" fill="none" stroke="#4fd0b0" stroke-width="{1.2 if r % 120 == 0 else .7}" '
        f'opacity="{.20 if r % 120 == 0 else .11}"/>'
        for r in range(60, 500, 30)
    )
    rays = "".join(
        f'<path d="M{cx},{cy} L{cx + 600 * math.cos(math.radians(a)):.1f},{cy - 600 * math.sin(math.radians(a)):.1f}" '
        f'stroke="#4fd0b0" stroke-width=".7" opacity=".10"/>'
        for a in range(0, 181, 15)
    )
    a0, a1 = math.radians(58), math.radians(97)
    sweep = (
        f'<path d="M{cx},{cy} L{cx + 700 * math.cos(a0):.1f},{cy - 700 * math.sin(a0):.1f} '
        f'A700,700 0 0 0 {cx + 700 * math.cos(a1):.1f},{cy - 700 * math.sin(a1):.1f} Z" fill="url(#sweep)" opacity=".5"/>'
    )
    echoes = "".join(
        f'<circle cx="{x}" cy="{y}" r="{r}" fill="#6ff0cf" opacity="{o}"/>'
        f'<circle cx="{x}" cy="{y}" r="{r * 3}" fill="#6ff0cf" opacity="{o * .35}" filter="url(#blur2)"/>'
        for x, y, r, o in ((395, 70, 2, 0.5), (352, 118, 1.4, 0.4), (415, 150, 1.6, 0.35), (226, 60, 1.4, 0.25))
    )
    seabed = (
        f'<path d="M0,{h - 26} q60,-22 120,-6 q50,14 96,-8 q70,-30 130,2 q46,22 126,-10 V{h} H0 Z" fill="#020b0e" opacity=".75"/>'
        f'<path d="M0,{h - 12} q90,-18 180,-2 q90,14 292,-12 V{h} H0 Z" fill="#01070a"/>'
    )
    fish = (
        f'<g opacity=".5">{parts.coelacanth(300, 196, .55, "#020d11")}{parts.coelacanth(250, 246, .2, "#020d11")}</g>'
    )
    scan = "".join(f'<rect x="0" y="{y}" width="{w}" height="1" fill="#000" opacity=".10"/>' for y in range(0, h, 3))
    edge = (
        f'<path d="{parts.box_path(-30, -30, w + 60, h + 60, 4)} {parts.box_path(0, 0, w, h, 8)}" fill="#000" '
        f'fill-rule="evenodd" filter="url(#blur12)" opacity=".9" transform="translate(2,4)"/>'
    )
    shine = f'<path d="M0,0 H{w * .62} L{w * .2},{h} H0 Z" fill="url(#screenShine)"/>'
    defs = parts.DEFS + "".join(
        [
            svg.radial(
                "screen",
                [(0, "#12444a"), (0.55, "#0a2b32"), (1, "#051a21")],
                w * 0.55,
                h * 0.35,
                w * 0.7,
                units="userSpaceOnUse",
            ),
            svg.gradient(
                "sweep", [(0, "#4fd0b0", 0.0), (1, "#4fd0b0", 0.34)], cx - 100, 0, cx + 260, 0, "userSpaceOnUse"
            ),
            svg.gradient("screenShine", [(0, "#fff", 0.07), (1, "#fff", 0.01)]),
        ]
    )
    return svg.document(
        w,
        h,
        f'<rect width="{w}" height="{h}" fill="url(#screen)"/>{rings}{rays}{sweep}{fish}{seabed}'
        f"{echoes}{scan}{shine}{edge}",
        defs,
    )


def _mark(box, arrow):
    x, y, w, h = box
    cx, cy = x + w / 2, y + h / 2
    return (
        parts.ring(cx, cy, 13.2, 10.2, bevel="bevel1")
        + f'<circle cx="{cx}" cy="{cy}" r="10.2" fill="url(#markGlass)"/>'
        + f'<g transform="translate({cx},{cy})" fill="#ffcf7d">{arrow}</g>'
        + f'<ellipse cx="{cx - 1}" cy="{cy - 5}" rx="7" ry="4" fill="url(#glassShine)"/>'
    )


def line_strip():
    """The strip's drawing: marks for back and top, and room for the menu's name."""
    x, y, w, h = 0, 0, layout.LINE[2], layout.LINE[3]
    back = '<path d="M-6.5,0 L1,-6 V-2.4 H6 V2.4 H1 V6 Z"/>'
    top = '<path d="M0,-6.5 L6,0 H2.4 V3 H-2.4 V0 H-6 Z"/><rect x="-6" y="4.2" width="12" height="2"/>'
    return (
        f'<rect x="{x}" y="{y}" width="{w}" height="{h}" fill="url(#strip)"/>'
        f'<rect x="{x}" y="{h - 3}" width="{w}" height="3" fill="url(#brassV)"/>'
        f'<rect x="{x}" y="{y}" width="{w}" height="1" fill="#fff" opacity=".25"/>'
        + parts.recess(73, 4, w - 79, 22, 6, "#061a1f", 2.5)
        + _mark(layout.BACK_MARK, back)
        + _mark(layout.TOP_MARK, top)
    )


STRIP_DEFS = svg.gradient("strip", [(0, "#4d8580"), (0.15, "#37686a"), (1, "#173a3d")]) + svg.radial(
    "markGlass", [(0, "#2f6c6c"), (1, "#07191d")], fx=0.4, fy=0.25
)


def line_picture():
    return svg.document(layout.LINE[2], layout.LINE[3], line_strip(), parts.DEFS + STRIP_DEFS)


def _bar(w, h, ground):
    """A slotted guide; the knob covers its whole width, so the part it travels on has no marks of its own."""
    slot = w / 2
    marks = "".join(
        f'<rect x="{x}" y="{y}" width="{w * .16:.1f}" height="1" fill="{svg.IVORY}" opacity=".45"/>'
        for y in range(14, h - 10, 12)
        for x in (w * 0.1, w * 0.74)
    )
    return (
        f'<rect width="{w}" height="{h}" fill="{ground}"/>'
        + f'<path d="{parts.box_path(1, 1, w - 2, h - 2, 6)}" fill="#0b2429" stroke="#000" stroke-opacity=".5"/>'
        + parts.recess(slot - 3, 6, 6, h - 12, 3, "#010608", 2)
        + marks
    )


def _knob(w, h):
    grip = "".join(
        f'<rect x="5" y="{y}" width="{w - 10}" height="1.4" fill="#000" opacity=".55"/>'
        f'<rect x="5" y="{y + 1.4}" width="{w - 10}" height="1" fill="#fff" opacity=".45"/>'
        for y in [h / 2 + d for d in (-8, -4, 0, 4, 8)]
    )
    return (
        f'<rect width="{w}" height="{h}" fill="#0b2429"/>'
        f'<path d="{parts.box_path(2, 1, w - 4, h - 2, 6)}" fill="url(#knob)" filter="url(#bevel2)"/>{grip}'
    )


KNOB_DEFS = parts.DEFS + svg.gradient(
    "knob", [(0, "#8a6330"), (0.3, "#e8c683"), (0.6, "#c1964f"), (1, "#7b5522")], x2=1, y2=0
)


def slider_bar():
    _, _, w, h = layout.SLIDER_BAR
    return svg.document(w, h, _bar(w, h, "#08252b"), parts.DEFS)


def knob_drawing():
    return _knob(*layout.SLIDER_KNOB)


def slider_knob():
    return svg.document(*layout.SLIDER_KNOB, knob_drawing(), KNOB_DEFS)


def shot_bar():
    _, _, w, h = layout.SHOT_BAR
    return svg.document(w, h, _bar(w, h, "#ffffff"), parts.DEFS)


def shot_knob():
    return svg.document(*layout.SHOT_KNOB, _knob(*layout.SHOT_KNOB), KNOB_DEFS)
