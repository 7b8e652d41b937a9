"""How a build compiles each of its sources, also where it compiles them in batches."""

import json
import re
import shlex
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
BATCH_MEMBER = re.compile(r'^#include "([^"]+)"', re.MULTILINE)


def members(file):
    """The sources that a compiled file is made of: those of a batch, or itself."""
    if "Unity" not in file.parts:
        return [file]
    return [Path(name) for name in BATCH_MEMBER.findall(file.read_text(encoding="utf-8"))]


def plain(command):
    """The compiler and its options, without launcher, files and precompiled headers."""
    words = shlex.split(command)
    while words and Path(words[0]).name == "ccache":
        words.pop(0)
    kept = []
    rest = iter(words)
    for word in rest:
        if word in ("-o", "-c", "-MF", "-MT"):
            next(rest)
        elif word == "-Xclang":
            # Clang's way to a precompiled header: -Xclang -include-pch -Xclang FILE ...
            next(rest)
        elif word == "-include":
            header = next(rest)
            if "cmake_pch" not in header:
                kept += [word, header]
        elif word not in ("-MD", "-Winvalid-pch"):
            kept.append(word)
    return kept


def files_of(build):
    """(file, its sources relative to the root, compiler with options) as the build compiles them."""
    build = Path(build).resolve()
    database = json.loads((build / "compile_commands.json").read_text(encoding="utf-8"))
    for entry in database:
        file = Path(entry["directory"], entry["file"]).resolve()
        sources = [source.relative_to(ROOT).as_posix() for source in map(Path.resolve, members(file))
                   if source.is_relative_to(ROOT) and not source.is_relative_to(build)]
        if sources:
            yield file, sources, plain(entry["command"])


def sources_of(build):
    """(source relative to the root, compiler with options) of a build folder, sorted."""
    found = {}
    for _, sources, command in files_of(build):
        for source in sources:
            found.setdefault(source, command)
    return sorted(found.items())


def below(folders, jobs):
    """Those of the (name, ...) jobs whose file is in one of the folders; all without folders."""
    prefixes = tuple(folder.rstrip("/") + "/" for folder in folders) or ("",)
    return [job for job in jobs if job[0].startswith(prefixes)]
