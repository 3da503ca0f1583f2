#!/usr/bin/env python3
"""Makes data/sounds/: the sounds of the game, by plain synthesis.

Every note is a sum of partials, sine waves that begin softly and die away, the higher the sooner.
All sounds are WAV data, 16 bits, 44100 samples a second, one channel; the extension tells what a
sound is for: .alr an alert, .win a win, .ano an announcement, .wav the snapshot. Each begins and
ends in silence, so that a tune that is played in a loop meets itself without a click, and no sound
comes within 3 dB of the largest sample there can be.

The same bytes come out every time. Needs nothing but Python's own library. With a folder as its
argument it writes there instead.
"""

import array
import io
import math
import pathlib
import sys
import wave

RATE = 44100
LARGEST = 32767
PEAK = 10 ** (-4.5 / 20)  # of the largest sample: 4.5 dB below it
LONGEST_FADE = 0.6  # seconds; a short sound fades over its last third

# Partials of an instrument: frequency as a multiple of the note's, strength, and the time in
# seconds in which the partial falls to a third.
BELL = [(0.5, 0.25, 0.55), (1.0, 1.0, 0.42), (2.0, 0.45, 0.26), (2.76, 0.16, 0.15),
        (4.07, 0.08, 0.08), (5.4, 0.05, 0.05)]
CHIME = [(1.0, 1.0, 0.50), (2.0, 0.20, 0.30), (3.0, 0.12, 0.18), (4.2, 0.07, 0.09)]
MARIMBA = [(1.0, 1.0, 0.22), (3.9, 0.22, 0.07), (9.2, 0.06, 0.03)]
MUSIC_BOX = [(1.0, 1.0, 0.38), (2.0, 0.32, 0.22), (4.0, 0.14, 0.10), (6.3, 0.07, 0.05)]
FLUTE = [(1.0, 1.0, 0.60), (2.0, 0.18, 0.45), (3.0, 0.06, 0.30)]
BASS = [(1.0, 1.0, 0.45), (2.0, 0.40, 0.28), (3.0, 0.14, 0.16)]
GONG = [(1.0, 1.0, 0.80), (1.48, 0.55, 0.62), (2.03, 0.42, 0.50), (2.71, 0.28, 0.34),
        (3.62, 0.16, 0.22)]

SEMITONES = {"c": -9, "d": -7, "e": -5, "f": -4, "g": -2, "a": 0, "b": 2}


def frequency(name):
    """Of a note such as "a4", which is 440, "f#5" or "bb3"."""
    semitones = SEMITONES[name[0]] + 12 * (int(name[-1]) - 4)
    semitones += name[1:-1].count("#") - name[1:-1].count("b")
    return 440.0 * 2 ** (semitones / 12)


def silence(seconds):
    return [0.0] * round(seconds * RATE)


def add_note(sound, start, pitch, instrument, loudness=1.0, attack=0.006, stretch=1.0):
    """Adds a note at a time in seconds; what rings on beyond the end of the sound is cut."""
    first = round(start * RATE)
    rise = round(attack * RATE)
    for multiple, strength, fall in instrument:
        step = 2 * math.pi * pitch * multiple / RATE
        decay = math.exp(-math.log(3) / (fall * stretch * RATE))
        level = loudness * strength
        for place in range(first, len(sound)):
            age = place - first
            if level < 1e-5:
                break
            swell = 0.5 - 0.5 * math.cos(math.pi * age / rise) if age < rise else 1.0
            sound[place] += swell * level * math.sin(step * age)
            level *= decay


def add_tune(sound, beat, notes, instrument, loudness=1.0, stretch=1.0):
    """Adds notes, each a pair of its beat, from 0 on, and its name."""
    for at, name in notes:
        add_note(sound, 0.01 + at * beat, frequency(name), instrument, loudness, stretch=stretch)


def add_echo(sound, delay, loudness):
    """One soft repetition, as from a wall; what comes after the end is cut."""
    shift = round(delay * RATE)
    for place in range(len(sound) - 1, shift - 1, -1):
        sound[place] += loudness * sound[place - shift]


def finished(sound):
    """The sound at its loudness, faded to silence at its end, as whole samples."""
    fade = min(len(sound) // 3, round(LONGEST_FADE * RATE))
    for back in range(fade):
        sound[-1 - back] *= 0.5 - 0.5 * math.cos(math.pi * back / fade)
    loudest = max(abs(sample) for sample in sound)
    scale = PEAK * LARGEST / loudest
    return array.array("h", (round(sample * scale) for sample in sound))


# ---- Alerts ------------------------------------------------------------------------------------


def ring_1():
    """One bell."""
    sound = silence(0.9)
    add_note(sound, 0.0, frequency("e5"), BELL)
    return sound


def ring_2():
    """Two chimes, the second lower: something is not right, but nothing is lost."""
    sound = silence(0.9)
    add_note(sound, 0.0, frequency("a5"), CHIME, 0.9)
    add_note(sound, 0.14, frequency("f#5"), CHIME)
    return sound


def ring_3():
    """Three strokes on wood."""
    sound = silence(0.7)
    for at, name in ((0.0, "g4"), (0.09, "g4"), (0.18, "e4")):
        add_note(sound, at, frequency(name), MARIMBA, attack=0.003)
    return sound


def drop():
    """A drop of water: a short tone that glides upward."""
    sound = silence(0.4)
    phase = 0.0
    for place in range(len(sound)):
        at = place / RATE
        phase += 2 * math.pi * (520 + 620 * (1 - math.exp(-at / 0.035))) / RATE
        swell = 0.5 - 0.5 * math.cos(math.pi * min(1.0, at / 0.008))
        sound[place] = swell * math.exp(-at / 0.07) * math.sin(phase)
    add_echo(sound, 0.11, 0.25)
    return sound


# ---- Tunes of a win ------------------------------------------------------------------------------


def chimes():
    """A rising broken chord and its answer, over two low notes."""
    beat = 0.2
    sound = silence(24 * beat)
    add_tune(sound, beat, [(0, "c5"), (1, "e5"), (2, "g5"), (3, "c6"), (4, "b5"), (5, "g5"),
                           (6, "e5"), (8, "f5"), (9, "a5"), (10, "c6"), (11, "f6"), (12, "e6"),
                           (13, "d6"), (14, "b5"), (16, "c6")], CHIME, 0.8)
    add_tune(sound, beat, [(0, "c3"), (8, "f3"), (12, "g3"), (16, "c3")], BASS, 0.5, 1.6)
    add_tune(sound, beat, [(16, "e5"), (16, "g5")], CHIME, 0.45)
    return sound


def music_box():
    """A little waltz: four bars, then four more that come home."""
    beat = 0.24
    sound = silence(27 * beat)
    add_tune(sound, beat, [(0, "g5"), (1, "e5"), (2, "c5"), (3, "d5"), (4, "f5"), (5, "a5"),
                           (6, "g5"), (8, "e5"), (9, "d5"), (10, "e5"), (11, "f5"), (12, "g5"),
                           (13, "e6"), (14, "d6"), (15, "c6"), (16, "a5"), (17, "f5"), (18, "g5"),
                           (19, "b5"), (20, "d6"), (21, "c6")], MUSIC_BOX, 0.9)
    for bar, low, chord in ((0, "c4", "e4 g4"), (1, "f3", "a3 c4"), (2, "c4", "e4 g4"),
                            (3, "g3", "b3 d4"), (4, "c4", "e4 g4"), (5, "f3", "a3 c4"),
                            (6, "g3", "b3 f4")):
        add_tune(sound, beat, [(3 * bar, low)], MUSIC_BOX, 0.5)
        for after in (1, 2):
            add_tune(sound, beat, [(3 * bar + after, name) for name in chord.split()], MUSIC_BOX,
                     0.2)
    add_tune(sound, beat, [(21, "c4"), (21, "e5"), (21, "g4")], MUSIC_BOX, 0.4)
    return sound


def fanfare():
    """Flutes and wood: a call, its echo a step higher, and a long chord."""
    beat = 0.15
    sound = silence(32 * beat)
    call = [(0, "d5"), (2, "d5"), (3, "d5"), (4, "f#5"), (6, "a5")]
    higher = [(8, "e5"), (10, "e5"), (11, "e5"), (12, "g5"), (14, "b5")]
    home = [(16, "a5"), (18, "b5"), (19, "c#6"), (20, "d6")]
    add_tune(sound, beat, call + higher + home, FLUTE, 0.7, 0.8)
    add_tune(sound, beat, call + higher + home, MARIMBA, 0.35)
    add_tune(sound, beat, [(0, "d3"), (4, "d3"), (8, "e3"), (12, "e3"), (16, "a2"), (18, "a3"),
                           (20, "d3")], BASS, 0.6, 1.2)
    add_tune(sound, beat, [(20, "f#5"), (20, "a5")], FLUTE, 0.4)
    return sound


# ---- Announcements and the snapshot --------------------------------------------------------------


def gong():
    """A low gong."""
    sound = silence(2.2)
    add_note(sound, 0.0, 147.0, GONG, attack=0.02)
    return sound


def two_tones():
    """High and low, as before a voice in a hall."""
    sound = silence(1.6)
    add_note(sound, 0.0, frequency("g5"), CHIME, 0.9, 0.01, 1.2)
    add_note(sound, 0.4, frequency("eb5"), CHIME, 1.0, 0.01, 1.2)
    return sound


def snapshot():
    """The two soft clicks of a shutter, and a glint."""
    sound = silence(0.45)
    for at, pitch in ((0.0, 900.0), (0.075, 640.0)):
        add_note(sound, at, pitch, [(1.0, 1.0, 0.010), (2.3, 0.6, 0.006), (4.1, 0.4, 0.004)],
                 0.8, 0.002)
    add_note(sound, 0.09, frequency("e7"), CHIME, 0.28, 0.006, 0.3)
    return sound


SOUNDS = {
    "drop.alr": drop,
    "ring 1.alr": ring_1,
    "ring 2.alr": ring_2,
    "ring 3.alr": ring_3,
    "chimes.win": chimes,
    "fanfare.win": fanfare,
    "music box.win": music_box,
    "gong.ano": gong,
    "two tones.ano": two_tones,
    "snapshot.wav": snapshot,
}


def wave_bytes(samples):
    if sys.byteorder == "big":
        samples.byteswap()
    buffer = io.BytesIO()
    with wave.open(buffer, "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(samples.tobytes())
    return buffer.getvalue()


def main():
    usual = pathlib.Path(__file__).resolve().parent.parent / "data" / "sounds"
    target = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else usual
    target.mkdir(parents=True, exist_ok=True)
    for name, make in SOUNDS.items():
        (target / name).write_bytes(wave_bytes(finished(make())))


if __name__ == "__main__":
    main()
