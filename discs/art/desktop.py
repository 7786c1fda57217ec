"""Windows of a desktop of the disc's time, to show programs in: wallpaper, frames, keys, text."""

import parts
import svg

W, H = 640, 480
UI = "Liberation Sans, sans-serif"
MONO = "Liberation Mono, monospace"
FACE, LIGHT, SHADOW, DARK = "#c8c9be", "#f8f8f0", "#8c8d84", "#33342f"

DEFS = parts.DEFS + "".join(
    [
        svg.gradient("caption", [(0, "#0f4c58"), (1, "#4fa3a0")], x2=1, y2=0),
        svg.gradient("wall", [(0, "#3f8e93"), (1, "#123f4d")]),
    ]
)


def raised(x, y, w, h, face=FACE):
    return (
        f'<rect x="{x}" y="{y}" width="{w}" height="{h}" fill="{DARK}"/><rect x="{x}" y="{y}" width="{w - 1}" height="{h - 1}" fill="{LIGHT}"/>'
        f'<rect x="{x + 1}" y="{y + 1}" width="{w - 2}" height="{h - 2}" fill="{SHADOW}"/><rect x="{x + 1}" y="{y + 1}" width="{w - 3}" height="{h - 3}" fill="{face}"/>'
    )


def sunken(x, y, w, h, face="#fff"):
    return (
        f'<rect x="{x}" y="{y}" width="{w}" height="{h}" fill="{LIGHT}"/><rect x="{x}" y="{y}" width="{w - 1}" height="{h - 1}" fill="{SHADOW}"/>'
        f'<rect x="{x + 1}" y="{y + 1}" width="{w - 2}" height="{h - 2}" fill="{DARK}"/><rect x="{x + 2}" y="{y + 2}" width="{w - 3}" height="{h - 3}" fill="{face}"/>'
    )


def key(x, y, w, h, caption):
    return raised(x, y, w, h) + svg.text(x + w / 2, y + h / 2 + 4.5, caption, 13, "#000", UI, "middle")


def window(x, y, w, h, title, body, menu=()):
    """A framed window; `body` is drawn as it stands, in the screen's pixels."""
    boxes = "".join(raised(x + w - 62 + k * 18 + (2 if k == 2 else 0), y + 6, 16, 14) for k in range(3))
    signs = (
        f'<path d="M{x + w - 58},{y + 16} h6" stroke="#000" stroke-width="2"/><rect x="{x + w - 40}" y="{y + 9}" width="8" height="7" fill="none" stroke="#000"/>'
        f'<path d="M{x + w - 20},{y + 9} l7,7 m0,-7 l-7,7" stroke="#000" stroke-width="1.6"/>'
    )
    bar = "".join(svg.text(x + 12 + k * 68, y + 38, item, 13, "#000", UI) for k, item in enumerate(menu))
    return (
        f'<rect x="{x + 5}" y="{y + 6}" width="{w}" height="{h}" fill="#000" opacity=".35" filter="url(#blur3)"/>'
        + raised(x, y, w, h)
        + f'<rect x="{x + 3}" y="{y + 3}" width="{w - 6}" height="20" fill="url(#caption)"/>'
        + parts.coelacanth(x + 7, y + 8, 0.09, "#ffe2a4")
        + svg.text(x + 32, y + 18, title, 13, "#fff", UI, extra='font-weight="bold"')
        + boxes
        + signs
        + bar
        + body
    )


def lines(x, y, rows, size=14, step=19, fill="#000", font=UI, extra=""):
    return "".join(
        svg.text(x, y + k * step, row, size, fill, font, extra=extra + ' xml:space="preserve"')
        for k, row in enumerate(rows)
    )


def screen(windows, task="Batyskaf nr 7"):
    icons = ""
    for k, name in enumerate(("Mój pokład", "Kartoteka", "Balast")):
        y = 20 + k * 76
        icons += (
            f'<g transform="translate(34,{y})">'
            + (
                f'<rect width="34" height="26" rx="2" fill="#e9e2cd" stroke="#000"/><rect x="4" y="4" width="26" height="15" fill="#14626e"/>',
                f'<path d="M0,4 h12 l4,5 h20 v20 h-36 Z" fill="#e4bb6c" stroke="#000"/>',
                '<path d="M4,6 h28 l-4,24 h-20 Z" fill="#8fa3a5" stroke="#000"/><path d="M0,6 h36" stroke="#000" stroke-width="3"/>',
            )[k]
            + "</g>"
            + svg.text(51, y + 46, name, 12, "#fff", UI, "middle")
        )
    start = (
        raised(3, H - 25, 78, 22)
        + parts.coelacanth(8, H - 19, 0.1, "#14626e")
        + svg.text(36, H - 9, "Start", 13, "#000", UI, extra='font-weight="bold"')
    )
    bar = (
        raised(0, H - 28, W, 28)
        + start
        + sunken(W - 62, H - 25, 58, 22, FACE)
        + svg.text(W - 33, H - 9, "23:47", 13, "#000", UI, "middle")
        + sunken(88, H - 25, 160, 22, "#dcddd2")
        + svg.text(96, H - 9, task, 13, "#000", UI)
    )
    emblem = f'<g opacity=".22">{parts.coelacanth(230, 150, 1.5, "#0a2f3a")}</g>'
    return svg.document(W, H, f'<rect width="{W}" height="{H}" fill="url(#wall)"/>{emblem}{icons}{windows}{bar}', DEFS)
