#!/usr/bin/env python3
"""tools/apigen.py on small tables: what it expands, and that a mistake gives one clear line."""

import json
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent

ARGUMENTS = """
[src]
params = "const {T}* pSrc, {step} srcStep"
doc = "source"
[dst]
params = "{D}* pDst, {step} dstStep"
doc = "destination"
[roi]
params = "RnxiSize roiSize"
long = "const RnxiSizeL* roiSize"
doc = "size"
[value]
params.C1 = "{T} value"
params.C3 = "const {T} value[3]"
doc = "constant"
"""

CHECKS = """
[null]
status = "rnxStatusNullPointer"
doc = "a pointer is null"
"""

FAMILY = """
subsystem = "data"
include = ["data/thing.h"]
title = "Things"
[[family]]
name = "Thing"
brief = "Does it."
checks = "null"
example = "rnxiThing_8u_C1R(src, srcStep, 1, dst, dstStep, roi);"
[[family.grid]]
types = "8u 16s32f"
layouts = "C1 C3"
forms.R = { args = "src value dst roi", impl = "thing<{T}, {D}, {L}>" }
long = "split<{impl}>"
"""


class Generator(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        (self.root / "api").mkdir()
        (self.root / "tools").mkdir()
        shutil.copy(ROOT / "tools/apigen.py", self.root / "tools")

    def write(self, family=FAMILY, arguments=ARGUMENTS, checks=CHECKS):
        for name, text in (("thing", family), ("arguments", arguments), ("checks", checks)):
            (self.root / f"api/{name}.toml").write_text(text)

    def run_generator(self, *options):
        return subprocess.run([sys.executable, self.root / "tools/apigen.py", *options], capture_output=True, text=True)

    def expand(self):
        result = self.run_generator("--json")
        self.assertEqual(result.returncode, 0, result.stderr)
        return {e["name"]: e for e in json.loads(result.stdout)}


class Expansion(Generator):
    def test_grid(self):
        self.write()
        exports = self.expand()
        grid = [f"rnxiThing_{t}_{l}R{long}" for t in ("16s32f", "8u") for l in ("C1", "C3") for long in ("", "_L")]
        self.assertEqual(list(exports), grid)
        long = exports["rnxiThing_16s32f_C3R_L"]
        types = ["const Rnx16s*", "Rnx64s", "const Rnx16s*", "Rnx32f*", "Rnx64s", "const RnxiSizeL*"]
        self.assertEqual([p["type"] for p in long["parameters"]], types)
        self.assertEqual([p["role"] for p in long["parameters"]], ["src", "src", "value", "dst", "dst", "roi"])
        self.assertEqual(exports["rnxiThing_8u_C1R"]["parameters"][2]["type"], "Rnx8u")

    def test_names_are_in_byte_order(self):
        self.write(FAMILY.replace('"8u 16s32f"', '"8u 16u 8s 32f"'))
        names = list(self.expand())
        self.assertEqual(names, sorted(names, key=str.encode))

    def test_where(self):
        self.write()
        result = self.run_generator("--where", "rnxiThing_8u_C3R_L")
        self.assertIn("api/thing.toml: family Thing", result.stdout)
        self.assertIn("split<thing<u8, u8, C3>>", result.stdout)
        self.assertEqual(self.run_generator("--where", "rnxiNothing").returncode, 1)

    def test_stale_files_are_noticed(self):
        self.write()
        self.assertEqual(self.run_generator().returncode, 0)
        self.assertEqual(self.run_generator("--check").returncode, 0)
        header = self.root / "include/rnxip/data.h"
        header.write_text(header.read_text().replace("roiSize", "size", 1))
        result = self.run_generator("--check")
        self.assertEqual(result.returncode, 1)
        self.assertIn("include/rnxip/data.h is stale", result.stderr)

    def test_committed_files_are_not_stale(self):
        result = subprocess.run([sys.executable, ROOT / "tools/apigen.py", "--check"], capture_output=True, text=True)
        self.assertEqual(result.returncode, 0, result.stderr)


class Mistakes(Generator):
    """What went wrong and where, in one line, and nothing is written."""

    def expect(self, *words, **tables):
        self.write(**tables)
        result = self.run_generator()
        self.assertEqual(result.returncode, 1)
        self.assertEqual(len(result.stderr.splitlines()), 1, result.stderr)
        for word in ("apigen: ", *words):
            self.assertIn(word, result.stderr)
        self.assertFalse((self.root / "include").exists())

    def family(self, old, new):
        self.assertIn(old, FAMILY)
        return FAMILY.replace(old, new)

    def test_unknown_element_type(self):
        self.expect("thing.toml", "Thing", "'12q'", family=self.family("16s32f", "12q"))

    def test_unknown_argument(self):
        self.expect("thing.toml", "Thing", "'sauce'", family=self.family("src value", "sauce value"))

    def test_unknown_check(self):
        self.expect("thing.toml", "Thing", "'nul'", family=self.family('checks = "null"', 'checks = "nul"'))

    def test_layout_without_a_form(self):
        self.expect("thing.toml", "Thing", "'value'", "C4", family=self.family("C1 C3", "C1 C4"))

    def test_unknown_placeholder(self):
        self.expect("thing.toml", "Thing", "{Q}", family=self.family("{D}", "{Q}"))
        self.expect("thing.toml", "Thing", "{Q}", family=self.family("{impl}", "{Q}"))

    def test_unknown_placeholder_of_an_argument(self):
        self.expect("{Q}", "'src'", arguments=ARGUMENTS.replace("const {T}* pSrc", "const {Q}* pSrc"))

    def test_missing_key(self):
        self.expect("thing.toml", "Thing", "impl", family=self.family(', impl = "thing<{T}, {D}, {L}>"', ""))
        self.expect("thing.toml", "title", family=self.family('title = "Things"', ""))
        self.expect("thing.toml", "Thing", "brief", family=self.family('brief = "Does it."', ""))

    def test_no_example(self):
        self.expect("thing.toml", "Thing", "example", family=self.family("example = ", "brief2 = "))

    def test_unknown_shape(self):
        circle = self.family("[[family.grid]]", 'shapes = "circle"\n[[family.grid]]')
        self.expect("thing.toml", "Thing", "'circle'", family=circle)

    def test_neither_shapes_nor_grid(self):
        self.expect("thing.toml", "Thing", family=FAMILY[: FAMILY.index("[[family.grid]]")])

    def test_declared_twice(self):
        twice = FAMILY + FAMILY[FAMILY.index("[[family]]") :]
        self.expect("rnxiThing_16s32f_C1R", "twice", "thing.toml", family=twice)

    def test_argument_declared_twice(self):
        own = FAMILY.replace("[[family]]", '[argument.src]\nparams = "int x"\ndoc = ""\n[[family]]')
        self.expect("thing.toml", "'src'", "twice", family=own)

    def test_not_toml(self):
        self.expect("thing.toml", family=self.family("[[family]]", "[[family"))

    def test_unreadable_parameter(self):
        self.expect("'+'", arguments=ARGUMENTS.replace("RnxiSize roiSize", "+"))


if __name__ == "__main__":
    unittest.main()
