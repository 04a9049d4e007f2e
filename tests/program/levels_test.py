#!/usr/bin/env python3
"""Operations on the levels of pixels, and the figures that rnximg reports."""

import re
import unittest
from fractions import Fraction

from support import ProgramTest, convert, ramp


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


if __name__ == "__main__":
    unittest.main()
