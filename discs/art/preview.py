#!/usr/bin/env python3
"""Shows the disc as the shell composes it, to judge the art by: preview.py OUT.png VIEW [NODE [SCROLL]].

VIEW is list, detail, help, about, start or cinema; NODE a section of the tree. Everything comes from the disc's own
files, the text is set in the disc's own fonts.
"""

import base64
import configparser
import os
import pathlib
import shutil
import sys
import tempfile

import outline
import svg

DATA = pathlib.Path(__file__).resolve().parent.parent / "demo" / "Data"
SCREEN_W, SCREEN_H = 800, 600


def catalogue():
    both = configparser.RawConfigParser(strict=False, comment_prefixes=(";",), delimiters=("=",))
    both.read([DATA / "Param.ini", DATA / "Menu.ini"], encoding="cp1250")
    return both


INI = catalogue()


def value(section, key):
    return INI.get(section, key, fallback="")


def number(section, key):
    return int(value(section, key))


def colour(section, key):
    c = number(section, key)
    return f"rgb({c & 255},{c >> 8 & 255},{c >> 16 & 255})"


def size(name):
    raw = (DATA / name.replace("\\", "/")).read_bytes()
    return int.from_bytes(raw[6:8], "little"), int.from_bytes(raw[8:10], "little")


def picture(name, x, y, w=None, h=None):
    raw = (DATA / name.replace("\\", "/")).read_bytes()
    own = size(name)
    return (
        f'<image x="{x}" y="{y}" width="{w or own[0]}" height="{h or own[1]}" preserveAspectRatio="none" '
        f'xlink:href="data:image/gif;base64,{base64.b64encode(raw).decode()}"/>'
    )


def label(x, y, content, section, fill):
    pixels = number(section, "FontSize") * 96 / 72
    return svg.text(x, y + pixels * 1.07, content, pixels, fill, value(section, "FontName"))


def wrapped(x, y, width, content, pixels, fill, weight="normal"):
    lines, line = [], ""
    for word in content.split():
        if len(line) + len(word) > width / (pixels * 0.5):
            lines, line = lines + [line], ""
        line = f"{line} {word}".strip()
    return "".join(
        svg.text(x, y + (k + 1) * pixels * 1.15, text, pixels, fill, "Liberation Sans", extra=f'font-weight="{weight}"')
        for k, text in enumerate(lines + [line])
    )


def run(node, prefix):
    items = []
    while text := value(node, f"{prefix}{len(items) + 1}"):
        items.append(text)
    return items


def button(key, look=0):
    return picture(f'{value("GLOBAL", key + "B")}{look}.gif', number("GLOBAL", key + "X"), number("GLOBAL", key + "Y"))


def area(content):
    x, y = number("GLOBAL", "BackgroundPicX"), number("GLOBAL", "BackgroundPicY")
    w, h = size(value("GLOBAL", "BackgroundPic"))
    return f'<svg x="{x}" y="{y}" width="{w}" height="{h}">{picture(value("GLOBAL", "BackgroundPic"), 0, 0)}{content(w, h)}</svg>'


def slider(at):
    top = number("SLIDER", "YMin") + at * (number("SLIDER", "YMax") - number("SLIDER", "YMin"))
    return picture(
        value("SLIDER", "SliderBarB"), number("SLIDER", "SliderBarX"), number("SLIDER", "SliderBarY")
    ) + picture(value("SLIDER", "SliderB"), number("SLIDER", "PosX"), top)


def list_view(node, scroll):
    below = node != "MAINMENU"

    def content(w, h):
        x, top = number("MENUITEM", "LabelPosX"), number("MENUITEM", "LabelPosY")
        first = 2 * top + 32 if below else top
        items = run(node, "Menu")
        overflow = max(0, first + 27 * len(items) - 1 - h)
        limit = size(value("GLOBAL", "LinePic"))[1] if below else top - 1
        out = []
        for k, text in enumerate(items):
            y = first + 27 * k - scroll * overflow
            inside = y > limit and y + 26 <= h
            out.append(label(x, y, text, "MENUITEM", "#fff" if inside else "rgb(89,128,85)"))
            if k == 1:
                out.append(
                    f'<rect x="{x - 1.5}" y="{y - 1.5}" width="402" height="26" fill="none" '
                    f'stroke="{colour("MENUITEM", "LineColor")}"/>'
                )
        out.append(slider(scroll) if overflow else "")
        if below:
            out.append(
                picture(value("GLOBAL", "LinePic"), number("GLOBAL", "LinePicX"), number("GLOBAL", "LinePicY"))
                + label(
                    number("MENUITEM", "BackTxt2X"),
                    number("MENUITEM", "BackTxt2Y"),
                    node,
                    "MENUITEM",
                    colour("MENUITEM", "BackTxt2Color"),
                )
            )
        return "".join(out)

    return area(content)


def page_view(key, scroll):
    def content(w, h):
        rest = max(0, size(value("GLOBAL", key))[1] - h)
        return picture(value("GLOBAL", key), 35, -rest * scroll) + (slider(scroll) if rest else "")

    return area(content)


def detail_view(node, scroll):
    shots = run(node, "Shot")
    rest = max(0, 6 + 85 * len(shots) - 3 - 259 + 6) if len(shots) > 3 else 0
    stack = "".join(
        picture(name, 7, 6 + 85 * k - rest * scroll, 123, 82)
        + f'<rect x="7.5" y="{6.5 + 85 * k - rest * scroll}" width="122" height="81" fill="none" stroke="#000"/>'
        for k, name in enumerate(shots)
    )
    if rest:
        top = number("SHOTSLIDER", "YMin") + scroll * (number("SHOTSLIDER", "YMax") - number("SHOTSLIDER", "YMin"))
        stack += picture(
            value("SHOTSLIDER", "SSliderBarB"), number("SHOTSLIDER", "SSliderBarX"), number("SHOTSLIDER", "SSliderBarY")
        ) + picture(value("SHOTSLIDER", "SSuwakB"), number("SHOTSLIDER", "PosX"), top)
    keys = (
        ("Start",)
        if value(node, "Execute")
        else ("Start", "Pauza", "Stop")
        if value(node, "PlayAs").upper() == "MUSIC"
        else ("Pokaz",)
    )
    marker = (
        (
            f'<rect x="{(number("GLOBAL", "S2_Start") + number("GLOBAL", "S2_End")) / 2}" y="{number("GLOBAL", "S2_Top")}" width="3" '
            f'height="9" fill="#f00" stroke="#c00000"/>'
        )
        if len(keys) == 3
        else ""
    )
    return "".join(
        [
            label(
                number("MENUITEM", "BackTxt1X"),
                number("MENUITEM", "BackTxt1Y"),
                node,
                "MENUITEM",
                colour("MENUITEM", "BackTxt1Color"),
            ),
            '<rect x="113" y="184" width="269" height="177" fill="#fff"/>',
            wrapped(113, 184, 269, value(node, "Note"), 13, "#000"),
            '<rect x="113" y="394" width="268" height="49" fill="#e0e0e0"/><rect x="113" y="392" width="268" height="18" fill="#404040"/>',
            wrapped(119, 392, 268, "Minimalne wymagania sprzętowe:", 13, "#fff"),
            wrapped(117, 409, 261, value(node, "System"), 13, "#000080", "bold"),
            '<rect x="388" y="184" width="161" height="259" fill="#fff"/>',
            f'<svg x="388" y="184" width="161" height="259">{stack}</svg>',
            marker,
            *(button(k, 2 if k == "Stop" else 0) for k in keys),
        ]
    )


def window(content, left, top):
    g = "GLOBAL"
    strips = (
        picture(value(g, "LeftPic"), 0, top + 137, left, 80)
        + picture(value(g, "UpperPic"), left + 208, 0, 204, top)
        + "".join(
            picture(value(g, f"RightPic{k}"), left + 667, top + y, SCREEN_W - left - 667, 10)
            for k, y in ((1, 314), (2, 369), (3, 424))
        )
    )
    bar = "".join(button(k) for k in ("Ext", "Snd1", "Hlp", "Info", "Min"))
    return (
        f'{strips}<svg x="{left}" y="{top}" width="667" height="496"><clipPath id="cut">{outline.window_shapes()}</clipPath>'
        f'<g clip-path="url(#cut)">{picture(value(g, "MainGfx"), 0, 0)}'
        f'{label(number("HEADLINE", "Left"), number("HEADLINE", "Top"), value("HEADLINE", "Caption"), "HEADLINE", colour("HEADLINE", "Color"))}'
        f'{picture(value(g, "ProducerB"), number(g, "ProducerX"), number(g, "ProducerY"))}{content}{bar}</g></svg>'
    )


def main(target, view, node="MAINMENU", scroll="0"):
    scroll = float(scroll)
    if view == "start":
        content = (
            f'<rect width="{SCREEN_W}" height="{SCREEN_H}" fill="#3a6ea5"/>'
            + picture(value("GLOBAL", "StartPic"), 80, 61, 640, 450)
            + picture(value("GLOBAL", "UnderPic"), 80, 509, 640, 30)
        )
    elif view == "cinema":
        art = value("CINEMA", "CBackground")
        w, h = size(art)
        keys = "".join(
            picture(
                f'{value("CINEMA", key + "B")}{look}.gif', number("CINEMA", f"C{name}X"), number("CINEMA", f"C{name}Y")
            )
            for key, name, look in (
                ("CPlay", "Play", 2),
                ("CStop", "Stop", 0),
                ("CPause", "Pause", 0),
                ("CScale", "Scale", 1),
            )
        )
        film = (
            picture(node, number("CINEMA", "CMiddX") - 160, number("CINEMA", "CMiddY") - 120, 320, 240)
            if node != "MAINMENU"
            else ""
        )
        content = (
            f'<rect width="{SCREEN_W}" height="{SCREEN_H}" fill="#3a6ea5"/>'
            f'<svg x="{(SCREEN_W - w) // 2}" y="{(SCREEN_H - h) // 2}" width="{w}" height="{h}">{picture(art, 0, 0)}{keys}{film}</svg>'
        )
    else:
        inside = {
            "list": lambda: list_view(node, scroll),
            "detail": lambda: detail_view(node, scroll),
            "help": lambda: page_view("HelpB", scroll),
            "about": lambda: page_view("AboutB", scroll),
        }[view]()
        content = f'<rect width="{SCREEN_W}" height="{SCREEN_H}" fill="#3a6ea5"/>' + window(
            inside, (SCREEN_W - 667) // 2, (SCREEN_H - 496) // 2
        )
    with tempfile.TemporaryDirectory() as folder:
        fonts = pathlib.Path(folder) / "fonts"
        fonts.mkdir()
        for section in ("HEADLINE", "MENUITEM"):
            shutil.copy(DATA / value(section, "FontFile"), fonts)
        os.environ["XDG_DATA_HOME"] = folder
        svg.render(svg.document(SCREEN_W, SCREEN_H, content), pathlib.Path(folder) / "view.png", 1)
        shutil.copy(pathlib.Path(folder) / "view.png", target)


if __name__ == "__main__":
    main(*sys.argv[1:])
