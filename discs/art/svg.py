"""A small kit for drawing: SVG text in, PNG and GIF files out.

Everything is drawn in pixels of the finished picture and rendered larger, then reduced, so that light and bevels come
out smooth. The light falls from the upper left in every picture of the disc.
"""

import pathlib
import subprocess
import tempfile

OVERSAMPLING = 3

# The palette of the disc: enamel of a deep-sea vessel, brass, ivory, lamp light.
ENAMEL, ENAMEL_LIGHT, ENAMEL_DARK = "#2c5a5a", "#4d8580", "#0f2a2e"
BRASS, BRASS_LIGHT, BRASS_DARK = "#b58a46", "#f6dfa2", "#4a3213"
IVORY, INK = "#efe6cb", "#2b2418"
ABYSS, SEA, LAMP, SIGNAL = "#04141a", "#1c6a74", "#ffb84d", "#ff6a3d"

LEGEND = "Batyskaf Szyld, sans-serif"
PLATE = "Batyskaf Burta, sans-serif"
DISPLAY = "URW Gothic, sans-serif"
BOOK = "P052, serif"


def lighting(name, blur, scale, shine=0.8, exponent=18, elevation=50):
    """A filter that makes a flat shape a rounded body: `blur` is the width of its edge, `scale` its height."""
    flat = {45: 1.414, 50: 1.305, 55: 1.221, 60: 1.155}[elevation]
    return f"""<filter id="{name}" x="-20%" y="-20%" width="140%" height="140%" color-interpolation-filters="sRGB">
<feGaussianBlur in="SourceAlpha" stdDeviation="{blur}" result="body"/>
<feDiffuseLighting in="body" surfaceScale="{scale}" diffuseConstant="1" lighting-color="#fff" result="diffuse">
<feDistantLight azimuth="225" elevation="{elevation}"/></feDiffuseLighting>
<feComposite in="diffuse" in2="SourceGraphic" operator="arithmetic" k1="{flat}" result="lit"/>
<feSpecularLighting in="body" surfaceScale="{scale}" specularConstant="{shine}" specularExponent="{exponent}"
 lighting-color="#fff3d6" result="shine"><feDistantLight azimuth="225" elevation="{elevation}"/></feSpecularLighting>
<feComposite in="shine" in2="SourceAlpha" operator="in" result="shine"/>
<feComposite in="lit" in2="shine" operator="arithmetic" k2="1" k3="1" result="sum"/>
<feComposite in="sum" in2="SourceAlpha" operator="in"/></filter>"""


def hammered(name, frequency=0.11, scale=1.1):
    """A filter that gives a shape the skin of hammer-finish enamel."""
    return f"""<filter id="{name}" x="0" y="0" width="100%" height="100%" color-interpolation-filters="sRGB">
<feTurbulence type="fractalNoise" baseFrequency="{frequency}" numOctaves="3" seed="7" result="noise"/>
<feColorMatrix in="noise" values="0 0 0 0 0  0 0 0 0 0  0 0 0 0 0  1 0.4 0 0 0" result="height"/>
<feDiffuseLighting in="height" surfaceScale="{scale}" diffuseConstant="1" lighting-color="#fff" result="light">
<feDistantLight azimuth="225" elevation="60"/></feDiffuseLighting>
<feComposite in="light" in2="SourceGraphic" operator="arithmetic" k1="1.155" result="lit"/>
<feComposite in="lit" in2="SourceAlpha" operator="in"/></filter>"""


def blur(name, deviation):
    return (
        f'<filter id="{name}" x="-50%" y="-50%" width="200%" height="200%">'
        f'<feGaussianBlur stdDeviation="{deviation}"/></filter>'
    )


def gradient(name, stops, x1=0, y1=0, x2=0, y2=1, units="objectBoundingBox"):
    """A linear gradient; stops are (offset, colour) or (offset, colour, opacity)."""
    return (
        f'<linearGradient id="{name}" x1="{x1}" y1="{y1}" x2="{x2}" y2="{y2}" gradientUnits="{units}">'
        + _stops(stops)
        + "</linearGradient>"
    )


def radial(name, stops, cx=0.5, cy=0.5, r=0.5, fx=None, fy=None, units="objectBoundingBox"):
    return (
        f'<radialGradient id="{name}" cx="{cx}" cy="{cy}" r="{r}" fx="{cx if fx is None else fx}" '
        f'fy="{cy if fy is None else fy}" gradientUnits="{units}">' + _stops(stops) + "</radialGradient>"
    )


def _stops(stops):
    return "".join(
        f'<stop offset="{s[0]}" stop-color="{s[1]}" stop-opacity="{s[2] if len(s) > 2 else 1}"/>' for s in stops
    )


BRASS_STOPS = [
    (0, "#5d4118"),
    (0.12, "#b98d48"),
    (0.28, "#fff0c4"),
    (0.42, "#dcb368"),
    (0.7, "#8a6128"),
    (0.9, "#4c3110"),
    (1, "#2c1b07"),
]
STEEL_STOPS = [
    (0, "#39474a"),
    (0.15, "#8fa3a5"),
    (0.3, "#eef6f4"),
    (0.45, "#a9bbbb"),
    (0.75, "#4f6063"),
    (1, "#1a2426"),
]
RUBBER_STOPS = [(0, "#05090a"), (0.25, "#3c4a4d"), (0.35, "#5a6a6d"), (0.55, "#1a2325"), (1, "#020405")]
COPPER_STOPS = [
    (0, "#4a1d10"),
    (0.15, "#a8552f"),
    (0.3, "#ffd0a8"),
    (0.45, "#cf7a4c"),
    (0.75, "#74321b"),
    (1, "#2b0f07"),
]
ENAMEL_STOPS = [
    (0, "#14312f"),
    (0.12, "#37706d"),
    (0.3, "#a4d2c6"),
    (0.42, "#5b968f"),
    (0.72, "#24504f"),
    (0.92, "#0e2628"),
    (1, "#071618"),
]

COMMON = "".join(
    [
        lighting("bevel1", 0.7, 1.6),
        lighting("bevel2", 1.3, 3),
        lighting("bevel3", 2.2, 5),
        lighting("hull", 4.5, 9, shine=0.35, exponent=12),
        hammered("hammer"),
        lighting("relief", 0.9, 2.4, shine=1.1, exponent=14),
        blur("blur1", 1),
        blur("blur2", 2),
        blur("blur3", 3),
        blur("blur6", 6),
        blur("blur12", 12),
        blur("blur25", 25),
        *[
            gradient(f"{name}V", stops) + gradient(f"{name}H", stops, x2=1, y2=0)
            for name, stops in (
                ("brass", BRASS_STOPS),
                ("steel", STEEL_STOPS),
                ("rubber", RUBBER_STOPS),
                ("copper", COPPER_STOPS),
                ("enamel", ENAMEL_STOPS),
            )
        ],
        gradient("brassPlate", [(0, "#e9c981"), (0.5, "#b98d48"), (1, "#7a5622")], x2=1),
        gradient("ivory", [(0, "#f7f0da"), (1, "#d9cca6")]),
        gradient("glassShine", [(0, "#fff", 0.55), (0.5, "#fff", 0.08), (1, "#fff", 0)]),
    ]
)


def document(width, height, body, defs="", view=None):
    """A complete SVG document; `view` is the part of the drawing that is seen, as x, y, width, height."""
    x, y, w, h = view or (0, 0, width, height)
    return (
        f'<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width="{width}" '
        f'height="{height}" viewBox="{x} {y} {w} {h}"><defs>{COMMON}{defs}</defs>{body}</svg>'
    )


def text(x, y, content, size, fill, font=LEGEND, anchor="start", extra=""):
    content = content.replace("&", "&amp;").replace("<", "&lt;")
    return (
        f'<text x="{x}" y="{y}" font-family="{font}" font-size="{size}" fill="{fill}" text-anchor="{anchor}" '
        f"{extra}>{content}</text>"
    )


def render(drawing, png, oversampling=OVERSAMPLING):
    """Renders an SVG document to a PNG file of the size that the document names."""
    png = pathlib.Path(png)
    png.parent.mkdir(parents=True, exist_ok=True)
    svg_file = png.with_suffix(".svg")
    svg_file.write_text(drawing, encoding="utf-8")
    run(f"rsvg-convert --unlimited -z {oversampling} -o", png, svg_file)
    if oversampling > 1:
        run("convert", png, f"-filter Box -resize {100 / oversampling}%", png)
    return png


def gif(png, target, colours=256, dither=0.6, crop=None, lossy=0):
    """Reduces a PNG file to a GIF file.

    `dither` is the share of each pixel's error that its neighbours take over, `crop` the part to take, as x, y, width,
    height, and `lossy` how much may be lost to make the file smaller.
    """
    png, target = pathlib.Path(png), pathlib.Path(target)
    cut, few = png.with_suffix(".cut.png"), png.with_suffix(".few.png")
    target.parent.mkdir(parents=True, exist_ok=True)
    part = crop_to(*crop) if crop else ""
    run("convert", png, part, "-alpha off", cut)
    run("pngquant --force --speed 1", f"--floyd={dither}" if dither else "--nofs", "--output", few, str(colours), cut)
    run("convert", few, target)
    run("gifsicle -b -O3 --no-comments", f"--lossy={lossy}" if lossy else "", target)
    return target


def crop_to(x, y, w, h):
    """The words for convert that leave only this part of a picture."""
    return f"-crop {w}x{h}+{x}+{y} +repage"


def lay(ground, box, glass, target):
    """Lays the picture `glass` on the part `box` of the picture `ground`."""
    run("convert", ground, crop_to(*box), glass, "-composite", target)


def run(*command, quiet=False):
    """Runs a program; with `quiet` its chatter goes nowhere.

    A text among the arguments is parted at its blanks; a path and each item of a list stay whole.
    """
    words = []
    for piece in command:
        words += piece if isinstance(piece, list) else piece.split() if isinstance(piece, str) else [str(piece)]
    nowhere = subprocess.DEVNULL if quiet else None
    subprocess.run(words, check=True, stdin=subprocess.DEVNULL, stdout=nowhere, stderr=nowhere)


def workshop():
    """A folder for what is rendered on the way; it goes with the program."""
    return pathlib.Path(tempfile.mkdtemp(prefix="disc-art-"))
