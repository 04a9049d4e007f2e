#!/usr/bin/env python3
"""Expands the table of exports in api/ into everything that has to list them.

    apigen.py                    write the committed files: include/rnxip.h, include/rnxip/*.h and abi/exports.txt
    apigen.py --check            fail when a committed file is stale
    apigen.py --generate DIR     write the lists that the build includes into DIR
    apigen.py --where NAME       say which row of the table makes an export
    apigen.py --count            exports per family
    apigen.py --json             the whole table, for other tools

It writes names, types and lists, never arithmetic. Standard library only.
"""

import argparse
import itertools
import json
import re
import sys
import textwrap
import tomllib
from dataclasses import dataclass, field
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
API = ROOT / "api"
LAYOUT_CHANNELS = {"C1": 1, "C2": 2, "C3": 3, "C4": 4, "AC4": 4}
# tag: (public type, type inside the library, bytes)
ELEMENTS = {
    "1u": ("Rnx8u", "u8", 1),  # one-bit images are addressed by the byte
    "8u": ("Rnx8u", "u8", 1),
    "8s": ("Rnx8s", "s8", 1),
    "16u": ("Rnx16u", "u16", 2),
    "16s": ("Rnx16s", "s16", 2),
    "32u": ("Rnx32u", "u32", 4),
    "32s": ("Rnx32s", "s32", 4),
    "32f": ("Rnx32f", "f32", 4),
    "64f": ("Rnx64f", "f64", 8),
    "32sc": ("Rnx32sc", "sc32", 8),
    "32fc": ("Rnx32fc", "fc32", 8),
}
TAG = re.compile("|".join(sorted(ELEMENTS, key=len, reverse=True)))


class Mistake(Exception):
    """A row of the table that cannot be expanded."""


@dataclass
class Parameter:
    type: str  # "const Rnx8u*"
    name: str  # "pSrc"
    role: str  # "src"
    array: str = ""  # "[3]" where the prototype shows an array

    def prototype(self):
        c_type = self.type.removesuffix("*") if self.array else self.type
        return f"{c_type} {self.name}{self.array}"


@dataclass
class Export:
    name: str
    family: "Family"
    returns: str
    parameters: list
    implementation: str
    checks: list
    types: str
    layout: str
    form: str
    is_long: bool
    where: str
    slot_returns: str  # return type of the implementation, where several exports share one

    def prototype(self):
        inside = ", ".join(p.prototype() for p in self.parameters) or "void"
        return f"{self.returns} {self.name}({inside})"

    def signature(self):
        """The prototype without parameter names: what an ABI is made of."""
        return f"{self.returns} {self.name}({', '.join(p.type for p in self.parameters)})"


@dataclass
class Family:
    subsystem: str
    chapter: str  # title of the file that declares it
    name: str
    raw: dict
    file: str
    exports: list = field(default_factory=list)
    roles: list = field(default_factory=list)  # in order of first appearance


@dataclass
class Chapter:
    subsystem: str
    title: str
    doc: str
    includes: list  # headers of src/ that declare the operations
    families: list


# ---- Reading the table ----


def parse(path):
    try:
        return tomllib.loads(path.read_text())
    except tomllib.TOMLDecodeError as error:
        raise Mistake(f"api/{path.name}: {error}") from None


def require(entry, keys, where):
    for key in keys.split():
        if key not in entry:
            raise Mistake(f"{where}: '{key}' is missing")


class Placeholders(dict):
    """What fills the {...} of a text of the table."""

    def __init__(self, where, values):
        super().__init__(values)
        self.where = where

    def __missing__(self, name):
        raise Mistake(f"{self.where}: unknown placeholder {{{name}}}")


def load():
    arguments = parse(API / "arguments.toml")
    checks = parse(API / "checks.toml")
    chapters = []
    for path in sorted(API.glob("*.toml")):
        if path.stem in ("arguments", "checks"):
            continue
        table = parse(path)
        require(table, "subsystem title include family", f"api/{path.name}")
        # A file may add arguments and checks of its own.
        for shared, own in ((arguments, "argument"), (checks, "check")):
            for name, entry in table.get(own, {}).items():
                if shared.setdefault(name, entry) is not entry:
                    raise Mistake(f"api/{path.name}: {own} '{name}' is declared twice")
        chapter = Chapter(table["subsystem"], table["title"], table.get("doc", ""), table["include"], [])
        for raw in table["family"]:
            require(raw, "name brief", f"api/{path.name}: family {raw.get('name', '?')}")
            family = Family(chapter.subsystem, chapter.title, raw["name"], raw, f"api/{path.name}")
            expand_family(family, table.get("shape", {}), arguments, checks)
            chapter.families.append(family)
        chapters.append(chapter)
    exports = sorted((e for c in chapters for f in c.families for e in f.exports), key=lambda e: e.name.encode())
    for one, other in itertools.pairwise(exports):
        if one.name == other.name:
            raise Mistake(f"{one.name} is declared twice: {one.where} and {other.where}")
    return Table(arguments, checks, chapters, exports)


@dataclass
class Table:
    arguments: dict
    checks: dict
    chapters: list
    exports: list


def expand_family(family, shapes, arguments, checks):
    raw = family.raw
    narrowed = {key: raw[key] for key in ("types", "layouts") if key in raw}  # of the shapes, by the family
    require(shapes, raw.get("shapes", ""), f"{family.file}: family {family.name}, shapes")
    grids = [(f"shape {name}", shapes[name] | narrowed) for name in raw.get("shapes", "").split()]
    grids += [(f"grid {i + 1}", grid) for i, grid in enumerate(raw.get("grid", []))]
    if not grids:
        raise Mistake(f"{family.file}: family {family.name} has neither shapes nor grid")
    for label, grid in grids:
        where = f"{family.file}: family {family.name}, {label}"
        # A grid without forms is a single form whose name adds nothing.
        forms = grid.get("forms") or {"plain": {key: grid[key] for key in ("args", "impl") if key in grid}}
        for types in grid.get("types", "-").split():
            for layout in grid.get("layouts", "-").split():
                for form_name, form in forms.items():
                    require(form, "args impl", where)
                    for is_long in lengths(grid, form):
                        row = Row(family, grid, form, types, layout, form_name, is_long, where)
                        family.exports.append(row.export(arguments, checks))


def lengths(grid, form):
    """Which of the plain and the _L form a row makes. `long` holds the implementation of the _L form, `only = "long"`
    leaves the plain one out."""
    has_long = "long" in form or "long" in grid
    if form.get("only", grid.get("only")) == "long":
        return [True]
    return [False, True] if has_long else [False]


@dataclass
class Row:
    """One export in the making."""

    family: Family
    grid: dict
    form: dict
    types: str
    layout: str
    form_name: str
    is_long: bool
    where: str

    def export(self, arguments, checks):
        layout = "" if self.layout == "-" else self.layout
        types = "" if self.types == "-" else self.types
        form = "" if self.form_name == "plain" else self.form_name
        parts = [f"rnxi{self.family.name}", types, layout + form, "L" if self.is_long else ""]
        name = "_".join(part for part in parts if part)
        tags = TAG.findall(types)
        if "".join(tags) != types:
            raise Mistake(f"{self.where}: unknown element type in '{types}'")
        public, internal = self.placeholders(tags, layout)

        parameters = []
        for role in self.form["args"].split():
            parameters += self.expand_role(role, arguments, layout, public)
            if role not in self.family.roles:
                self.family.roles.append(role)

        implementation = self.form["impl"].format_map(internal)
        if self.is_long:
            long = self.form.get("long", self.grid.get("long"))
            implementation = long.format_map(Placeholders(self.where, internal | {"impl": implementation}))
        listed = self.form.get("checks", self.grid.get("checks", self.family.raw.get("checks", ""))).split()
        for check in listed:
            if check not in checks:
                raise Mistake(f"{self.where}: unknown check '{check}'")
        returns = self.form.get("returns", self.grid.get("returns", "RnxStatus")).format_map(public)
        slot_returns = self.grid.get("slot_returns", returns)
        return Export(
            name, self.family, returns, parameters, implementation, listed, types, layout, form, self.is_long, self.where,
            slot_returns,
        )  # fmt: skip

    def placeholders(self, tags, layout):
        source, destination = (tags[0], tags[-1]) if tags else (None, None)
        channels = LAYOUT_CHANNELS.get(layout, 0)
        both = {"n": str(channels), "step": "Rnx64s" if self.is_long else "int", "L": layout}
        public, internal = dict(both), dict(both)
        if tags:
            public |= {"T": ELEMENTS[source][0], "D": ELEMENTS[destination][0]}
            internal |= {
                "T": ELEMENTS[source][1],
                "D": ELEMENTS[destination][1],
                "pixelbytes": str(ELEMENTS[source][2] * channels),
            }
        if "op" in self.family.raw:
            internal["Op"] = self.family.raw["op"]
        return Placeholders(self.where, public), Placeholders(self.where, internal)

    def expand_role(self, role, arguments, layout, public):
        if role not in arguments:
            raise Mistake(f"{self.where}: unknown argument '{role}'")
        entry = arguments[role]
        text = entry.get("long") if self.is_long and "long" in entry else entry["params"]
        if isinstance(text, dict):
            if layout not in text:
                raise Mistake(f"{self.where}: argument '{role}' has no form for layout {layout}")
            text = text[layout]
        for parameter in text.format_map(Placeholders(f"{self.where}, argument '{role}'", public)).split(","):
            match = re.fullmatch(r"(.*?[ *])(\w+)((?:\[\d*\])?)", parameter.strip())
            if not match:
                raise Mistake(f"{self.where}, argument '{role}': cannot read '{parameter}'")
            c_type, name, array = match[1].strip(), match[2], match[3]
            yield Parameter(c_type + ("*" if array else ""), name, role, array)


# ---- Writing ----

HEADER = """\
/* {title}.
   Written by tools/apigen.py from the table of exports in api/: change it there. */
#ifndef RNXIP_{guard}_H
#define RNXIP_{guard}_H

#include "rnxip/types.h"

#ifdef __cplusplus
extern "C" {{
#endif
{body}
#ifdef __cplusplus
}}
#endif

#endif
"""


UMBRELLA = """\
/* rnxIP: two-dimensional image-processing primitives. This header brings in the whole interface; C11 and C++.
   Written by tools/apigen.py. */
#ifndef RNXIP_H
#define RNXIP_H

#include "rnxip/types.h"

{includes}

#endif
"""


def umbrella(table):
    return UMBRELLA.format(includes="\n".join(f'#include "rnxip/{s}.h"' for s in subsystems(table)))


def header(table, subsystem):
    chapters = [c for c in table.chapters if c.subsystem == subsystem]
    body = []
    for chapter in chapters:
        body.append(banner(chapter))
        body += [family_section(table, chapter, family) for family in chapter.families]
    title = "; ".join(c.title for c in chapters)
    return HEADER.format(title=title, guard=subsystem.upper(), body="\n".join(body))


def banner(chapter):
    lines = [chapter.title, "=" * len(chapter.title)]
    if chapter.doc:
        lines += ["", *chapter.doc.strip().splitlines()]
    return "\n" + comment(lines)


def shown_by(chapter, family):
    """The families of the chapter whose examples call this one."""
    call = re.compile(rf"rnxi{family.name}(_|\b)")
    return [f for f in chapter.families if call.search(f.raw.get("example", ""))]


def family_section(table, chapter, family):
    raw = family.raw
    lines = [f"rnxi{family.name}: {raw['brief']}"]
    if "formula" in raw:
        lines += ["", *("    " + line for line in raw["formula"].strip().splitlines())]
    if "doc" in raw:
        lines += ["", *raw["doc"].strip().splitlines()]
    if family.roles:
        lines += ["", "Arguments"]
        for role in family.roles:
            names = dict.fromkeys(p.name for e in family.exports for p in e.parameters if p.role == role)
            lines += definition(", ".join(names), table.arguments[role]["doc"])
    checks = list(dict.fromkeys(c for e in family.exports for c in e.checks))
    if checks:
        lines += ["", "Checks, in this order"]
        for check in checks:
            lines += definition(table.checks[check]["status"], table.checks[check]["doc"])
    if "example" in raw:
        lines += ["", "Example", *("    " + line for line in raw["example"].strip().splitlines())]
    else:
        others = ", ".join(f"rnxi{f.name}" for f in shown_by(chapter, family))
        if not others:
            raise Mistake(f"api/{family.file}: family {family.name} has no example, and no other one calls it")
        lines += ["", f"Example: that of {others}"]
    return comment(lines) + "\n" + "\n".join(wrap_prototype(e) for e in family.exports) + "\n"


def definition(term, text):
    return textwrap.wrap(f"{term}: {text}", 112, initial_indent="  ", subsequent_indent="      ")


def comment(lines):
    # An example may hold a comment of its own: its closing mark may not end ours.
    text = "\n".join(("   " + line).rstrip() for line in lines).lstrip()
    return "/* " + text.replace("/*", "//").replace(" */", "") + " */\n"


def wrap_prototype(export):
    """One line, or lines that break between parameters."""
    lines = [""]
    for piece in (export.prototype() + ";").replace(", ", ",\0").split("\0"):
        if len(lines[-1]) + 1 + len(piece) > 120:
            lines.append("    " + piece)
        else:
            lines[-1] += (" " if lines[-1] else "") + piece
    return "\n".join(lines)


def committed_files(table):
    files = {ROOT / "include/rnxip" / f"{s}.h": header(table, s) for s in subsystems(table)}
    files[ROOT / "include/rnxip.h"] = umbrella(table)
    files[ROOT / "abi/exports.txt"] = "".join(e.signature() + "\n" for e in table.exports)
    return files


def subsystems(table):
    return sorted({c.subsystem for c in table.chapters})


GENERATED = "// Written by tools/apigen.py from the table of exports in api/.\n"


def build_files(table):
    exports = table.exports
    files = {
        "dispatch_includes.inc": "".join(f'#include "{i}"\n' for i in sorted({i for c in table.chapters for i in c.includes})),
        "dispatch_fields.inc": "".join(slot_field(e) for e in exports),
        "dispatch_values.inc": "".join(f".{e.name} = {e.implementation},\n" for e in exports),
        "entries.inc": "".join(f"entry {e.name}, {i}\n" for i, e in enumerate(exports)),
        "signatures.inc": "".join(signature_entry(e) for e in exports),
    }
    files = {name: (GENERATED if name != "entries.inc" else "") + text for name, text in files.items()}
    files["table.json"] = json.dumps({"statuses": statuses(), "exports": as_json(table)}, separators=(",", ":"))
    names = "".join(f"    {e.name};\n" for e in exports)
    files["exports.map"] = f"{{\n  global:\n{names}  local: *;\n}};\n"
    return files


def statuses():
    """Names and numbers, from the header that declares them."""
    text = (ROOT / "include/rnxip/types.h").read_text()
    return {name: int(number) for name, number in re.findall(r"^ *(rnxStatus\w+) = (-?\d+)", text, re.MULTILINE)}


def slot_field(e):
    if e.slot_returns == e.returns:
        return f"decltype(&::{e.name}) {e.name};\n"
    return f"{e.slot_returns} (*{e.name})({', '.join(p.type for p in e.parameters)});\n"


def signature_entry(e):
    parameters = ", ".join(f'{{"{p.type}", "{p.name}", "{p.role}"}}' for p in e.parameters)
    return (
        f'{{"{e.name}", reinterpret_cast<void (*)()>(&::{e.name}), "{e.family.subsystem}", "{e.family.name}", "{e.types}", '
        f'"{e.layout}", "{e.form}", {str(e.is_long).lower()}, "{e.returns}", "{" ".join(e.checks)}", {{{parameters}}}}},\n'
    )


def as_json(table):
    return [
        {
            "name": e.name,
            "subsystem": e.family.subsystem,
            "family": e.family.name,
            "types": e.types,
            "layout": e.layout,
            "form": e.form,
            "long": e.is_long,
            "returns": e.returns,
            "checks": e.checks,
            "parameters": [{"type": p.type, "name": p.name, "role": p.role} for p in e.parameters],
        }
        for e in table.exports
    ]


def write_if_changed(path, text):
    if not path.exists() or path.read_text() != text:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)


def stale(files):
    return [p for p, text in files.items() if not p.exists() or p.read_text() != text]


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--check", action="store_true", help="fail when a committed file is stale")
    parser.add_argument("--generate", metavar="DIR", type=Path, help="write the lists of the build into DIR")
    parser.add_argument("--where", metavar="NAME", help="say which row makes an export")
    parser.add_argument("--count", action="store_true", help="exports per family")
    parser.add_argument("--json", action="store_true", help="print the whole table")
    options = parser.parse_args()
    table = load()

    if options.where:
        found = [e for e in table.exports if e.name == options.where]
        for e in found:
            print(f"{e.where}\n{e.prototype()};\n-> {e.implementation}")
        return 0 if found else 1
    if options.count:
        for family in (f for c in table.chapters for f in c.families):
            print(f"{len(family.exports):5}  {family.name}")
        print(f"{len(table.exports):5}  in all")
        return 0
    if options.json:
        json.dump(as_json(table), sys.stdout, indent=1)
        return 0
    if options.generate:
        for name, text in build_files(table).items():
            write_if_changed(options.generate / name, text)
    if options.check:
        bad = stale(committed_files(table))
        for path in bad:
            print(f"{path.relative_to(ROOT)} is stale: run tools/apigen.py", file=sys.stderr)
        return 1 if bad else 0
    if not options.generate:
        for path, text in committed_files(table).items():
            write_if_changed(path, text)
    return 0


if __name__ == "__main__":
    try:
        sys.exit(main())
    except Mistake as mistake:
        sys.exit(f"apigen: {mistake}")
