#!/usr/bin/env python3
"""Replaces the part of a Markdown file between <!-- NAME:begin --> and
<!-- NAME:end --> with the content of a file (appends the part when the
markers are missing).   mdsection.py FILE NAME CONTENT_FILE"""
import pathlib
import sys


def main():
    target, name, content_file = pathlib.Path(sys.argv[1]), sys.argv[2], pathlib.Path(sys.argv[3])
    begin, end = f"<!-- {name}:begin -->", f"<!-- {name}:end -->"
    block = f"{begin}\n{content_file.read_text().rstrip()}\n{end}"
    text = target.read_text() if target.exists() else ""
    if begin in text and end in text:
        head, rest = text.split(begin, 1)
        _, tail = rest.split(end, 1)
        text = head + block + tail
    else:
        text = text.rstrip() + ("\n\n" if text else "") + block + "\n"
    target.write_text(text)


if __name__ == "__main__":
    main()
