#!/usr/bin/env python3
"""Holds data/sounds/ against the script that makes it, and each sound against what is promised."""

import array
import importlib.util
import pathlib
import sys
import tempfile
import unittest
import wave

HOUSE = pathlib.Path(__file__).resolve().parent.parent.parent
SOUNDS = HOUSE / "data" / "sounds"
LARGEST_PEAK = 32768 * 10 ** (-3 / 20)
MILLISECOND = 44  # samples, at least


def load_script():
    sys.dont_write_bytecode = True
    spec = importlib.util.spec_from_file_location("make_sounds", HOUSE / "tools/make_sounds.py")
    script = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(script)
    return script


def samples_of(path):
    with wave.open(str(path)) as file:
        samples = array.array("h", file.readframes(file.getnframes()))
    if sys.byteorder == "big":
        samples.byteswap()
    return samples


def loudest(samples):
    return max(abs(sample) for sample in samples)


class Sounds(unittest.TestCase):
    def each(self):
        paths = sorted(SOUNDS.iterdir())
        self.assertTrue(paths)
        return [(path, samples_of(path)) for path in paths]

    def test_are_what_the_script_makes(self):
        script = load_script()
        with tempfile.TemporaryDirectory() as folder:
            sys.argv = ["make_sounds.py", folder]
            script.main()
            made = {path.name: path.read_bytes() for path in pathlib.Path(folder).iterdir()}
        kept = {path.name: path.read_bytes() for path in SOUNDS.iterdir()}
        self.assertEqual(sorted(made), sorted(kept))
        for name, data in made.items():
            self.assertTrue(data == kept[name], name + " differs")

    def test_there_is_one_for_every_use_and_a_choice(self):
        names = [path.name for path in SOUNDS.iterdir()]
        self.assertIn("ring 2.alr", names)
        self.assertIn("snapshot.wav", names)
        for extension, least in ((".alr", 3), (".win", 3), (".ano", 2)):
            self.assertGreaterEqual(sum(name.endswith(extension) for name in names), least)

    def test_are_small(self):
        self.assertLess(sum(path.stat().st_size for path in SOUNDS.iterdir()), 3_000_000)

    def test_have_the_format_that_the_program_plays(self):
        for path, _ in self.each():
            with wave.open(str(path)) as file:
                self.assertEqual(file.getsampwidth(), 2, path.name)
                self.assertEqual(file.getframerate(), 44100, path.name)
                self.assertEqual(file.getnchannels(), 1, path.name)
                self.assertEqual(file.getcomptype(), "NONE", path.name)

    def test_are_loud_but_stay_below_the_peak(self):
        for path, samples in self.each():
            self.assertLess(loudest(samples), LARGEST_PEAK, path.name)
            self.assertGreater(loudest(samples), LARGEST_PEAK / 2, path.name)

    def test_begin_and_end_in_silence(self):
        for path, samples in self.each():
            self.assertEqual(samples[0], 0, path.name)
            self.assertEqual(samples[-1], 0, path.name)
            # No step out of the silence or into it that could be heard as a click.
            self.assertLess(loudest(samples[:MILLISECOND // 4]), 1000, path.name)
            self.assertLess(loudest(samples[-5 * MILLISECOND:]), 100, path.name)

    def test_tunes_meet_themselves_without_a_click(self):
        for path, samples in self.each():
            if path.suffix == ".win":
                seam = samples[-MILLISECOND:] + samples[:MILLISECOND]
                steps = [abs(b - a) for a, b in zip(seam, seam[1:])]
                self.assertLess(max(steps), 50, path.name)

    def test_alerts_are_short(self):
        for path, samples in self.each():
            if path.suffix in (".alr", ".wav"):
                self.assertLess(len(samples), 44100, path.name)


if __name__ == "__main__":
    unittest.main()
