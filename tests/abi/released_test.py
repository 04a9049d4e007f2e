#!/usr/bin/env python3
"""The ABI is a promise: what abi/released.txt lists is exported as it was. Additions are listed, and allowed."""

import unittest
from pathlib import Path

ABI = Path(__file__).resolve().parent.parent.parent / "abi"


def signatures(text):
    """Name -> whole line."""
    return {line.split("(")[0].split()[-1].lstrip("*"): line for line in text.splitlines() if line}


def compare(released, current):
    """Additions, and everything that breaks callers."""
    old, new = signatures(released), signatures(current)
    added = sorted(new.keys() - old.keys())
    broken = [f"removed: {old[name]}" for name in sorted(old.keys() - new.keys())]
    broken += [f"changed: {old[name]}\n     to: {new[name]}" for name in sorted(old) if new.get(name, old[name]) != old[name]]
    return added, broken


class Released(unittest.TestCase):
    def test_nothing_is_removed_or_changed(self):
        added, broken = compare((ABI / "released.txt").read_text(), (ABI / "exports.txt").read_text())
        for name in added:
            print(f"added: {name}")
        self.assertEqual(broken, [])

    def test_removals_and_changes_are_found(self):
        released = "RnxStatus rnxiA(int)\nvoid rnxiB(void*)\nRnx8u* rnxiC(int, int)\n"
        self.assertEqual(compare(released, released), ([], []))
        self.assertEqual(compare(released, released + "void rnxiD(int)\n"), (["rnxiD"], []))
        self.assertEqual(compare(released, "void rnxiB(void*)\nRnx8u* rnxiC(int, Rnx64s)\n")[1],
                         ["removed: RnxStatus rnxiA(int)",
                          "changed: Rnx8u* rnxiC(int, int)\n     to: Rnx8u* rnxiC(int, Rnx64s)"])  # fmt: skip


if __name__ == "__main__":
    unittest.main()
