"""Where everything lies: the one place that both the art and the catalogue's numbers are made from.

Pixels from the top left corner of the main window, unless a comment names another origin.
"""

AREA = (95, 151, 472, 306)  # the menu area: x, y, width, height
LINE = (0, 0, 472, 33)  # the strip below the top level, in the menu area

# The detail view's controls, which stand where the shell puts them.
NOTE = (113, 184, 269, 177)
REQUIREMENTS = (113, 392, 268, 51)
SHOTS = (388, 184, 161, 259)

# The marks for back and top, in the strip; the main picture bears them at the same place under it.
BACK_MARK = (5, 2, 30, 29)
TOP_MARK = (37, 2, 30, 29)
LINE_NAME = (80, 3)  # the menu's name in the strip

LABEL = (16, 9)  # the first menu label, in the menu area
TITLE = (124, 111)

SLIDER_BAR = (440, 40, 26, 260)  # in the menu area
SLIDER_KNOB = (26, 44)
SHOT_BAR = (134, 2, 24, 255)  # in the screenshots' frame
SHOT_KNOB = (24, 38)

TRACK = (120, 373, 372)  # the music marker's first column, row and last column

# Buttons of the main window: left, top, width, height.
BUTTONS = {
    "Snd1": (50, 70, 36, 36),
    "Snd2": (50, 70, 36, 36),
    "Hlp": (17, 323, 46, 46),
    "Info": (17, 382, 46, 46),
    "Min": (508, 70, 36, 36),
    "Ext": (552, 70, 36, 36),
    "Start": (104, 465, 92, 23),
    "Pokaz": (104, 465, 92, 23),
    "Pauza": (202, 465, 78, 23),
    "Stop": (286, 465, 78, 23),
}
PRODUCER = (436, 465, 122, 23)

# The cinema window: its size, the screen's middle, and its buttons.
CINEMA = (560, 468)
CINEMA_MIDDLE = (280, 196)
CINEMA_BUTTONS = {
    "CPlay": ("Start", 166, 416, 44, 44),
    "CPause": ("Pauza", 228, 416, 44, 44),
    "CStop": ("Stop", 290, 416, 44, 44),
    "CScale": ("Full", 352, 416, 44, 44),
    "CFScale": ("Small", 352, 416, 44, 44),
}

PAGE_X = 35  # the shell puts the pages here, in the menu area
PAGE_WIDTH = 396


def centre(box):
    return box[0] + box[2] / 2, box[1] + box[3] / 2


def mark_on_window(mark):
    """A mark of the strip in pixels of the main window."""
    return (AREA[0] + LINE[0] + mark[0], AREA[1] + LINE[1] + mark[1], mark[2], mark[3])
