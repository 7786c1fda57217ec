"""The pieces of the disc, as they are played on the synthesiser."""

import synth

_PAD = ((1, 1), (2, 0.35), (3, 0.12), (0.5, 0.3))


def _chord(ring, at, seconds, pitches, level):
    for pitch in pitches:
        for detune in (0.9975, 1.0025):
            ring.tone(
                at, seconds, synth.hertz(pitch) * detune, level, seconds * 0.4, seconds * 0.45, _PAD, (0.2, 0.001)
            )


def background():
    """The loop behind the menu: four slow chords, water, a sonar that nobody answers."""
    ring = synth.Ring(20, 16000)
    ring.water(0.30)
    for k, chord in enumerate(((45, 57, 60, 64), (41, 53, 57, 64), (38, 53, 57, 60), (40, 52, 59, 64))):
        _chord(ring, k * 5 - 1, 7, chord, 0.10)
    for at, pitch in (
        (1, 76),
        (1.7, 81),
        (2.4, 84),
        (6.2, 79),
        (6.9, 84),
        (11, 77),
        (11.7, 81),
        (12.4, 76),
        (16.2, 75),
        (16.9, 76),
        (18.3, 71),
    ):
        ring.pluck(at, pitch, 0.15)
    for at in (4.2, 14.2):
        ring.ping(at, 0.13)
    ring.bubbles(8.4, 9, 0.05, 3)
    ring.bubbles(17.2, 6, 0.04, 5)
    ring.whale(9.2, 0.05)
    ring.echo(0.5)
    return ring


def trench():
    """Echo z rowu: a minute of it would be too much for the disc, so it is three quarters of one."""
    ring = synth.Ring(46, 22050)
    ring.water(0.35, 4, 0.015)
    for k, chord in enumerate(((33, 45, 52), (29, 41, 53), (36, 48, 55), (28, 40, 52), (33, 45, 57), (33, 45, 52))):
        _chord(ring, k * 7.4, 9, chord, 0.12)
    for k in range(11):
        ring.tone(
            k * 4,
            3.4,
            synth.hertz((33, 33, 29, 29, 36, 36, 28, 28, 33, 33, 33)[k]),
            0.22,
            0.05,
            3.2,
            ((1, 1), (2, 0.3), (3, 0.1)),
        )
    for at, low, seconds in ((5, 110, 4), (12.4, 131, 3.4), (19, 98, 5), (28.5, 147, 3.6), (34, 110, 5)):
        ring.whale(at, 0.16, low, seconds)
        ring.whale(at + 1.9, 0.05, low, seconds)
    for at in range(3, 42, 6):
        ring.ping(at, 0.10, 1318)
    for at, pitch in (
        (15, 69),
        (15.5, 72),
        (16, 76),
        (17, 71),
        (24, 69),
        (24.5, 72),
        (25, 77),
        (26, 76),
        (38, 69),
        (38.5, 64),
        (39, 57),
    ):
        ring.pluck(at, pitch + 12, 0.07, 2.4)
    ring.bubbles(22, 16, 0.05, 8)
    ring.echo(0.7)
    ring.fade(1.5, 4)
    return ring


def walk(seconds):
    """Under the film Spacer po dnie: engines, a sonar, smokers, a meeting."""
    ring = synth.Ring(seconds, 22050)
    ring.water(0.4, 6, 0.03)
    ring.tone(0, seconds, 55, 0.10, 1, 2, ((1, 1), (2, 0.6), (3, 0.3), (4.02, 0.2)), (7, 0.01))
    _chord(ring, 0, seconds * 0.6, (45, 52, 57, 60), 0.09)
    _chord(ring, seconds * 0.45, seconds * 0.55, (41, 53, 57, 64), 0.11)
    for k in range(4):
        ring.ping(1 + k * seconds / 4.4, 0.16)
    for k, pitch in enumerate((64, 69, 71, 72, 69, 67, 72, 76)):
        ring.pluck(seconds * 0.42 + k * 0.55, pitch + 12, 0.17)
    ring.bubbles(0.6, 12, 0.08, 2)
    ring.bubbles(seconds * 0.7, 14, 0.08, 4)
    ring.echo(0.4)
    ring.fade(0.6, 1.2)
    return ring


def light(seconds):
    """Under the film Światło w mroku: each lamp has its note, at last they sound together."""
    ring = synth.Ring(seconds, 22050)
    ring.water(0.2, 9, 0.015)
    _chord(ring, 0, seconds, (33, 45), 0.12)
    scale = (69, 72, 74, 76, 79, 81, 84, 88)
    for k in range(26):
        ring.pluck(0.8 + (k * 1.37) % (seconds * 0.7), scale[k * 5 % 8], 0.11, 2)
    for pitch in (57, 64, 69, 72, 76, 81):
        ring.tone(seconds * 0.68, seconds * 0.32, synth.hertz(pitch), 0.10, 1.2, 1.4, ((1, 1), (2, 0.3)), (5, 0.004))
    for k, pitch in enumerate((69, 76, 81, 84)):
        ring.bell(seconds * 0.72 + k * 0.18, synth.hertz(pitch), 0.08)
    ring.echo(0.6)
    ring.fade(0.3, 1.2)
    return ring


def chime(seconds, notes):
    """A few strokes of the ship's bell, (time, pitch), to lie under a voice."""
    ring = synth.Ring(seconds, 22050)
    for at, pitch in notes:
        ring.bell(at, synth.hertz(pitch), 0.2, min(2.2, seconds - at))
    ring.bubbles(seconds * 0.4, 5, 0.05, 7)
    ring.fade(0.001, 0.15)
    return ring
