"""The disc's documents in HTML: the guide and the journal; and its licence in Polish."""

import atlas

JOURNAL = [
    (
        "Dzień pierwszy",
        "meduza",
        "Wodowanie w deszczu. Orkiestra przemokła pierwsza. Zbiorniki pełne, śruby dokręcone dwa razy; Bolesław twierdzi, że trzy. "
        "O jedenastej znikło niebo, a pięć minut później także zieleń. Ida zapisała: dalej tylko błękit.",
    ),
    (
        "Dzień drugi",
        "toporniczek",
        "Dwieście metrów. Ostatnie światło z góry jest jak szpara pod drzwiami. Wokół iskry, które gasną, gdy się na nie patrzy wprost. "
        "Radio łapie jeszcze prognozę pogody. Pogoda nas nie dotyczy.",
    ),
    (
        "Dzień czwarty",
        "latimeria",
        "Czterysta metrów i ani słowa przez radio. Za szybą ktoś niebieski, spokojny, z płetwami jak dłonie. Patrzyliśmy na siebie kwadrans. "
        "Mrugnęła pierwsza, chociaż nie ma powiek.",
    ),
    (
        "Dzień piąty",
        "kaszalot",
        "Przez dwie godziny stukało w kadłub. Bolesław sprawdził wszystkie zawory. To kaszalot, pięćset metrów dalej, pytał, kim jesteśmy. "
        "Odpowiedzieliśmy kluczem francuskim.",
    ),
    (
        "Dzień siódmy",
        "lodzik",
        "Wracamy. Herbata wystygła, zeszyt się kończy. Balast został na dole, my mamy zdjęcia, a mapa, jak mówi Ida, też trochę urosła.",
    ),
]


def journal():
    days = "".join(
        f'<h2>{title}</h2>\n<img src="../Data/atlas/{picture}.gif" alt="">\n<p>{text}</p>\n'
        for title, picture, text in JOURNAL
    )
    return atlas.page_frame(
        "Dziennik pokładowy",
        f"<h1>Dziennik pokładowy</h1>\n<p><em>Batyskaf Latimeria, pisała Halina Wir</em></p>\n{days}",
    )


def guide():
    zones = ""
    for first, last, name, _ in atlas.ZONES:
        here = [e for e in atlas.ENTRIES if e.shallow < last and e.deep > first]
        links = (
            ", ".join(f'<a href="../Atlas/{e.slug}.html">{e.caption}</a>' for e in here) or "nikt, kogo byśmy spotkali"
        )
        zones += f"<h2>{name.capitalize()}, od {first} do {last} m</h2>\n<p>Na dole {last // 10 + 1} atmosfer. Mieszkają tu: {links}.</p>\n"
    plates = "".join(
        f'<h2>{e.caption}</h2>\n<img src="../Data/atlas/{e.slug}.gif" alt="{e.caption}">\n<p>{e.note}</p>\n'
        for e in atlas.ENTRIES[:7]
    )
    return atlas.page_frame(
        "Przewodnik po głębinach",
        "<h1>Przewodnik po głębinach</h1>\n<p><em>Pięć stref, jedna winda w dół.</em></p>\n" + zones + plates,
    )


LICENCE = """BATYSKAF NR 7: PŁYTA Z GŁĘBIN

Obrazy, teksty, muzyka, filmy, programy i dokumenty tej płyty wolno kopiować, zmieniać i rozpowszechniać,
także za pieniądze, na warunkach licencji MIT. Nie udziela się żadnej gwarancji; pod wodą tym bardziej.

Kroje pisma Batyskaf Burta i Batyskaf Szyld (Data\\burta.ttf, Data\\szyld.ttf) to przeróbki kroju Routed
Gothic, Copyright (c) 2017, Darren Embry, na licencji SIL Open Font License 1.1; jej tekst: Data\\OFL.txt.

Osoby, statki i wydawnictwa z tej płyty są zmyślone. Zwierzęta są prawdziwe.
"""
