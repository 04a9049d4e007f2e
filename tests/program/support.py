"""What the tests of rnximg share: the program (its path in $RNXIMG) run in a folder of its own, and pictures."""

import os
import subprocess
import tempfile
import unittest
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
