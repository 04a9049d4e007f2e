#!/usr/bin/env python3
"""Fills the tables of docs/performance.md with the figures of bench/results/all.csv.

Usage: figures.py [--check]

A table stands between two comments; what lies between them is written anew. REGEX selects rows.

    <!-- figures REGEX -->          a row of the benchmark per line, a column per image size
    <!-- figures-by-size REGEX -->  a row and a size per line, a column per other library
    <!-- behind REGEX -->           how many comparisons there are, and those where another library is ahead
    <!-- end -->
"""

import argparse
import csv
import math
import re
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
CSV = ROOT / "bench/results/all.csv"
PAGE = ROOT / "docs/performance.md"
OURS, FLOOR = {"rnx256", "rnx128"}, "floor"
NOISE = 0.97  # what is above is no difference
SIZES = ["64x64", "640x480", "1920x1080", "3840x2160"]
PEERS = {"opencv": "OpenCV", "libyuv": "libyuv", "fftw-estimate": "FFTW estimate", "fftw-measure": "FFTW measure"}


def load(path):
    """(row, size) -> contestant -> ns."""
    figures = {}
    with path.open(newline="") as file:
        for line in csv.DictReader(line for line in file if not line.startswith("#")):
            figures.setdefault((line["row"], line["size"]), {})[line["contestant"]] = float(line["ns"])
    return {key: cells for key, cells in figures.items() if "rnx256" in cells}


def selected(figures, regex):
    return {key: cells for key, cells in figures.items() if re.search(regex, key[0])}


def pixels(size):
    width, height = size.split("x")
    return int(width) * int(height)


def per_pixel(size, cells):
    """With the wide vectors, and with those of 16 bytes."""
    return f"{cells['rnx256'] / pixels(size):.3g} ({cells['rnx128'] / pixels(size):.3g})"


def peers(cells):
    """Other libraries with their time over ours."""
    return {who: ns / cells["rnx256"] for who, ns in cells.items() if who not in OURS and who != FLOOR}


def order(size):
    return SIZES.index(size) if size in SIZES else len(SIZES) + pixels(size)


def table(head, lines):
    return ["| " + " | ".join(line) + " |" for line in (head, ["---"] * len(head), *lines)]


def by_row(figures):
    sizes = sorted({size for _, size in figures if size != "1x1"}, key=order)

    def cell(row, size):
        cells = figures.get((row, size))
        if not cells:
            return ""
        best = min(peers(cells).values(), default=None)
        floor = f"{cells[FLOOR] / cells['rnx256']:.2f}" if FLOOR in cells else "-"
        return f"{per_pixel(size, cells)}; {f'{best:.2f}' if best else '-'}; {floor}"

    rows = sorted({row for row, size in figures if size in sizes})
    return table(["row", *sizes], [[row, *(cell(row, size) for size in sizes)] for row in rows])


def gigaflops(row, size, cells):
    """By the usual count of a transform: 5 N log2 N operations, half of that for real images."""
    n = pixels(size)
    return f"{(2.5 if '32f ' in row else 5) * n * math.log2(n) / cells['rnx256']:.1f}"


def by_size(figures):
    names = sorted({who for cells in figures.values() for who in peers(cells)})
    transforms = all(row.startswith("DFT") for row, _ in figures)
    lines = []
    for (row, size), cells in sorted(figures.items(), key=lambda item: (item[0][0], order(item[0][1]))):
        ratios = peers(cells)
        own = [per_pixel(size, cells), *([gigaflops(row, size, cells)] if transforms else [])]
        lines.append([row, size, *own, *(f"{ratios[n]:.2f}" if n in ratios else "" for n in names)])
    head = ["row", "size", "ns per pixel", *(["GFLOP/s"] if transforms else [])]
    return table([*head, *(PEERS.get(n, n) for n in names)], lines)


def behind(figures):
    all_ratios = [(ratio, row, size, who) for (row, size), cells in figures.items() for who, ratio in peers(cells).items()]
    slower = sorted(entry for entry in all_ratios if entry[0] < NOISE)
    mean = math.exp(sum(math.log(entry[0]) for entry in all_ratios) / len(all_ratios))
    text = [f"{len(all_ratios)} comparisons, geometric mean {mean:.2f}, {len(slower)} below {NOISE}"]
    if not slower:
        return [text[0] + "."]
    lines = [[row, size, PEERS.get(who, who), f"{ratio:.2f}"] for ratio, row, size, who in slower]
    return [text[0] + ":", "", *table(["row", "size", "library", "its time over ours"], lines)]


KINDS = {"figures": by_row, "figures-by-size": by_size, "behind": behind}


def filled(page, figures):
    def fill(match):
        chosen = selected(figures, match["regex"])
        if not chosen:
            sys.exit(f"no figures for {match['regex']}")
        return "\n".join([match["begin"], "", *KINDS[match["kind"]](chosen), "", "<!-- end -->"])

    marks = r"(?P<begin><!-- (?P<kind>figures|figures-by-size|behind) (?P<regex>.*?) -->)\n.*?<!-- end -->"
    return re.sub(marks, fill, page, flags=re.DOTALL)


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--check", action="store_true", help="fail where the page does not have these figures")
    options = parser.parse_args()
    page = PAGE.read_text()
    text = filled(page, load(CSV))
    if options.check:
        sys.exit("docs/performance.md is stale: run tools/figures.py" if text != page else 0)
    PAGE.write_text(text)


if __name__ == "__main__":
    main()
