"""The help page and the about page: cards from the ship's papers, laid on the sonar's glass."""

import area
import buttons
import layout
import parts
import scenes
import svg

HELP_HEIGHT, ABOUT_HEIGHT = 640, layout.AREA[3]
W = layout.PAGE_WIDTH
INK, FAINT, RED = "#2b2a22", "#6c6148", "#8c2c1a"


def _paper(height, seed):
    return (
        f'<rect width="{W}" height="{height}" fill="#041318"/>'
        f'<rect x="4" y="5" width="{W - 6}" height="{height - 8}" fill="#000" opacity=".7" filter="url(#blur2)"/>'
        f'<rect x="3" y="3" width="{W - 7}" height="{height - 7}" rx="2" fill="url(#paper)"/>'
        f'<g clip-path="url(#sheet)"><rect width="{W}" height="{height}" filter="url(#fibre)" opacity=".5"/></g>'
        f'<rect x="9.5" y="9.5" width="{W - 20}" height="{height - 20}" fill="none" stroke="#8a7a52" stroke-width="1"/>'
        f'<rect x="12.5" y="12.5" width="{W - 26}" height="{height - 26}" fill="none" stroke="#8a7a52" stroke-width=".5"/>'
        + "".join(parts.screw(x, y, 3, x + y + seed) for x in (17, W - 18) for y in (17, height - 18))
    )


def _defs(height):
    return (
        scenes.DEFS
        + buttons.DEFS
        + area.STRIP_DEFS
        + area.KNOB_DEFS
        + "".join(
            [
                f'<clipPath id="sheet"><rect x="3" y="3" width="{W - 7}" height="{height - 7}"/></clipPath>',
                svg.radial("paper", [(0, "#f8f1db"), (0.7, "#efe5c8"), (1, "#d3c294")], 0.45, 0.4, 0.8),
                '<filter id="fibre" x="0" y="0" width="100%" height="100%"><feTurbulence type="fractalNoise" baseFrequency=".035 .3" '
                'numOctaves="2" seed="3"/><feColorMatrix values="0 0 0 0 .45  0 0 0 0 .36  0 0 0 0 .2  0 0 0 .55 -.12"/></filter>',
            ]
        )
    )


def _lines(x, y, lines, size=13, step=17, fill=INK, font=svg.BOOK):
    return "".join(svg.text(x, y + k * step, line, size, fill, font) for k, line in enumerate(lines))


def _heading(y, content):
    return (
        svg.text(28, y, content, 13.5, RED, svg.LEGEND, extra='letter-spacing="1.2"')
        + f'<path d="M28,{y + 5} H{W - 29}" stroke="{RED}" stroke-width=".8" opacity=".6"/>'
    )


def _title(y, content):
    return svg.text(W / 2, y, content, 24, INK, svg.DISPLAY, "middle", 'font-weight="600" letter-spacing="2"')


def _small_button(key, x, y, size):
    return f'<g transform="translate({x},{y})">{buttons.round_button(key, size, "normal")}</g>'


def _bar_button(key, x, y):
    _, _, w, h = layout.BUTTONS[key]
    return f'<g transform="translate({x},{y})">{buttons.bar_button(key, w, h, "normal")}</g>'


def help_page():
    h = HELP_HEIGHT
    strip = f'<g transform="translate(28,150) scale(.99)"><svg width="112" height="33">{area.line_strip()}</svg></g>'
    knob = f'<g transform="translate(37,230)">{area.knob_drawing()}</g>'
    rows = [
        ("Snd1", "wycisza i przywraca muzykę w tle"),
        ("Hlp", "otwiera i zamyka tę instrukcję"),
        ("Info", "opowiada o płycie i jej załodze"),
        ("Min", "chowa batyskaf na pasku zadań"),
        ("Ext", "kończy rejs; na pożegnanie ktoś się odezwie"),
    ]
    bar = "".join(
        _small_button(key, 30, 403 + k * 31, 28) + _lines(70, 421 + k * 31, [words])
        for k, (key, words) in enumerate(rows)
    )
    body = "".join(
        [
            _paper(h, 0),
            _title(46, "INSTRUKCJA POKŁADOWA"),
            svg.text(
                W / 2, 64, "dla pasażerów rejsu numer siedem", 12.5, FAINT, svg.BOOK, "middle", 'font-style="italic"'
            ),
            _heading(92, "MENU"),
            _lines(
                28,
                114,
                [
                    "Wskaż myszą pozycję i kliknij. Celownik namierzy ją,",
                    "a napis rozbłyśnie na żółto. Reszta dzieje się sama.",
                ],
            ),
            strip,
            _lines(152, 164, ["w lewo: o jeden poziom wstecz,", "w górę: prosto do menu głównego"]),
            _heading(212, "SUWAK"),
            knob,
            _lines(
                78, 248, ["Gdy lista nie mieści się na ekranie, po prawej", "pojawia się suwak. Chwyć go i ciągnij."]
            ),
            _heading(305, "KARTA POZYCJI"),
            _lines(28, 327, ["Obok opisu leżą zdjęcia; kliknij, aby powiększyć."]),
            _bar_button("Start", 28, 338),
            _bar_button("Pauza", 122, 338),
            _bar_button("Stop", 203, 338),
            _bar_button("Pokaz", 280, 338),
            _heading(390, "PRZYRZĄDY"),
            bar,
            f'<path d="M28,570 H{W - 29}" stroke="{FAINT}" stroke-width=".6" stroke-dasharray="3 3"/>',
            parts.coelacanth(34, 580, 0.22, FAINT),
            _lines(96, 594, ["Kliknij kartę, aby ją odłożyć."], 13.5),
            _lines(96, 610, ["Miłego zanurzenia!"], 12.5, fill=FAINT),
        ]
    )
    return svg.document(W, h, body, _defs(h))


def about_page():
    h = ABOUT_HEIGHT
    crew = [
        ("Kapitan i pomysł", "Halina Wir"),
        ("Mechanika pokładu", "Bolesław Śruba"),
        ("Mapy i atlas", "Ida Toń"),
        ("Muzyka", "Trio Pod Lustrem Wody"),
        ("Kamera i światło", "Żegota Mżawka"),
    ]
    list_ = "".join(
        svg.text(176, 124 + k * 18, role, 12.5, FAINT, svg.BOOK, "end", 'font-style="italic"')
        + svg.text(188, 124 + k * 18, name, 13, INK, svg.BOOK)
        for k, (role, name) in enumerate(crew)
    )
    body = "".join(
        [
            _paper(h, 5),
            _title(48, "BATYSKAF"),
            svg.text(W / 2, 67, "płyta z głębin, numer 7", 13, FAINT, svg.BOOK, "middle", 'font-style="italic"'),
            f'<g opacity=".9">{parts.coelacanth(40, 26, .26, RED)}{parts.coelacanth(W - 40 - 58, 26, .26, RED, flip=True)}</g>',
            _heading(96, "ZAŁOGA"),
            list_,
            f'<path d="M28,206 H{W - 29}" stroke="{RED}" stroke-width=".8" opacity=".6"/>',
            _lines(
                28,
                224,
                [
                    "Programy, muzykę, filmy i obrazki zrobiliśmy na pokładzie.",
                    "Wolno je kopiować i zmieniać; warunki są w pliku Licencja.txt.",
                    "Latimerie, kraby i meduzy wystąpiły bez wynagrodzenia.",
                ],
                12,
                16,
            ),
            svg.text(
                W / 2, 284, "Spółdzielnia Wydawnicza LATIMERIA", 12, RED, svg.LEGEND, "middle", 'letter-spacing="1"'
            ),
        ]
    )
    return svg.document(W, h, body, _defs(h))


def producer_mark():
    """The producer's plate on the console."""
    w, h = layout.PRODUCER[2:]
    body = (
        parts.plate(1, 1, w - 3, h - 3, 3)
        + parts.engraved(w / 2 + 16, 15.5, "LATIMERIA", 10.5, spacing=0.2)
        + parts.coelacanth(14, 6.5, 0.12, "#3a260c")
    )
    return svg.document(w, h, body, parts.DEFS)
