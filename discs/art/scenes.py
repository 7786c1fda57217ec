"""Scenery of the deep: the sea itself, the vessel with its lamps, the sea bed. Start screen, pages and films share it."""

import math
import random

import parts
import svg

DEFS = parts.DEFS + "".join(
    [
        svg.gradient("sea", [(0, "#8fe6d4"), (0.12, "#46b3b0"), (0.38, "#14666f"), (0.7, "#07323d"), (1, "#020d14")]),
        svg.gradient("deepSea", [(0, "#0f5560"), (0.4, "#08303b"), (1, "#01080d")]),
        svg.gradient("ray", [(0, "#eafff4", 0.55), (0.5, "#c9fff0", 0.16), (1, "#c9fff0", 0)]),
        svg.gradient("beam", [(0, "#fff2c0", 0.75), (0.35, "#ffdf90", 0.28), (1, "#ffdf90", 0)], x2=1, y2=0),
        svg.gradient(
            "floatHull", [(0, "#dff5e6"), (0.16, "#8fc9bb"), (0.42, "#3f8783"), (0.75, "#1b4a4d"), (1, "#0a2226")]
        ),
        svg.gradient("floatBelly", [(0, "#c9694a"), (0.4, "#8c3523"), (1, "#2d0d08")]),
        svg.radial(
            "ball", [(0, "#fff3cf"), (0.3, "#e2b869"), (0.65, "#93682b"), (1, "#2b1a08")], 0.5, 0.5, 0.55, 0.33, 0.26
        ),
        svg.radial("cabin", [(0, "#fff7d0"), (0.5, "#ffc45c"), (1, "#b05a18")]),
        svg.radial("glow", [(0, "#ffe2a0", 0.9), (0.4, "#ffb84d", 0.35), (1, "#ffb84d", 0)]),
        svg.radial("coldGlow", [(0, "#b8fff2", 0.95), (0.4, "#4fe0d0", 0.35), (1, "#4fe0d0", 0)]),
    ]
)


def rays(w, h, seed=4, count=9):
    """Shafts of daylight from above."""
    dice = random.Random(seed)
    out = []
    for _ in range(count):
        x, width = dice.random() * w * 1.1, 14 + dice.random() * w * 0.07
        lean = (x - w * 0.42) * 0.45
        out.append(
            f'<path d="M{x - width * .3:.0f},-10 L{x + width * .3:.0f},-10 L{x + lean + width:.0f},{h * (.55 + dice.random() * .4):.0f} '
            f'L{x + lean - width:.0f},{h * (.55 + dice.random() * .4):.0f} Z" fill="url(#ray)" opacity="{.25 + dice.random() * .4:.2f}"/>'
        )
    return f'<g filter="url(#blur6)">{"".join(out)}</g>'


def snow(w, h, count, seed, top=0):
    """Marine snow: specks that drift down."""
    dice = random.Random(seed)
    return "".join(
        f'<circle cx="{dice.random() * w:.1f}" cy="{top + dice.random() * (h - top):.1f}" '
        f'r="{.3 + dice.random() ** 3 * 1.3:.2f}" fill="#d8fff4" opacity="{.15 + dice.random() * .45:.2f}"/>'
        for _ in range(count)
    )


def ridge(w, base, height, seed, colour, points=14, opacity=1):
    """A jagged line of rock along the bottom."""
    dice = random.Random(seed)
    line = []
    for k in range(points + 1):
        swell = math.sin(k * 1.7 + seed) * 0.35 + dice.random() * 0.65
        line.append((w * k / points, base - height * max(swell, 0.05)))
    path = f"M0,{line[0][1]:.1f}"
    for (x0, y0), (x1, y1) in zip(line, line[1:]):
        path += f" C{x0 + (x1 - x0) * .4:.1f},{y0:.1f} {x0 + (x1 - x0) * .6:.1f},{y1:.1f} {x1:.1f},{y1:.1f}"
    return f'<path d="{path} V{base + 400} H0 Z" fill="{colour}" opacity="{opacity}"/>'


def chimney(x, y, height, width, seed, smoke=True):
    """A black smoker; x, y is the middle of its foot."""
    dice = random.Random(seed)
    left, right = [], []
    steps = 7
    for k in range(steps + 1):
        t = k / steps
        half = width * (0.5 - 0.32 * t) * (0.8 + dice.random() * 0.4)
        left.append((x - half, y - height * t))
        right.append((x + half * 0.9, y - height * t))
    points = " ".join(f"{px:.1f},{py:.1f}" for px, py in left + right[::-1])
    plume = (
        "".join(
            f'<ellipse cx="{x + math.sin(k * .9 + seed) * width * .12 * k:.1f}" cy="{y - height - k * width * .42:.1f}" '
            f'rx="{width * (.16 + k * .09):.1f}" ry="{width * (.28 + k * .05):.1f}" fill="#01070a" opacity="{.55 - k * .055:.2f}"/>'
            for k in range(9)
        )
        if smoke
        else ""
    )
    return (
        f'<g filter="url(#blur3)">{plume}</g><polygon points="{points}" fill="#04151b"/>'
        f'<polygon points="{points}" fill="none" stroke="#2c7a7a" stroke-width="1" opacity=".35"/>'
    )


def beam(x, y, length, spread, angle, opacity=1):
    """A lamp's cone of light from x, y; the angle is in degrees, 0 to the right, growing downwards."""
    return (
        f'<g transform="translate({x},{y}) rotate({angle})" opacity="{opacity}"><path d="M0,-3 L{length},{-spread} '
        f'Q{length * 1.06},0 {length},{spread} L0,3 Z" fill="url(#beam)" filter="url(#blur2)"/></g>'
    )


def vessel(x, y, scale, lights=True):
    """The bathyscaphe, its bow to the left; about 320 by 190 units, x, y its upper left corner."""
    rivets = "".join(
        f'<circle cx="{px}" cy="{py}" r="1" fill="#06181b" opacity=".6"/><circle cx="{px - .4}" cy="{py - .4}" r=".5" fill="#e9fff6" opacity=".7"/>'
        for px in range(46, 280, 9)
        for py in (62, 104)
    )
    seams = "".join(
        f'<path d="M{px},56 q-4,26 0,58" fill="none" stroke="#06181b" stroke-width="1.1" opacity=".5"/>'
        f'<path d="M{px + 1.4},56 q-4,26 0,58" fill="none" stroke="#dffff2" stroke-width=".6" opacity=".35"/>'
        for px in (92, 146, 200, 250)
    )
    ball_rivets = "".join(
        f'<circle cx="{122 + 33 * math.cos(a):.1f}" cy="{146 + 33 * math.sin(a):.1f}" r="1.3" fill="#3b2409"/>'
        for a in [k * math.pi / 9 for k in range(18)]
    )
    body = f"""
<path d="M150,18 h34 q5,0 6,6 l4,28 h-54 l4,-28 q1,-6 6,-6 Z" fill="#3f8783" filter="url(#bevel3)"/>
<rect x="146" y="12" width="42" height="8" rx="3" fill="{svg.BRASS}" filter="url(#bevel1)"/>
<path d="M166,12 V-14 M160,-8 H172" stroke="#c9a25a" stroke-width="2.2"/><circle cx="166" cy="-15" r="2.6" fill="#ff6a3d"/>
<path d="M298,58 l26,-24 q6,-3 6,4 v84 q0,7 -6,4 l-26,-24 Z" fill="#2a6264" filter="url(#bevel2)"/>
<path d="M296,84 h32" stroke="#c9a25a" stroke-width="3"/>
<path d="M10,84 C14,58 44,48 92,47 H236 C276,48 298,62 306,84 C298,106 276,120 236,121 H92 C44,120 14,110 10,84 Z" fill="url(#floatHull)" filter="url(#bevel3)"/>
<path d="M12,92 C20,110 48,120 92,121 H236 C276,120 296,107 304,90 C280,104 250,107 210,107 H100 C60,107 30,104 12,92 Z" fill="url(#floatBelly)" opacity=".95"/>
<path d="M13,88 C40,99 70,102 100,102.6 H210 C250,102 280,99 304,88" fill="none" stroke="#f6dfa2" stroke-width="2.2"/>
{seams}{rivets}
<text x="160" y="84" font-family="{svg.LEGEND}" font-size="21" text-anchor="middle" letter-spacing="5" fill="#f8f0d4">LATIMERIA</text>
<path d="M196,118 h36 l-7,26 h-22 Z M246,117 h28 l-6,20 h-16 Z" fill="#2a4c4e" filter="url(#bevel2)"/>
<path d="M104,118 l-6,14 M140,118 l6,14 M122,116 v12" stroke="#8a6a34" stroke-width="5"/>
<circle cx="122" cy="146" r="37" fill="url(#ball)"/>{ball_rivets}
<circle cx="108" cy="148" r="16" fill="{svg.BRASS}" filter="url(#bevel2)"/><circle cx="108" cy="148" r="10.5" fill="url(#cabin)"/>
<path d="M101,152 q7,-13 14,0 v6 h-14 Z" fill="#4a2608" opacity=".75"/><circle cx="108" cy="146" r="3.6" fill="#4a2608" opacity=".8"/>
<ellipse cx="105" cy="143" rx="5" ry="3" fill="#fff" opacity=".6"/>
<circle cx="140" cy="140" r="8" fill="{svg.BRASS}" filter="url(#bevel1)"/><circle cx="140" cy="140" r="4.6" fill="url(#cabin)"/>
<path d="M84,168 l-22,12 M70,176 l-14,-4" stroke="#9a7a40" stroke-width="3.4" stroke-linecap="round"/>
<path d="M56,172 l-8,-4 m8,4 l-3,8" stroke="#c9a25a" stroke-width="2.4" stroke-linecap="round"/>
<path d="M40,112 l-10,10" stroke="#8a6a34" stroke-width="4"/>
<path d="M22,118 l12,-3 7,9 -9,8 Z" fill="#c9a25a" filter="url(#bevel1)"/><ellipse cx="25" cy="125" rx="4" ry="7" transform="rotate(-38 25 125)" fill="#fff3c0"/>"""
    glow = (
        '<circle cx="24" cy="125" r="26" fill="url(#glow)"/><circle cx="108" cy="148" r="30" fill="url(#glow)" opacity=".55"/>'
        if lights
        else ""
    )
    return f'<g transform="translate({x},{y}) scale({scale})">{body}{glow}</g>'


def lamp(x, y, scale):
    """Where the vessel's lamp is, for a beam that starts there."""
    return x + 22 * scale, y + 126 * scale
