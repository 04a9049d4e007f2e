#!/usr/bin/env python3
"""What the two shared objects look like from outside: names, imports, sections, stubs, instructions.

Usage: abi_test.py [CLASS]...; from the environment: RNX_LIB the folder of the libraries, RNX_BASELINE and RNX_WIDE the
objects built for the baseline and for wide vectors (separated by colons).
"""

import os
import re
import struct
import subprocess
import unittest
from functools import cache
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
LIB = Path(os.environ["RNX_LIB"])
RNXIP, RNXCORE = LIB / "librnxip.so", LIB / "librnxcore.so"
ENDBR64, JMP_INDIRECT = bytes.fromhex("f30f1efa"), bytes.fromhex("ff25")


@cache
def tool(*words):
    return subprocess.run(words, check=True, capture_output=True, text=True, env=os.environ | {"LC_ALL": "C"}).stdout


def listed_names():
    return re.findall(r"\b(rnx[ir]\w+)\(", (ROOT / "abi/exports.txt").read_text())


def exported(library):
    return [line.split()[2] for line in tool("nm", "-D", "--defined-only", str(library)).splitlines()]


def dynamic(library, tag):
    return re.findall(rf"\({tag}\).*?\[(.*)\]", tool("readelf", "-dW", str(library)))


class Section:
    """Name, address, file offset and size of the sections of a library."""

    def __init__(self, library):
        self.library = library
        pattern = r"\]\s+(\S+)\s+\S+\s+([0-9a-f]+)\s+([0-9a-f]+)\s+([0-9a-f]+)\s"
        self.all = {
            name: (int(address, 16), int(offset, 16), int(size, 16))
            for name, address, offset, size in re.findall(pattern, tool("readelf", "-SW", str(library)))
        }

    def size(self, name):
        return self.all.get(name, (0, 0, 0))[2]

    def holds(self, name, address):
        start, _, size = self.all[name]
        return start <= address < start + size

    def bytes_at(self, address, count):
        for start, offset, size in self.all.values():
            if start and start <= address < start + size:
                with open(self.library, "rb") as file:
                    file.seek(offset + address - start)
                    return file.read(count)
        raise KeyError(hex(address))


def symbols(library):
    """(address, size, type, name) of everything that has an address in the library."""
    line = r"^\s*\d+: ([0-9a-f]+)\s+(\S+) (\w+)\s+\w+\s+\w+\s+\d+ (\S+)"
    found = re.findall(line, tool("readelf", "-sW", str(library)), re.M)
    return {(int(address, 16), int(size, 0), kind, name) for address, size, kind, name in found}


def relocations(library):
    """Offset of every relative relocation, with the address that the loader puts there."""
    line = r"^([0-9a-f]+)\s+\S+ R_X86_64_RELATIVE\s+([0-9a-f]+)"
    found = re.findall(line, tool("readelf", "-rW", str(library)), re.M)
    return {int(offset, 16): int(target, 16) for offset, target in found}


class Names(unittest.TestCase):
    def test_exports_are_the_table(self):
        names = listed_names()
        self.assertEqual(names, sorted(names, key=str.encode))
        self.assertEqual(sorted(exported(RNXIP), key=str.encode), names)

    def test_companion_exports_its_five_functions(self):
        five = ["ownGetFeature", "rnxFree", "rnxGetMaxCacheSizeB", "rnxMalloc", "rnxMalloc_L"]
        self.assertEqual(sorted(exported(RNXCORE)), five)

    def test_file_names(self):
        for library in (RNXIP, RNXCORE):
            self.assertEqual(os.readlink(library), f"{library.name}.2021")
            self.assertEqual(os.readlink(f"{library}.2021"), f"{library.name}.2021.11.0")
            self.assertEqual(dynamic(library, "SONAME"), [f"{library.name}.2021"])


class Loading(unittest.TestCase):
    """Nothing of ours runs at load, nothing of ours can be written."""

    def test_needs_only_the_companion_and_libc(self):
        self.assertIn("librnxcore.so.2021", dynamic(RNXIP, "NEEDED"))
        allowed = {"libc.so.6", "libm.so.6"}
        self.assertLessEqual(set(dynamic(RNXIP, "NEEDED")), allowed | {"librnxcore.so.2021"})
        self.assertLessEqual(set(dynamic(RNXCORE, "NEEDED")), allowed)

    def test_hardening(self):
        for library in (RNXIP, RNXCORE):
            self.assertIn("BIND_NOW", tool("readelf", "-dW", str(library)))
            segments = tool("readelf", "-lW", str(library))
            self.assertRegex(segments, r"GNU_RELRO ")
            self.assertRegex(segments, r"GNU_STACK .* RW  ")
            self.assertNotRegex(segments, r" RWE ")

    def test_no_initialiser_of_ours(self):
        for library in (RNXIP, RNXCORE):
            section, where = Section(library), relocations(library)
            names = {address: name for address, _, _, name in symbols(library)}
            for array, function in ((".init_array", "frame_dummy"), (".fini_array", "__do_global_dtors_aux")):
                self.assertEqual(section.size(array), 8, f"{library.name} {array}")
                self.assertEqual(names[where[section.all[array][0]]], function)

    def test_no_writable_data_of_ours(self):
        # The runtime's start-up files bring a handle and a flag.
        runtime = {"__dso_handle", "completed.0", "__TMC_END__"}
        section = Section(RNXIP)
        writable = [name for name in (".data", ".bss", ".tdata", ".tbss") if section.size(name)]
        self.assertLessEqual(sum(section.size(name) for name in writable), 24)
        for address, _, kind, name in symbols(RNXIP):
            if kind in ("OBJECT", "TLS") and any(section.holds(w, address) for w in writable):
                self.assertIn(name, runtime)


class Stubs(unittest.TestCase):
    """One stub of 16 bytes per export, in the order of the names, through one slot each."""

    def setUp(self):
        self.section = Section(RNXIP)
        everything = symbols(RNXIP)
        self.address = {name: address for address, _, _, name in everything}
        ((self.table, self.table_bytes),) = {(a, size) for a, size, _, name in everything if name == "rnxDispatchTable"}

    def test_table_is_relocated_read_only_data(self):
        names = listed_names()
        self.assertEqual(self.table_bytes, 8 * len(names))
        self.assertTrue(self.section.holds(".data.rel.ro", self.table))
        self.assertTrue(self.section.holds(".data.rel.ro", self.table + self.table_bytes - 1))
        where = relocations(RNXIP)
        for i, name in enumerate(names):
            self.assertTrue(self.section.holds(".text", where[self.table + 8 * i]), name)

    def test_stubs_jump_through_their_slots(self):
        names = listed_names()
        first = self.address[names[0]]
        for i, name in enumerate(names):
            self.assertEqual(self.address[name], first + 16 * i, name)
            code = self.section.bytes_at(self.address[name], 16)
            self.assertEqual(code[:4], ENDBR64, name)
            self.assertEqual(code[4:6], JMP_INDIRECT, name)
            (distance,) = struct.unpack("<i", code[6:10])
            self.assertEqual(self.address[name] + 10 + distance, self.table + 8 * i, name)


class Instructions(unittest.TestCase):
    """Nothing beyond the baseline outside the wide kernels. tzcnt is missing here: as bsf it is baseline too."""

    BEYOND = re.compile(
        r"^\s+[0-9a-f]+:\t(v(?!err|erw|mcall)\w+|andn|bextr|blsi|blsmsk|blsr|bzhi|mulx|pdep|pext|rorx|sarx|shlx|shrx"
        r"|lzcnt|movbe|adcx|adox|aes\w+|pclmul\w+|sha\w+)\s"
    )

    def beyond(self, listed):
        for path in os.environ[listed].split(":"):
            code = tool("objdump", "-d", "--no-show-raw-insn", path)
            for line in code.splitlines():
                if self.BEYOND.match(line):
                    yield f"{Path(path).name}: {line.strip()}"

    def test_baseline_objects(self):
        self.assertEqual(next(self.beyond("RNX_BASELINE"), None), None)

    def test_wide_objects_have_some(self):
        self.assertIsNotNone(next(self.beyond("RNX_WIDE"), None))


if __name__ == "__main__":
    unittest.main()
