"""Those of the atlas that keep to the bed or drift above it; drawn as the swimmers are, with their lights and colours."""

import math
import random

from creatures import eye, light


def tubeworms():
    dice = random.Random(12)
    out = []
    for k in range(15):
        x = -150 + k * 21 + dice.uniform(-6, 6)
        height = 110 + 90 * math.sin((k + 1.5) / 17 * math.pi) * dice.uniform(0.7, 1.1)
        lean = dice.uniform(-22, 22)
        top_x, top_y = x + lean, 140 - height
        plume = "".join(
            f'<path d="M{top_x:.0f},{top_y:.0f} q{math.cos(a) * 12:.0f},{-14 + math.sin(a) * 4:.0f} {math.cos(a) * 16:.0f},{-30 - 8 * math.sin(a):.0f}" '
            f'stroke="{"#ff5b4a" if j % 2 else "#c9202a"}" stroke-width="4" fill="none" stroke-linecap="round"/>'
            for j, a in enumerate([math.pi * i / 6 for i in range(7)])
        )
        out.append(
            (
                height,
                f'<g filter="url(#tiny)">{plume}<path d="M{x - 6:.0f},150 Q{x - 6:.0f},{140 - height * .5:.0f} {top_x - 6:.0f},{top_y:.0f} h12 Q{x + 7:.0f},{140 - height * .5:.0f} {x + 7:.0f},150 Z" fill="#e9e2cd"/></g>'
                + "".join(
                    f'<path d="M{x - 5 + (top_x - x) * j / 6:.0f},{150 - (height + 10) * j / 6:.0f} h10" stroke="#8f866a" stroke-width="1" opacity=".7"/>'
                    for j in range(1, 6)
                ),
            )
        )
    return "".join(s for _, s in sorted(out, key=lambda p: -p[0]))


def isopod():
    body = "M-150,20 C-160,-30 -110,-62 -20,-66 C70,-68 130,-44 146,4 C150,26 140,40 120,44 L-120,46 C-140,44 -148,34 -150,20 Z"
    plates = "".join(
        f'<path d="M{x},{-72} C{x - 34},{-40} {x - 40},{10} {x - 26},{52}" fill="none" stroke="#5b465a" stroke-width="3"/>'
        f'<path d="M{x + 4},{-72} C{x - 30},{-40} {x - 36},{10} {x - 22},{52}" fill="none" stroke="#fff3f8" stroke-width="2" opacity=".5"/>'
        for x in (-60, -28, 2, 32, 62, 90, 114, 134)
    )
    legs = "".join(
        f'<path d="M{x},36 q-10,22 -2,36 q-14,10 -20,26" fill="none" stroke="#94798d" stroke-width="8" stroke-linecap="round" '
        f'stroke-linejoin="round"/>'
        for x in range(-88, 112, 29)
    )
    return f"""<g filter="url(#tiny)">{legs}<path d="M118,-26 C160,-30 186,-10 190,12 l-16,-4 6,16 -18,-6 2,16 -18,-8 -4,14 C130,42 122,30 118,16 Z" fill="#a58a9c"/></g>
<path d="M-142,-18 c-24,-26 -40,-60 -40,-92 M-132,-28 c-8,-36 2,-70 22,-94" fill="none" stroke="#cdb4c4" stroke-width="5" stroke-linecap="round"/>
<clipPath id="isoBody"><path d="{body}"/></clipPath><g filter="url(#plump)"><path d="{body}" fill="url(#isopodSkin)"/></g><g clip-path="url(#isoBody)">{plates}</g>
<path d="M-138,2 C-132,-18 -112,-26 -98,-22 L-96,4 C-110,12 -126,12 -138,2 Z" fill="#150d13"/>
<path d="M-130,-2 C-124,-12 -114,-16 -104,-15 M-128,6 L-102,-2" stroke="#7fd8c8" stroke-width="2.4" fill="none" opacity=".85"/>
<path d="M-148,28 q16,6 34,4" fill="none" stroke="#5c4456" stroke-width="3"/>"""


def yeti_crab():
    dice = random.Random(9)

    def hair(x0, y0, x1, y1, count):
        out = ""
        for k in range(count):
            t = k / count
            x, y = x0 + (x1 - x0) * t, y0 + (y1 - y0) * t
            out += (
                f'<path d="M{x:.0f},{y:.0f} q{dice.uniform(-9, 9):.0f},{dice.uniform(6, 14):.0f} {dice.uniform(-12, 12):.0f},{dice.uniform(14, 26):.0f}" '
                f'stroke="#f6ead0" stroke-width="1.3" fill="none" opacity=".85"/>'
            )
        return out

    legs = "".join(
        f'<path d="M{s * 50},{20 + k * 12} Q{s * (104 + k * 8)},{-16 + k * 26} {s * (136 - k * 8)},{74 + k * 16}" fill="none" stroke="#dccbad" stroke-width="9" stroke-linecap="round"/>'
        for s in (-1, 1)
        for k in range(3)
    )
    claws = ""
    for s in (-1, 1):
        claws += (
            f'<path d="M{s * 44},-16 L{s * 96},-66 L{s * 112},-100" fill="none" stroke="#e6d6b8" stroke-width="17" stroke-linecap="round" stroke-linejoin="round"/>'
            f'<path d="M{s * 100},-92 C{s * 92},-124 {s * 112},-140 {s * 128},-138 L{s * 120},-116 L{s * 140},-130 C{s * 150},-112 {s * 138},-90 {s * 120},-86 Z" fill="#f6ead0"/>'
        )
    fur = "".join(
        hair(s * 44, -16, s * 98, -66, 34) + hair(s * 96, -66, s * 116, -96, 24) + hair(s * 58, 10, s * 110, 4, 20)
        for s in (-1, 1)
    )
    return f"""<g filter="url(#tiny)">{legs}{claws}</g>{fur}
<g filter="url(#plump)"><path d="M-56,-24 C-40,-52 40,-52 56,-24 C74,10 62,60 30,78 C12,86 -12,86 -30,78 C-62,60 -74,10 -56,-24 Z" fill="url(#crabSkin)"/></g>
<path d="M-40,4 q40,16 80,0 M-44,26 q44,18 88,0 M-36,50 q36,16 72,0" fill="none" stroke="#a58f6d" stroke-width="2" opacity=".7"/>
<path d="M-18,-44 l-10,-18 M18,-44 l10,-18" stroke="#e6d6b8" stroke-width="5" stroke-linecap="round"/>
<circle cx="-29" cy="-64" r="4.5" fill="#c99"/><circle cx="29" cy="-64" r="4.5" fill="#c99"/>
<path d="M-10,-46 c-16,-30 -34,-50 -60,-60 M10,-46 c16,-30 34,-50 60,-60" fill="none" stroke="#dccbad" stroke-width="2.4"/>"""


def glass_sponge():
    lattice = ""
    for k in range(-14, 15):
        lattice += f'<path d="M{k * 12 - 60},-130 L{k * 12 + 60},120 M{k * 12 + 60},-130 L{k * 12 - 60},120" stroke="#eafffa" stroke-width="1.5" opacity=".55"/>'
    rings = "".join(
        f'<path d="M-80,{y} q80,22 160,0" fill="none" stroke="#eafffa" stroke-width="1.7" opacity=".6"/>'
        for y in range(-128, 120, 15)
    )
    shape = (
        "M-46,-124 C-70,-60 -64,30 -22,104 C-10,124 10,124 22,104 C64,30 70,-60 46,-124 C20,-136 -20,-136 -46,-124 Z"
    )
    roots = "".join(
        f'<path d="M{-14 + k * 4},108 q{-20 + k * 6},20 {-40 + k * 11},36" fill="none" stroke="#eafffa" stroke-width="1.2" opacity=".7"/>'
        for k in range(9)
    )
    second = f'<g transform="translate(112,34) scale(.62) rotate(8)"><path d="{shape}" fill="#8fe6dc" opacity=".18"/><clipPath id="sp2"><path d="{shape}"/></clipPath><g clip-path="url(#sp2)">{lattice}{rings}</g></g>'
    return (
        f'{light(0, -10, 170, .35)}{second}{roots}<clipPath id="sp1"><path d="{shape}"/></clipPath>'
        f'<path d="{shape}" fill="#a9f0e4" opacity=".22"/><g clip-path="url(#sp1)">{lattice}{rings}'
        f'<rect x="-64" y="-130" width="40" height="260" fill="#fff" opacity=".16" filter="url(#blur6)"/></g>'
        f'<path d="{shape}" fill="none" stroke="#eafffa" stroke-width="2.4" opacity=".8"/>'
        f'<ellipse cx="0" cy="-125" rx="46" ry="9" fill="#06323a" stroke="#eafffa" stroke-width="2"/>{light(4, 30, 34, .7)}'
    )


def sea_cucumber():
    veil = "".join(
        f'<path d="M{-60 + k * 13},-70 q{-10 + k * 1.5:.0f},-50 {-26 + k * 5},-66" fill="none" stroke="#ffb8b8" stroke-width="8" stroke-linecap="round" opacity=".75"/>'
        for k in range(11)
    )
    gut = "M-50,-30 C-10,-60 50,-50 60,-10 C64,20 20,30 -6,20 C-40,10 -50,40 -20,60 C10,76 50,66 66,50"
    feet = "".join(
        f'<path d="M{-70 + k * 14},{86 - abs(k - 5) * 2} q{-6 + k},20 {-10 + k * 2},34" fill="none" stroke="#e88a94" stroke-width="6" stroke-linecap="round" opacity=".8"/>'
        for k in range(11)
    )
    return f"""{light(0, 0, 180, .22)}<g filter="url(#glassy)">{veil}{feet}
<path d="M-84,-40 C-80,-84 80,-84 84,-40 C100,20 92,86 40,98 C10,104 -20,104 -46,96 C-94,80 -100,20 -84,-40 Z" fill="url(#pinkGlass)"/></g>
<path d="{gut}" fill="none" stroke="#5c1428" stroke-width="13" opacity=".55" stroke-linecap="round" filter="url(#blur1)"/>
<path d="{gut}" fill="none" stroke="#8c2a3c" stroke-width="5" opacity=".8" stroke-linecap="round"/>
<path d="M-66,-46 C-50,-68 0,-74 40,-66" fill="none" stroke="#fff" stroke-width="7" opacity=".45" stroke-linecap="round" filter="url(#blur1)"/>
{"".join(light(x, y, 14, .55) for x, y in ((-70, 10), (72, -6), (-30, 84), (58, 70), (10, -60)))}"""


def nautilus():
    def spiral(turn, scale):
        return 96 * math.exp(-0.17 * turn) * scale

    outer = "M" + " L".join(
        f"{26 + spiral(t, 1) * math.cos(t + 2.5):.1f},{-4 + spiral(t, 1) * math.sin(t + 2.5):.1f}"
        for t in [k * 0.08 for k in range(-26, 170)]
    )
    stripes = ""
    for k in range(15):
        t = -1.6 + k * 0.36
        a, r = t + 2.5, spiral(t, 1)
        stripes += (
            f'<path d="M{26 + r * 1.0 * math.cos(a):.0f},{-4 + r * math.sin(a):.0f} Q{26 + r * .8 * math.cos(a + .28):.0f},{-4 + r * .8 * math.sin(a + .28):.0f} '
            f'{26 + r * .5 * math.cos(a + .3):.0f},{-4 + r * .5 * math.sin(a + .3):.0f}" fill="none" stroke="#a4431f" stroke-width="{max(13 - k * .55, 3):.1f}" stroke-linecap="round" opacity=".85"/>'
        )
    arms = "".join(
        f'<path d="M-72,{34 + k * 5} c-30,{-12 + k * 5} -46,{-24 + k * 9} -{76 + (k * 37) % 30},{-20 + k * 9}" fill="none" stroke="{"#e9b18a" if k % 2 else "#cf8560"}" stroke-width="6" stroke-linecap="round"/>'
        for k in range(9)
    )
    return f"""<g filter="url(#tiny)">{arms}</g>
<g filter="url(#plump)"><path d="M-84,22 C-96,-70 -30,-124 40,-116 C120,-104 160,-34 136,36 C114,98 34,120 -24,92 C-58,76 -80,54 -84,22 Z" fill="url(#shell)"/></g>
<clipPath id="nautShell"><path d="M-84,22 C-96,-70 -30,-124 40,-116 C120,-104 160,-34 136,36 C114,98 34,120 -24,92 C-58,76 -80,54 -84,22 Z"/></clipPath>
<g clip-path="url(#nautShell)">{stripes}<path d="{outer}" fill="none" stroke="#7a4a26" stroke-width="2.2" opacity=".0"/></g>
<circle cx="30" cy="0" r="13" fill="#3b1f12"/><circle cx="30" cy="0" r="21" fill="none" stroke="#fff3dd" stroke-width="3" opacity=".6"/>
<g filter="url(#tiny)"><path d="M-88,20 C-64,0 -30,10 -18,92 C-50,96 -84,74 -96,50 Z" fill="#d98f66"/></g>
<path d="M-90,16 C-60,-10 -34,-4 -8,40" fill="none" stroke="#b9613a" stroke-width="9" stroke-linecap="round"/>{eye(-56, 38, 11, "eye")}"""
