"""A small synthesiser: voices are added to a ring of samples, so that what rings on past the end sounds at the beginning.

A piece that is written on a ring repeats without a seam. Times are in seconds, pitches in hertz or MIDI numbers, levels
from 0 to 1.
"""

import array
import math
import random
import wave


def hertz(pitch):
    """The frequency of a MIDI pitch."""
    return 440 * 2 ** ((pitch - 69) / 12)


class Ring:
    """A ring of samples at one rate."""

    def __init__(self, seconds, rate=22050):
        self.rate = rate
        self.length = round(seconds * rate)
        self.samples = [0.0] * self.length

    def _add(self, at, values):
        samples, n = self.samples, self.length
        k = round(at * self.rate) % n
        for value in values:
            samples[k] += value
            k += 1
            if k == n:
                k = 0

    def tone(
        self, at, seconds, frequency, level, attack=0.01, release=None, partials=((1, 1),), vibrato=(0, 0), glide=1
    ):
        """A sustained or dying sound: it swells for `attack`, then dies away to nothing over `release`.

        `partials` are (multiple of the frequency, level); `vibrato` is (hertz, depth); over its time the pitch moves to
        `glide` times its beginning.
        """
        rate, count = self.rate, round(seconds * self.rate)
        release = seconds - attack if release is None else release
        swell, fade = max(1, round(attack * rate)), max(1, round(release * rate))
        turn, sine = 2 * math.pi / rate, math.sin
        for multiple, part in partials:
            phase, values = 0.0, []
            for k in range(count):
                envelope = min(1.0, k / swell, (count - k) / fade)
                bend = glide ** (k / count) * (1 + vibrato[1] * sine(turn * vibrato[0] * k))
                phase += turn * frequency * multiple * bend
                values.append(level * part * envelope * envelope * sine(phase))
            self._add(at, values)

    def pluck(self, at, pitch, level, seconds=1.6):
        """A tooth of a music box."""
        for multiple, part, life in ((1, 1, 1), (2.76, 0.35, 0.45), (5.4, 0.16, 0.22)):
            self.tone(at, seconds * life, hertz(pitch) * multiple, level * part, 0.003)

    def bell(self, at, frequency, level, seconds=2.5):
        """A ship's bell."""
        for multiple, part, life in (
            (0.5, 0.5, 1),
            (1, 1, 0.9),
            (1.19, 0.5, 0.7),
            (2, 0.55, 0.5),
            (2.74, 0.35, 0.35),
            (4.1, 0.2, 0.2),
        ):
            self.tone(at, seconds * life, frequency * multiple, level * part, 0.002)

    def ping(self, at, level, frequency=1150):
        """A sonar's call and what comes back."""
        for delay, part in ((0, 1), (0.9, 0.22), (1.8, 0.1)):
            self.tone(at + delay, 1.1, frequency, level * part, 0.01, 1.05, ((1, 1), (2, 0.12)), glide=0.985)

    def bubbles(self, at, count, level, seed):
        dice = random.Random(seed)
        for _ in range(count):
            self.tone(
                at + dice.random() * count * 0.09,
                0.05 + dice.random() * 0.07,
                dice.uniform(260, 620),
                level * dice.uniform(0.3, 1),
                0.008,
                glide=dice.uniform(1.5, 2.3),
            )

    def whale(self, at, level, low=95, seconds=4):
        """A far call: up, over, and down again."""
        harmonics = ((1, 1), (2, 0.4), (3, 0.16))
        self.tone(at, seconds * 0.55, low, level, 0.4, 0.5, harmonics, (5, 0.012), 2.1)
        self.tone(at + seconds * 0.45, seconds * 0.6, low * 2.0, level * 0.8, 0.4, 1.2, harmonics, (4, 0.015), 0.62)

    def water(self, level, seed=1, dark=0.02):
        """The murmur of water: noise through two slow filters, closed to a ring."""
        dice = random.Random(seed)
        noise = [dice.uniform(-1, 1) for _ in range(self.length)]
        for _ in range(2):
            value = 0.0
            for sample in noise:  # once round to find where the ring closes
                value += dark * (sample - value)
            for k, sample in enumerate(noise):
                value += dark * (sample - value)
                noise[k] = value
        peak = max(map(abs, noise))
        swell = 2 * math.pi * 3 / self.length
        self._add(0, (level * sample / peak * (0.65 + 0.35 * math.sin(swell * k)) for k, sample in enumerate(noise)))

    def echo(self, share=0.35):
        """A large hall of water: four combs and two all-passes, run twice round the ring so that it has no beginning."""
        wet = [0.0] * self.length
        for delay, back in ((0.0437, 0.80), (0.0561, 0.78), (0.0683, 0.76), (0.0797, 0.74)):
            line, place = [0.0] * round(delay * self.rate), 0
            for turn in range(2):
                for k, sample in enumerate(self.samples):
                    out = line[place]
                    line[place] = sample + out * back
                    place = (place + 1) % len(line)
                    if turn:
                        wet[k] += out * 0.25
        for delay in (0.0127, 0.0091):
            line, place = [0.0] * round(delay * self.rate), 0
            dry, wet = wet, [0.0] * self.length
            for _ in range(2):
                for k, sample in enumerate(dry):
                    old = line[place]
                    wet[k] = old - 0.6 * sample
                    line[place] = sample + 0.6 * old
                    place = (place + 1) % len(line)
        self.samples = [dry * (1 - share * 0.4) + share * w for dry, w in zip(self.samples, wet)]

    def fade(self, first, last):
        """Fades in over `first` seconds and out over `last`; for pieces that do not repeat."""
        a, b = round(first * self.rate), round(last * self.rate)
        for k in range(a):
            self.samples[k] *= k / a
        for k in range(b):
            self.samples[-1 - k] *= k / b

    def save(self, path, peak=0.8):
        """Writes a WAV file, 16 bits, one channel, its loudest sample at `peak`."""
        scale = peak * 32767 / max(map(abs, self.samples))
        with wave.open(str(path), "wb") as out:
            out.setnchannels(1)
            out.setsampwidth(2)
            out.setframerate(self.rate)
            out.writeframes(array.array("h", (round(sample * scale) for sample in self.samples)).tobytes())
