#!/usr/bin/env python3
"""The help texts of rnximg and the commands of the demo."""

import re
import unittest

from levels_test import OPERATIONS
from support import DATA, ROOT, ProgramTest


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
