#!/usr/bin/env python3
"""Writes the documentation as one static site that needs no network.

    site.py OUTPUT --help-text FILE [--pictures FOLDER]     what rnximg --help prints; what scripts/demo made

Pages: the texts of docs/, one per family from the table of exports, a gallery, and an index that a script searches by
the names of functions. Needs python3-markdown.
"""

import argparse
import html
import json
import re
import shutil
from pathlib import Path

import apigen
import figures
import markdown

ROOT = apigen.ROOT
TEXTS = {  # page -> (source, title)
    "index": ("README.md", "Start"),
    "concepts": ("docs/concepts.md", "Concepts"),
    "naming": ("docs/naming.md", "Names"),
    "python": ("docs/python.md", "Python"),
    "performance": ("docs/performance.md", "Performance"),
    "architecture": ("docs/architecture.md", "Architecture"),
    "contributing": ("CONTRIBUTING.md", "Contributing"),
    "changes": ("CHANGELOG.md", "Changes"),
}
NUMBERS = apigen.statuses()

STYLE = """\
:root { --ink: #1d2733; --soft: #5c6b7a; --line: #d9e0e6; --accent: #0b63a5; --paper: #ffffff; --code: #f3f6f8; }
* { box-sizing: border-box; }
body { margin: 0; font: 16px/1.55 system-ui, "DejaVu Sans", sans-serif; color: var(--ink); background: var(--paper); }
header { position: sticky; top: 0; display: flex; flex-wrap: wrap; gap: .4rem 1.1rem; align-items: center;
         padding: .6rem 1.5rem; background: #102a43; color: #fff; z-index: 2; }
header a { color: #d6e6f5; text-decoration: none; }
header a:hover, header a.here { color: #fff; text-decoration: underline; }
header .name { font-weight: 700; color: #fff; }
.search { position: relative; margin-left: auto; }
.search input { width: 19rem; max-width: 60vw; padding: .35rem .6rem; border: 0; border-radius: 4px; font: inherit; }
.search ul { position: absolute; right: 0; margin: .2rem 0 0; padding: .3rem; width: 26rem; max-width: 90vw; list-style: none;
             background: #fff; border: 1px solid var(--line); border-radius: 4px; box-shadow: 0 4px 14px #0003; }
.search ul:empty { display: none; }
.search li a { display: block; padding: .15rem .4rem; color: var(--ink); font-family: monospace; font-size: .9rem; }
main { max-width: 72rem; margin: 0 auto; padding: 1.2rem 1.5rem 4rem; }
h1 { font-size: 1.8rem; line-height: 1.2; } h2 { margin-top: 2.2rem; border-bottom: 1px solid var(--line); }
a { color: var(--accent); }
code, pre { font-family: "DejaVu Sans Mono", monospace; font-size: .88em; background: var(--code); border-radius: 4px; }
code { padding: .1em .3em; } pre { padding: .8rem 1rem; overflow-x: auto; line-height: 1.45; } pre code { padding: 0; font-size: 1em; }
table { border-collapse: collapse; display: block; overflow-x: auto; }
th, td { padding: .3rem .7rem; border: 1px solid var(--line); text-align: left; vertical-align: top; }
th { background: var(--code); }
.brief { font-size: 1.1rem; color: var(--soft); }
.pair { display: grid; grid-template-columns: 1fr 1fr; gap: 1rem; margin: 0 0 2rem; }
.pair figure { margin: 0; } .pair img { display: block; width: 100%; height: auto; border: 1px solid var(--line); }
figcaption { color: var(--soft); font-size: .9rem; }
svg text { font: 12px system-ui, "DejaVu Sans", sans-serif; fill: var(--ink); }
details pre { max-height: 30rem; }
@media (max-width: 45rem) { .pair { grid-template-columns: 1fr; } .search { margin-left: 0; } }
"""

SCRIPT = """\
// Looks for functions whose names hold all the words typed, in any order; the list is in index.js.
(function () {
  var box = document.getElementById("search"), list = document.getElementById("found");
  function find(text) {
    var words = text.toLowerCase().split(/\\s+/).filter(Boolean), found = [];
    if (!words.length) return found;
    for (var i = 0; i < FUNCTIONS.length && found.length < 20; ++i) {
      var name = FUNCTIONS[i][0].toLowerCase();
      if (words.every(function (w) { return name.indexOf(w) >= 0; })) found.push(FUNCTIONS[i]);
    }
    return found;
  }
  function show() {
    list.textContent = "";
    find(box.value).forEach(function (f) {
      var item = document.createElement("li"), link = document.createElement("a");
      link.href = ROOT + f[1];
      link.textContent = f[0];
      item.appendChild(link);
      list.appendChild(item);
    });
  }
  box.addEventListener("input", show);
  box.addEventListener("keydown", function (e) {
    var first = list.querySelector("a");
    if (e.key === "Enter" && first) first.click();
    if (e.key === "Escape") { box.value = ""; show(); }
  });
  var asked = /[?&]q=([^&]*)/.exec(location.search);
  if (asked) { box.value = decodeURIComponent(asked[1]); show(); }
})();
"""


def escape(text):
    return html.escape(text, quote=True)


def page(title, body, here="", depth=0):
    root = "../" * depth
    items = [("index", "Start"), ("concepts", "Concepts"), ("functions", "Functions"), ("gallery", "Gallery"),
             ("performance", "Performance"), ("python", "Python"), ("rnximg", "rnximg")]  # fmt: skip
    links = "\n".join(
        f'<a href="{root}{name}.html"{" class=here" if name == here else ""}>{label}</a>' for name, label in items
    )
    return f"""<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{escape(title)} - rnxIP</title>
<link rel="stylesheet" href="{root}style.css">
</head>
<body>
<header>
<a class="name" href="{root}index.html">rnxIP</a>
{links}
<div class="search"><input id="search" type="search" placeholder="function, e.g. add 8u c3" aria-label="Search functions"
autocomplete="off"><ul id="found"></ul></div>
</header>
<main>
{body}
</main>
<script>var ROOT = "{root}";</script>
<script src="{root}index.js"></script>
<script src="{root}search.js"></script>
</body>
</html>
"""


# ---- The texts ----


def text_page(name, source, title, extra=""):
    text = (ROOT / source).read_text()
    body = markdown.markdown(text, extensions=["tables", "fenced_code", "toc", "sane_lists"])
    return page(title, relink(body, source) + extra, name)


def relink(body, source):
    """Links between files of the repository become links between pages, or lose their target."""
    pages = {(ROOT / path).resolve(): f"{name}.html" for name, (path, _) in TEXTS.items()}
    folder = (ROOT / source).parent

    def replace(match):
        target = match[1]
        if re.match(r"[a-z]+:|#", target):
            return match[0]
        path, _, anchor = target.partition("#")
        resolved = (folder / path).resolve()
        if resolved in pages:
            return f'<a href="{pages[resolved]}{"#" + anchor if anchor else ""}">{match[2]}</a>'
        if not resolved.exists():
            raise SystemExit(f"{source}: {target} does not exist")
        return f"<code>{resolved.relative_to(ROOT)}</code>" if resolved != ROOT else match[2]

    return re.sub(r'<a href="([^"]*)">(.*?)</a>', replace, body, flags=re.DOTALL)


# ---- The families ----


def paragraphs(text):
    """The comments of the table: plain paragraphs, and blocks that are indented."""
    parts, block = [], []
    for line in text.strip("\n").splitlines() + [""]:
        indented = line.startswith("    ")
        if block and (not line.strip() and not block[0].startswith("    ") or line.strip() and indented != block[0].startswith("    ")):
            parts.append(block)
            block = []
        if line.strip() or block:
            block.append(line)
    parts += [block] if block else []
    out = []
    for part in parts:
        while part and not part[-1].strip():
            part.pop()
        if part and part[0].startswith("    "):
            out.append(f"<pre>{escape(chr(10).join(line[4:] for line in part))}</pre>")
        elif part:
            out.append(f"<p>{linked(chr(10).join(part))}</p>")
    return "\n".join(out)


FAMILIES = {}  # name of a family -> its page


def linked(text):
    """Names of families become links."""
    return re.sub(
        r"rnxi([A-Z]\w*)",
        lambda m: f'<a href="{m[1]}.html">{m[0]}</a>' if m[1] in FAMILIES else m[0],
        escape(text),
    )


def family_page(table, chapter, family):
    raw = family.raw
    parts = [f"<h1>rnxi{family.name}</h1>", f'<p class="brief">{linked(raw["brief"])}</p>']
    parts.append(f'<p>{escape(chapter.title)}; {len(family.exports)} functions; '
                 f'<code>#include &lt;rnxip/{family.subsystem}.h&gt;</code></p>')  # fmt: skip
    if "formula" in raw:
        parts += ["<h2>Formula</h2>", f"<pre>{escape(raw['formula'].strip())}</pre>"]
    if "doc" in raw:
        parts += ["<h2>Description</h2>", paragraphs(raw["doc"])]
    if family.roles:
        parts.append("<h2>Arguments</h2>\n<table><tr><th>argument</th><th>meaning</th></tr>")
        for role in family.roles:
            names = dict.fromkeys(p.name for e in family.exports for p in e.parameters if p.role == role)
            parts.append(f"<tr><td><code>{escape(', '.join(names))}</code></td>"
                         f"<td>{linked(table.arguments[role]['doc'])}</td></tr>")  # fmt: skip
        parts.append("</table>")
    checks = list(dict.fromkeys(c for e in family.exports for c in e.checks))
    if checks:
        parts.append("<h2>Checks, in this order</h2>\n<table><tr><th>status</th><th>when</th></tr>")
        for check in checks:
            entry = table.checks[check]
            number = NUMBERS.get(entry["status"])
            parts.append(f"<tr><td><code>{entry['status']}</code> {number:+d}</td><td>{linked(entry['doc'])}</td></tr>")
        parts.append("</table>")
    overlap = [t for t in (raw.get("doc", ""), chapter.doc) if re.search(r"overlap|in place|In place", t)]
    parts.append("<h2>Overlap</h2>")
    said = "Said above" if overlap[:1] == [raw.get("doc", "")] else "Said below, for the whole chapter" if overlap else ""
    parts.append(f'<p>{said + ". In general: " if said else "The general rule: "}'
                 '<a href="../concepts.html#overlap">concepts, overlap</a>.</p>')  # fmt: skip
    others = [f.name for f in apigen.shown_by(chapter, family)]
    if "example" not in raw:
        parts.append(f"<h2>Example</h2>\n<p>In that of {linked(', '.join('rnxi' + name for name in others))}.</p>")
    if "example" in raw:
        parts += ["<h2>Example</h2>", f"<pre><code>{escape(raw['example'].strip())}</code></pre>"]
    parts.append("<h2>Functions</h2>")
    prototypes = [apigen.wrap_prototype(e) for e in family.exports]
    anchors = "\n".join(f'<span id="{e.name}">{escape(p)}</span>' for e, p in zip(family.exports, prototypes))
    parts.append(f"<pre>{anchors}</pre>")
    if chapter.doc:
        parts += [f"<h2>{escape(chapter.title)}: what all of them share</h2>", paragraphs(chapter.doc)]
    return page(f"rnxi{family.name}", "\n".join(parts), "functions", 1)


def functions_page(table):
    parts = ["<h1>Functions</h1>", f"<p>{len(table.exports)} functions in {len(FAMILIES)} families. "
             "The box at the top finds a function by parts of its name.</p>"]  # fmt: skip
    for chapter in table.chapters:
        parts.append(f"<h2>{escape(chapter.title)}</h2>\n<table>")
        for family in chapter.families:
            parts.append(f'<tr><td><a href="families/{family.name}.html">{family.name}</a></td>'
                         f"<td>{len(family.exports)}</td><td>{escape(family.raw['brief'])}</td></tr>")  # fmt: skip
        parts.append("</table>")
    return page("Functions", "\n".join(parts), "functions")


# ---- The gallery ----


def gallery_page(pictures, output):
    parts = ["<h1>Gallery</h1>", "<p>The photograph, before and after, by <code>rnximg</code>. "
             "The lines are those of <code>scripts/demo.list</code>.</p>"]  # fmt: skip
    (output / "pictures").mkdir(exist_ok=True)
    for line in (ROOT / "scripts/demo.list").read_text().splitlines():
        if not line or line.startswith("#"):
            continue
        name, caption, words = line.split("\t")
        source = words.split()[0]
        command = f"rnximg {source} -o {name}.png {' '.join(words.split()[1:])}"
        for picture in (source, f"{name}.png"):
            shutil.copy(pictures / picture, output / "pictures" / picture)
        parts.append(f"""<h2 id="{name}">{escape(caption)}</h2>
<p><code>{escape(command)}</code></p>
<div class="pair">
<figure><img src="pictures/{source}" alt="before" loading="lazy"><figcaption>{source}</figcaption></figure>
<figure><img src="pictures/{name}.png" alt="{escape(caption)}" loading="lazy"><figcaption>{name}.png</figcaption></figure>
</div>""")
    return page("Gallery", "\n".join(parts), "gallery")


# ---- Performance ----


def bar_chart(rows):
    """Horizontal bars: how many times as long each other library takes; the line at 1 is ours."""
    height, left, scale, most = 18, 330, 110, 5.0
    top, width = 24, left + int(most * scale) + 60
    lines = [f'<svg viewBox="0 0 {width} {top + height * len(rows) + 6}" width="{width}" role="img" '
             'xmlns="http://www.w3.org/2000/svg">']  # fmt: skip
    for tick in range(int(most) + 1):
        x = left + tick * scale
        lines.append(f'<line x1="{x}" y1="{top - 6}" x2="{x}" y2="{top + height * len(rows)}" '
                     f'stroke="{"#1d2733" if tick == 1 else "#d9e0e6"}"/><text x="{x - 4}" y="12">{tick}</text>')  # fmt: skip
    for i, (label, ratio) in enumerate(rows):
        y = top + i * height
        colour = "#0b63a5" if ratio >= figures.NOISE else "#c2410c"
        length = min(ratio, most) * scale
        lines.append(f'<text x="{left - 6}" y="{y + 13}" text-anchor="end">{escape(label)}</text>'
                     f'<rect x="{left}" y="{y + 3}" width="{length:.1f}" height="{height - 5}" fill="{colour}"/>'
                     f'<text x="{left + length + 5:.1f}" y="{y + 13}">{ratio:.2f}</text>')  # fmt: skip
    return "\n".join(lines + ["</svg>"])


def charts():
    """One chart per file, contestant and family of bench/results/*.csv."""
    parts = []
    for path in sorted((ROOT / "bench/results").glob("*.csv")):
        table = figures.load(path)
        notes = [line[1:].strip() for line in path.read_text().splitlines() if line.startswith("#")]
        parts.append(f"<h2>Figures: {escape(path.stem)}</h2>" + "".join(f"<p>{escape(n)}</p>" for n in notes))
        sizes = {size for _, size in table}
        peers = sorted({c for cells in table.values() for c in cells} - {"rnx256", figures.FLOOR})
        for peer in peers:
            groups = {}
            for (row, size), cells in table.items():
                if peer in cells:
                    label = row if len(sizes) == 1 else f"{row}, {size}"
                    groups.setdefault(row.split()[0], []).append((label, cells[peer] / cells["rnx256"]))
            if groups:
                name = "our own vectors of 16 bytes" if peer == "rnx128" else figures.PEERS.get(peer, peer)
                parts.append(f"<h3>Time of {escape(name)} over ours</h3>"
                             "<p>Right of the line at 1 ours is faster; bars of another colour are where it is not.</p>")  # fmt: skip
            for family, rows in sorted(groups.items()):
                parts.append(f"<h4>{escape(family)}</h4>\n{bar_chart(rows)}")
    return "\n".join(parts)


def rnximg_page(help_text):
    return page("rnximg", "<h1>rnximg</h1>\n<p>What <code>rnximg --help</code> prints; <code>rnximg --help OPERATION"
                f"</code> says more about an operation.</p>\n<pre>{escape(help_text)}</pre>", "rnximg")  # fmt: skip


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("output", type=Path)
    parser.add_argument("--pictures", type=Path, default=ROOT / "demo")
    parser.add_argument("--help-text", type=Path, required=True, help="what rnximg --help prints")
    options = parser.parse_args()
    table = apigen.load()
    output = options.output
    shutil.rmtree(output, ignore_errors=True)
    (output / "families").mkdir(parents=True)

    FAMILIES.update({f.name: f"{f.name}.html" for c in table.chapters for f in c.families})
    write = lambda name, text: (output / name).write_text(text)  # noqa: E731
    for name, (source, title) in TEXTS.items():
        write(f"{name}.html", text_page(name, source, title, charts() if name == "performance" else ""))
    for chapter in table.chapters:
        for family in chapter.families:
            write(f"families/{family.name}.html", family_page(table, chapter, family))
    write("functions.html", functions_page(table))
    write("gallery.html", gallery_page(options.pictures, output))
    write("rnximg.html", rnximg_page(options.help_text.read_text()))
    write("style.css", STYLE)
    write("search.js", SCRIPT)
    index = [[e.name, f"families/{e.family.name}.html#{e.name}"] for e in table.exports]
    write("index.js", f"var FUNCTIONS = {json.dumps(index, separators=(',', ':'))};\n")
    print(f"{len(list(output.rglob('*.html')))} pages in {output}")


if __name__ == "__main__":
    main()
