#!/usr/bin/env python3
"""Operations that move or resample pixels, and those over the spectrum."""

import unittest

from support import ProgramTest, convert, ramp


def transposed(rows):
    return [list(column) for column in zip(*rows)]


def bordered(rows, width, position):
    """position(p, n): the row or column that comes to p, from -width on."""
    places = lambda n: [position(p, n) for p in range(-width, n + width)]
    return [[rows[y][x] for x in places(len(rows[0]))] for y in places(len(rows))]


class Geometry(ProgramTest):
    def test_every_operation(self):
        for channels in (1, 3, 4):
            rows = ramp(channels, 9, 7)
            self.write("in.png", rows)
            for words, expected in {
                "flip horizontal": rows[::-1],
                "flip vertical": [row[::-1] for row in rows],
                "flip both": [row[::-1] for row in rows[::-1]],
                "flip main": transposed(rows),
                "flip second": transposed([row[::-1] for row in rows[::-1]]),
                "transpose": transposed(rows),
                "rotate 90": transposed(rows[::-1]),
                "rotate 180": [row[::-1] for row in rows[::-1]],
                "rotate 270": transposed(rows)[::-1],
                "crop 2 1 5 4": [row[2:7] for row in rows[1:5]],
                "border replicate 3": bordered(rows, 3, lambda p, n: min(max(p, 0), n - 1)),
                "border mirror 3": bordered(rows, 3, lambda p, n: min(abs(p), 2 * n - 2 - abs(p))),
            }.items():
                with self.subTest(words, channels=channels):
                    self.process("in.png", "-o", "out.png", *words.split())
                    self.assertEqual(self.read("out.png"), expected)

    def test_constant_border_is_opaque(self):
        self.write("in.png", [[(1, 2, 3, 4)]])
        self.process("in.png", "-o", "out.png", "border", "constant", "1", "9", "8", "7")
        edge = (9, 8, 7, 255)
        self.assertEqual(self.read("out.png"), [[edge] * 3, [edge, (1, 2, 3, 4), edge], [edge] * 3])

    def test_channels(self):
        for channels in (3, 4):
            rows = ramp(channels)
            self.write("in.png", rows)
            self.process("in.png", "-o", "out.png", "swap", "b", "r", "g")
            self.assertEqual(self.read("out.png"), convert(rows, lambda p: (p[2], p[0], p[1], *p[3:])))
            self.process("in.png", "-o", "out.png", "extract", "b")
            self.assertEqual(self.read("out.png"), convert(rows, lambda p: (p[2],)))
            self.process("in.png", "-o", "out.png", "dropalpha")
            self.assertEqual(self.read("out.png"), convert(rows, lambda p: p[:3]))
            self.process("in.png", "-o", "out.png", "extract", "g", "--", "color")
            self.assertEqual(self.read("out.png"), convert(rows, lambda p: (p[1],) * 3))

    def test_bilevel(self):
        rows = ramp(1, 19, 5)
        self.write("in.png", rows)
        self.process("in.png", "-o", "out.png", "bilevel", "99", "3", "200")
        self.assertEqual(self.read("out.png"), convert(rows, lambda p: (200 if p[0] > 99 else 3,)))


class Resize(ProgramTest):
    def resized(self, rows, *words):
        self.write("in.png", rows)
        self.process("in.png", "-o", "out.png", *words)
        return self.read("out.png")

    def test_nearest_repeats_and_drops_pixels(self):
        for channels in (1, 3, 4):
            rows = ramp(channels, 7, 5)
            twice = [[p for p in row for _ in range(2)] for row in rows for _ in range(2)]
            with self.subTest(channels):
                self.assertEqual(self.resized(rows, "resize", "14x10", "nearest"), twice)
                self.assertEqual(self.resized(twice, "scale", "0.5", "nearest"), rows)

    def test_linear_keeps_a_size_and_mixes_quarters(self):
        rows = ramp(3, 9, 4)
        self.assertEqual(self.resized(rows, "scale", "1"), rows)
        # centres at -0.25, 0.25, 0.75, 1.25
        self.assertEqual(self.resized([[(0,), (200,)]] * 2, "resize", "4x2"), [[(0,), (50,), (150,), (200,)]] * 2)

    def test_threads_make_no_difference(self):
        rows = ramp(3, 50, 41)
        whole = self.resized(rows, "resize", "73x64")
        for threads in ("2", "7", "64"):
            self.assertEqual(self.resized(rows, "--threads", threads, "resize", "73x64"), whole, threads)

    def test_bad_sizes(self):
        self.write("in.png", ramp(1))
        for words in (("resize", "7"), ("resize", "0x5"), ("resize", "5x5x5"), ("resize", "5x40000"), ("scale", "0"),
                      ("scale", "3000"), ("resize", "5x5", "cubic"), ("--threads", "0", "scale", "1")):  # fmt: skip
            with self.subTest(words):
                self.assertEqual(self.run_program("in.png", "-o", "out.png", *words).returncode, 2)


class Fourier(ProgramTest):
    def test_filters(self):
        self.write("in.png", ramp(3))
        self.process("in.png", "-o", "all.png", "lowpass", "10")
        for got, wanted in zip(self.read("all.png"), ramp(3), strict=True):
            for a, b in zip(got, wanted, strict=True):
                self.assertLessEqual(max(abs(x - y) for x, y in zip(a, b, strict=True)), 2)
        self.write("flat.png", [[(77,)] * 7] * 5)
        self.process("flat.png", "-o", "low.png", "lowpass", "0.1")
        self.assertEqual(self.read("low.png"), [[(77,)] * 7] * 5)
        self.process("flat.png", "-o", "high.png", "highpass", "0.1")
        self.assertEqual(self.read("high.png"), [[(128,)] * 7] * 5)

    def test_spectrum_of_a_flat_picture_is_a_point_in_the_middle(self):
        for width, height in ((6, 4), (7, 5)):
            self.write("flat.png", [[(9,)] * width] * height)
            self.process("flat.png", "-o", "out.png", "spectrum")
            lit = [(x, y) for y, row in enumerate(self.read("out.png")) for x, p in enumerate(row) if p[0] > 20]
            self.assertEqual(lit, [(width // 2, height // 2)])

    def test_match_finds_a_patch(self):
        for channels in (1, 3):
            rows = ramp(channels)
            self.write("in.png", rows)
            self.write("patch.png", [row[5:11] for row in rows[4:11]])
            result = self.run_program("in.png", "-o", "out.png", "match", "patch.png")
            self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "5 4\n", ""))
            for y, row in enumerate(self.read("out.png")):
                for x, pixel in enumerate(row):
                    inside = 5 <= x < 11 and 4 <= y < 11
                    self.assertEqual(pixel, rows[y][x] if inside else tuple(round(v / 2) for v in rows[y][x]))


if __name__ == "__main__":
    unittest.main()
