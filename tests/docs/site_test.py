#!/usr/bin/env python3
"""Checks the documentation site: links, pictures, names, and, where Chromium is, the search in a browser.

Usage: site_test.py FOLDER
"""

import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote, urlsplit

ROOT = Path(__file__).resolve().parent.parent.parent
SITE = Path(sys.argv.pop(1)).resolve() if len(sys.argv) > 1 else ROOT / "build/docs"


class Page(HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.targets, self.ids, self.open = [], set(), []
        self.feed(path.read_text())

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        if "id" in attributes:
            if attributes["id"] in self.ids:
                raise AssertionError(f"id {attributes['id']} is there twice")
            self.ids.add(attributes["id"])
        self.targets += [attributes[key] for key in ("href", "src") if key in attributes]


class Site(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.pages = {path: Page(path) for path in sorted(SITE.rglob("*.html"))}

    def test_every_link_and_picture_is_there(self):
        self.assertGreater(len(self.pages), 60)
        checked = 0
        for path, page in self.pages.items():
            for target in page.targets:
                parts = urlsplit(target)
                self.assertEqual(parts.scheme, "", f"{path.name} needs a network: {target}")
                aim = (path.parent / unquote(parts.path)).resolve() if parts.path else path
                self.assertTrue(aim.is_file(), f"{path.name}: dead link {target}")
                self.assertGreater(aim.stat().st_size, 0, target)
                if parts.fragment:
                    self.assertIn(unquote(parts.fragment), self.pages[aim].ids, f"{path.name}: {target}")
                checked += 1
        self.assertGreater(checked, 800)

    def test_every_export_is_found(self):
        index = (SITE / "index.js").read_text()
        found = dict(re.findall(r'\["(rnxi\w+)","([^"]+)"\]', index))
        names = re.findall(r"(rnxi\w+)\(", (ROOT / "abi/exports.txt").read_text())
        self.assertEqual(sorted(found), sorted(names))
        for name, target in found.items():
            page, anchor = target.split("#")
            self.assertIn(anchor, self.pages[SITE / page].ids, name)

    @unittest.skipUnless(shutil.which("chromium"), "Chromium is not installed")
    def test_search_in_a_browser(self):
        with tempfile.TemporaryDirectory() as profile:
            dom = subprocess.run(
                ["chromium", "--headless", "--no-sandbox", "--disable-gpu", f"--user-data-dir={profile}", "--dump-dom",
                 (SITE / "index.html").as_uri() + "?q=subc%2016s%20ac4ir"],
                capture_output=True, text=True, timeout=120, check=True,
            ).stdout  # fmt: skip
        found = re.search(r'<ul id="found">(.*?)</ul>', dom, re.DOTALL)[1]
        self.assertIn('href="families/SubC.html#rnxiSubC_16s_AC4IRSfs"', found)
        self.assertNotIn("AddC", found)


if __name__ == "__main__":
    unittest.main()
