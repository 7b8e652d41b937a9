#!/usr/bin/env python3
"""Checks the compiled help: check_compiled.py CHMCMD CHMLS FILE HELP-FOLDER

The built file is taken apart and compared with its sources; then the compiling is shown to leave
an old file alone where a source is broken."""

import html
import json
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

CODE_PAGE = "cp1251"


def fail(text):
    sys.exit(f"check_compiled: {text}")


def unpack(chmls, file, folder):
    subprocess.run([chmls, "extractall", file, folder], check=True, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL)


def check_pages(source, folder):
    pages = sorted((source / "pages").glob("*.html"))
    for page in pages:
        packed = (folder / "pages" / page.name).read_bytes().decode(CODE_PAGE)
        if "charset=windows-1251" not in packed:
            fail(f"{page.name} does not tell its character set")
        told = html.unescape(packed).replace("charset=windows-1251", "charset=utf-8", 1)
        if told != html.unescape(page.read_text(encoding="utf-8")):
            fail(f"{page.name} differs from its source")
    for picture in sorted((source / "pictures").iterdir()):
        if (folder / "pictures" / picture.name).read_bytes() != picture.read_bytes():
            fail(f"{picture.name} differs from its source")
    if len(pages) < 20:
        fail(f"only {len(pages)} pages")


def listed(path):
    text = path.read_bytes().decode(CODE_PAGE)
    names = [html.unescape(name) for name in re.findall(r'name="Name" value="([^"]*)"', text)]
    return list(zip(names, re.findall(r'name="Local" value="pages/([^"]*)"', text)))


def flat(entries):
    for entry in entries:
        yield entry["title"], entry["page"]
        yield from flat(entry.get("children", []))


def check_lists(source, folder):
    contents = json.loads((source / "contents.json").read_text(encoding="utf-8"))
    if listed(folder / "contents.hhc") != list(flat(contents)):
        fail("the contents differ")
    terms = json.loads((source / "index-terms.json").read_text(encoding="utf-8"))
    expected = [(term, page) for term, pages in terms.items() for page in pages]
    if listed(folder / "index.hhk") != expected:
        fail("the index differs")


def check_failure(chmcmd, chmls, source, folder):
    """A compiler that writes rubbish, and one that fails, leave the old file."""
    shutil.copytree(source, folder / "help")
    target = folder / "old.chm"
    target.write_text("old")
    rubbish = folder / "rubbish"
    rubbish.write_text("#!/bin/sh\necho rubbish > guide.chm\n")
    failing = folder / "failing"
    failing.write_text(f"#!/bin/sh\n'{chmcmd}' \"$@\"\nexit 217\n")
    for compiler in (rubbish, failing):
        compiler.chmod(0o755)
        result = subprocess.run([sys.executable, folder / "help/compile.py", compiler, chmls, target],
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        if result.returncode == 0:
            fail(f"{compiler.name} was not noticed")
        if target.read_text() != "old":
            fail(f"{compiler.name} replaced the old file")
    left = {path.name for path in folder.iterdir()}
    if left != {"help", "old.chm", "rubbish", "failing"}:
        fail(f"left behind: {left}")


def main():
    chmcmd, chmls, file, source = sys.argv[1], sys.argv[2], sys.argv[3], Path(sys.argv[4])
    with tempfile.TemporaryDirectory() as name:
        unpack(chmls, file, name)
        check_pages(source, Path(name))
        check_lists(source, Path(name))
    with tempfile.TemporaryDirectory() as name:
        check_failure(chmcmd, chmls, source, Path(name))
    print("the compiled help has every page, picture and entry")


if __name__ == "__main__":
    main()
