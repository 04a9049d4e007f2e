#!/usr/bin/env python3
"""Runs rnximg (its path in $RNXIMG) on small pictures. Usage: rnximg_test.py [CLASS]..."""

import os
import re
import resource
import signal
import subprocess
import tempfile
import unittest
from fractions import Fraction
from pathlib import Path

import png

RNXIMG = os.environ.get("RNXIMG", "rnximg")
ROOT = Path(__file__).resolve().parent.parent.parent
DATA = ROOT / "examples/data"


class ProgramTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def run_program(self, *words, **options):
        return subprocess.run(
            [RNXIMG, *words], cwd=self.folder, stdin=subprocess.DEVNULL, capture_output=True, text=True, **options
        )

    def process(self, *words):
        """Runs a command that has to succeed silently."""
        result = self.run_program(*words)
        self.assertEqual((result.returncode, result.stdout, result.stderr), (0, "", ""), words)

    def write(self, name, rows, **options):
        color_type = options.pop("color_type", png.TYPE_OF_CHANNELS.get(len(rows[0][0])))
        (self.folder / name).write_bytes(png.encode(rows, color_type, **options))

    def read(self, name):
        return png.decode((self.folder / name).read_bytes())


def ramp(channels, width=16, height=16, seed=0):
    """Every level in every channel; the channels in different orders."""
    strides, pixel = (37 + 2 * seed, 101, 59, 13), range(width * height)
    levels = [tuple((p * strides[c] + 50 * c + 91 * seed) % 256 for c in range(channels)) for p in pixel]
    return [levels[y * width : (y + 1) * width] for y in range(height)]


def convert(rows, pixel):
    return [[pixel(p) for p in row] for row in rows]


class Files(ProgramTest):
    def test_png_keeps_pixels(self):
        for channels in (1, 3, 4):
            for width, height in ((1, 1), (7, 5), (70, 3), (16, 16)):
                with self.subTest(channels=channels, width=width, height=height):
                    rows = ramp(channels, width, height)
                    self.write("in.png", rows)
                    self.process("in.png", "-o", "out.png")
                    self.assertEqual(self.read("out.png"), rows)

    def test_every_kind_of_png(self):
        one_bit = convert(ramp(1, 11, 9), lambda p: (p[0] & 1,))
        four_bits = convert(ramp(1, 11, 9), lambda p: (p[0] >> 4,))
        deep = convert(ramp(3, 11, 9), lambda p: tuple(min(257 * v + 127, 65535) for v in p))  # rounds to v
        palette = png.chunk(b"PLTE", bytes(range(48)))
        clear = png.chunk(b"tRNS", bytes([7, 200]))

        def color(i):
            return (3 * i, 3 * i + 1, 3 * i + 2)

        cases = [
            ("1 bit", one_bit, dict(color_type=png.GRAY, depth=1), lambda p: (255 * p[0],)),
            ("4 bits", four_bits, dict(color_type=png.GRAY, depth=4), lambda p: (17 * p[0],)),
            ("16 bits", deep, dict(depth=16), lambda p: tuple(v // 257 for v in p)),
            ("palette", four_bits, dict(color_type=png.PALETTE, depth=4, extra=palette), lambda p: color(p[0])),
            (
                "transparent palette",
                four_bits,
                dict(color_type=png.PALETTE, depth=4, extra=palette + clear),
                lambda p: (*color(p[0]), {0: 7, 1: 200}.get(p[0], 255)),
            ),
            ("gray and alpha", ramp(2), dict(color_type=png.GRAY_ALPHA), lambda p: (p[0], p[0], p[0], p[1])),
            ("interlaced", ramp(3, 13, 11), dict(interlaced=True), lambda p: p),
        ]
        for name, rows, options, expected in cases:
            with self.subTest(name):
                self.write("in.png", rows, **options)
                self.process("in.png", "-o", "out.png")
                self.assertEqual(self.read("out.png"), convert(rows, expected))

    def test_jpeg_there_and_back(self):
        for pixel in ((90,), (200, 60, 30), (200, 60, 30, 128)):
            with self.subTest(pixel):
                self.write("in.png", [[pixel] * 20] * 12)
                self.process("in.png", "-o", "out.jpg", "--quality", "98")
                self.process("out.jpg", "-o", "back.png")
                back = self.read("back.png")
                self.assertEqual((len(back[0]), len(back)), (20, 12))
                for got, wanted in zip(back[5][5], pixel[:3], strict=True):  # alpha is dropped
                    self.assertLessEqual(abs(got - wanted), 3)

    def test_quality_decides_the_size_of_a_jpeg(self):
        sizes = []
        for quality in ("20", "92", "98"):
            self.process(DATA / "raccoon.png", "-o", f"{quality}.JPEG", "--quality", quality)
            sizes.append((self.folder / f"{quality}.JPEG").stat().st_size)
        self.process(DATA / "raccoon.png", "-o", "default.jpg")
        self.assertEqual(sizes, sorted(sizes))
        self.assertEqual((self.folder / "default.jpg").stat().st_size, sizes[1])

    def test_photograph(self):
        for name in ("raccoon.png", "raccoon.jpg"):
            self.process(DATA / name, "-o", f"{name}.png")
        self.assertEqual(self.read("raccoon.png.png"), png.decode((DATA / "raccoon.png").read_bytes()))
        jpeg = self.read("raccoon.jpg.png")
        self.assertEqual((len(jpeg[0]), len(jpeg)), (640, 480))

    def test_output_through_a_link_keeps_the_link(self):
        self.write("in.png", ramp(1))
        (self.folder / "real.png").write_bytes(b"old")
        (self.folder / "link.png").symlink_to("real.png")
        self.process("in.png", "-o", "link.png")
        self.assertTrue((self.folder / "link.png").is_symlink())
        self.assertEqual(self.read("real.png"), ramp(1))

    def test_output_may_be_the_input(self):
        self.write("in.png", ramp(3))
        self.process("in.png", "-o", "in.png", "addc", "1")
        self.assertEqual(self.read("in.png"), convert(ramp(3), lambda p: tuple(min(v + 1, 255) for v in p)))


def saturated(exact):
    """Rounded half to even, as Python does it, and saturated."""
    return min(max(round(exact), 0), 255)


def contrasted(v, gain):
    return saturated(128 + round(gain * (v - 128)))


def quotient(v, w):
    if w == 0:
        return 255 if v else 0
    return saturated(Fraction(128 * v, w))


half = Fraction(1, 2)
# Words; the level of channel c from that of the image and that of the second image, other.png.
OPERATIONS = [
    ("brightness 60", lambda v, w, c: min(v + 60, 255)),
    ("brightness -70", lambda v, w, c: max(v - 70, 0)),
    ("brightness +0", lambda v, w, c: v),
    ("contrast 2", lambda v, w, c: contrasted(v, 2)),
    ("contrast 0.5", lambda v, w, c: contrasted(v, half)),
    ("contrast 0", lambda v, w, c: 128),
    ("contrast 255", lambda v, w, c: contrasted(v, 255)),
    ("addc 200", lambda v, w, c: min(v + 200, 255)),
    ("addc 10 0 255", lambda v, w, c: min(v + (10, 0, 255)[c], 255)),
    ("subc 30", lambda v, w, c: max(v - 30, 0)),
    ("subc 10 0 255", lambda v, w, c: max(v - (10, 0, 255)[c], 0)),
    ("mulc 1.5", lambda v, w, c: saturated(v * 3 * half)),
    ("mulc 0.5 1 2", lambda v, w, c: saturated(v * (half, 1, 2)[c])),
    ("mulc 255", lambda v, w, c: saturated(v * 255)),
    ("mulc 1e-9", lambda v, w, c: 0),
    ("divc 64", lambda v, w, c: saturated(Fraction(v, 64))),
    ("divc 1 5 6", lambda v, w, c: saturated(Fraction(v, (1, 5, 6)[c]))),
    ("blend other.png", lambda v, w, c: saturated(Fraction(v + w, 2))),
    ("blend other.png 0.25", lambda v, w, c: saturated(Fraction(3 * v, 4)) + saturated(Fraction(w, 4))),
    ("blend other.png 0", lambda v, w, c: v),
    ("blend other.png 1", lambda v, w, c: w),
    ("difference other.png", lambda v, w, c: abs(v - w)),
    ("multiply other.png", lambda v, w, c: saturated(Fraction(v * w, 256))),
    ("divide other.png", lambda v, w, c: quotient(v, w)),
    ("convert 1", lambda v, w, c: saturated(Fraction(v, 2))),
    ("convert 1 away", lambda v, w, c: (v + 1) // 2),
    ("convert 2 zero", lambda v, w, c: v // 4),
    ("convert -3", lambda v, w, c: min(8 * v, 255)),
    ("stretch 50 101", lambda v, w, c: saturated(5 * v - 250)),
    ("stretch 20.5 148", lambda v, w, c: saturated(2 * v - 41)),
    ("squeeze 10 137.5", lambda v, w, c: 10 + round(v * half)),
    ("squeeze 10 137.5 away", lambda v, w, c: 10 + (v + 1) // 2),
    ("squeeze 137.5 265 zero", lambda v, w, c: min(int(137 + half + v * half), 255)),
    ("scalec 1.5 -3", lambda v, w, c: saturated(3 * half * v - 3)),
    ("scalec -1 255 accurate", lambda v, w, c: 255 - v),
    ("threshold raise 100", lambda v, w, c: max(v, 100)),
    ("threshold raise 100,90,255", lambda v, w, c: max(v, (100, 90, 255)[c])),
    ("threshold lower 100", lambda v, w, c: min(v, 100)),
    ("threshold clamp less 7,8,9", lambda v, w, c: max(v, 7 + c)),
    ("threshold clamp greater 70", lambda v, w, c: min(v, 70)),
    ("threshold below 100 3", lambda v, w, c: 3 if v < 100 else v),
    ("threshold above 100 3,2,1", lambda v, w, c: 3 - c if v > 100 else v),
    ("threshold replace less 100 200", lambda v, w, c: 200 if v < 100 else v),
    ("threshold replace greater 9,99,200 0", lambda v, w, c: 0 if v > (9, 99, 200)[c] else v),
    ("threshold outside 50 200 150 10", lambda v, w, c: 200 if v < 50 else 10 if v > 150 else v),
    ("threshold outside 50 1,2,3 50 9", lambda v, w, c: 1 + c if v < 50 else 9 if v > 50 else v),
    ("addc 10 -- mulc 2 -- brightness -7", lambda v, w, c: max(min(2 * min(v + 10, 255), 255) - 7, 0)),
]


class Operations(ProgramTest):
    def test_pixels(self):
        for channels in (1, 3, 4):
            image, other = ramp(channels), ramp(channels, seed=1)
            self.write("in.png", image)
            self.write("other.png", other)
            for words, model in OPERATIONS:
                if channels == 1 and re.search(r"(?:add|sub|mul|div)c \S+ \S+ \S+$|\d,", words):
                    continue  # one constant per colour
                with self.subTest(words, channels=channels):
                    result = self.run_program("in.png", "-o", "out.png", *words.split())
                    self.assertEqual(result.returncode, 0, result.stderr)
                    self.assertEqual(result.stderr.count("\n"), 1 if words.startswith("divide") else 0, result.stderr)
                    expected = [
                        [(*(model(p[c], q[c], c) for c in range(min(len(p), 3))), *p[3:]) for p, q in zip(*both)]
                        for both in zip(image, other)
                    ]
                    self.assertEqual(self.read("out.png"), expected)

    def test_second_image_takes_on_the_channels(self):
        image = ramp(4)
        self.write("in.png", image)
        self.write("other.png", [[(9,)] * 16] * 16)
        self.process("in.png", "-o", "out.png", "difference", "other.png")
        self.assertEqual(self.read("out.png"), convert(image, lambda p: (*(abs(v - 9) for v in p[:3]), p[3])))
        self.write("in.png", ramp(1))
        self.write("other.png", [[(9, 9, 9, 77)] * 16] * 16)
        self.process("in.png", "-o", "out.png", "difference", "other.png")
        self.assertEqual(self.read("out.png"), convert(ramp(1), lambda p: (abs(p[0] - 9),)))

    def test_filters(self):
        binomial = [[1, 2, 1], [2, 4, 2], [1, 2, 1]]
        skew = [[0, 1, 2, 3], [5, -1, 0, 2]]
        (self.folder / "kernel.txt").write_text("0 1 2 3\n5, -1 0 2\n\n")
        cases = [
            ("filter 1,2,1/2,4,2/1,2,1", binomial, 16, 0, round),
            ("blur 1", binomial, 16, 0, round),
            ("filter kernel.txt", skew, 12, 0, round),
            ("filter kernel.txt divisor 8 round zero", skew, 8, 0, int),
            ("filter 0.25,0.5,0.25", [[1, 2, 1]], 4, 0, round),
            ("sharpen", [[0, -1, 0], [-1, 5, -1], [0, -1, 0]], 1, 0, round),
            ("edges", [[-1, -1, -1], [-1, 8, -1], [-1, -1, -1]], 1, 0, round),
            ("emboss", [[2, 1, 0], [1, 0, -1], [0, -1, -2]], 1, 128, round),
        ]
        for channels in (1, 3, 4):
            image = ramp(channels, 20, 9)
            self.write("in.png", image)
            for words, kernel, divisor, offset, rounding in cases:
                with self.subTest(words, channels=channels):
                    self.process("in.png", "-o", "out.png", *words.split())
                    self.assertEqual(self.read("out.png"), filtered(image, kernel, divisor, offset, rounding))


def filtered(image, kernel, divisor, offset, rounding):
    """Convolution with the edge pixels repeated; alpha stays."""
    height, width, kh, kw = len(image), len(image[0]), len(kernel), len(kernel[0])

    def level(x, y, c):
        total = 0
        for j in range(kh):
            row = image[min(max(y - (kh - 1) // 2 + j, 0), height - 1)]
            for i in range(kw):
                total += kernel[kh - 1 - j][kw - 1 - i] * row[min(max(x - (kw - 1) // 2 + i, 0), width - 1)][c]
        return min(max(rounding(Fraction(total, divisor) + offset), 0), 255)

    return [
        [(*(level(x, y, c) for c in range(min(len(p), 3))), *p[3:]) for x, p in enumerate(row)]
        for y, row in enumerate(image)
    ]


def transposed(rows):
    return [list(column) for column in zip(*rows)]


def bordered(rows, width, position):
    """position(p, n): the row or column that comes to p, from -width on."""
    places = lambda n: [position(p, n) for p in range(-width, n + width)]
    return [[rows[y][x] for x in places(len(rows[0]))] for y in places(len(rows))]


class Values(ProgramTest):
    def report(self, *words):
        """The printed table, by channel."""
        result = self.run_program(*words)
        self.assertEqual((result.returncode, result.stderr), (0, ""), words)
        lines = [re.split(r"\s{2,}", line) for line in result.stdout.splitlines()]
        return {name: list(map(float, figures)) for name, *figures in lines[1:]}

    def test_gray(self):
        for channels in (1, 3, 4):
            rows = ramp(channels)
            self.write("in.png", rows)
            for rounding, rule in {"zero": int, "even": round, "away": lambda v: int(v + half)}.items():
                self.process("in.png", "-o", "out.png", "gray", rounding)
                shares = (Fraction(299, 1000), Fraction(587, 1000), Fraction(114, 1000))
                exact = lambda p: sum(s * v for s, v in zip(shares, p)) if channels > 1 else p[0]
                for got, wanted in zip(self.read("out.png"), rows, strict=True):
                    for (level,), pixel in zip(got, wanted, strict=True):
                        # A sum in single precision may fall to either side of a tie.
                        near = {rule(exact(pixel) + d) for d in (-Fraction(1, 9999), 0, Fraction(1, 9999))}
                        self.assertIn(level, near if channels > 1 else {pixel[0]})

    def test_compare_in_all_colors(self):
        relations = {"less": "__lt__", "lesseq": "__le__", "equal": "__eq__", "greatereq": "__ge__", "greater": "__gt__"}
        for channels in (1, 3, 4):
            rows, other = ramp(channels), ramp(channels, seed=1)
            other[3:6] = rows[3:6]
            self.write("in.png", rows)
            self.write("other.png", other)
            for relation, method in relations.items():
                with self.subTest(relation, channels=channels):
                    self.process("in.png", "-o", "out.png", "compare", relation, "other.png")
                    mask = [
                        [(255 * all(getattr(v, method)(w) for v, w in zip(p[:3], q[:3])),) for p, q in zip(*both)]
                        for both in zip(rows, other)
                    ]
                    self.assertEqual(self.read("out.png"), mask)

    def test_figures(self):
        for channels in (1, 3, 4):
            rows, other = ramp(channels, 9, 7), ramp(channels, 9, 7, seed=1)
            self.write("in.png", rows)
            self.write("other.png", other)
            stats, diff = self.report("in.png", "stats"), self.report("in.png", "diff", "other.png")
            names = ["gray"] if channels == 1 else ["red", "green", "blue", "alpha"][:channels]
            self.assertEqual((list(stats), list(diff)), (names, names))
            for c, name in enumerate(names):
                values, others = ([p[c] for row in image for p in row] for image in (rows, other))
                norms = lambda v: [max(map(abs, v)), sum(map(abs, v)), sum(x * x for x in v) ** 0.5]
                of, reference = norms([a - b for a, b in zip(values, others)]), norms(others)
                wanted = [sum(values), sum(values) / 63, *norms(values)]
                for got, expected in [(stats[name], wanted), (diff[name], of + [a / b for a, b in zip(of, reference)])]:
                    self.assertEqual(len(got), len(expected))
                    for a, b in zip(got, expected):
                        self.assertAlmostEqual(a / b, 1, 8)

    def test_figures_relative_to_nothing(self):
        self.write("in.png", [[(0, 5, 0)]])
        self.write("zero.png", [[(0, 0, 0)]])
        diff = self.report("in.png", "diff", "zero.png")
        self.assertEqual(diff["green"][3:], [float("inf")] * 3)
        self.assertTrue(all(v != v for v in diff["red"][3:]))

    def test_reports_need_no_output(self):
        self.write("in.png", ramp(3))
        self.process("in.png", "-o", "out.png", "addc", "1")
        result = self.run_program("in.png", "-o", "out.png", "addc", "1", "--", "stats")
        self.assertEqual((result.returncode, result.stdout[:7]), (0, "channel"))
        result = self.run_program("in.png", "stats", "--", "addc", "1")
        self.assertEqual((result.returncode, result.stdout), (2, ""))

    def test_alpha(self):
        product = lambda a, v: (2 * a * v + 255) // 510
        opacity = ramp(1, seed=3)
        self.write("opacity.png", opacity)
        for channels in (1, 3, 4):
            rows = ramp(channels)
            self.write("in.png", rows)
            joined = [
                [(*(p[:3] if channels > 1 else p * 3), a) for p, (a,) in zip(*both)] for both in zip(rows, opacity)
            ]
            self.process("in.png", "-o", "out.png", "alpha", "opacity.png")
            self.assertEqual(self.read("out.png"), joined)
            self.process("out.png", "-o", "own.png", "premultiply")
            self.assertEqual(
                self.read("own.png"), convert(joined, lambda p: (*(product(p[3], v) for v in p[:3]), p[3]))
            )
            self.process("in.png", "-o", "half.png", "premultiply", "128")
            by = lambda p: (*(product(128, v) for v in p[:3]), *(128 for _ in p[3:]))
            self.assertEqual(self.read("half.png"), convert(rows, by))


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


class Failures(ProgramTest):
    def setUp(self):
        super().setUp()
        self.write("in.png", ramp(3))
        self.write("gray.png", ramp(1))
        self.write("small.png", ramp(3, 5, 4))
        (self.folder / "out.png").write_bytes(b"kept")

    def assert_fails(self, status, words, part, **options):
        before = sorted(self.folder.iterdir())
        result = self.run_program(*words, **options)
        self.assertEqual(result.returncode, status, (words, result.stderr))
        self.assertRegex(result.stderr, r"\Arnximg: [^\n]+\n\Z", words)
        self.assertIn(part, result.stderr)
        self.assertEqual(result.stdout, "")
        self.assertEqual((self.folder / "out.png").read_bytes(), b"kept", words)
        self.assertEqual(sorted(self.folder.iterdir()), before, words)

    def test_usage(self):
        for words, part in [
            ("", "INPUT"),
            ("in.png", "-o OUTPUT"),
            ("in.png -o out.png crop 0 0 99 1", "WIDTH"),
            ("in.png -o out.png extract a", "no alpha"),
            ("gray.png -o out.png swap r g b", "gray"),
            ("in.png -o out.png bilevel 9", "not gray"),
            ("-o out.png", "INPUT"),
            ("in.png -o", "-o"),
            ("in.png -o out.gif", "out.gif"),
            ("in.png -o out", ".png"),
            ("in.png -o out.png --quality 0", "--quality: N"),
            ("in.png -o out.png --quality good", "good"),
            ("--verbose in.png -o out.png", "--verbose"),
            ("in.png -o out.png sharpn 3", "sharpn"),
            ("in.png -o out.png addc", "addc: LEVEL is missing"),
            ("in.png -o out.png addc ten", "'ten'"),
            ("in.png -o out.png addc 1x", "'1x'"),
            ("in.png -o out.png addc 1.5", "'1.5'"),
            ("in.png -o out.png addc 256", "0 to 255"),
            ("in.png -o out.png addc 1 2", "LEVEL is missing"),
            ("in.png -o out.png addc 1 2 3 4", "'4'"),
            ("in.png -o out.png brightness +-1", "'+-1'"),
            ("in.png -o out.png brightness 1e2", "'1e2'"),
            ("in.png -o out.png brightness 99999999999", "99999999999"),
            ("in.png -o out.png mulc -1", "mulc: GAIN"),
            ("in.png -o out.png mulc nan", "nan"),
            ("in.png -o out.png mulc inf", "inf"),
            ("in.png -o out.png contrast 2 brightness 3", "'brightness'"),
            ("in.png -o out.png divc 3 0 3", "DIVISOR must not be 0"),
            ("in.png -o out.png blend in.png 1.5", "WEIGHT"),
            ("in.png -o out.png filter 1,2/3", "different lengths"),
            ("in.png -o out.png filter /", "empty"),
            ("in.png -o out.png filter 1 divisor 0", "DIVISOR must not be 0"),
            ("in.png -o out.png filter 1 border wrap", "'wrap'"),
            ("in.png -o out.png blur 5", "RADIUS"),
            ("in.png -o out.png gray up", "'up'"),
            ("in.png -o out.png convert 9", "-8 to 8"),
            ("in.png -o out.png stretch 9 9", "LOW must be below HIGH"),
            ("in.png -o out.png threshold", "FORM is missing"),
            ("in.png -o out.png threshold raise 1,2", "R,G,B"),
            ("in.png -o out.png threshold raise 1,,2", "LEVEL"),
            ("gray.png -o out.png threshold raise 1,2,3", "gray"),
            ("in.png -o out.png threshold outside 9,9,9 0 9,8,9 0", "HIGH must not be below LOW"),
            ("in.png -o out.png compare like in.png", "'like'"),
            ("in.png -o out.png premultiply", "no alpha"),
            ("in.png -o out.png stats 1", "one word too many"),
            ("gray.png -o out.png addc 1 2 3", "gray"),
            ("in.png -o out.png -- addc 1", "both sides"),
            ("in.png -o out.png addc 1 --", "both sides"),
            ("in.png -o out.png addc 1 -- -- addc 1", "both sides"),
            ("--help sharpn", "sharpn"),
        ]:
            with self.subTest(words):
                self.assert_fails(2, words.split(), part)

    def test_files(self):
        (self.folder / "empty.png").write_bytes(b"")
        (self.folder / "text.png").write_bytes(b"this is no picture\n")
        (self.folder / "folder.png").mkdir()
        # A picture of 2^38 pixels, which no allocator gives.
        huge = (self.folder / "in.png").read_bytes().replace(b"\0\0\0\x10\0\0\0\x10", b"\0\x08\0\0\0\x08\0\0")
        header = huge[8:33]
        (self.folder / "huge.png").write_bytes(huge.replace(header, png.chunk(b"IHDR", header[8:21])))
        for words, part in [
            ("missing.png -o out.png", "missing.png: No such file"),
            ("empty.png -o out.png", "empty.png: the file is empty"),
            ("text.png -o out.png", "text.png: neither PNG nor JPEG"),
            ("folder.png -o out.png", "folder.png: "),
            ("huge.png -o out.png", "524288 x 524288"),
            ("in.png -o folder.png", "folder.png: not a regular file"),
            ("in.png -o nowhere/out.png", "nowhere/out.png: No such file"),
            ("in.png -o out.png blend small.png", "small.png has 5 x 4 pixels, the image 16 x 16"),
            ("in.png -o out.png addc 1 -- blend missing.png", "blend: missing.png: No such file"),
            ("in.png -o out.png difference text.png", "difference: text.png: neither"),
        ]:
            with self.subTest(words):
                self.assert_fails(1, words.split(), part)

    def test_truncated_and_damaged_pictures(self):
        self.process(DATA / "raccoon.png", "-o", "whole.jpg")
        for whole in (self.folder / "in.png", self.folder / "whole.jpg"):
            data, bad = whole.read_bytes(), self.folder / f"bad{whole.suffix}"
            marker = data.find(b"\xff\xda") if whole.suffix == ".jpg" else data.find(b"IDAT")
            lengths = {9, 20, 40, marker, marker + 30, len(data) // 2, len(data) - 13, len(data) - 2}
            for length in sorted(lengths):
                with self.subTest(whole.name, length=length):
                    bad.write_bytes(data[:length])
                    self.assert_fails(1, [bad.name, "-o", "out.png"], bad.name)
        flipped = bytearray((self.folder / "in.png").read_bytes())
        flipped[flipped.find(b"IDAT") + 20] ^= 0x40
        (self.folder / "bad.png").write_bytes(flipped)
        self.assert_fails(1, ["bad.png", "-o", "out.png"], "damaged PNG")

    def test_full_disk(self):
        def limit_file_size():
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (100, 100))

        (self.folder / "out.jpg").write_bytes(b"kept")
        # The small picture fits a buffer: its write fails at the very end only.
        for picture in ("in.png", DATA / "raccoon.png"):
            for output in ("out.png", "out.jpg"):
                with self.subTest(picture=picture, output=output):
                    self.assert_fails(1, [picture, "-o", output], output, preexec_fn=limit_file_size)
        self.assertEqual((self.folder / "out.jpg").read_bytes(), b"kept")


class Help(ProgramTest):
    def test_help_is_made_from_the_table(self):
        result = self.run_program("--help")
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        self.assertLessEqual(max(map(len, result.stdout.splitlines())), 120)
        words = re.findall(r"^  (?!-)(\S+)", result.stdout.split("\nExample", 1)[1], re.MULTILINE)
        self.assertGreaterEqual(set(words), {words.split()[0] for words, _ in OPERATIONS})
        self.assertEqual(len(words), len(set(words)))
        for word in words:
            with self.subTest(word):
                own = self.run_program("--help", word)
                self.assertEqual((own.returncode, own.stderr), (0, ""))
                self.assertRegex(own.stdout, rf"\Ausage: rnximg INPUT (-o OUTPUT|\[-o OUTPUT\]) {word}\b[^\n]*\n\n\S")

    def test_readme_shows_hello_as_it_is(self):
        self.assertIn((ROOT / "examples/hello.c").read_text(), (ROOT / "README.md").read_text())


class DemoList(ProgramTest):
    def test_every_line_runs(self):
        for picture in DATA.iterdir():
            (self.folder / picture.name).symlink_to(picture)
        for line in (ROOT / "scripts/demo.list").read_text().splitlines():
            if not line or line.startswith("#"):
                continue
            with self.subTest(line):
                name, caption, words = line.split("\t")
                self.assertTrue(caption)
                self.assertFalse((self.folder / f"{name}.png").exists(), "this name is taken")
                result = self.run_program(*words.split(), "-o", f"{name}.png")
                self.assertEqual(result.returncode, 0, result.stderr)


if __name__ == "__main__":
    unittest.main()
