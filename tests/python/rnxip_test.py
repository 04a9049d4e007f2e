#!/usr/bin/env python3
"""The Python binding against NumPy: which export is picked, regions without copies, results, errors."""

import ctypes
import re
import unittest
import warnings
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import numpy
import rnxip
from rnxip import _library

ROOT = Path(__file__).resolve().parent.parent.parent
RANDOM = numpy.random.default_rng(5)


def image(dtype, height=13, width=17, channels=1):
    shape = (height, width) if channels == 1 else (height, width, channels)
    kind = numpy.dtype(dtype)
    if kind.kind == "f":
        return RANDOM.uniform(-100, 100, shape).astype(kind)
    limits = numpy.iinfo(kind)
    return RANDOM.integers(limits.min, limits.max, shape, kind, endpoint=True)


def saturated(exact, dtype):
    limits = numpy.iinfo(dtype)
    return numpy.clip(exact, limits.min, limits.max).astype(dtype)


class Arithmetic(unittest.TestCase):
    def test_types_and_layouts(self):
        for dtype in ("uint8", "uint16", "int16", "float32"):
            for channels in (1, 3, 4):
                a, b = image(dtype, channels=channels), image(dtype, channels=channels)
                with self.subTest(dtype=dtype, channels=channels):
                    if dtype == "float32":
                        numpy.testing.assert_array_equal(rnxip.sub(a, b), b - a)  # the second minus the first
                        continue
                    exact = a.astype("int64") + b
                    numpy.testing.assert_array_equal(rnxip.add(a, b), saturated(exact, dtype))
                    halves = numpy.rint(exact / 2)  # to even
                    numpy.testing.assert_array_equal(rnxip.add(a, b, scale=1), saturated(halves, dtype))
                    numpy.testing.assert_array_equal(rnxip.add(a, b, 1), saturated(halves, dtype))

    def test_constants(self):
        a = image("uint8", channels=3)
        expected = saturated(a.astype(int) + [1, 100, 255], "uint8")
        numpy.testing.assert_array_equal(rnxip.add_c(a, [1, 100, 255]), expected)
        numpy.testing.assert_array_equal(rnxip.add_c(a[..., 0].copy(), 9), saturated(a[..., 0].astype(int) + 9, "uint8"))
        with self.assertRaises(OverflowError):
            rnxip.add_c(a, [1, 2, 256])
        with self.assertRaises(ValueError):
            rnxip.add_c(a, [1, 2])

    def test_alpha_is_left_out(self):
        a, out = image("uint8", channels=4), image("uint8", channels=4)
        before = out.copy()
        rnxip.add_c(a, [1, 2, 3], alpha=True, out=out)
        numpy.testing.assert_array_equal(out[..., 3], before[..., 3])
        numpy.testing.assert_array_equal(out[..., :3], saturated(a[..., :3].astype(int) + [1, 2, 3], "uint8"))

    def test_in_place(self):
        a, b = image("int16"), image("int16")
        expected = rnxip.add(a, b)
        self.assertIs(rnxip.add(a, b, out=a), a)
        numpy.testing.assert_array_equal(a, expected)


class Regions(unittest.TestCase):
    def test_slices_are_not_copied(self):
        whole = image("uint8", 40, 50, 3)
        before = whole.copy()
        view = whole[5:25, 10:30]
        rnxip.add_c(view, [7, 7, 7], out=view)
        expected = before.copy()
        expected[5:25, 10:30] = saturated(before[5:25, 10:30].astype(int) + 7, "uint8")
        numpy.testing.assert_array_equal(whole, expected)

    def test_rows_upside_down_and_every_other(self):
        a = image("float32", 20, 9)
        numpy.testing.assert_array_equal(rnxip.add(a[::-1], a[::-1]), (a + a)[::-1])
        numpy.testing.assert_array_equal(rnxip.add(a[::2], a[1::2]), a[::2] + a[1::2])

    def test_columns_with_gaps_are_refused(self):
        a = image("uint8", 6, 20)
        with self.assertRaisesRegex(ValueError, "contiguous within a row"):
            rnxip.add(a[:, ::2], a[:, ::2])

    def test_other_sizes_are_refused(self):
        a = image("uint8", 6, 20)
        with self.assertRaises(ValueError):
            rnxip.add(a, a[:5])
        with self.assertRaises(ValueError):
            rnxip.add(a, a, out=a[:5].copy())


class Movement(unittest.TestCase):
    def test_channels_and_planes(self):
        a = image("uint16", channels=3)
        plane = numpy.zeros(a.shape[:2], "uint16")
        rnxip.copy(a[..., 1], out=plane)
        numpy.testing.assert_array_equal(plane, a[..., 1])
        b = a.copy()
        rnxip.copy(plane, out=b[..., 2])
        numpy.testing.assert_array_equal(b[..., 2], a[..., 1])
        numpy.testing.assert_array_equal(b[..., :2], a[..., :2])
        planes = rnxip.copy(a, layout="C3P3")
        numpy.testing.assert_array_equal(numpy.dstack(planes), a)
        numpy.testing.assert_array_equal(rnxip.copy(planes, layout="P3C3"), a)

    def test_masks(self):
        a, mask = image("uint8"), image("uint8") & 1
        out = numpy.zeros_like(a)
        rnxip.copy(a, mask=mask, out=out)
        numpy.testing.assert_array_equal(out, numpy.where(mask, a, 0))
        rnxip.set(9, mask=mask, out=out)
        numpy.testing.assert_array_equal(out, numpy.where(mask, 9, 0))

    def test_geometry(self):
        a = image("uint8", 5, 8, 3)
        numpy.testing.assert_array_equal(rnxip.mirror(a, rnxip.AXIS_VERTICAL), a[:, ::-1])
        numpy.testing.assert_array_equal(rnxip.mirror(a, rnxip.AXIS_MAIN_DIAGONAL), a.swapaxes(0, 1))
        numpy.testing.assert_array_equal(rnxip.transpose(a), a.swapaxes(0, 1))
        numpy.testing.assert_array_equal(rnxip.swap_channels(a, [2, 1, 0]), a[..., ::-1])

    def test_borders(self):
        a = image("int16", 6, 7)
        modes = {"replicate": "edge", "mirror": "reflect", "wrap": "wrap", "constant": "constant"}
        for kind, mode in modes.items():
            source = a.astype("float32") if kind == "wrap" else a
            got = rnxip.copy_border(source, 2, 1, 3, 2, kind)
            numpy.testing.assert_array_equal(got, numpy.pad(source, ((2, 1), (3, 2)), mode), kind)
        colour = rnxip.copy_border(image("uint8", channels=3), 1, 0, 0, 0, "constant", [1, 2, 3])
        self.assertEqual(colour[0, 5].tolist(), [1, 2, 3])

    def test_bits(self):
        a = image("uint8", 4, 19)
        bits = rnxip.gray_to_bin(a, 99)
        numpy.testing.assert_array_equal(numpy.unpackbits(bits, axis=1, bitorder="little")[:, :19], a > 99)
        numpy.testing.assert_array_equal(rnxip.bin_to_gray(bits, 19, 3, 7), numpy.where(a > 99, 7, 3))


class Values(unittest.TestCase):
    def test_conversion(self):
        a = image("uint8", channels=3)
        numpy.testing.assert_array_equal(rnxip.convert(a, dtype="float32"), a.astype("float32"))
        halves = numpy.array([[0.5, 1.5, 300, -4]], "float32")
        for mode, expected in ((0, [0, 1, 255, 0]), (1, [0, 2, 255, 0]), (2, [1, 2, 255, 0])):
            self.assertEqual(rnxip.convert(halves, round_mode=mode, dtype="uint8").tolist(), [expected])

    def test_comparison_and_thresholds(self):
        a, b = image("int16"), image("int16")
        mask = rnxip.compare(a, b, rnxip.GREATER)
        numpy.testing.assert_array_equal(mask, numpy.where(a > b, 255, 0))
        numpy.testing.assert_array_equal(rnxip.threshold_lt(a, 5), numpy.maximum(a, 5))

    def test_statistics(self):
        a = image("uint8", channels=3)
        self.assertEqual(rnxip.sum(a), tuple(a.sum(axis=(0, 1)).astype(float)))
        self.assertAlmostEqual(rnxip.mean(a[..., 0].copy()), a[..., 0].mean())
        self.assertEqual(rnxip.norm_diff_inf(a, a), (0.0, 0.0, 0.0))


class Plans(unittest.TestCase):
    def test_resize(self):
        a = image("uint8", 12, 10, 3)
        nearest = rnxip.resize(a, (24, 20), "nearest")
        numpy.testing.assert_array_equal(nearest, a.repeat(2, 0).repeat(2, 1))
        self.assertEqual(rnxip.resize(a[2:9], (5, 4)).shape, (5, 4, 3))

    def test_filter(self):
        a = image("uint8", 9, 11)
        kernel = numpy.array([[1, 2, 1], [2, 4, 2], [1, 2, 1]])
        padded = numpy.pad(a.astype(int), 1, "edge")
        exact = numpy.array(sum(kernel[2 - j, 2 - i] * padded[j : j + 9, i : i + 11] for j in range(3) for i in range(3)))
        numpy.testing.assert_array_equal(rnxip.filter_border(a, kernel, 16), numpy.rint(exact / 16).astype("uint8"))

    def test_transforms(self):
        a = image("float32", 12, 30, 3)
        numpy.testing.assert_allclose(rnxip.inverse_dft(rnxip.dft(a)), a, atol=1e-3)
        c = (image("float32") + 1j * image("float32")).astype("complex64")
        numpy.testing.assert_allclose(rnxip.dft(c), numpy.fft.fft2(c), rtol=1e-3, atol=0.1)


class Failures(unittest.TestCase):
    def test_statuses_have_names(self):
        with self.assertRaisesRegex(rnxip.RnxError, r"rnxStatusDivByZero \(-10\) from rnxiDivC_8u_C1RSfs") as caught:
            rnxip.div_c(image("uint8"), 0)
        self.assertEqual((caught.exception.status, caught.exception.name), (-10, "rnxStatusDivByZero"))

    def test_warnings(self):
        with warnings.catch_warnings(record=True) as caught:
            warnings.simplefilter("always")
            rnxip.div(numpy.zeros((2, 2), "uint8"), image("uint8", 2, 2))
        self.assertEqual([w.category for w in caught], [rnxip.RnxWarning])

    def test_no_such_form(self):
        with self.assertRaisesRegex(TypeError, "no form of add for 32s C1"):
            rnxip.add(image("int32"), image("int32"))
        with self.assertRaises(TypeError):
            rnxip.add(image("uint8"))
        with self.assertRaises(TypeError):
            rnxip.add(image("uint8"), image("uint8"), 0, 0)


class Whole(unittest.TestCase):
    def test_every_export_can_be_called_raw(self):
        names = re.findall(r"rnxi\w+(?=\()", (ROOT / "abi/exports.txt").read_text())
        self.assertGreater(len(names), 1800)
        for name in names:
            self.assertTrue(callable(getattr(rnxip.raw, name)), name)

    def test_structures_are_those_of_the_header(self):
        header = (ROOT / "include/rnxip/types.h").read_text()
        kinds = {"int32_t": ctypes.c_int32, "int64_t": ctypes.c_int64, "char": ctypes.c_char * 4, "const char*": ctypes.c_char_p}
        structures = (_library.Size, _library.SizeL, _library.Rect, _library.Point, _library.PointL)
        for structure in (*structures, _library.LibraryVersion):
            name = structure.__name__ if structure in structures else "RnxLibraryVersion"
            body = re.search(rf"typedef struct {name} \{{(.*?)\}}", header, re.DOTALL)[1]
            fields = [
                (re.sub(r"\W.*|_", "", field).lower(), kinds[kind])
                for kind, names in re.findall(r"^  ((?:const )?\w+\*?) ([^;]+);", body, re.MULTILINE)
                for field in names.split(", ")
            ]
            self.assertEqual([(field.replace("_", ""), kind) for field, kind in structure._fields_], fields, name)

    def test_calls_release_the_interpreter_lock(self):
        holds_lock = 0x4  # of ctypes.PyDLL
        self.assertEqual(_library._library()._FuncPtr._flags_ & holds_lock, 0)
        images = [image("uint8", 480, 640) for _ in range(8)]
        with ThreadPoolExecutor(8) as threads:
            for got, a in zip(threads.map(lambda a: rnxip.add_c(a, 9, 1), images * 8), images * 8, strict=True):
                numpy.testing.assert_array_equal(got, numpy.rint((a.astype(int) + 9) / 2).astype("uint8"))

    def test_version(self):
        self.assertEqual(rnxip.version()["major"], 2021)


if __name__ == "__main__":
    unittest.main()
