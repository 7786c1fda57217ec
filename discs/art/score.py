"""The lullaby: its notes, and the MIDI file that is made of them (Standard MIDI File, format 1)."""

import struct

TITLE, AUTHOR = "Kołysanka dla latimerii", "Trio Pod Lustrem Wody"
TEMPO = 96  # quarter notes a minute
TICKS = 96  # ticks a quarter note
BEATS = 3  # beats a bar

# Each bar: (beat, pitch, length in beats); the pitch counts semitones, 60 is the middle C.
_VERSE = [
    [(0, 64, 1), (1, 69, 1), (2, 71, 1)],
    [(0, 72, 2), (2, 69, 1)],
    [(0, 67, 1), (1, 72, 1), (2, 76, 1)],
    [(0, 74, 3)],
    [(0, 72, 1), (1, 71, 1), (2, 69, 1)],
    [(0, 65, 1), (1, 69, 1), (2, 72, 1)],
    [(0, 71, 1), (1, 68, 1), (2, 64, 1)],
    [(0, 69, 3)],
]
_BRIDGE = [
    [(0, 76, 2), (2, 74, 1)],
    [(0, 71, 2), (2, 74, 1)],
    [(0, 72, 1), (1, 69, 1), (2, 72, 1)],
    [(0, 71, 3)],
    [(0, 69, 1), (1, 72, 1), (2, 77, 1)],
    [(0, 76, 2), (2, 72, 1)],
    [(0, 74, 1), (1, 71, 1), (2, 68, 1)],
    [(0, 69, 3)],
]
MELODY = _VERSE + _BRIDGE + _VERSE
_CHORDS = {
    "Am": (45, 52, 60),
    "F": (41, 48, 57),
    "C": (48, 55, 64),
    "G": (43, 50, 59),
    "E": (40, 47, 56),
    "Em": (40, 47, 55),
    "Dm": (50, 57, 65),
}
_VERSE_CHORDS = ["Am", "F", "C", "G", "Am", "F", "E", "Am"]
HARMONY = _VERSE_CHORDS + ["C", "G", "Am", "Em", "F", "C", "E", "Am"] + _VERSE_CHORDS


def _variable(number):
    """A number in the file's variable length: seven bits a byte, the highest first."""
    out = [number & 0x7F]
    while number := number >> 7:
        out.insert(0, number & 0x7F | 0x80)
    return bytes(out)


def _track(events):
    """A track of (tick, bytes), which need not be in order."""
    body, now = b"", 0
    for tick, message in sorted(events, key=lambda e: (e[0], e[1][0] & 0x10)):
        body += _variable(tick - now) + message
        now = tick
    body += _variable(TICKS * BEATS) + b"\xFF\x2F\x00"
    return b"MTrk" + struct.pack(">I", len(body)) + body


def _voice(channel, program, notes, name):
    """A track of notes (beat from the beginning, pitch, length in beats, loudness) on one instrument."""
    events = [(0, b"\xFF\x03" + _variable(len(name)) + name), (0, bytes((0xC0 | channel, program)))]
    for beat, pitch, length, loudness in notes:
        first = round(beat * TICKS)
        events += [
            (first, bytes((0x90 | channel, pitch, loudness))),
            (first + round(length * TICKS * 0.95), bytes((0x80 | channel, pitch, 0))),
        ]
    return _track(events)


def parts():
    """The three players' notes, as (beat from the beginning, pitch, length, loudness)."""
    box = [
        (bar * BEATS + beat, pitch + 12, length, 92 if beat == 0 else 78)
        for bar, notes in enumerate(MELODY)
        for beat, pitch, length in notes
    ]
    harp, cello, bells = [], [], []
    for bar, name in enumerate(HARMONY):
        low, middle, high = _CHORDS[name]
        harp += [
            (bar * BEATS + k * 0.5, pitch + 12, 1, 50)
            for k, pitch in enumerate((low, middle, high, high + 12, high, middle))
        ]
        cello.append((bar * BEATS, low if bar < 8 else middle, BEATS, 62))
        if bar % 4 == 3:
            bells.append((bar * BEATS, high, BEATS, 58))
    end = len(HARMONY) * BEATS
    box.append((end, 93, 3, 70))
    cello.append((end, 45, 3, 60))
    return {"box": box, "harp": harp, "cello": cello, "bells": bells}


def midi():
    """The file's bytes."""
    voices = parts()
    head = [(0, b"\xFF\x58\x04\x03\x02\x18\x08"), (0, b"\xFF\x51\x03" + round(60e6 / TEMPO).to_bytes(3, "big"))]
    tracks = [
        _track(head),
        _voice(0, 10, voices["box"], b"Pozytywka"),
        _voice(1, 46, voices["harp"], b"Harfa"),
        _voice(2, 42, voices["cello"], b"Wiolonczela"),
        _voice(3, 14, voices["bells"], b"Dzwony"),
    ]
    return b"MThd" + struct.pack(">IHHH", 6, 1, len(tracks), TICKS) + b"".join(tracks)
