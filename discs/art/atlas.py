"""The atlas of the deep: who is in it, their plates, their cards with the range of depth, and their pages."""

import html
from dataclasses import dataclass

import creatures
import dwellers
import parts
import scenes
import svg

W, H = 640, 480
ZONES = [
    (0, 200, "strefa słoneczna", "#3aa7ad"),
    (200, 1000, "strefa mroku", "#14626e"),
    (1000, 4000, "strefa północy", "#093844"),
    (4000, 6000, "strefa otchłani", "#04202a"),
    (6000, 8000, "rowy oceaniczne", "#020d13"),
]


@dataclass
class Entry:
    """One inhabitant: caption, Latin name, file name, picture, range of depth in metres, size, description, a curiosity."""

    caption: str
    latin: str
    slug: str
    drawing: object
    shallow: int
    deep: int
    size: str
    note: str
    more: str
    scale: float = 1.28  # of its portrait


ENTRIES = [
    Entry(
        "Latimeria",
        "Latimeria chalumnae",
        "latimeria",
        creatures.coelacanth,
        150,
        700,
        "do 2 m",
        "Ryba, która zapomniała wymrzeć. Znana z wapiennych odcisków, w 1938 roku trafiła żywa w rybacką sieć. Dni przesypia "
        "w podmorskich jaskiniach, nocą dryfuje głową w dół i słucha prądu.",
        "Porusza płetwami na krzyż, jak koń idący stępa, a dorosłość osiąga po pięćdziesiątce i dożywa stu lat.",
    ),
    Entry(
        "Żabnica głębinowa",
        "Melanocetus johnsonii",
        "zabnica",
        creatures.angler,
        1000,
        4000,
        "samica do 18 cm",
        "Wędkarka z własną latarnią. Na końcu wędki mieszkają świecące bakterie, a zęby uchylają się tylko do środka. "
        "Łyka zdobycz większą od siebie, bo na następną może czekać miesiąc.",
        "Samiec jest dziesięć razy mniejszy i nie umie polować; całe życie szuka jednego światełka.",
    ),
    Entry(
        "Meduza koronowa",
        "Atolla wyvillei",
        "meduza",
        creatures.jellyfish,
        500,
        4500,
        "do 15 cm średnicy",
        "Alarm przeciwwłamaniowy głębin. Zaczepiona, wiruje błękitnymi światłami jak radiowóz i ściąga kogoś większego, "
        "kto zje napastnika. Jedna z macek jest dłuższa od pozostałych.",
        "Biolodzy zbudowali sztuczną meduzę z diod i pierwsi nagrali dzięki niej kałamarnicę olbrzymią.",
    ),
    Entry(
        "Ośmiornica uszata",
        "Grimpoteuthis sp.",
        "osmiornica",
        creatures.dumbo,
        1000,
        7000,
        "20 do 30 cm",
        "Mieszka najgłębiej ze wszystkich ośmiornic i steruje płetwami, które wyglądają jak uszy. Nie ma woreczka z atramentem, "
        "bo w ciemności i tak nie byłoby kogo oślepiać.",
        "Połyka ofiary w całości, a potem długo siedzi na dnie z miną kogoś, kto właśnie coś zrozumiał.",
    ),
    Entry(
        "Kałamarnica olbrzymia",
        "Architeuthis dux",
        "kalamarnica",
        creatures.squid,
        300,
        1000,
        "do 12 m z ramionami",
        "Przez trzysta lat krążyła po mapach jako kraken, aż w 2004 roku dała się sfotografować. Oko ma wielkości talerza, "
        "by w porę dostrzec kaszalota. Nie zawsze dostrzega.",
        "Ślady jej przyssawek znajduje się na skórze wielorybów, rzadziej odwrotnie.",
    ),
    Entry(
        "Połykacz",
        "Eurypharynx pelecanoides",
        "polykacz",
        creatures.gulper,
        500,
        3000,
        "do 75 cm",
        "Węgorz złożony z paszczy i ogona. Rozkłada żuchwę jak parasol, nabiera wody razem z obiadem i przecedza ją przez skrzela. "
        "Na końcu ogona świeci różowa lampka.",
        "Nie ma żeber ani łusek; jego szkielet waży mniej niż ta płyta.",
    ),
    Entry(
        "Toporniczek srebrzysty",
        "Argyropelecus aculeatus",
        "toporniczek",
        creatures.hatchet,
        100,
        600,
        "do 8 cm",
        "Cieńszy niż legitymacja, z boków jak lustro, od spodu oświetlony rzędem lamp. Dobiera ich jasność do nieba nad sobą, "
        "więc dla kogoś, kto patrzy z dołu, po prostu go nie ma.",
        "Oczy ma skierowane stale w górę, jak wędkarz, który już wie, co to jest haczyk.",
    ),
    Entry(
        "Łodzik piękny",
        "Nautilus pompilius",
        "lodzik",
        dwellers.nautilus,
        100,
        700,
        "do 25 cm",
        "Batyskaf natury. Pływa w muszli podzielonej na komory, które napełnia gazem albo wodą, zupełnie jak my zbiorniki balastowe. "
        "Od czasów dinozaurów nie zmienił projektu.",
        "Ma około dziewięćdziesięciu czułków i oko bez soczewki, zbudowane jak kamera otworkowa.",
    ),
    Entry(
        "Rurkoczułkowiec",
        "Riftia pachyptila",
        "riftia",
        dwellers.tubeworms,
        1500,
        2600,
        "do 2 m",
        "Las przy gorącym kominie. Nie ma ust ani żołądka, karmią go bakterie, które żyją z siarkowodoru. "
        "Czerwone pióropusze chwytają tlen i chowają się do rury, gdy ktoś puka.",
        "W dwa lata dorasta do wysokości drzwi; to rekord wśród bezkręgowców.",
    ),
    Entry(
        "Równonóg olbrzymi",
        "Bathynomus giganteus",
        "rownonog",
        dwellers.isopod,
        170,
        2100,
        "do 40 cm",
        "Kuzyn stonogi z piwnicy, który na dnie oceanu urósł do rozmiarów kota. Sprząta po wielorybach, a między posiłkami "
        "umie pościć latami. Zaniepokojony zwija się w kulę.",
        "Pewien okaz w akwarium nie jadł przez pięć lat i wyglądał na zadowolonego.",
    ),
    Entry(
        "Krab yeti",
        "Kiwa hirsuta",
        "krab",
        dwellers.yeti_crab,
        2200,
        2300,
        "do 15 cm",
        "Odkryty w 2005 roku przy kominach na południu Pacyfiku. Na włochatych szczypcach hoduje bakterie i kołysze nimi "
        "nad ciepłą wodą, żeby ogród dobrze rósł. Potem go zjada.",
        "Taniec z uniesionymi szczypcami to nie powitanie, lecz nawożenie.",
        1.06,
    ),
    Entry(
        "Koszyczek Wenery",
        "Euplectella aspergillum",
        "gabka",
        dwellers.glass_sponge,
        100,
        1000,
        "do 30 cm",
        "Gąbka, która plecie się ze szkła. Jej włókna przewodzą światło lepiej niż kable w naszej kabinie, a krata wytrzymuje więcej, "
        "niż pozwalają obliczenia. W środku mieszka para krewetek.",
        "Krewetki wchodzą tam młode, rosną i zostają na zawsze; w Japonii daje się ją nowożeńcom.",
        1.06,
    ),
    Entry(
        "Kaszalot",
        "Physeter macrocephalus",
        "kaszalot",
        creatures.sperm_whale,
        0,
        2000,
        "do 18 m",
        "Jedyny w atlasie, który oddycha tym samym co my. Wstrzymuje oddech na godzinę, schodzi dwa kilometry w dół i stuka głośniej "
        "niż młot w stoczni. Tak widzi w ciemności.",
        "Śpi pionowo, całą rodziną, jak las zatopionych drzew.",
    ),
    Entry(
        "Strzykwa pływająca",
        "Enypniastes eximia",
        "strzykwa",
        dwellers.sea_cucumber,
        500,
        5000,
        "do 25 cm",
        "Przezroczysta i różowa, widać przez nią wczorajszą kolację. Gdy dno jej się znudzi, odpycha się i płynie, falując welonem. "
        "Dotknięta, zostawia na napastniku świecącą skórę.",
        "Złapany złodziej świeci potem przez całą noc i wszyscy wiedzą, kto to zrobił.",
        1.06,
    ),
]


def _water(entry):
    """Colours of the water at the middle of the entry's range."""
    middle = (entry.shallow + entry.deep) / 2
    if middle < 500:
        return "#4fb9b4", "#176a74", "#062a36"
    return ("#1b7a82", "#0b4551", "#031a24") if middle < 1200 else ("#0d4a57", "#062a36", "#010b12")


def plate(entry, number):
    """The entry's portrait."""
    top, middle, bottom = _water(entry)
    deep = (entry.shallow + entry.deep) / 2 > 900
    light = "" if deep else scenes.rays(W, H, number, 8)
    glow = f'<ellipse cx="320" cy="215" rx="300" ry="190" fill="url(#aura)" opacity="{.5 if deep else .3}"/>'
    body = f"""<rect width="{W}" height="{H}" fill="url(#water)"/>{light}{glow}
<g filter="url(#blur1)">{scenes.ridge(W, 430, 110, number + 3, bottom, 9, .7)}</g>
{scenes.snow(W, H - 60, 90, number)}
<g transform="translate(322,206) scale({entry.scale})">{entry.drawing()}</g>
{parts.bubbles(60 if number % 2 else 520, 60, 40, 240, 12, number)}
{scenes.ridge(W, 436, 34, number + 9, "#010a0e", 12)}
<rect width="{W}" height="{H}" fill="url(#dim)"/>
<rect x="0" y="414" width="{W}" height="66" fill="#02090c" opacity=".72"/><rect x="0" y="413" width="{W}" height="2" fill="{svg.BRASS}"/>
{svg.text(24, 446, entry.caption, 27, "#ffe2a4", svg.PLATE)}{svg.text(25, 468, entry.latin, 17, "#bfe6dc", svg.BOOK, extra='font-style="italic"')}
{svg.text(616, 444, f"{entry.shallow}–{entry.deep} m", 19, "#7dfbdc", svg.LEGEND, "end")}{svg.text(616, 467, entry.size, 15, "#bfe6dc", svg.LEGEND, "end")}
{svg.text(24, 34, f"ATLAS GŁĘBIN  •  PLANSZA {number}", 13, "#eafff4", svg.LEGEND, extra='letter-spacing="2.5" opacity=".75"')}"""
    defs = (
        scenes.DEFS
        + creatures.DEFS
        + "".join(
            [
                svg.gradient("water", [(0, top), (0.45, middle), (1, bottom)]),
                svg.radial("aura", [(0, "#bff5e6", 0.55), (1, "#bff5e6", 0)]),
                svg.radial("dim", [(0, "#000", 0), (0.62, "#000", 0), (1, "#000", 0.5)], 0.5, 0.45, 0.78),
            ]
        )
    )
    return svg.document(W, H, body, defs)


def _row(depth):
    """The row of a depth on a card: each zone takes the same height."""
    for k, (first, last, _, _) in enumerate(ZONES):
        if depth <= last:
            return 70 + 74 * (k + (depth - first) / (last - first))
    return 440


def card(entry, number):
    """The entry's range of depth among the zones of the ocean."""
    bands = "".join(
        f'<rect x="24" y="{70 + 74 * k}" width="592" height="74" fill="{colour}"/>'
        + svg.text(40, 70 + 74 * k + 28, name, 18, "#eafff4", svg.LEGEND, extra='opacity=".92"')
        + svg.text(40, 70 + 74 * k + 50, f"od {first} do {last} m", 13, "#bfe6dc", svg.LEGEND)
        + svg.text(250, 70 + 74 * k + 50, f"{last // 10 + 1} atm", 13, "#ffe2a4", svg.LEGEND)
        for k, (first, last, name, colour) in enumerate(ZONES)
    )
    top, bottom = _row(entry.shallow), max(_row(entry.deep), _row(entry.shallow) + 8)
    body = f"""<rect width="{W}" height="{H}" fill="url(#paperCard)"/>
{svg.text(24, 48, entry.caption, 26, svg.INK, svg.PLATE)}{svg.text(616, 48, "karta okazu nr " + str(number), 15, "#8c2c1a", svg.LEGEND, "end")}
{bands}<rect x="24" y="70" width="592" height="370" fill="none" stroke="{svg.INK}" stroke-width="2"/>
<rect x="352" y="{top:.0f}" width="16" height="{bottom - top:.0f}" rx="5" fill="#ffb84d" stroke="#3a1c02" stroke-width="1.5"/>
{svg.text(376, top + 13, f"{entry.shallow} m", 14, "#ffe2a4")}{svg.text(376, max(bottom, top + 28), f"{entry.deep} m", 14, "#ffe2a4")}
<g transform="translate(528,{min(max((top + bottom) / 2, 140), 380):.0f}) scale(.43)">{entry.drawing()}</g>
{svg.text(24, 464, entry.latin + ", " + entry.size, 15, svg.INK, svg.BOOK, extra='font-style="italic"')}"""
    return svg.document(
        W, H, body, scenes.DEFS + creatures.DEFS + svg.gradient("paperCard", [(0, "#f6eed6"), (1, "#d9cba0")])
    )


STYLE = """body{margin:0;background:#04141a;color:#d8efe8;font:17px/1.55 Georgia,"Times New Roman",serif}
main{max-width:700px;margin:0 auto;padding:26px}h1{color:#ffe2a4;margin:.2em 0 0}h2{color:#ffcf7d}
img{max-width:100%;border:3px solid #b58a46;margin:14px 0}em{color:#8fd8c8}a{color:#ffb84d}
p.sign{color:#7fae9f;font-size:14px;border-top:1px solid #2c5a5a;padding-top:12px}"""


def page_frame(title, content):
    return (
        f'<!DOCTYPE html>\n<html lang="pl">\n<head>\n<meta charset="utf-8">\n<title>{html.escape(title)}</title>\n'
        f"<style>\n{STYLE}\n</style>\n</head>\n<body>\n<main>\n{content}\n"
        f'<p class="sign">Batyskaf nr 7: płyta z głębin. Spółdzielnia Wydawnicza Latimeria.</p>\n</main>\n</body>\n</html>\n'
    )


def page(entry):
    """The entry's document on the disc, in HTML."""
    return page_frame(
        f"Atlas głębin: {entry.caption}",
        f"<h1>{entry.caption}</h1>\n<p><em>{entry.latin}</em>, {entry.size}, od {entry.shallow} do {entry.deep} m</p>\n"
        f'<img src="../Data/atlas/{entry.slug}.gif" alt="{entry.caption}">\n<p>{entry.note}</p>\n<p>{entry.more}</p>\n'
        f'<img src="../Data/atlas/{entry.slug}2.gif" alt="Karta okazu">',
    )


def catalogue():
    """The atlas as sections of the catalogue."""
    menu = "".join(f"Menu{k}={e.caption}\n" for k, e in enumerate(ENTRIES, 1))
    return f"[Atlas głębin]\n{menu}\n" + "\n".join(
        f"[{e.caption}]\nExecute=%:\\Atlas\\{e.slug}.html\nNote={e.note}\n"
        f"System=Przeglądarka stron WWW. Głębokość: od {e.shallow} do {e.deep} m.\n"
        f"Shot1=atlas\\{e.slug}.gif\nShot2=atlas\\{e.slug}2.gif\n"
        for e in ENTRIES
    )
