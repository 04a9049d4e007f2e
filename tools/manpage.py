#!/usr/bin/env python3
"""Writes the manual page of rnximg from what its --help prints.

    manpage.py PROGRAM OUTPUT
"""

import re
import subprocess
import sys
from pathlib import Path


def ask(program, *words):
    return subprocess.run([program, *words], capture_output=True, text=True, check=True).stdout


def roff(text):
    """Text as roff takes it: no line may begin with a control character."""
    lines = text.replace("\\", "\\e").replace("-", "\\-").splitlines()
    return "\n".join("\\&" + line if line.startswith((".", "'")) else line for line in lines)


def section(title, text):
    return f".SH {title}\n{text}\n"


def operations(program, text):
    """The families and their operations, each with its own help."""
    parts = []
    for line in text.splitlines():
        entry = re.match(r"  (\S+)", line)
        if entry:
            usage, _, description = ask(program, "--help", entry[1]).partition("\n\n")
            synopsis = re.split(r"-o OUTPUT\]? ", usage, maxsplit=1)[1]
            brief, _, details = description.partition("\n")
            parts.append(f".TP\n.B {roff(synopsis)}\n{roff(brief)}")
            if details.strip():  # as it was laid out
                parts.append(f".nf\n{roff(details.rstrip())}\n.fi")
        elif line:
            parts.append(f".SS {roff(line)}")
    return "\n".join(parts)


def main():
    program, output = sys.argv[1:]
    version = ask(program, "--version").split()[-2]
    head, _, rest = ask(program, "--help").partition("\nusage: ")
    usage, _, rest = rest.partition("\n\n")
    description, _, rest = rest.partition("\n\n")
    options, _, rest = rest.partition("\n\n")
    status, _, rest = rest.partition("\n\n")
    example, _, families = rest.partition("\n\n")
    name, brief = head.strip().split(": ", 1)
    page = f'.TH RNXIMG 1 "" "rnxIP {version}" "User Commands"\n'
    page += section("NAME", f"{name} \\- {roff(brief)}")
    page += section("SYNOPSIS", ".nf\n" + roff(re.sub(r"^ +", "", usage, flags=re.MULTILINE)) + "\n.fi")
    page += section("DESCRIPTION", roff(description))
    listed = re.findall(r"^  (-\S+(?: [A-Z]+)?) +(.*)$", options, re.MULTILINE)
    page += section("OPTIONS", "\n".join(f".TP\n.B {roff(option)}\n{roff(text)}" for option, text in listed))
    page += section("OPERATIONS", operations(program, families))
    page += section("EXIT STATUS", roff(status.removeprefix("Exit status: ")))
    page += section("EXAMPLE", ".nf\n" + roff(example.removeprefix("Example: ")) + "\n.fi")
    Path(output).write_text(page)


if __name__ == "__main__":
    main()
