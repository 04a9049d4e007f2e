#!/usr/bin/env python3
"""Reading and writing of pictures, and what rnximg refuses."""

import resource
import signal
import unittest

import png
from support import DATA, ProgramTest, convert, ramp


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


if __name__ == "__main__":
    unittest.main()
