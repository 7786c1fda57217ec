"""The swimmers of the atlas; each is drawn round the origin in a box of about 400 by 280 units, its head to the left."""

import math
import random

import parts
import svg


def _soft(name, blur=7, scale=14, shine=0.35, exponent=16):
    return svg.lighting(name, blur, scale, shine, exponent, 55)


DEFS = "".join(
    [
        _soft("plump"),
        _soft("tiny", 3, 6, 0.5, 20),
        _soft("glassy", 4, 8, 0.9, 30),
        svg.gradient("coelaSkin", [(0, "#5f8fb4"), (0.5, "#3b6288"), (1, "#22405c")]),
        svg.gradient("anglerSkin", [(0, "#6b4a44"), (0.5, "#4b302f"), (1, "#27181a")]),
        svg.radial("pinkGlow", [(0, "#ffd2e0", 0.95), (0.4, "#f0709a", 0.4), (1, "#f0709a", 0)]),
        svg.gradient("gulperSkin", [(0, "#3c3346"), (1, "#19141f")]),
        svg.gradient("silver", [(0, "#46626f"), (0.3, "#c8dde2"), (0.6, "#8fb0ba"), (1, "#dff2f2")]),
        svg.gradient("squidSkin", [(0, "#e2694e"), (0.6, "#b43b36"), (1, "#741f2a")]),
        svg.gradient("dumboSkin", [(0, "#f2a48a"), (0.55, "#d9705f"), (1, "#9a3f48")]),
        svg.gradient("isopodSkin", [(0, "#d9c4cf"), (1, "#7d6478")]),
        svg.gradient("crabSkin", [(0, "#fff6e6"), (1, "#c9b598")]),
        svg.gradient("whaleSkin", [(0, "#7f97a3"), (0.5, "#536c7a"), (1, "#33454f")]),
        svg.gradient("pinkGlass", [(0, "#f9b7b0", 0.85), (1, "#c1526a", 0.7)]),
        svg.radial("jellyBell", [(0, "#ffd9c9", 0.9), (0.55, "#d4485a", 0.75), (1, "#6d1f4a", 0.85)], 0.5, 0.35, 0.6),
        svg.radial("lure", [(0, "#ffffff"), (0.2, "#d8fff0"), (0.5, "#63ffd8", 0.6), (1, "#63ffd8", 0)]),
        svg.radial("eye", [(0, "#05080a"), (0.5, "#05080a"), (0.56, "#d8f7b2"), (1, "#7fae6a")]),
        svg.radial("darkEye", [(0, "#000"), (0.6, "#0a0f12"), (1, "#3b5560")]),
        svg.radial("shell", [(0, "#fffaf0"), (0.6, "#f1dfc2"), (1, "#b98a5c")], 0.4, 0.35, 0.7),
    ]
)


def light(x, y, r, opacity=1):
    """A living lamp."""
    return f'<circle cx="{x}" cy="{y}" r="{r}" fill="url(#lure)" opacity="{opacity}"/>'


def eye(x, y, r, kind="eye"):
    return (
        f'<circle cx="{x}" cy="{y}" r="{r}" fill="url(#{kind})"/>'
        f'<circle cx="{x - r * .3}" cy="{y - r * .35}" r="{r * .22}" fill="#fff" opacity=".9"/>'
    )


def coelacanth():
    dice = random.Random(4)
    flecks = "".join(
        f'<ellipse cx="{dice.uniform(14, 185):.1f}" cy="{dice.uniform(22, 78):.1f}" rx="{dice.uniform(.8, 3):.1f}" '
        f'ry="{dice.uniform(.7, 1.8):.1f}" fill="#dff0f4" opacity="{dice.uniform(.35, .85):.2f}"/>'
        for _ in range(80)
    )
    rays = ""
    for cx, cy, a0, a1, r0, r1 in (
        (84, 25, -115, -62, 4, 22),
        (134, 32, -110, -50, 2, 18),
        (172, 50, -75, 75, 12, 30),
        (74, 70, 40, 80, 14, 34),
        (106, 76, 40, 75, 10, 24),
        (134, 72, 30, 68, 8, 22),
    ):
        for k in range(9):
            a = math.radians(a0 + (a1 - a0) * k / 8)
            rays += (
                f'<path d="M{cx + r0 * math.cos(a):.1f},{cy + r0 * math.sin(a):.1f} L{cx + r1 * math.cos(a):.1f},'
                f'{cy + r1 * math.sin(a):.1f}" stroke="#0f2233" stroke-width=".6" opacity=".7"/>'
            )
    fins = "".join(f'<path d="{d}"/>' for d in parts.COELACANTH_FINS)
    return (
        f'<g transform="translate(-190,-88) scale(1.72)"><clipPath id="coelaBody"><path d="{parts.COELACANTH_BODY}"/></clipPath>'
        f'<g filter="url(#tiny)" fill="#2f5475">{fins}</g>{rays}'
        f'<g filter="url(#tiny)"><path d="{parts.COELACANTH_BODY}" fill="url(#coelaSkin)"/></g>'
        f'<g clip-path="url(#coelaBody)">{flecks}<path d="M0,66 C60,86 120,78 190,56 V90 H0 Z" fill="#0a1826" opacity=".4"/></g>'
        f'<path d="M44,24 C54,38 54,58 44,74" fill="none" stroke="#132a3d" stroke-width="1.6" opacity=".8"/>'
        f'<path d="M4,53 C12,58 20,60 30,59" fill="none" stroke="#0c1c2a" stroke-width="1.6"/>'
        f'<path d="M30,59 q4,2 3,6" fill="none" stroke="#0c1c2a" stroke-width="1"/>{eye(25, 42, 5)}</g>'
    )


def angler():
    upper = [(-112, 4), (-99, 13), (-86, 19), (-73, 22), (-60, 22), (-48, 19)]
    lower = [(-92, 64), (-102, 58), (-110, 49), (-115, 38), (-82, 60), (-70, 52)]
    teeth = "".join(
        f'<path d="M{x - 3},{y - 1} L{x + 1},{y + 17 + (k % 2) * 8} L{x + 4},{y} Z" fill="#efe9d2"/>'
        for k, (x, y) in enumerate(upper)
    )
    teeth += "".join(
        f'<path d="M{x - 3},{y + 1} L{x + 2},{y - 15 - (k % 2) * 7} L{x + 4},{y + 1} Z" fill="#efe9d2"/>'
        for k, (x, y) in enumerate(lower)
    )
    dice = random.Random(8)
    warts = "".join(
        f'<circle cx="{dice.uniform(-60, 110):.0f}" cy="{dice.uniform(-60, 70):.0f}" r="{dice.uniform(1, 3.4):.1f}" '
        f'fill="#8a6660" opacity=".5"/>'
        for _ in range(46)
    )
    rays = "".join(
        f'<path d="M140,{4 + k * 2} L{174},{-30 + k * 12}" stroke="#1b1012" stroke-width="1" opacity=".6"/>'
        for k in range(7)
    )
    return f"""<path d="M-46,-66 C-60,-120 -120,-134 -150,-84" fill="none" stroke="#6b4a44" stroke-width="4" stroke-linecap="round"/>
{light(-152, -78, 52, .9)}<circle cx="-152" cy="-78" r="6.5" fill="#eafff8"/>
<path d="M30,-78 q22,-34 52,-28 q10,24 -4,44 Z M10,88 q14,30 40,30 q16,-22 4,-42 Z" fill="#3a2526" filter="url(#tiny)"/>
<g filter="url(#plump)"><path d="M-112,4 C-106,-56 -44,-90 26,-82 C78,-76 116,-44 136,-14 L178,-42 C188,-12 188,22 180,48 L136,20 C118,62 70,94 10,94 C-32,94 -66,88 -90,68 C-120,58 -130,28 -112,4 Z" fill="url(#anglerSkin)"/></g>
{warts}{rays}
<path d="M-112,4 C-90,20 -62,26 -38,18 C-46,46 -66,64 -90,66 C-114,56 -124,28 -112,4 Z" fill="#170608"/>{teeth}
<path d="M-38,18 q8,4 8,-4" fill="none" stroke="#1b1012" stroke-width="3"/>
<path d="M44,20 q34,-8 44,14 q-16,22 -44,12 Z" fill="#3a2526" filter="url(#tiny)"/>
{eye(-58, -22, 9)}<circle cx="-58" cy="-22" r="13" fill="none" stroke="#1b1012" stroke-width="2" opacity=".5"/>
<path d="M-112,4 C-106,-56 -44,-90 26,-82" fill="none" stroke="#63ffd8" stroke-width="2.5" opacity=".35"/>"""


def jellyfish():
    dice = random.Random(5)
    arms = ""
    for k in range(22):
        x = -84 + k * 8
        sway, length = dice.uniform(-30, 30), dice.uniform(70, 150)
        arms += (
            f'<path d="M{x},-6 c{sway},{length * .3:.0f} {-sway},{length * .6:.0f} {sway * .6:.0f},{length:.0f}" fill="none" '
            f'stroke="#ff9d8a" stroke-width="{1 + (k % 3)}" opacity="{.35 + .1 * (k % 4):.2f}" stroke-linecap="round"/>'
        )
    lobes = "".join(
        f'<ellipse cx="{-88 + k * 19.5:.0f}" cy="-4" rx="12" ry="14" fill="#b23050" opacity=".75"/>' for k in range(10)
    )
    ring = "".join(light(-80 + k * 20, -14 + 5 * math.cos((k - 4) * 0.5), 13, 0.8) for k in range(9))
    return (
        f'{light(0, -30, 190, .3)}{arms}<path d="M100,-4 C150,10 176,60 190,128" fill="none" stroke="#ffb49e" stroke-width="3" opacity=".8"/>'
        f'<g filter="url(#glassy)">{lobes}<path d="M-104,-8 C-106,-86 -56,-124 0,-124 C56,-124 106,-86 104,-8 C60,-20 -60,-20 -104,-8 Z" fill="url(#jellyBell)"/></g>'
        f'<path d="M-58,-60 C-50,-96 50,-96 58,-60 C40,-44 -40,-44 -58,-60 Z" fill="#ffd9c9" opacity=".45" filter="url(#blur3)"/>'
        f'<path d="M-96,-34 C-60,-52 60,-52 96,-34" fill="none" stroke="#ffd1c0" stroke-width="3" opacity=".6"/>{ring}'
    )


def dumbo():
    arms = ""
    for x0, x1, y1, w in (
        (-70, -128, 70, 17),
        (-46, -86, 108, 18),
        (-16, -34, 122, 19),
        (16, 26, 124, 19),
        (46, 82, 108, 18),
        (70, 126, 66, 17),
    ):
        arms += f'<path d="M{x0},10 Q{(x0 + x1) / 2 - 6},{y1 * .6} {x1},{y1} q{8 if x1 > 0 else -8},6 {12 if x1 > 0 else -12},-6" fill="none" stroke="#c25f57" stroke-width="{w}" stroke-linecap="round"/>'
    suckers = "".join(
        f'<circle cx="{x}" cy="{y}" r="2.6" fill="#ffd9c8" opacity=".8"/>'
        for x, y in (
            (-62, 40),
            (-78, 62),
            (-34, 54),
            (-46, 78),
            (-12, 62),
            (-20, 88),
            (14, 62),
            (18, 90),
            (38, 54),
            (54, 78),
            (62, 40),
            (82, 56),
        )
    )
    return f"""<g filter="url(#plump)">{arms}
<path d="M-92,-44 C-150,-84 -186,-60 -176,-30 C-160,-6 -116,-12 -84,-22 Z M92,-44 C150,-84 186,-60 176,-30 C160,-6 116,-12 84,-22 Z" fill="#d9705f"/>
<path d="M-90,10 C-104,-70 -60,-124 0,-124 C60,-124 104,-70 90,10 C98,40 80,66 52,56 C30,80 -30,80 -52,56 C-80,66 -98,40 -90,10 Z" fill="url(#dumboSkin)"/></g>{suckers}
<path d="M-168,-46 C-140,-52 -118,-42 -96,-34 M168,-46 C140,-52 118,-42 96,-34" fill="none" stroke="#8c3a42" stroke-width="3" opacity=".5"/>
{eye(-46, -18, 17, "darkEye")}{eye(46, -18, 17, "darkEye")}
<ellipse cx="-20" cy="-84" rx="34" ry="16" fill="#fff" opacity=".22" filter="url(#blur3)" transform="rotate(-20 -20 -84)"/>
<path d="M-14,22 q14,10 28,0" fill="none" stroke="#7a2f3a" stroke-width="3" stroke-linecap="round"/>"""


def squid():
    arms = ""
    for k, (dx, dy, c) in enumerate(
        (
            (-90, 60, 30),
            (-104, 36, -26),
            (-112, 10, 22),
            (-108, -18, -20),
            (-92, -42, 24),
            (-84, 84, -18),
            (-70, -60, -16),
        )
    ):
        arms += f'<path d="M-46,6 q{dx * .4:.0f},{dy * .2 + c:.0f} {dx},{dy}" fill="none" stroke="#a83238" stroke-width="{11 - k * .6}" stroke-linecap="round"/>'
    arms += (
        '<path d="M-46,14 C-120,60 -150,130 -186,104" fill="none" stroke="#c8484a" stroke-width="5" stroke-linecap="round"/>'
        '<path d="M-46,-4 C-130,-50 -150,-110 -190,-96" fill="none" stroke="#c8484a" stroke-width="5" stroke-linecap="round"/>'
        '<ellipse cx="-186" cy="102" rx="15" ry="8" transform="rotate(-24 -186 102)" fill="#e2694e"/>'
        '<ellipse cx="-190" cy="-96" rx="15" ry="8" transform="rotate(14 -190 -96)" fill="#e2694e"/>'
    )
    dice = random.Random(3)
    spots = "".join(
        f'<circle cx="{dice.uniform(-30, 140):.0f}" cy="{dice.uniform(-34, 36):.0f}" r="{dice.uniform(.8, 2.4):.1f}" fill="#5c1520" opacity=".5"/>'
        for _ in range(90)
    )
    return f"""<g transform="rotate(-8)"><g filter="url(#tiny)">{arms}</g><g filter="url(#plump)">
<path d="M96,-30 C120,-78 168,-76 186,-6 C190,4 190,8 186,16 C166,84 122,84 96,36 Z" fill="#b43b36"/>
<path d="M-24,-40 C40,-56 130,-40 194,4 C130,50 40,62 -24,44 Z" fill="url(#squidSkin)"/>
<path d="M-62,-26 C-40,-40 -22,-38 -16,-34 L-16,40 C-30,44 -48,42 -64,32 C-74,14 -74,-8 -62,-26 Z" fill="#c24a40"/></g>
<clipPath id="mantle"><path d="M-24,-40 C40,-56 130,-40 194,4 C130,50 40,62 -24,44 Z"/></clipPath><g clip-path="url(#mantle)">{spots}</g>
<path d="M-18,-36 q8,36 0,78" fill="none" stroke="#5c1520" stroke-width="3" opacity=".7"/>
{eye(-42, 4, 15, "eye")}</g>"""


def gulper():
    return f"""<g filter="url(#plump)"><path d="M-176,-34 C-140,-66 -84,-64 -50,-42 C-10,-16 40,-26 90,-36 C140,-46 170,-30 180,6 C184,34 168,54 144,52 C128,50 124,34 136,28 C152,26 158,10 146,-4 C120,-20 70,0 30,14 C-4,26 -30,44 -56,84 C-84,122 -140,112 -158,66 C-140,70 -120,60 -106,34 C-96,12 -106,-10 -130,-16 C-150,-20 -166,-24 -176,-34 Z" fill="url(#gulperSkin)"/></g>
<path d="M-176,-34 C-130,-30 -92,-14 -70,6 C-66,44 -96,84 -158,66 C-150,30 -156,-8 -176,-34 Z" fill="#0b070e"/>
<path d="M-172,-28 C-130,-24 -100,-10 -80,8" fill="none" stroke="#6d5a78" stroke-width="1.6" stroke-dasharray="2 3"/>
<path d="M-152,62 C-112,66 -84,44 -76,14" fill="none" stroke="#6d5a78" stroke-width="1.6" stroke-dasharray="2 3"/>
<path d="M-60,-30 C-40,-4 -44,40 -66,76 M-46,-30 C-28,-6 -32,30 -50,58" fill="none" stroke="#52445e" stroke-width="2" opacity=".7"/>
{eye(-146, -42, 5)}<path d="M-40,-40 C20,-16 80,-50 140,-40" fill="none" stroke="#8f7ca0" stroke-width="2" opacity=".5"/>
<circle cx="138" cy="40" r="34" fill="url(#pinkGlow)"/><circle cx="138" cy="40" r="5" fill="#ffe6ee"/>"""


def hatchet():
    belly = "".join(
        light(x, y, 11, 0.95) + f'<circle cx="{x}" cy="{y}" r="3" fill="#eafff8"/>'
        for x, y in (
            (-98, 52),
            (-80, 76),
            (-58, 94),
            (-34, 104),
            (-8, 102),
            (14, 90),
            (34, 68),
            (54, 48),
            (80, 36),
            (100, 28),
        )
    )
    scales = "".join(
        f'<path d="M{-70 + k * 17},{-50 + k % 2 * 6} q-10,46 0,{120 - abs(k - 3) * 14}" fill="none" stroke="#35525e" stroke-width="1.4" opacity=".45"/>'
        for k in range(8)
    )
    return f"""<path d="M-10,-78 q16,-40 44,-40 l20,52 Z M120,0 l60,-44 q-14,44 0,92 l-60,-40 Z M40,60 q20,26 46,22 l-10,-38 Z" fill="#8fb0ba" opacity=".8" filter="url(#tiny)"/>
<g filter="url(#plump)"><path d="M-132,6 C-118,-46 -70,-84 -6,-82 C50,-78 90,-34 140,-14 L140,16 C100,20 60,40 36,78 C16,112 -34,122 -66,100 C-100,78 -124,44 -132,6 Z" fill="url(#silver)"/></g>{scales}
<path d="M-132,8 C-118,26 -106,40 -86,44 L-74,18 Z" fill="#1b2c33"/><path d="M-130,6 C-112,12 -92,16 -74,18" fill="none" stroke="#dff2f2" stroke-width="2"/>
<circle cx="-78" cy="-20" r="25" fill="#22363f"/>{eye(-78, -22, 20)}{belly}"""


def sperm_whale():
    body = "M-192,-20 C-194,-52 -150,-66 -70,-66 C20,-64 90,-30 150,-14 L190,-46 C196,-34 188,-18 176,-6 C188,8 194,26 186,36 L150,8 C100,40 20,62 -60,54 C-100,50 -120,44 -132,34 C-160,34 -186,30 -190,14 C-192,4 -192,-8 -192,-20 Z"
    folds = "".join(
        f'<path d="M{-20 + k * 20},{-20 + (k % 3) * 8} q26,6 {46},{16}" fill="none" stroke="#2a3a43" stroke-width="1.6" opacity=".5"/>'
        for k in range(6)
    )
    return f"""<path d="M-40,48 q10,44 44,46 q10,-24 -8,-50 Z" fill="#3d525d" filter="url(#tiny)"/>
<g filter="url(#plump)"><path d="{body}" fill="url(#whaleSkin)"/><path d="M70,-34 q20,-20 34,-10 l-2,22 Z" fill="#536c7a"/></g>{folds}
<path d="M-184,22 C-150,30 -120,26 -96,14" fill="none" stroke="#1d2a31" stroke-width="3"/>
<path d="M-180,26 C-150,42 -118,40 -98,18" fill="#a9b9bf" opacity=".55"/>
<path d="M-92,6 q8,-6 16,0" fill="none" stroke="#11191d" stroke-width="4"/><circle cx="-84" cy="6" r="3.4" fill="#05080a"/>
<path d="M-170,-40 l44,10 M-150,-56 l30,20 M-176,-10 l24,-6" stroke="#c9d8dd" stroke-width="1.4" opacity=".5"/>"""
