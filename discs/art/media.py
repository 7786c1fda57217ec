"""The disc's sounds and films: played, spoken and drawn here, encoded by sox and ffmpeg."""

import subprocess
import sys

import films
import music
import score
import svg

# Name, words, length in seconds, strokes of the bell (time, pitch), and when the voice begins. The shell cuts an exit
# voice after two seconds.
VOICES = [
    ("start", "Witamy na pokładzie Batyskafu. Zamykamy właz!", 4.4, ((0, 69), (0.35, 76)), 0.7),
    ("exit1", "Do zobaczenia na górze!", 2, ((0, 76), (1.55, 69)), 0.1),
    ("exit2", "Wynurzenie. Ahoj!", 2, ((0, 81), (0.2, 76)), 0.25),
    ("exit3", "Dobranoc, kapitanie.", 2, ((0, 64), (1.5, 57)), 0.15),
]

# Name, frames, music, length in seconds, frames a second, and how it is encoded.
FILMS = [
    ("spacer.mpg", films.walk, music.walk, 13, 25,
     "-c:v mpeg1video -b:v 440k -maxrate 700k -bufsize 320k -g 25 -c:a mp2 -ar 44100 -b:a 64k"),
    ("swiatlo.avi", films.light, music.light, 11, 10, "-c:v cinepak -q:v 20 -c:a pcm_u8 -ar 11025"),
]  # fmt: skip


def sounds(folder, pieces, workshop):
    """The loop and the voices go to `folder`, the pieces of music to `pieces`."""
    folder.mkdir(parents=True, exist_ok=True)
    pieces.mkdir(parents=True, exist_ok=True)
    music.background().save(folder / "otchlan.wav", 0.55)
    echo = workshop / "echo.wav"
    music.trench().save(echo, 0.85)
    about = ["-metadata", "title=Echo z rowu", "-metadata", f"artist={score.AUTHOR}"]
    svg.run("ffmpeg -v error -y -i", echo, "-b:a 48k", about, "-fflags +bitexact", pieces / "echo.mp3")
    (pieces / "kolysanka.mid").write_bytes(score.midi())
    for name, *rest in VOICES:
        voice(folder / f"{name}.wav", *rest, workshop)


def voice(target, words, seconds, strokes, start, workshop):
    """A voice through the vessel's loudspeaker, over its bell."""
    raw, tinny, bell = (workshop / f"{kind}.wav" for kind in ("raw", "tinny", "bell"))
    svg.run("espeak-ng -v pl -s 165 -p 38 -w", raw, [words])
    trim = "silence 1 0.01 0.5% reverse " * 2
    svg.run("sox -D", raw, "-r 22050 -c 1", tinny, trim, "highpass 220 lowpass 4200 overdrive 4 echo 0.8 0.7 40 0.25",
            f"pad {start} norm -3")  # fmt: skip
    length = float(subprocess.run(["soxi", "-D", tinny], check=True, capture_output=True, text=True).stdout)
    if length > seconds - 0.05:
        sys.exit(f"make: {target.name} lasts {length} s, but it is cut after {seconds} s")
    music.chime(seconds, strokes).save(bell, 0.35)
    svg.run("sox -D -m -v 0.9", tinny, "-v 0.6", bell, "-b 16 -r 16000", target,
            f"trim 0 {seconds} fade 0 {seconds} 0.1 norm -2")  # fmt: skip


def films_of(folder, workshop):
    """Draws both films frame by frame and encodes them with their music."""
    folder.mkdir(parents=True, exist_ok=True)
    for name, draw, play, seconds, rate, how in FILMS:
        frames = workshop / name
        frames.mkdir()
        count = seconds * rate
        for k in range(count):
            svg.render(draw(k / (count - 1)), frames / f"{k:04d}.png", 1)
        play(seconds).save(frames / "sound.wav")
        svg.run(f"ffmpeg -v error -y -framerate {rate} -i", frames / "%04d.png", "-i", frames / "sound.wav", how,
                "-flags:v +bitexact -fflags +bitexact", folder / name)  # fmt: skip
