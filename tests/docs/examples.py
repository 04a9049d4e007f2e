#!/usr/bin/env python3
"""Writes a C program that runs the examples of the table of exports, one function each.

Usage: examples.py OUTPUT.c

An example shows what matters and leaves the rest to the reader: images and steps that it does not declare are declared
here, with the type of the parameter that they are passed for. What needs a filled spec gets one.
"""

import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "tools"))
import apigen  # noqa: E402

STEP, ROWS = 16384, 1000
VALUES = {"RnxiSize": "{640, 480}", "int": str(STEP)}
NAMED = {"inner": "RnxiSize inner = {640, 480};", "outer": "RnxiSize outer = {660, 500};"}

FILTER = """RnxiFilterBorderSpec* spec = memory(65536);
  Rnx8u* buffer = memory(1 << 20);
  const Rnx16s weights[9] = {1, 2, 1, 2, 4, 2, 1, 2, 1};
  rnxiFilterBorderInit_16s(weights, (RnxiSize){3, 3}, 16, rnx8u, 3, rnxRoundNearestEven, spec);"""
TRANSFORM = """RnxiDFTSpec* spec = memory(1 << 20);
  Rnx8u* work = memory(1 << 23);
  const RnxiSize roi = {640, 480};
  rnxiDFTInit_R_32f(roi, rnxFftDivideInverse, 0, spec, memory(1 << 23));"""
RESIZE = """const RnxiSize dstSize = {640, 480};
  RnxiResizeSpec* spec = memory(1 << 16);
  Rnx8u* buffer = memory(1 << 16);
  rnxiResizeLinearInit_8u((RnxiSize){320, 240}, dstSize, spec);"""
PREPARED = {"FilterBorderInit": "RnxiFilterBorderSpec* spec = memory(65536);", "FilterBorderSetMode": FILTER,
            "FilterBorder": FILTER, "MulPack": TRANSFORM, "MulPackConj": TRANSFORM, "ResizeLinear": RESIZE,
            "ResizeGetBorderSize": RESIZE, "ResizeGetSrcRoi": RESIZE}  # fmt: skip

PROGRAM = """/* The examples of the headers. Written by tests/docs/examples.py. */
#include <rnxip.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static int failures, calls;

static RnxStatus check(const char* example, RnxStatus status) {
  ++calls;
  if (status < 0) ++failures, printf("%s: status %d\\n", example, status);
  return status;
}

/* Ones, in which everything is above 0. */
static void* memory(size_t bytes) {
  void* p = malloc(bytes);
  if (!p) exit(1);
  return memset(p, 1, bytes);
}
"""


def split(arguments):
    """The arguments of a call, at the commas outside brackets."""
    parts, depth = [""], 0
    for character in arguments:
        depth += {"(": 1, "{": 1, "[": 1, ")": -1, "}": -1, "]": -1}.get(character, 0)
        if character == "," and depth == 0:
            parts.append("")
        else:
            parts[-1] += character
    return [part.strip() for part in parts if part.strip()]


def calls_in(code):
    for match in re.finditer(r"\b(rnxi\w+)\(", code):
        depth, end = 1, match.end()
        while depth:
            depth += {"(": 1, ")": -1}.get(code[end], 0)
            end += 1
        yield match[1], split(code[match.end() : end - 1])


def declared(code):
    for line in re.findall(r"^\s*(?:const )?(?:int|Rnx\w+)\*? ([^;]*);", code, re.MULTILINE):
        for piece in split(line):
            yield re.match(r"\w+", piece)[0]


def declaration(parameter, name):
    if name in NAMED:
        return NAMED[name]
    c_type = parameter.type.removeprefix("const ")
    if c_type.endswith("* const*"):
        return f"{c_type.removesuffix(' const*')} {name} = memory({STEP * ROWS});"
    if c_type.endswith("*"):
        return f"{c_type} {name} = memory({STEP * ROWS});"
    return f"const {c_type} {name} = {VALUES[c_type]};"


def function(family, exports):
    code = family.raw["example"].strip().replace("\n...\n", "\n")
    plain = re.sub(r"/\*.*?\*/", "", code, flags=re.DOTALL)
    prepared = PREPARED.get(family.name, "")
    known = set(declared(prepared + "\n" + plain))
    declarations = {}
    for name, arguments in calls_in(plain):
        for parameter, argument in zip(exports[name].parameters, arguments, strict=True):
            for word in re.findall(r"(?<![\w.])([a-zA-Z]\w*)", argument):
                if word in known or word in declarations or word.startswith(("rnx", "NULL")) or "f" == word:
                    continue
                is_step = word.endswith("tep")
                declarations[word] = f"const int {word} = {STEP};" if is_step else declaration(parameter, word)
    for planes in re.findall(r"= \{(\w+(?:, \w+)*)\}", plain):
        for word in planes.split(", "):
            if word[0].isalpha() and word not in known:
                declarations[word] = f"Rnx8u* {word} = memory({STEP * ROWS});"
    code = re.sub(r"(?<!\w)(rnxi(?!Free|Malloc|GetLibVersion)\w+)\(", rf'check("{family.name}", \1(', code)
    code = re.sub(r'(check\("\w+", rnxi[^;]*)\);', r"\1));", code)
    body = [prepared, *declarations.values(), *code.splitlines()]
    if "status" in plain:
        body.append("(void)status;")
    return f"\nstatic void example{family.name}(void) {{\n" + "\n".join(f"  {line}" for line in body if line) + "\n}\n"


def main():
    table = apigen.load()
    exports = {e.name: e for e in table.exports}
    families = [f for c in table.chapters for f in c.families if "example" in f.raw]
    text = PROGRAM + "".join(function(f, exports) for f in families) + "\nint main(void) {\n"
    text += "".join(f"  example{f.name}();\n" for f in families)
    text += f'  printf("{len(families)} examples, %d calls, %d failures\\n", calls, failures);\n  return failures != 0;\n}}\n'
    Path(sys.argv[1]).write_text(text)


if __name__ == "__main__":
    main()
