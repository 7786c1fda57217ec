"""The pictures of the entries: programs on a desktop, sheets of music, frames of the films."""

import math
import random

import atlas
import creatures
import desktop
import dwellers
import exe
import films
import parts
import scenes
import svg
from desktop import MONO, UI, key, lines, raised, sunken, window

W, H = 640, 480


def _message(x, y, w, h, title, rows, keys):
    icon = f'<circle cx="{x + 36}" cy="{y + 56}" r="17" fill="#fff" stroke="#14626e" stroke-width="2"/>' + svg.text(
        x + 36, y + 65, "i", 26, "#14626e", "P052, serif", "middle", 'font-weight="bold"'
    )
    step = 96
    left = x + w / 2 - (len(keys) * step - 12) / 2
    return window(
        x,
        y,
        w,
        h,
        title,
        icon
        + lines(x + 72, y + 50, rows, 13, 18)
        + "".join(key(left + k * step, y + h - 38, 84, 25, name) for k, name in enumerate(keys)),
    )


def _table(x, y, text):
    """A page of Batymetr: rows of columns parted by tabs."""
    rows = [[cell for cell in row.split("\t") if cell] for row in text.split("\r\n")]
    return "".join(
        svg.text(x + 108 * k, y + 19 * n, cell, 13, "#000", UI)
        for n, row in enumerate(rows)
        for k, cell in enumerate(row)
    )


def batymetr(page):
    x, y = 90, 110 + 14 * page
    icon = f'<circle cx="{x + 34}" cy="{y + 58}" r="17" fill="#fff" stroke="#14626e" stroke-width="2"/>' + svg.text(
        x + 34, y + 67, "i", 26, "#14626e", "P052, serif", "middle", 'font-weight="bold"'
    )
    body = icon + _table(x + 70, y + 52, exe.PAGES[page]) + key(x + 205, y + 216, 84, 26, "OK")
    return desktop.screen(window(x, y, 500, 256, exe.TITLE, body), exe.TITLE)


def _plan(place, metres):
    """What tabela.sh prints for a place and a depth."""
    rows, step, m = (
        [
            "PLAN ZANURZENIA",
            "",
            f"Miejsce:    {place}",
            f"Dno:        {metres} m",
            "Opadanie:   30 m na minutę",
            "",
            "  metry   minuta   atmosfery   za szybą",
        ],
        (metres + 9) // 10,
        0,
    )
    while True:
        view = next(
            v
            for limit, v in (
                (40, "błękit i ławice"),
                (200, "zieleń, coraz ciemniej"),
                (1000, "granat, pierwsze światełka"),
                (4000, "czerń i iskry"),
                (99999, "cisza"),
            )
            if m <= limit
        )
        rows.append(f"{m:7d}  {m // 30:7d}  {m // 10 + 1:10d}   {view}")
        if m >= metres:
            return rows + ["", "Balast zrzucić na dnie. Herbatę wypić wcześniej."]
        m = min(m + step, metres)


def table(terminal):
    if terminal:
        rows = ['$ ./tabela.sh "Zatoka Ciszy" 180', *_plan("Zatoka Ciszy", 180), "", "[Enter zamyka okno] _"]
        body = sunken(58, 74, 524, 352, "#06181c") + lines(70, 94, rows[:22], 12, 15, "#8ff0c8", MONO)
        return desktop.screen(window(52, 44, 536, 388, "Terminal", body), "Terminal")
    body = (
        sunken(70, 66, 500, 318)
        + lines(82, 88, _plan("Rów Latimerii", 4200), 12, 15, "#111", MONO)
        + key(480, 392, 84, 26, "Zamknij")
    )
    return desktop.screen(window(62, 36, 516, 392, "Tabela zanurzeń", body), "Tabela zanurzeń")


def guess(moment):
    question = ["Od 10 do 1000 metrów, co dziesięć.", "Ile metrów pod stępką?"]
    hints = [question, ["Próba 3: 640 m to za głęboko.", "Ile metrów?"], ["Stuk! Dno na 570 m, prób: 4."]][moment]
    rings = "".join(
        f'<circle cx="320" cy="420" r="{r}" fill="none" stroke="#6ff0cf" stroke-width="1.5" opacity="{.5 - r / 800:.2f}"/>'
        for r in range(30, 380, 34)
    )
    x, y, w, h = 150, 150, 340, 150
    entry = (
        ""
        if moment == 2
        else sunken(x + 70, y + 78, 246, 24) + svg.text(x + 78, y + 95, ("", "560", "")[moment] + "|", 14, "#000", UI)
    )
    return desktop.screen(
        rings + _message(x, y, w, h, "Zgadnij głębokość", hints, ["OK"] if moment == 2 else ["OK", "Anuluj"]) + entry,
        "Zgadnij głębokość",
    )


def _browser(title, address, content):
    tools = "".join(
        raised(26 + k * 50, 56, 46, 26) + svg.text(49 + k * 50, 73, name, 12, "#000", UI, "middle")
        for k, name in enumerate(("Wstecz", "Dalej", "Stop", "Dom"))
    )
    body = (
        tools
        + svg.text(236, 73, "Adres:", 12, "#000", UI)
        + sunken(276, 57, 338, 24)
        + svg.text(284, 73, address, 12, "#000", UI)
    )
    return desktop.screen(
        window(
            14,
            8,
            612,
            436,
            title,
            body
            + sunken(20, 88, 600, 330, "#04141a")
            + content
            + sunken(20, 421, 600, 18, desktop.FACE)
            + svg.text(28, 434, "Gotowe", 11, "#000", UI),
            ("Plik", "Edycja", "Widok", "Pomoc"),
        ),
        title,
    )


def _clip(content):
    return f'<clipPath id="view"><rect x="22" y="90" width="596" height="326"/></clipPath><g clip-path="url(#view)">{content}</g>'


def guide():
    bands = "".join(
        f'<rect x="60" y="{176 + 44 * k}" width="380" height="44" fill="{c}"/>'
        + svg.text(74, 203 + 44 * k, f"{name}, od {a} m", 15, "#eafff4", svg.BOOK)
        for k, (a, _, name, c) in enumerate(atlas.ZONES)
    )
    fish = "".join(
        f'<g transform="translate({x},{y}) scale(.2)">{d()}</g>'
        for d, x, y in (
            (creatures.sperm_whale, 380, 198),
            (creatures.hatchet, 330, 240),
            (creatures.squid, 390, 246),
            (creatures.angler, 370, 286),
            (creatures.dumbo, 350, 330),
        )
    )
    content = (
        svg.text(60, 130, "Przewodnik po głębinach", 30, "#ffe2a4", svg.BOOK, extra='font-weight="bold"')
        + svg.text(60, 158, "Pięć stref, jedna winda w dół. Kliknij strefę, aby wysiąść.", 15, "#d8efe8", svg.BOOK)
        + bands
        + f'<rect x="60" y="176" width="380" height="220" fill="none" stroke="#b58a46" stroke-width="2"/>{fish}'
        + lines(
            466,
            196,
            [
                "Spis plansz",
                "",
                "1. Latimeria",
                "2. Żabnica",
                "3. Meduza",
                "4. Ośmiornica",
                "5. Kałamarnica",
                "6. Połykacz",
            ],
            15,
            24,
            "#ffb84d",
            svg.BOOK,
        )
    )
    return _with(creatures.DEFS, _browser("Przewodnik po głębinach", "file:///przewodnik.html", _clip(content)))


def _with(defs, document):
    return document.replace("<defs>", "<defs>" + defs, 1)


def journal(day):
    days = [
        (
            "Dzień pierwszy",
            "Wodowanie w deszczu. Orkiestra przemokła pierwsza.",
            ["Zbiorniki pełne, śruby dokręcone dwa razy. Bolesław", "twierdzi, że trzy. O jedenastej znikło niebo."],
            creatures.jellyfish,
        ),
        (
            "Dzień czwarty",
            "Czterysta metrów i ani słowa przez radio.",
            [
                "Za szybą ktoś niebieski, spokojny, z płetwami jak",
                "dłonie. Patrzyliśmy na siebie kwadrans. Mrugnęła",
                "pierwsza, chociaż nie ma powiek.",
            ],
            creatures.coelacanth,
        ),
        (
            "Dzień siódmy",
            "Wracamy. Herbata wystygła, zeszyt się kończy.",
            ["Balast został na dole, my mamy zdjęcia. Ida mówi,", "że mapa też trochę urosła."],
            dwellers.nautilus,
        ),
    ]
    title, first, rest, drawing = days[day]
    ruled = "".join(
        f'<path d="M52,{164 + k * 22} H588" stroke="#7fa8b8" stroke-width=".8" opacity=".7"/>' for k in range(12)
    )
    content = (
        f'<rect x="40" y="98" width="560" height="330" fill="#f3ead0"/>{ruled}<path d="M86,98 V420" stroke="#c9694a" opacity=".7"/>'
        + svg.text(100, 138, title, 27, "#1f3b57", svg.BOOK, extra='font-weight="bold" font-style="italic"')
        + lines(100, 160, [first, *rest], 17, 22, "#1f3b57", svg.BOOK, 'font-style="italic"')
        + f'<g transform="translate(430,{330 if day else 322}) scale(.62)" opacity=".92">{drawing()}</g>'
    )
    return _with(creatures.DEFS, _browser("Dziennik pokładowy", "file:///dziennik.html", _clip(content)))


def glossary(source):
    rows = source.splitlines()[:24]
    body = sunken(44, 62, 552, 366) + lines(54, 82, [row[:80] for row in rows][:19], 11, 18, "#111", MONO)
    return desktop.screen(
        window(38, 16, 564, 418, "slowniczek.txt, Notatnik nurka", body, ("Plik", "Edycja", "Szukaj")), "slowniczek.txt"
    )


def score(voices, title, author):
    """A sheet of music: the first bars of the piece as the synthesiser plays it."""
    out = [
        f'<rect width="{W}" height="{H}" fill="#f5eed9"/><rect x="14" y="14" width="{W - 28}" height="{H - 28}" fill="none" stroke="#8a7a52"/>',
        svg.text(W / 2, 62, title, 29, "#2b2a22", svg.BOOK, "middle", 'font-style="italic" font-weight="bold"'),
        svg.text(W - 48, 92, author, 15, "#2b2a22", svg.BOOK, "end"),
        svg.text(48, 92, "Powoli, jak pod wodą", 15, "#2b2a22", svg.BOOK, extra='font-style="italic"'),
    ]
    for system in range(3):
        top = 126 + system * 112
        out += [f'<path d="M44,{top + k * 9} H588.6" stroke="#2b2a22" stroke-width="1"/>' for k in range(5)]
        out.append(_clef(56, top))
        if system == 0:
            out += [svg.text(90, top + y, n, 23, "#2b2a22", svg.BOOK, "middle", 'font-weight="bold"') for n, y in (("3", 17), ("4", 35))]
        bars = voices[system * 4 : system * 4 + 4]
        for b, notes in enumerate(bars):
            left = 104 + b * 122
            out.append(f'<path d="M{left + 118},{top} v36" stroke="#2b2a22" stroke-width="1.2"/>')
            for beat, pitch, beats in notes:
                step = _staff_step(pitch)
                x, y = left + 12 + beat * 36, top + 36 - (step - 2) * 4.5
                out += [f'<path d="M{x - 9},{ly} h18" stroke="#2b2a22"/>' for ly in _ledger(y, top)]
                hollow = beats >= 2
                out.append(
                    f'<ellipse cx="{x}" cy="{y}" rx="5.8" ry="4.2" transform="rotate(-20 {x} {y})" fill="{"none" if hollow else "#2b2a22"}" stroke="#2b2a22" stroke-width="1.6"/>'
                )
                up = y > top + 18
                out.append(
                    f'<path d="M{x + (5.2 if up else -5.2)},{y} v{-30 if up else 30}" stroke="#2b2a22" stroke-width="1.3"/>'
                )
                if beats == 3:
                    out.append(f'<circle cx="{x + 10}" cy="{y - 2}" r="1.8" fill="#2b2a22"/>')
    out.append(parts.coelacanth(W / 2 - 34, 446, 0.26, "#8a7a52"))
    return svg.document(W, H, "".join(out), parts.DEFS)


def _clef(x, top):
    return (
        f'<path d="M{x + 8},{top + 45} c-8,2 -9,-8 -2,-8 m2,8 c8,-2 4,-14 2,-30 c-2,-18 -4,-26 4,-30 c8,6 4,16 -6,26 c-12,10 -12,24 2,25 c12,0 12,-16 0,-16 c-8,1 -7,10 -1,11" '
        f'fill="none" stroke="#2b2a22" stroke-width="2.3" stroke-linecap="round"/>'
    )


def _staff_step(pitch):
    """Steps above the middle C's line on the staff."""
    octave, tone = divmod(pitch - 60, 12)
    return octave * 7 + (0, 0, 1, 1, 2, 3, 3, 4, 4, 5, 5, 6)[tone]


def _ledger(y, top):
    return [top + 36 + 9 * k for k in range(1, 4) if y >= top + 36 + 9 * k - 1] + [
        top - 9 * k for k in range(1, 4) if y <= top - 9 * k + 1
    ]


def trio():
    """The trio at its concert."""
    spot = "".join(
        f'<path d="M{x},-10 L{x - 90},420 H{x + 90} Z" fill="url(#ray)" opacity=".5"/>' for x in (130, 320, 510)
    )
    music = "".join(
        svg.text(x, y, sign, size, "#ffe2a4", "DejaVu Sans", extra=f'opacity="{o}"')
        for x, y, sign, size, o in (
            (210, 120, "♪", 40, 0.9),
            (262, 84, "♫", 30, 0.7),
            (400, 110, "♪", 34, 0.8),
            (452, 70, "♫", 26, 0.6),
            (96, 90, "♪", 24, 0.6),
            (566, 130, "♫", 34, 0.8),
        )
    )
    cello = (
        '<path d="M0,-120 V60" stroke="#2b1408" stroke-width="7"/><path d="M-30,-40 C-46,-10 -20,-2 -24,18 C-52,40 -50,96 0,100 C50,96 52,40 24,18 C20,-2 46,-10 30,-40 C20,-58 -20,-58 -30,-40 Z" '
        'fill="#a8552f" filter="url(#bevel3)"/><path d="M0,-60 V92" stroke="#1a0b04" stroke-width="2"/><path d="M0,100 v26" stroke="#888" stroke-width="3"/>'
    )
    bells = "".join(
        f'<path d="M{k * 34},0 c-12,4 -10,30 -16,38 h32 c-6,-8 -4,-34 -16,-38 Z" fill="{svg.BRASS}" filter="url(#bevel2)"/><circle cx="{k * 34}" cy="42" r="4" fill="#6b4a1c"/>'
        for k in range(4)
    )
    box = (
        '<rect x="-46" y="0" width="92" height="46" rx="4" fill="#8c3523" filter="url(#bevel2)"/><path d="M-46,0 L-34,-40 H58 L46,0 Z" fill="#a8552f" filter="url(#bevel1)"/>'
        '<rect x="-30" y="10" width="60" height="14" rx="7" fill="#e4bb6c" filter="url(#bevel1)"/><path d="M46,24 h18 v-14" stroke="#e4bb6c" stroke-width="5" fill="none"/>'
    )
    body = f"""<rect width="{W}" height="{H}" fill="url(#deepSea)"/>{spot}
<path d="M0,392 Q320,372 640,392 V480 H0 Z" fill="#3a1d10"/><path d="M0,392 Q320,372 640,392" fill="none" stroke="#c9a25a" stroke-width="5"/>
<g transform="translate(128,262) scale(.62)">{creatures.dumbo()}</g><g transform="translate(128,352)">{box}</g>
<g transform="translate(322,300) scale(.62)">{dwellers.yeti_crab()}</g><g transform="translate(352,286) rotate(10) scale(.86)">{cello}</g>
<g transform="translate(512,246) scale(.6)">{dwellers.nautilus()}</g><path d="M436,330 H584" stroke="#c9a25a" stroke-width="5"/><g transform="translate(458,332)">{bells}</g>
{music}{scenes.snow(W, 380, 60, 5)}
{svg.text(W / 2, 452, "TRIO POD LUSTREM WODY", 24, "#ffe2a4", svg.PLATE, "middle", 'letter-spacing="2"')}"""
    return svg.document(W, H, body, scenes.DEFS + creatures.DEFS)


def spectrogram(title):
    """The echo as the instruments see it."""
    dice = random.Random(6)
    out = []
    for k in range(96):
        x = 60 + k * 5.6
        for j in range(34):
            level = 0.5 * math.exp(-(((j - 5 - 2 * math.sin(k * 0.11)) / 2.4) ** 2)) + 0.9 * math.exp(
                -(((j - 17 - 7 * math.sin(k * 0.07)) / 1.6) ** 2)
            ) * (k % 24 < 16)
            level += 0.8 * math.exp(-(((j - 26) / 1.2) ** 2)) * math.exp(-(k % 32) / 7) + dice.random() * 0.1
            if level > 0.12:
                colour = (
                    "#123f4d"
                    if level < 0.25
                    else "#1c7a7a"
                    if level < 0.4
                    else "#63d8b0"
                    if level < 0.65
                    else "#ffe2a4"
                )
                out.append(f'<rect x="{x:.1f}" y="{384 - j * 8.4:.1f}" width="5" height="7.6" fill="{colour}"/>')
    grid = "".join(
        f'<path d="M60,{390 - k * 57} H600" stroke="#4fd0b0" opacity=".25"/>'
        + svg.text(52, 394 - k * 57, str(k * 80), 12, "#8fd8c8", anchor="end")
        for k in range(6)
    )
    ticks = "".join(svg.text(60 + k * 134, 412, f"{k * 15} s", 12, "#8fd8c8", anchor="middle") for k in range(5))
    body = f"""<rect width="{W}" height="{H}" fill="#04141a"/>{parts.frame(14, 14, W - 28, H - 28, 8, 4)}{parts.recess(14, 14, W - 28, H - 28, 4, "#06222a")}
{svg.text(60, 62, title, 26, "#ffe2a4", svg.PLATE)}{svg.text(600, 62, "hydrofon nr 2", 15, "#8fd8c8", anchor="end")}
<rect x="60" y="92" width="540" height="298" fill="#020b0e"/>{grid}{"".join(out)}<rect x="60" y="92" width="540" height="298" fill="none" stroke="#b58a46" stroke-width="2"/>{ticks}
{svg.text(60, 442, "głos walenia, puls sonaru i dno, które odpowiada", 15, "#bfe6dc", svg.BOOK, extra='font-style="italic"')}"""
    return svg.document(W, H, body, parts.DEFS)


def frame(film, moment):
    """A frame of a film at twice its size."""
    return film(moment).replace(f'width="{films.W}" height="{films.H}" viewBox', f'width="{W}" height="{H}" viewBox', 1)
