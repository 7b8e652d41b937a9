"""Where the programs run while their calls fail: folders, single runs, what they promise."""

import dataclasses
import errno
import os
import pathlib
import re
import shutil
import signal
import subprocess

LIMIT_SECONDS = 20
UNFINISHED = ".trelonit-new"
COPY = "trelonit-copy-"
CATALOGUE = ("GOST profile.dat", "Index.ind")
OLD = b"The old content, which must not be lost.\r\n" * 700
OLD_MODE = 0o640


@dataclasses.dataclass(frozen=True)
class Fault:
    """What fails: the call's number ("5", or "5+" for all from there on) and how; none without."""

    at: str = ""
    how: str = ""
    named: bool = False

    def variables(self):
        number = getattr(errno, self.how, None)
        return {
            "FAULTS_AT": self.at,
            "FAULTS_AS": str(number) if number else self.how,
            "FAULTS_NAMED": "1" if self.named else "",
        }

    def kills(self):
        return self.how in ("kill", "tear-kill")

    def lasts(self):
        return self.at.endswith("+")

    def __str__(self):
        place = f"call {self.at}: {self.how}" if self.at else self.how or "no fault"
        return place + (", files have names from the start" if self.named else "")


@dataclasses.dataclass(frozen=True)
class Case:
    """A command and what it writes. `{}` in its words stands for the folder that it works in."""

    name: str
    words: str
    # The file that it saves, in its folder, and how that one stood before: "none", "plain",
    # "symlink" or "hardlink" (which is written in its place), "kept" for one that the command must
    # leave alone.
    target: str = ""
    before: str = "none"
    first_start: bool = False
    program: str = "trelonit-cli"


@dataclasses.dataclass
class Outcome:
    status: int  # less than 0: the signal; None: it had to be ended
    output: bytes
    errors: str


class World:
    """All folders are below one, which is the one whose calls are counted."""

    def __init__(self, base, programs, shim, example):
        self.base = pathlib.Path(base).resolve()
        self.base.mkdir(exist_ok=True)
        self.shim = shim
        self.example = pathlib.Path(example).read_bytes()
        self.work = self.base / "work"
        self.data = self.base / "data" / "trelonit"
        # Beside its catalogue, and as it is installed, with the catalogue in the user's folder.
        self.beside = self.base / "beside"
        self.installed = self.base / "installed"
        (self.installed / "share" / "doc" / "trelonit").mkdir(parents=True)
        (self.installed / "share" / "doc" / "trelonit" / "copyright").touch()
        for folder in (self.beside, self.installed / "bin"):
            folder.mkdir()
            for name in ("trelonit-cli", "trelonit-paper"):
                if (programs / name).exists():
                    shutil.copy2(programs / name, folder / name)
        self.fonts = self._put_fonts()
        self.catalogue = {}  # as it is unpacked
        self.edited = {}  # the one beside the program
        self.runs = 0
        self.findings = []
        self._unpack_catalogue()

    def _put_fonts(self):
        """Those of the system: which fonts the user's folders have is asked of the same folders."""
        fonts = self.base.parent / "fonts.conf"
        fonts.write_text("<fontconfig><dir>/usr/share/fonts</dir>"
                         f"<cachedir>{self.base.parent}/fonts</cachedir></fontconfig>")
        return str(fonts)

    def _unpack_catalogue(self):
        self.prepare(Case("unpack", "catalogue list"))
        self.run(Case("unpack", "catalogue list"))
        for name in CATALOGUE:
            self.catalogue[name] = (self.beside / name).read_bytes()
            # Bytes behind the last record mean nothing; as an edit of the user's they have to last.
            self.edited[name] = self.catalogue[name] + b" "
            (self.beside / name).write_bytes(self.edited[name])

    # Before a run

    def prepare(self, case):
        for folder in (self.work, self.base / "data", self.base / "tmp"):
            shutil.rmtree(folder, ignore_errors=True)
        self.work.mkdir()
        (self.base / "tmp").mkdir()
        (self.work / "roof.tsav").write_bytes(self.example)
        if not case.first_start:
            self.data.mkdir(parents=True)
        if case.target and case.before != "none":
            self._put_old(self.work / case.target, case.before)

    def _put_old(self, target, before):
        place = target
        if before == "symlink":
            place = self.work / "elsewhere"
            target.symlink_to(place.name)
        place.write_bytes(OLD)
        place.chmod(OLD_MODE)
        if os.geteuid() == 0:
            os.chown(place, -1, 1)
        if before == "hardlink":
            os.link(place, self.work / "other name")

    # A run

    def environment(self, fault=Fault(), seen=None):
        variables = {
            "PATH": os.environ.get("PATH", ""),
            "HOME": str(self.base),
            "XDG_DATA_HOME": str(self.base / "data"),
            "TMPDIR": str(self.base / "tmp"),
            "LC_ALL": "C.UTF-8",
            "FONTCONFIG_FILE": self.fonts,
            # Otherwise the order of what a page is made of is another one every time.
            "QT_HASH_SEED": "0",
            "LD_PRELOAD": str(self.shim),
            "FAULTS_BELOW": str(self.base),
            **fault.variables(),
        }
        # Where the program counts its lines: the file of the counts.
        counts = os.environ.get("LLVM_PROFILE_FILE")
        if counts:
            variables["LLVM_PROFILE_FILE"] = counts
        if seen:
            variables["FAULTS_SEEN"] = str(seen)
        return variables

    def command(self, case):
        folder = self.installed / "bin" if case.first_start else self.beside
        return [folder / case.program] + [
            word.replace("{}", str(self.work)) for word in case.words.split()
        ]

    def start(self, case, fault=Fault(), seen=None):
        self.runs += 1
        return subprocess.Popen(
            self.command(case),
            cwd=self.work,
            env=self.environment(fault, seen),
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
        )

    def run(self, case, fault=Fault(), seen=None):
        return self.end(self.start(case, fault, seen))

    @staticmethod
    def end(process, seconds=LIMIT_SECONDS):
        status = None
        try:
            output, errors = process.communicate(timeout=seconds)
            status = process.returncode
        except subprocess.TimeoutExpired:
            process.kill()
            output, errors = process.communicate()
        return Outcome(status, output, errors.decode(errors="replace"))

    # After a run

    def targets(self, case):
        """The files that the case writes, with their content before and after a whole run."""
        if case.first_start:
            return {self.data / name: (None, self.catalogue[name]) for name in CATALOGUE}
        if not case.target:
            return {}
        old = None if case.before == "none" else OLD
        new = OLD if case.before == "kept" else self.whole[case]
        return {self.work / case.target: (old, new)}

    whole = {}

    def learn(self, case, fault=Fault()):
        """Runs the case without a fault: its outcome and the names of its calls."""
        self.prepare(case)
        seen = self.base / "seen"
        outcome = self.run(case, fault, seen)
        wanted = 1 if case.before == "kept" else 0
        if outcome.status != wanted:
            raise SystemExit(f"{case.name} without a fault: {outcome.status}, {outcome.errors}")
        if case.target and case.before != "kept":
            self.whole[case] = undated((self.work / case.target).read_bytes())
        return outcome, seen.read_text().split()

    def leftovers(self, prefix):
        return [path for path in self.base.rglob(prefix + "*") if path.is_file()]

    def finding(self, case, fault, call, what):
        told = f"{case.name}, {fault}{f' ({call})' if call else ''}: {what}"
        self.findings.append(told)
        print("FINDING:", told, flush=True)

    def judge(self, case, fault, outcome, usual, call=""):
        """Holds what a run left behind against the promises. `call`: the name of what failed."""

        def wrong(what):
            self.finding(case, fault, call, what)

        killed = fault.kills() and outcome.status == -signal.SIGKILL
        if outcome.status is None:
            wrong(f"still there after {LIMIT_SECONDS} seconds")
        elif outcome.status < 0 and not killed:
            wrong(f"ended by signal {-outcome.status}")
        elif outcome.status > 0 and not outcome.errors.strip():
            wrong("fails without a word")
        if outcome.status == usual.status and outcome.output != usual.output:
            wrong("the output is another one")
        self._judge_targets(case, fault, outcome, usual, call, wrong)
        self._judge_leftovers(case, fault, killed, call, wrong)
        if (self.work / "roof.tsav").read_bytes() != self.example:
            wrong("the project that was read is another one")
        for name in CATALOGUE:
            if (self.beside / name).read_bytes() != self.edited[name]:
                wrong(f"the catalogue file {name} is another one")
                (self.beside / name).write_bytes(self.edited[name])

    def _judge_targets(self, case, fault, outcome, usual, call, wrong):
        for path, (old, new) in self.targets(case).items():
            content = undated(path.read_bytes()) if path.exists() else None
            if outcome.status == 0 and usual.status == 0 and content != new:
                wrong(f"{path.name} is not the new one, though the status is 0")
            elif content not in (old, new) and not self._copy_holds_old(case, fault, outcome):
                wrong(f"{path.name} is neither the old one nor the new one")
            if case.before == "symlink" and not path.is_symlink():
                wrong("the symbolic link is gone")
            if case.before == "hardlink" and path.stat().st_nlink != 2:
                wrong("the hard link is gone")
            if content is not None and case.before not in ("none", "kept"):
                status = path.stat()
                # A file system may refuse permissions; the content matters more.
                if status.st_mode & 0o777 != OLD_MODE and call != "fchmod":
                    wrong(f"permissions {status.st_mode & 0o777:o}")
                if os.geteuid() == 0 and status.st_gid != 1:
                    wrong(f"group {status.st_gid}")

    def _copy_holds_old(self, case, fault, outcome):
        """Of a file that has to be written in its place, where that cannot be undone."""
        if not (fault.kills() or fault.lasts()) or case.before == "none":
            return False
        copies = self.leftovers(COPY)
        told = fault.kills() or any(str(copy) in outcome.errors for copy in copies)
        return told and any(copy.read_bytes() == OLD for copy in copies)

    def _judge_leftovers(self, case, fault, killed, call, wrong):
        # What cannot be removed stays.
        if killed or fault.lasts() or call == "unlink":
            return
        for path in self.leftovers(UNFINISHED) + self.leftovers(COPY):
            wrong(f"{path.name} is left")

    def judge_next(self, case, fault, usual):
        """The next save, with nothing in its way."""
        for copy in self.leftovers(COPY):
            copy.unlink()  # the user's by now
        if case.before == "none" and case.target:
            (self.work / case.target).unlink(missing_ok=True)  # some ask before they replace
        outcome = self.run(case, Fault(named=fault.named))
        self.judge(case, Fault(how=f"after {fault}", named=fault.named), outcome, usual)
        if outcome.status != usual.status:
            self.finding(case, fault, "", f"the next run ends with {outcome.status}")


def undated(content):
    """Pages tell when they were made."""
    if not content.startswith(b"%PDF"):
        return content
    return re.sub(rb"(Date \(D:)\d{14}", rb"\1", content)
