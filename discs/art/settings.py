"""The catalogue's settings: every key that is not part of the tree, with the numbers of the layout."""

import layout


def colour(red, green, blue):
    """The decimal number that the catalogue writes for a colour: red in the low byte."""
    return red | green << 8 | blue << 16


def _box(name, box):
    return [(f"{name}{letter}", value) for letter, value in zip("XYWH", box)]


def _buttons():
    return [
        pair
        for key, (x, y, _, _) in layout.BUTTONS.items()
        for pair in ((f"{key}B", f"btn/{key.lower()}".replace("/", "\\")), (f"{key}X", x), (f"{key}Y", y))
    ]


def _cinema():
    pairs = [("CBackground", "cinema.gif"), ("CMiddX", layout.CINEMA_MIDDLE[0]), ("CMiddY", layout.CINEMA_MIDDLE[1])]
    for key, (_, x, y, _, _) in layout.CINEMA_BUTTONS.items():
        # The shell asks for the pause button's art under a name with a small p.
        base = "CpauseB" if key == "CPause" else f"{key}B"
        pairs += [(base, f"btn\\{key.lower()}"), (f"{key}X", x), (f"{key}Y", y)]
    return pairs


def sections():
    ax, ay, _, _ = layout.AREA
    start, top, end = layout.TRACK
    bar_x, bar_y, _, bar_h = layout.SLIDER_BAR
    shot_x, shot_y, _, shot_h = layout.SHOT_BAR
    ends = 6  # the knob stops short of the bar's ends
    return {
        "GLOBAL": [
            ("MainGfx", "main.gif"),
            ("MenuLevels", 3),
            ("BackgroundPic", "area.gif"),
            ("BackgroundPicX", ax),
            ("BackgroundPicY", ay),
            ("LinePic", "line.gif"),
            ("LinePicX", layout.LINE[0]),
            ("LinePicY", layout.LINE[1]),
            *_box("Back", layout.mark_on_window(layout.BACK_MARK)),
            *_box("Up", layout.mark_on_window(layout.TOP_MARK)),
            *_box("Back2", layout.BACK_MARK),
            *_box("Up2", layout.TOP_MARK),
            ("ProducerB", "producer.gif"),
            ("ProducerX", layout.PRODUCER[0]),
            ("ProducerY", layout.PRODUCER[1]),
            ("HelpB", "help.gif"),
            ("AboutB", "about.gif"),
            ("S2_Top", top),
            ("S2_Start", start),
            ("S2_End", end),
            *_buttons(),
            ("StartPic", "start.gif"),
            ("UnderPic", "under.gif"),
            ("LeftPic", "left.gif"),
            ("UpperPic", "upper.gif"),
            ("RightPic1", "right1.gif"),
            ("RightPic2", "right2.gif"),
            ("RightPic3", "right3.gif"),
        ],
        "HEADLINE": [
            ("FontFile", "burta.ttf"),
            ("Caption", "Batyskaf nr 7: płyta z głębin"),
            ("Left", layout.TITLE[0]),
            ("Top", layout.TITLE[1]),
            ("FontName", "Batyskaf Burta"),
            ("FontBold", "False"),
            ("FontSize", 15),
            ("Color", colour(255, 216, 140)),
        ],
        "MENUITEM": [
            ("BackgroundB", "area.gif"),
            ("BackgroundX", ax),
            ("BackgroundY", ay),
            ("FontFile", "szyld.ttf"),
            ("FontName", "Batyskaf Szyld"),
            ("FontBold", "False"),
            ("FontSize", 13),
            ("LabelPosX", layout.LABEL[0]),
            ("LabelPosY", layout.LABEL[1]),
            ("BackStyle", 0),
            ("BackColor", colour(8, 36, 43)),
            ("LineSize", 1),
            ("LineColor", colour(255, 184, 77)),
            ("Line2Size", 1),
            ("Line2Color", colour(111, 240, 207)),
            ("Line2Sleep", 12),
            ("BackTxt1X", ax + layout.LINE[0] + layout.LINE_NAME[0]),
            ("BackTxt1Y", ay + layout.LINE[1] + layout.LINE_NAME[1]),
            ("BackTxt1Color", colour(255, 223, 158)),
            ("BackTxt2X", layout.LINE_NAME[0]),
            ("BackTxt2Y", layout.LINE_NAME[1]),
            ("BackTxt2Color", colour(255, 223, 158)),
        ],
        "SLIDER": [
            ("SliderBarB", "slider.gif"),
            ("SliderBarX", bar_x),
            ("SliderBarY", bar_y),
            ("SliderB", "knob.gif"),
            ("PosX", bar_x),
            ("YMin", bar_y + ends),
            ("YMax", bar_y + bar_h - ends - layout.SLIDER_KNOB[1]),
            ("YStep", 1),
        ],
        "SHOTSLIDER": [
            ("SSliderBarB", "sslider.gif"),
            ("SSliderBarX", shot_x),
            ("SSliderBarY", shot_y),
            ("SSuwakB", "sknob.gif"),
            ("PosX", shot_x),
            ("YMin", shot_y + ends),
            ("YMax", shot_y + shot_h - ends - layout.SHOT_KNOB[1]),
            ("YStep", 1),
        ],
        "VOICES": [
            ("Music", "otchlan.wav"),
            ("Start", "start.wav"),
            ("Exit1", "exit1.wav"),
            ("Exit2", "exit2.wav"),
            ("Exit3", "exit3.wav"),
        ],
        "CINEMA": _cinema(),
    }


def text():
    """The settings as the text of an INI file."""
    head = (
        "; Batyskaf nr 7: płyta z głębin.\n"
        "; Wygląd powłoki: obrazy, położenia w pikselach, kolory (czerwony w najmłodszym bajcie), kroje pisma, dźwięki.\n"
    )
    return head + "".join(
        f"\n[{name}]\n" + "".join(f"{key}={value}\n" for key, value in pairs) for name, pairs in sections().items()
    )
