"""The copy of the program in which all mutants stand, below build/mutate."""

import contextlib
import hashlib
import json
import os
import re
import shlex
import subprocess
import sys
from pathlib import Path

from . import schemata
from .table import mutants_of

ROOT = Path(__file__).resolve().parent.parent.parent
WORK = ROOT / "build" / "mutate"
PLAIN = WORK / "plain"
COPY = WORK / "src"
BUILD = WORK / "build"
FOLDERS = ["platform", "analysis", "catalogue", "checks", "opinion", "workstation", "editor",
           "drawing"]
# A changed number may leave what the source may narrow, and a changed place the end of a vector.
FLAGS = "-O1 -w -fpermissive -Wno-narrowing -D_GLIBCXX_ASSERTIONS"


def run(command, **more):
    return subprocess.run(command, capture_output=True, check=False, **more)


def git(*command):
    return run(["git", *command], cwd=ROOT).stdout


def put(path, content):
    """Leaves a file that is so already alone, and what is made of it."""
    if path.exists() and path.read_bytes() == content:
        return
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(content)


class Program:
    """The last commit as it stands, with all mutants in it, and built."""

    def __init__(self):
        WORK.mkdir(parents=True, exist_ok=True)
        self.commit = git("rev-parse", "HEAD").decode().strip()
        self.names = []
        self.mutants = {}
        self.schema = set()  # the mutants that are compiled in
        self.folded = set()  # those of them that the compiler may evaluate without them
        self.constants = {}
        self.rewritten = {}
        self.sites = {}

    def read_commit(self):
        """The files of the last commit, below PLAIN, and the mutants in them."""
        listed = git("ls-tree", "-r", "-z", "HEAD").decode().split("\0")
        rows = [re.match(r"(\d+) blob (\w+)\t(.*)", row) for row in listed if row]
        asked = "".join(row[2] + "\n" for row in rows if row)
        blobs = run(["git", "cat-file", "--batch"], cwd=ROOT, input=asked.encode()).stdout
        place = 0
        for row in rows:
            end = blobs.index(b"\n", place)
            size = int(blobs[place:end].split()[2])
            put(PLAIN / row[3], blobs[end + 1:end + 1 + size])
            (PLAIN / row[3]).chmod(0o755 if row[1] == "100755" else 0o644)
            place = end + size + 2
            self.names.append(row[3])
        self.number()

    def number(self):
        """Gives every file a range of numbers that it keeps, so that a change of one file has the
        others not built again."""
        kept = WORK / "ranges.json"
        ranges = json.loads(kept.read_text()) if kept.exists() else {}
        free = max((first + size for first, size in ranges.values()), default=0)
        for name in sorted(self.names):
            if name.split("/")[0] not in FOLDERS or not name.endswith((".cpp", ".h")):
                continue
            found = list(mutants_of(name, (PLAIN / name).read_text(encoding="utf-8")))
            if len(found) > ranges.get(name, (0, 0))[1]:
                ranges[name] = (free, len(found) + 20)
                free += len(found) + 20
            self.mutants |= {ranges[name][0] + place: mutant for place, mutant in enumerate(found)}
        kept.write_text(json.dumps(ranges))

    def copy(self):
        """The files that are the same in the copy; the changed ones are written later."""
        changed = {mutant.file for mutant in self.mutants.values()}
        for name in self.names:
            if name not in changed or not (COPY / name).exists():
                put(COPY / name, (PLAIN / name).read_bytes())
                (COPY / name).chmod((PLAIN / name).stat().st_mode)

    def configure(self):
        done = run(["cmake", "-S", str(COPY), "-B", str(BUILD), "-G", "Ninja",
                    "-DCMAKE_BUILD_TYPE=Debug",
                    "-DCMAKE_CXX_FLAGS_DEBUG=" + FLAGS,
                    "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=mold",
                    "-DCMAKE_PROJECT_Trelonit_INCLUDE=" + str(Path(__file__).parent
                                                              / "project.cmake"),
                    "-DTRELONIT_MUTATED=" + ";".join(FOLDERS),
                    "-DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON", "-DTRELONIT_WINDOWS=OFF"])
        if done.returncode:
            sys.exit((done.stdout + done.stderr).decode())

    def find_sites(self):
        """Asks Clang where the mutants' operands are, or takes what it said of the same files."""
        texts = {name: (PLAIN / name).read_bytes() for name in self.names
                 if name.endswith((".cpp", ".h")) and name.split("/")[0] in FOLDERS}
        told = WORK / "sites.json"
        key = hash_of([texts[name] for name in sorted(texts)])
        if told.exists():
            known = json.loads(told.read_text())
            if known["key"] == key:
                self.take_sites(known)
                return
        reader = schemata.Reader(PLAIN, sorted({mutant.file for mutant in self.mutants.values()}))
        for entry in json.loads((BUILD / "compile_commands.json").read_text()):
            name = os.path.relpath(entry["file"], COPY)
            if name.split("/")[0] not in FOLDERS:
                continue
            words = shlex.split(entry["command"].replace(str(COPY), str(PLAIN)))
            arguments = [word for word in words if word.startswith(("-I", "-D", "-std"))]
            for place, word in enumerate(words):
                if word == "-isystem":
                    arguments += words[place:place + 2]
            reader.read(str(PLAIN / name), arguments)
            if sys.stderr.isatty():
                print(f"\r{name:<70}", end="", file=sys.stderr)
        reader.settle()
        known = {"key": key, "sites": reader.sites,
                 "constants": [[*place, constant.keyword, constant.of_class, constant.needed,
                                sorted(constant.used_by)]
                               for place, constant in reader.constants.items()
                               if constant.keyword >= 0]}
        told.write_text(json.dumps(known))
        self.take_sites(json.loads(told.read_text()))

    def take_sites(self, known):
        self.sites = {name: {int(sign): schemata.Site(*site) for sign, site in sites.items()}
                      for name, sites in known["sites"].items()}
        self.constants = {(name, offset): (keyword, of_class, needed, used_by)
                          for name, offset, keyword, of_class, needed, used_by
                          in known["constants"]}

    def rewrite(self, left_out):
        """Writes the changed files. left_out: (file, line) where the change is no C++."""
        texts = {name: (PLAIN / name).read_bytes()
                 for name in {mutant.file for mutant in self.mutants.values()}}

        def stays(key):
            """Whether a constant has to remain one."""
            known = self.constants.get(key)
            line = texts[key[0]].count(b"\n", 0, key[1])
            return known is None or known[2] or (key[0], line) in left_out

        places, no_constants = {name: [] for name in texts}, set()
        for (name, sign), numbers in self.by_place().items():
            site, mutant = self.sites[name].get(sign), self.mutants[numbers[0]]
            if site is None or (name, mutant.line) in left_out:
                continue
            if site.end != mutant.end if site.what in ("Truth", "Number") \
                    else site.what != mutant.sign:
                continue
            if site.constant is not None:
                if stays(tuple(site.constant)):
                    continue
                no_constants.add(tuple(site.constant))
            places[name].append((site, numbers))
        # What is no constant any more makes none of what it is a part of.
        found = no_constants
        while found:
            found = {tuple(user) for key in found for user in self.constants[key][3]
                     if not stays(tuple(user))} - no_constants
            no_constants |= found
        self.schema = {number for chosen in places.values() for _, numbers in chosen
                       for number in numbers}
        self.folded = {number for chosen in places.values() for site, numbers in chosen
                       for number in numbers if site.how == schemata.FOLDED}
        for name, chosen in places.items():
            keywords = sorted(self.constants[key][:2] for key in no_constants if key[0] == name)
            self.rewritten[name] = schemata.rewrite(
                texts[name], [(site, numbers[0]) for site, numbers in chosen], keywords)
            put(COPY / name, self.rewritten[name])

    def by_place(self):
        """The mutants of each place, (file, offset)."""
        places = {}
        for number, mutant in self.mutants.items():
            places.setdefault((mutant.file, mutant.begin), []).append(number)
        return places

    @staticmethod
    def build(targets, failures=1):
        return run(["cmake", "--build", str(BUILD), "-j", "2", "--", "-k", str(failures), *targets])

    def make(self, targets):
        """Builds it; where a change is no C++, the line is left as it is."""
        kept = WORK / "left_out.json"
        left_out = {tuple(place) for place in json.loads(kept.read_text())} \
            if kept.exists() else set()
        while True:
            self.rewrite(left_out)
            built = self.build(targets, failures=0)
            if built.returncode == 0:
                return
            told = (built.stdout + built.stderr).decode(errors="replace")
            places = set()
            for found in re.finditer(r"^(\S+?):(\d+):(?:\d+:)? *(?:error|note|  required)", told, re.M):
                path = os.path.relpath(os.path.join(BUILD, found[1]), COPY)
                if path in self.rewritten:
                    places.add((path, int(found[2]) - 1))
            if places <= left_out:
                sys.exit(told)
            left_out |= places
            kept.write_text(json.dumps(sorted(left_out)))

    @contextlib.contextmanager
    def changed(self, mutant):
        """The program with this mutant alone, to be built."""
        text = (PLAIN / mutant.file).read_bytes()
        lines = text.split(b"\n")
        lines[mutant.line] = mutant.after.encode()
        put(COPY / mutant.file, b"\n".join(lines))
        try:
            yield
        finally:
            # What is built of it waits for the next one of the file.
            put(COPY / mutant.file, self.rewritten[mutant.file])


def hash_of(parts):
    made = hashlib.sha256()
    for part in parts:
        made.update(part)
        made.update(b"\0")
    return made.hexdigest()
