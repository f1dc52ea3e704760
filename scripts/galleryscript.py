#!/usr/bin/env python3
"""The gallery's two steps.

expand GALLERY.ui OUT.ui: the script with its includes written out, every
`shot NAME.png` of an included script renamed SCRIPT-NAME.png.
index DRIVER.log... OUT.html: the index page of the pictures, in the order they
were taken (the driver's `shot FILE` lines of each log in turn), under the
script they came from.
"""
import html
import os
import sys

MAX_DEPTH = 8


def expand(path, depth, lines):
    if depth > MAX_DEPTH:
        sys.exit(f"gallery: includes nest deeper than {MAX_DEPTH} at {path}")
    stem = os.path.splitext(os.path.basename(path))[0]
    here = os.path.dirname(os.path.abspath(path))
    for raw in open(path, encoding="utf-8"):
        line = raw.strip()
        if line.startswith("include "):
            expand(os.path.join(here, line[len("include "):].strip()), depth + 1, lines)
        elif line.startswith("shot "):
            lines.append(f"shot {stem}-{os.path.basename(line[5:].strip())}")
        elif line and not line.startswith("#"):
            lines.append(line)


def index(logs, out):
    shots = []
    for log in logs:
        for line in open(log, encoding="utf-8", errors="replace"):
            if line.startswith("shot "):
                name = os.path.basename(line[5:].strip())
                if name not in shots:
                    shots.append(name)
    # by the script they came from (the stem up to its first dash), in the order taken
    groups = {}
    for name in shots:
        groups.setdefault(name.split("-", 1)[0], []).append(name)
    body = []
    for group, names in groups.items():
        body.append(f"<h2>{html.escape(group)}</h2><div class=\"row\">")
        for n in names:
            e = html.escape(n)
            body.append(f"<figure><a href=\"{e}\"><img src=\"{e}\" width=\"320\" height=\"240\" alt=\"{e}\"></a>"
                        f"<figcaption>{e}</figcaption></figure>")
        body.append("</div>")
    with open(out, "w", encoding="utf-8") as f:
        f.write("<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>Kestrum screens</title>\n"
                "<style>body{font-family:sans-serif}.row{display:flex;flex-wrap:wrap}"
                "figure{margin:6px}img{border:1px solid #ccc}</style></head><body>\n"
                f"<h1>Kestrum screens ({len(shots)} pictures)</h1>\n" + "\n".join(body) + "\n</body></html>\n")


def main():
    if len(sys.argv) < 4 or sys.argv[1] not in ("expand", "index") or (sys.argv[1] == "expand" and len(sys.argv) != 4):
        sys.exit("usage: galleryscript.py expand GALLERY.ui OUT.ui | index DRIVER.log... OUT.html")
    if sys.argv[1] == "expand":
        lines = []
        expand(sys.argv[2], 0, lines)
        open(sys.argv[3], "w", encoding="utf-8").write("\n".join(lines) + "\n")
    else:
        index(sys.argv[2:-1], sys.argv[-1])


if __name__ == "__main__":
    main()
