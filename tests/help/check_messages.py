#!/usr/bin/env python3
"""Checks that the guide tells every message: check_messages.py ROOT

The texts are collected from the sources, so that a new message without its place in the guide is
found. What a message puts together at run time is sought piece by piece."""

import ast
import html
import re
import sys
from pathlib import Path

FOLDERS = ["opinion", "workstation", "variants", "checks", "catalogue", "editor", "drawing", "windows", "apps", "platform"]
LITERALS = re.compile(r'(?:"(?:[^"\\]|\\.)*"\s*)+')
# A message's record, the boxes of the windows, the common tail with the handler's name.
PLACES = [re.compile(r"\.(?:Text|Title)\s*="), re.compile(r"QMessageBox::\w+\("),
          re.compile(r"\bGuard\(")]
FEWEST_TEXTS = 60


def plain(text):
    return " ".join(text.split())


def guide(root):
    pages = []
    for page in sorted((root / "help/pages").glob("*.html")):
        text = re.sub(r"(?s)<head>.*?</head>", "", page.read_text(encoding="utf-8"))
        # A break of a line is a blank; a mark of a letter's look is nothing.
        text = re.sub(r"<(?:br|/?p|/?td|/?h\d|/?li)\b[^>]*>", " ", text)
        pages.append(html.unescape(re.sub(r"<[^>]+>", "", text)))
    return plain(" ".join(pages))


def expression(source, start):
    """From start to the comma, bracket or semicolon that ends the expression."""
    depth, place, quoted = 0, start, False
    while place < len(source):
        letter = source[place]
        if quoted:
            if letter == "\\":
                place += 1
            quoted = letter != '"'
        elif letter == '"':
            quoted = True
        elif letter in "([{":
            depth += 1
        elif letter in ")]}":
            depth -= 1
        if not quoted and (depth < 0 or (depth == 0 and letter in ",;")):
            break
        place += 1
    return source[start:place]


def literals(text):
    for run in LITERALS.findall(text):
        joined = "".join(ast.literal_eval(piece) for piece in re.findall(r'"(?:[^"\\]|\\.)*"', run))
        yield plain(joined)


def texts(source):
    for pattern in PLACES:
        for found in pattern.finditer(source):
            if pattern.pattern.startswith(r"\."):
                yield from literals(expression(source, found.end()))
            else:
                # The arguments, without the lambda that follows them.
                arguments = source[found.end():found.end() + 600].split("[", 1)[0]
                yield from literals(arguments.split(";", 1)[0])


def main():
    root = Path(sys.argv[1])
    told = guide(root)
    wanted, missing = set(), set()
    for folder in FOLDERS:
        for path in sorted((root / folder).rglob("*.cpp")):
            source = re.sub(r"//[^\n]*", "", path.read_text(encoding="utf-8"))
            for text in texts(source):
                if len(re.findall(r"\w", text)) < 3:
                    continue
                wanted.add(text)
                if text not in told:
                    missing.add(f"{path.relative_to(root)}: {text}")
    for line in sorted(missing):
        print(line)
    if len(wanted) < FEWEST_TEXTS:
        print(f"only {len(wanted)} texts found: the sources are not read as they should")
        return 1
    if not missing:
        print(f"{len(wanted)} texts of messages stand in the guide")
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main())
