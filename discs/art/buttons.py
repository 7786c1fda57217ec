"""The picture buttons, three looks each, laid on the picture that they will stand on."""

import layout
import parts
import svg

LOOKS = ("normal", "over", "pressed")

# Icons in a box from -10 to 10.
ICONS = {
    "Ext": '<path d="M-4.6,-5.6 A7.2,7.2 0 1 0 4.6,-5.6" fill="none" stroke-width="2.6" stroke-linecap="round"/>'
    '<path d="M0,-9 V-1" fill="none" stroke-width="2.8" stroke-linecap="round"/>',
    "Min": '<path d="M-7,6 H7" fill="none" stroke-width="2.8" stroke-linecap="round"/>'
    '<path d="M0,-8 V1 M-4,-2.6 L0,1.6 L4,-2.6" fill="none" stroke-width="2.2" stroke-linecap="round" stroke-linejoin="round"/>',
    "Snd1": '<path d="M-8,-3 H-4.5 L0,-7.5 V7.5 L-4.5,3 H-8 Z" stroke="none"/>'
    '<path d="M3,-4 A5.4,5.4 0 0 1 3,4 M5.4,-7 A9.6,9.6 0 0 1 5.4,7" fill="none" stroke-width="1.8" stroke-linecap="round"/>',
    "Snd2": '<path d="M-8,-3 H-4.5 L0,-7.5 V7.5 L-4.5,3 H-8 Z" stroke="none"/>'
    '<path d="M3.4,-3.4 L9,3.4 M9,-3.4 L3.4,3.4" fill="none" stroke-width="2.2" stroke-linecap="round"/>',
    "Hlp": '<path d="M-4.6,-4.4 C-4.4,-8.4 -2,-9.8 .4,-9.8 C3.6,-9.8 5.4,-7.6 5.4,-5.2 C5.4,-1.6 .6,-1.4 .6,2.6" fill="none" '
    'stroke-width="3" stroke-linecap="round"/><circle cx=".6" cy="8" r="2" stroke="none"/>',
    "Info": '<circle cx="0" cy="-7.6" r="2.1" stroke="none"/><path d="M-3,-1.8 H.8 V7.6 M-3.4,8 H4.4" fill="none" '
    'stroke-width="2.8" stroke-linecap="round" stroke-linejoin="round"/>',
    "Start": '<path d="M-5,-7 L7,0 L-5,7 Z" stroke="none"/>',
    "Pauza": '<path d="M-5.6,-6.6 h4 v13.2 h-4 Z M1.8,-6.6 h4 v13.2 h-4 Z" stroke="none"/>',
    "Stop": '<rect x="-6" y="-6" width="12" height="12" rx="1" stroke="none"/>',
    "Pokaz": '<path d="M-9,-7 H9 V7 H-9 Z M-7.6,-5.6 v2 h2.4 v-2 Z M-7.6,-1 v2 h2.4 v-2 Z M-7.6,3.6 v2 h2.4 v-2 Z '
    'M5.2,-5.6 v2 h2.4 v-2 Z M5.2,-1 v2 h2.4 v-2 Z M5.2,3.6 v2 h2.4 v-2 Z M-3.6,-5 V5 H3.6 V-5 Z" fill-rule="evenodd" '
    'stroke="none"/><path d="M-2,-3 L3,0 L-2,3 Z" stroke="none"/>',
    "Full": '<path d="M-9,-3 V-8 H-4 M4,-8 H9 V-3 M9,3 V8 H4 M-4,8 H-9 V3" fill="none" stroke-width="2.2"/>'
    '<rect x="-4.4" y="-3.4" width="8.8" height="6.8" stroke="none"/>',
    "Small": '<path d="M-4,-9 V-4 H-9 M9,-4 H4 V-9 M4,9 V4 H9 M-9,4 H-4 V9" fill="none" stroke-width="2.2"/>'
    '<rect x="-2" y="-1.6" width="4" height="3.2" stroke="none"/>',
}
CAPTIONS = {"Start": "START", "Pauza": "PAUZA", "Stop": "STOP", "Pokaz": "POKAŻ"}

_GLASS = {"normal": "url(#glassNormal)", "over": "url(#glassOver)", "pressed": "url(#glassPressed)"}
_INK = {"normal": "#ffe2a4", "over": "#3a1c02", "pressed": "#7dfbdc"}

DEFS = parts.DEFS + "".join(
    [
        svg.radial("glassNormal", [(0, "#3a7d7c"), (0.6, "#12383d"), (1, "#06161a")], 0.5, 0.5, 0.6, 0.4, 0.2),
        svg.radial("glassOver", [(0, "#fff3c4"), (0.5, "#ffb84d"), (1, "#a9541a")], 0.5, 0.5, 0.62, 0.45, 0.35),
        svg.radial("glassPressed", [(0, "#0b2b30"), (0.7, "#061a1e"), (1, "#020a0c")], 0.5, 0.5, 0.6),
    ]
)


def _halo(look, shape):
    return f'<g fill="#ffb84d" opacity=".55" filter="url(#blur3)">{shape}</g>' if look == "over" else ""


def round_button(key, size, look):
    """A round lamp in a brass ring."""
    c, r = size / 2, size / 2 - 2.5
    glass = r - 4
    drop = 0.8 if look == "pressed" else 0
    scale = glass / 13.5
    body = (
        _halo(look, f'<circle cx="{c}" cy="{c}" r="{r - 1}"/>')
        + parts.ring(c, c, r, glass)
        + f'<circle cx="{c}" cy="{c}" r="{glass}" fill="{_GLASS[look]}"/>'
    )
    if look == "pressed":
        body += (
            f'<circle cx="{c + 1}" cy="{c + 2}" r="{glass + 2}" fill="none" stroke="#000" stroke-width="5" '
            f'opacity=".7" filter="url(#blur1)"/>'
        )
    body += f'<g transform="translate({c},{c + drop}) scale({scale:.3f})" fill="{_INK[look]}" stroke="{_INK[look]}">{ICONS[key]}</g>'
    if look != "pressed":
        body += f'<ellipse cx="{c - glass * .12}" cy="{c - glass * .5}" rx="{glass * .66}" ry="{glass * .4}" fill="url(#glassShine)"/>'
    return body


def bar_button(key, w, h, look):
    """A key of the console: icon and caption on glass in a brass frame."""
    drop = 0.8 if look == "pressed" else 0
    shape = parts.box_path(1.5, 1.5, w - 3, h - 3, 6)
    inner = parts.box_path(4, 4, w - 8, h - 8, 4)
    ink = _INK[look]
    body = (
        _halo(look, f'<path d="{shape}"/>') + f'<path d="{shape}" fill="{svg.BRASS}" filter="url(#bevel1)"/>'
        f'<path d="{inner}" fill="{_GLASS[look]}" stroke="#000" stroke-opacity=".5" stroke-width=".8"/>'
    )
    if look != "pressed":
        body += f'<path d="{parts.box_path(5, 4.6, w - 10, (h - 8) * .42, 3)}" fill="#fff" opacity=".16"/>'
    text = CAPTIONS[key]
    width = 8.8 * len(text)
    left = (w - 19 - width) / 2
    return body + (
        f'<g transform="translate({left + 7},{h / 2 + drop}) scale(.62)" fill="{ink}" stroke="{ink}">{ICONS[key]}</g>'
        + svg.text(left + 19, h / 2 + 4.2 + drop, text, 12, ink, extra='letter-spacing=".6"')
    )


def drawing(key, w, h, look):
    body = bar_button(key, w, h, look) if key in CAPTIONS and w > h else round_button(key, w, look)
    return svg.document(w, h, body, DEFS)


def make(ground, workshop, target, buttons):
    """Renders each button in three looks over `ground`, a picture of the window that it stands on.

    `buttons` maps a key and its icon's name to (file's base name, left, top, width, height) in pixels of `ground`.
    """
    for (_, key), (base, x, y, w, h) in buttons.items():
        for number, look in enumerate(LOOKS):
            glass = svg.render(drawing(key, w, h, look), workshop / f"{base}{number}.png")
            laid = workshop / f"{base}{number}_laid.png"
            svg.lay(ground, (x, y, w, h), glass, laid)
            svg.gif(laid, target / f"{base}{number}.gif", 128)


def main_buttons():
    return {(key, key): (f"btn/{key.lower()}", *box) for key, box in layout.BUTTONS.items()}
