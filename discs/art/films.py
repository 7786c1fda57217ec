"""The two films, drawn frame by frame; a frame's drawing depends on its moment alone, from 0 to 1."""

import math
import random

import creatures
import parts
import scenes
import svg

W, H = 320, 240
DEFS = scenes.DEFS + creatures.DEFS


def _ease(t):
    t = min(max(t, 0), 1)
    return t * t * (3 - 2 * t)


def _between(t, first, last):
    """How far t is on the way from first to last."""
    return _ease((t - first) / (last - first))


def _curtain(t, fade=0.05):
    """Black at both ends of the film."""
    dark = 1 - min(_between(t, 0, fade), 1 - _between(t, 1 - fade, 1))
    return f'<rect width="{W}" height="{H}" fill="#000" opacity="{dark:.3f}"/>' if dark > 0.002 else ""


def _title(t, first, last, lines):
    shown = min(_between(t, first, first + 0.05), 1 - _between(t, last - 0.05, last))
    if shown <= 0:
        return ""
    text = "".join(
        svg.text(W / 2, y, line, size, "#fff1cf", font, "middle", 'letter-spacing="1"') for y, line, size, font in lines
    )
    return f'<g opacity="{shown:.3f}">{text}</g>'


def _drift(t, count, seed, speed=40, sway=8):
    """Specks that sink past the window and come again from above."""
    dice = random.Random(seed)
    out = []
    for _ in range(count):
        x0, y0, r, pace = dice.uniform(0, W), dice.uniform(0, H), dice.uniform(0.3, 1.2), dice.uniform(0.5, 1.5)
        x = (x0 - t * speed * pace) % W
        y = (y0 + t * 60 * pace + sway * math.sin(t * 20 * pace + x0)) % H
        out.append(f'<circle cx="{x:.1f}" cy="{y:.1f}" r="{r:.1f}" fill="#d8fff4" opacity="{.2 + r * .3:.2f}"/>')
    return "".join(out)


def walk(t):
    """A walk on the sea bed: the vessel crosses a field of smokers and meets a coelacanth in its light."""
    after_title = 90 * (1 - _between(t, 0.16, 0.42))
    vessel_x = 250 + after_title - 190 * _ease(t * 0.9) + 4 * math.sin(t * 22)
    vessel_y = 34 + 5 * math.sin(t * 16)
    fish_x = -150 + 330 * _between(t, 0.25, 0.98)
    fish_y = 128 + 6 * math.sin(t * 24)
    far, near = 80 * t - 110, 300 * t - 330  # the bed falls behind as the vessel goes left
    lx, ly = scenes.lamp(vessel_x, vessel_y, 0.52)
    in_beam = max(0, 1 - abs(fish_x + 60 - (lx - 110)) / 120)
    smokers = "".join(
        scenes.chimney(x, 236, height, width, seed)
        for x, height, width, seed in (
            (90, 84, 40, 3),
            (150, 52, 30, 6),
            (330, 110, 46, 9),
            (420, 70, 36, 2),
            (520, 90, 40, 5),
            (600, 60, 34, 8),
        )
    )
    body = f"""<rect width="{W}" height="{H}" fill="url(#deepSea)"/>
<g transform="translate({far:.1f},0)" filter="url(#blur1)">{scenes.ridge(460, 214, 90, 5, "#0b3b47", 12, .7)}</g>
{scenes.beam(round(lx, 1), round(ly, 1), 190, 56, 150 + 5 * math.sin(t * 12), .95)}
<g transform="translate({fish_x + 60:.1f},{fish_y:.1f}) scale(-.34,.34) rotate({3 * math.sin(t * 50):.1f}) skewY({2 * math.sin(t * 44):.1f})">{creatures.coelacanth()}</g>
<g opacity="{.75 * (1 - in_beam):.2f}" transform="translate({fish_x + 60:.1f},{fish_y:.1f}) scale(-.34,.34) rotate({3 * math.sin(t * 50):.1f}) skewY({2 * math.sin(t * 44):.1f})"><g transform="translate(-190,-88) scale(1.72)" fill="#04222b"><path d="{parts.COELACANTH_BODY}"/>{"".join(f'<path d="{d}"/>' for d in parts.COELACANTH_FINS)}</g></g>
{scenes.vessel(round(vessel_x, 1), round(vessel_y, 1), .52)}
<g transform="translate({near:.1f},0)">{smokers}{scenes.ridge(680, 244, 34, 21, "#020f14", 22)}</g>
{_drift(t, 60, 4)}
{_title(t, .03, .24, ((72, "SPACER PO DNIE", 20, svg.PLATE), (94, "film z pokładu Latimerii", 11, svg.LEGEND)))}
{_title(t, .86, 1.05, ((206, "Koniec wachty", 15, svg.PLATE),))}{_curtain(t)}"""
    return svg.document(W, H, body, DEFS)


def _blink(t, rate, phase):
    return max(0, math.sin(t * rate + phase)) ** 3


def light(t):
    """Light in the dark: one lamp calls, others answer, and at the end they all shine together."""
    together = _between(t, 0.72, 0.9)
    dice = random.Random(2)
    lamps = ""
    for k in range(46):
        x, y, rate, phase = dice.uniform(8, W - 8), dice.uniform(8, H - 8), dice.uniform(18, 50), dice.uniform(0, 7)
        born = dice.uniform(0.1, 0.7)
        glow = _between(t, born, born + 0.05) * max(_blink(t, rate, phase), together)
        if glow > 0.02:
            lamps += f'<circle cx="{x:.0f}" cy="{y + 4 * math.sin(t * 9 + phase):.1f}" r="{5 + 6 * glow:.1f}" fill="url(#coldGlow)" opacity="{glow * .9:.2f}"/>'
    angler_x = W + 90 - 230 * _between(t, 0.05, 0.45) - 60 * _between(t, 0.6, 1)
    seen = 0.25 + 0.75 * max(_blink(t, 26, 1), together)
    jelly_y = 290 - 210 * _between(t, 0.35, 0.9)
    pulse = 1 + 0.08 * math.sin(t * 60)
    squid_x = -120 + 252 * _between(t, 0.55, 0.95)
    flash = max(_blink(t, 40, 0), together)
    body = f"""<rect width="{W}" height="{H}" fill="#01060a"/><rect width="{W}" height="{H}" fill="url(#deepSea)" opacity="{.25 + .45 * together:.2f}"/>
{lamps}
<g transform="translate({angler_x:.1f},{96 + 6 * math.sin(t * 14):.1f}) scale(.42)"><g opacity="{.35 + .65 * seen:.2f}">{creatures.angler()}</g></g>
<g transform="translate({74 + 10 * math.sin(t * 8):.1f},{jelly_y:.1f}) scale({.36 / pulse:.3f},{.36 * pulse:.3f})">{creatures.jellyfish()}</g>
<g transform="translate({squid_x:.1f},{172 + 5 * math.sin(t * 18):.1f}) scale(-.34,.34)" opacity="{.3 + .7 * flash:.2f}">{creatures.squid()}</g>
{_drift(t, 40, 9, 12)}
{_title(t, .03, .2, ((116, "ŚWIATŁO W MROKU", 19, svg.PLATE), (138, "tysiąc metrów pod stępką", 11, svg.LEGEND)))}
{_title(t, .84, 1.05, ((222, "...i wszyscy się widzą.", 14, svg.PLATE),))}{_curtain(t)}"""
    return svg.document(W, H, body, DEFS)
