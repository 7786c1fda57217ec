"""The cinema window: a picture house in the vessel's belly, with a mixed audience."""

import layout
import parts
import svg

W, H = layout.CINEMA
CX, CY = layout.CINEMA_MIDDLE
FLOOR = 404


def _curtain(side):
    """One half of the velvet curtain, gathered to its side by a cord; -1 is the left half."""
    edge = [(0, 40), (106, 40), (110, 120), (74, 236), (84, 300), (96, 372), (0, 372)]

    def x(value):
        return 8 + value if side < 0 else W - 8 - value

    points = [(x(px), py) for px, py in edge]
    shape = (
        f"M{points[0][0]},{points[0][1]} L{points[1][0]},{points[1][1]} C{points[2][0]},{points[2][1]} {x(98)},200 {points[3][0]},{points[3][1]} "
        f"C{x(84)},262 {x(84)},290 {points[5][0]},{points[5][1]} L{points[6][0]},{points[6][1]} Z"
    )
    name = "left" if side < 0 else "right"
    folds = "".join(
        f'<path d="M{x(6 + k * 13)},36 C{x(8 + k * 12.6)},130 {x(2 + k * 8.4)},200 {x(4 + k * 8.6)},238 C{x(5 + k * 9.4)},280 '
        f'{x(8 + k * 11)},320 {x(8 + k * 11.6)},376" fill="none" stroke="{c}" stroke-width="{w}" opacity="{o}"/>'
        for k in range(9)
        for c, w, o in (("#3d0209", 6, 0.75), ("#e8493f", 2.4, 0.5))
    )
    cord = (
        f'<path d="M{x(0)},232 q{-side * 42},18 {-side * 80},2" fill="none" stroke="#6b4a1c" stroke-width="9"/>'
        f'<path d="M{x(0)},230 q{-side * 42},18 {-side * 80},2" fill="none" stroke="#e9c981" stroke-width="5" stroke-dasharray="5 1.5"/>'
        f'<path d="M{x(62)},240 v26 m-5,-4 v18 m5,-14 v20 m5,-24 v18" stroke="#e9c981" stroke-width="3" stroke-linecap="round"/>'
    )
    return (
        f'<clipPath id="c{name}"><path d="{shape}"/></clipPath><path d="{shape}" fill="#000" opacity=".6" filter="url(#blur6)" transform="translate(4,6)"/>'
        f'<g clip-path="url(#c{name})"><path d="{shape}" fill="url(#velvet)"/><g filter="url(#blur1)">{folds}</g>'
        f'<rect x="0" y="30" width="{W}" height="120" fill="url(#above)"/></g>{cord}'
    )


def _valance():
    """The swags across the top, with a golden fringe."""
    out, count = [], 8
    width = (W - 16) / count
    for k in range(count):
        x = 8 + k * width
        shape = f"M{x:.1f},30 H{x + width:.1f} V46 C{x + width * .86:.1f},{82} {x + width * .14:.1f},{82} {x:.1f},46 Z"
        lines = "".join(
            f'<path d="M{x + 2:.1f},{34 + j * 6} C{x + width * .2:.1f},{48 + j * 9} {x + width * .8:.1f},{48 + j * 9} {x + width - 2:.1f},{34 + j * 6}" '
            f'fill="none" stroke="{"#4d0610" if j % 2 else "#e2463e"}" stroke-width="2" opacity=".55"/>'
            for j in range(4)
        )
        out.append(
            f'<path d="{shape}" fill="#000" opacity=".5" filter="url(#blur2)" transform="translate(1,5)"/><path d="{shape}" fill="url(#velvet)"/>{lines}'
            f'<path d="M{x:.1f},46 C{x + width * .14:.1f},82 {x + width * .86:.1f},82 {x + width:.1f},46" fill="none" stroke="#8a6128" stroke-width="7"/>'
            f'<path d="M{x:.1f},46 C{x + width * .14:.1f},82 {x + width * .86:.1f},82 {x + width:.1f},46" fill="none" stroke="#f0cf83" stroke-width="5" stroke-dasharray="2 1.2"/>'
        )
    knots = "".join(
        f'<circle cx="{8 + k * width:.1f}" cy="46" r="5" fill="#e9c981" filter="url(#bevel1)"/>'
        for k in range(count + 1)
    )
    return "".join(out) + knots


def _head(kind, x, y, s):
    """One of the audience, from behind."""
    shapes = {
        "diver": '<circle r="22"/><rect x="-27" y="14" width="54" height="30" rx="9"/><circle cx="-22" r="7"/><circle cx="22" r="7"/><rect x="-6" y="-30" width="12" height="10" rx="2"/>',
        "hat": '<ellipse cy="2" rx="15" ry="18"/><path d="M-26,-8 h52 l-8,-5 v-20 q-18,-8 -36,0 v20 Z"/><path d="M-32,46 q4,-26 32,-27 q28,1 32,27 Z"/>',
        "bun": '<ellipse cy="0" rx="16" ry="19"/><circle cy="-23" r="10"/><path d="M-32,46 q4,-26 32,-27 q28,1 32,27 Z"/>',
        "fish": '<path d="M-14,44 C-30,20 -28,-18 0,-30 C28,-18 30,20 14,44 Z"/><path d="M-4,-28 L0,-46 L6,-28 Z M-24,2 l-16,-9 6,24 Z M24,2 l16,-9 -6,24 Z"/>',
        "octopus": '<path d="M-24,4 C-26,-36 26,-36 24,4 C26,22 18,30 30,44 H-30 C-18,30 -26,22 -24,4 Z"/><path d="M-26,30 q-22,-4 -20,-26 q-8,4 -8,18 q2,22 26,24 Z M26,30 q22,-4 20,-26 q8,4 8,18 q-2,22 -26,24 Z"/>',
        "crab": '<ellipse cy="14" rx="30" ry="20"/><path d="M-26,6 q-20,-14 -14,-36 l6,10 6,-12 q8,18 -2,30 Z M26,6 q20,-14 14,-36 l-6,10 -6,-12 q-8,18 2,30 Z M-8,-6 v-14 M8,-6 v-14" stroke-width="3" stroke="#04090b"/><circle cx="-8" cy="-21" r="4"/><circle cx="8" cy="-21" r="4"/>',
        "captain": '<ellipse cy="2" rx="16" ry="19"/><path d="M-23,-12 q23,-22 46,0 l-3,8 h-40 Z"/><path d="M-32,46 q4,-26 32,-27 q28,1 32,27 Z"/>',
    }
    rim = shapes[kind]
    return f'<g transform="translate({x},{y}) scale({s})"><g fill="#8fc9d8" opacity=".38" transform="translate(0,-1.6)">{rim}</g><g fill="#04090b">{rim}</g></g>'


def _audience():
    seats = "".join(
        f'<path d="M{x - 26},{FLOOR} v-34 q0,-10 10,-10 h32 q10,0 10,10 v34 Z" fill="#240509"/>'
        f'<path d="M{x - 25},{FLOOR - 34} q0,-9 9,-9 h32 q9,0 9,9" fill="none" stroke="#a83238" stroke-width="1.6" opacity=".7"/>'
        for x in range(34, W, 62)
    )
    heads = "".join(
        _head(kind, x, FLOOR - 56 + dy, s * 1.35)
        for kind, x, dy, s in (
            ("hat", 96, -2, 0.6),
            ("octopus", 158, -2, 0.66),
            ("bun", 222, 2, 0.56),
            ("diver", 284, -3, 0.66),
            ("fish", 344, 0, 0.62),
            ("captain", 406, 3, 0.6),
            ("crab", 468, -4, 0.66),
        )
    )
    return heads + seats


def picture():
    sx, sy = CX - 160, CY - 120
    lights = "".join(
        f'<path d="M{x - 9},342 a9,9 0 0 1 18,0 Z" fill="{svg.BRASS}" filter="url(#bevel1)"/>'
        f'<ellipse cx="{x}" cy="334" rx="16" ry="9" fill="url(#footlight)"/>'
        for x in range(134, 440, 36)
    )
    rivets = "".join(
        parts.screw(x, y, 2.6, x + y) for x in (12, W - 12) for y in (14, 118, 222, 326, FLOOR + 6, H - 14)
    )
    body = f"""<rect width="{W}" height="{H}" fill="url(#wall)"/>
<rect x="8" y="30" width="{W - 16}" height="{FLOOR - 30}" fill="#0a0608"/>
<rect x="{sx - 40}" y="{sy - 30}" width="400" height="320" fill="url(#spill)"/>
<rect x="{sx - 9}" y="{sy - 9}" width="338" height="258" rx="4" fill="#050506"/>
<rect x="{sx}" y="{sy}" width="320" height="240" fill="url(#cloth)"/>
<path d="M60,350 H{W - 60} L{W - 20},{FLOOR} H20 Z" fill="url(#stage)"/><rect x="60" y="340" width="{W - 120}" height="11" fill="url(#brassV)"/>{lights}
{_curtain(-1)}{_curtain(1)}{_valance()}
{_audience()}
<rect x="0" y="{FLOOR}" width="{W}" height="{H - FLOOR}" fill="url(#console)"/><rect x="0" y="{FLOOR}" width="{W}" height="4" fill="url(#brassV)"/>
{parts.recess(150, 412, 260, 51, 25, "#0a1d20", 3)}
{parts.plate(22, 424, 112, 28, 4)}{parts.engraved(78, 443, "SALA NR 1", 13, spacing=1)}
{parts.plate(426, 424, 112, 28, 4)}{parts.engraved(482, 443, "CISZA!", 13, spacing=2)}
<path d="M0,0 H{W} V{H} H0 Z M6,30 V{H - 6} H{W - 6} V30 Z" fill-rule="evenodd" fill="#94702f" filter="url(#bevel2)"/>
{parts.recess(150, 5, 260, 21, 8, "#2a0408", 2)}
{svg.text(CX, 21, "KINO POD KILEM", 15, "#ffdf9e", svg.PLATE, "middle", 'letter-spacing="3"')}
{"".join(f'<circle cx="{x}" cy="15.5" r="2.6" fill="#ffefb0"/><circle cx="{x}" cy="15.5" r="6" fill="url(#footlight)"/>' for x in list(range(26, 146, 17)) + list(range(418, 540, 17)))}
{rivets}"""
    defs = parts.DEFS + "".join(
        [
            svg.gradient("wall", [(0, "#1d4a4c"), (1, "#0b2225")]),
            svg.gradient("velvet", [(0, "#b81f27"), (0.6, "#8c0f1c"), (1, "#4d0610")]),
            svg.gradient("above", [(0, "#000", 0.65), (1, "#000", 0)]),
            svg.gradient("cloth", [(0, "#23282c"), (1, "#101315")]),
            svg.gradient("stage", [(0, "#3a1d10"), (1, "#0d0604")]),
            svg.gradient("console", [(0, "#37686a"), (1, "#122f32")]),
            svg.radial("spill", [(0, "#9fd2e0", 0.35), (1, "#9fd2e0", 0)]),
            svg.radial("footlight", [(0, "#fff3c0", 0.95), (0.4, "#ffb84d", 0.4), (1, "#ffb84d", 0)]),
        ]
    )
    return svg.document(W, H, body, defs)
