#!/usr/bin/env python3
"""Compiles the guide into one help file: compile.py CHMCMD CHMLS TARGET

The file is made under another name, looked through and only then renamed: the compiler leaves a
broken file behind where it fails."""

import json
import os
import shutil
import subprocess
import sys
import tempfile
from html import escape
from pathlib import Path

ROOT = Path(__file__).resolve().parent
# The help viewer of Windows knows no Unicode in its lists and in its search.
CODE_PAGE = "cp1251"
TITLE = "Трелонит: руководство пользователя"
PROJECT = """[OPTIONS]
Compatibility=1.1 or later
Compiled file=guide.chm
Contents file=contents.hhc
Index file=index.hhk
Default topic=pages/index.html
Default window=main
Full-text search=Yes
Language=0x419
Title={title}

[WINDOWS]
main="{title}","contents.hhc","index.hhk","pages/index.html","pages/index.html",,,,,0x23520,,0x387e,,,,,,,,0

[FILES]
{files}
"""
LIST = """<!DOCTYPE HTML PUBLIC "-//IETF//DTD HTML//EN">
<html>
<head>
<meta http-equiv="Content-Type" content="text/html; charset=windows-1251">
</head>
<body>
{lines}
</body>
</html>
"""


def write(path, text):
    # What the code page lacks (Greek letters, the root sign) stands as a numeric reference.
    path.write_bytes(text.encode(CODE_PAGE, "xmlcharrefreplace"))


def sitemap(title, target):
    return ('<li><object type="text/sitemap">'
            f'<param name="Name" value="{escape(title)}">'
            f'<param name="Local" value="pages/{escape(target)}"></object>')


def contents(entries):
    lines = ["<ul>"]
    for entry in entries:
        lines.append(sitemap(entry["title"], entry["page"]))
        if entry.get("children"):
            lines += contents(entry["children"])
    return lines + ["</ul>"]


def index(terms):
    return ["<ul>"] + [sitemap(term, target) for term, targets in terms.items()
                       for target in targets] + ["</ul>"]


def read_json(name):
    return json.loads((ROOT / name).read_text(encoding="utf-8"))


def lay_out(folder):
    """Writes the sources of the help file and returns their names."""
    (folder / "pages").mkdir()
    names = ["style.css"]
    shutil.copy(ROOT / "style.css", folder)
    for page in sorted((ROOT / "pages").glob("*.html")):
        text = page.read_text(encoding="utf-8")
        if "charset=utf-8" not in text:
            sys.exit(f"{page.name}: does not tell its character set")
        write(folder / "pages" / page.name,
              text.replace("charset=utf-8", "charset=windows-1251", 1))
        names.append(f"pages/{page.name}")
    shutil.copytree(ROOT / "pictures", folder / "pictures")
    names += sorted(f"pictures/{picture.name}" for picture in (ROOT / "pictures").iterdir())
    write(folder / "contents.hhc",
          LIST.format(lines="\n".join(contents(read_json("contents.json")))))
    write(folder / "index.hhk", LIST.format(lines="\n".join(index(read_json("index-terms.json")))))
    write(folder / "guide.hhp", PROJECT.format(title=TITLE, files="\n".join(names)))
    return names


def run(*command, folder):
    result = subprocess.run(command, cwd=folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    text = result.stdout.decode("utf-8", "replace")
    if result.returncode != 0:
        sys.exit(f"{command[0]} ended with {result.returncode}:\n{text}")
    return text


def main():
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    chmcmd, chmls, target = sys.argv[1], sys.argv[2], Path(sys.argv[3]).resolve()
    with tempfile.TemporaryDirectory(dir=target.parent) as name:
        folder = Path(name)
        names = lay_out(folder)
        run(chmcmd, "--no-html-scan", "guide.hhp", folder=folder)
        listed = set(run(chmls, "--name-only", "--no-page", "list", "guide.chm",
                         folder=folder).split())
        missing = [file for file in names if "/" + file not in listed]
        if missing:
            sys.exit(f"the help file lacks {', '.join(missing)}")
        os.chmod(folder / "guide.chm", 0o644)
        os.replace(folder / "guide.chm", target)


if __name__ == "__main__":
    main()
