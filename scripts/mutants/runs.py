"""Runs the tests of the copy: which of them reach a mutant, and whether one of them notices it."""

import json
import os
import re
import shutil
import signal
import subprocess
import time
from concurrent.futures import ThreadPoolExecutor
from typing import NamedTuple

from .program import BUILD, WORK, hash_of

AT_ONCE = 2
# How the properties are tried: by a few random cases, and where no test notices by many others.
FEW, MANY = "max_success=30 seed=1", "max_success=200 seed=20261123"
MEMORY = 4 << 30


class Test(NamedTuple):
    program: str
    name: str


class Run(NamedTuple):
    passed: bool
    seconds: float  # of processor time
    clock: float
    failed: str  # the test that failed, where the program could tell it
    tried: bool  # whether there was a property that was tried by random cases


def names_in(listing):
    """The tests that a test program tells with --gtest_list_tests."""
    suite = ""
    for line in listing.splitlines():
        word = line.split("#")[0].rstrip()
        if line.startswith("  "):
            yield suite + word.strip()
        elif word.endswith("."):
            suite = word


class Desk:
    """A place for one run: its own home, temporary and working folder, emptied after it."""

    def __init__(self, number):
        self.folder = WORK / "desks" / str(number)

    def start(self, program, filtered, limits, **variables):
        """Runs tests of a program within (processor time, time on the clock)."""
        shutil.rmtree(self.folder, ignore_errors=True)
        for name in ("home", "tmp", "work"):
            (self.folder / name).mkdir(parents=True)
        # As /tmp is: some tests are another user.
        (self.folder / "tmp").chmod(0o1777)
        flags = self.folder / "flags"
        flags.write_text(f"--gtest_filter={':'.join(filtered)}\n--gtest_fail_fast\n"
                         "--gtest_brief=1\n")
        environment = {**os.environ, "HOME": str(self.folder / "home"),
                       "TMPDIR": str(self.folder / "tmp"), "RC_PARAMS": FEW, **variables}
        command = ["prlimit", f"--cpu={int(limits[0]) + 1}", f"--as={MEMORY}", "--core=0",
                   str(BUILD / "bin" / program), f"--gtest_flagfile={flags}"]
        told, remarks = self.folder / "told", self.folder / "remarks"
        with told.open("wb") as output, remarks.open("wb") as errors:
            process = subprocess.Popen(command, cwd=self.folder / "work", env=environment,
                                       stdin=subprocess.DEVNULL, stdout=output, stderr=errors,
                                       start_new_session=True)
        before = time.monotonic()
        ended = (0, 0, None)
        while not ended[0] and time.monotonic() - before < limits[1]:
            time.sleep(0.005)
            ended = os.wait4(process.pid, os.WNOHANG)
        clock = time.monotonic() - before
        try:
            os.killpg(process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        if not ended[0]:
            ended = (*os.wait4(process.pid, 0)[:1], 1, None)
        process.returncode = ended[1]
        failed = re.findall(r"^\[  FAILED  \] (\S+?),? ", told.read_text(errors="replace"), re.M)
        used = ended[2].ru_utime + ended[2].ru_stime if ended[2] else clock
        # RapidCheck's first word.
        tried = b"Using configuration:" in remarks.read_bytes()
        return Run(ended[1] == 0, used, clock, failed[0] if failed else "", tried)


class Desks:
    def __init__(self):
        self.free = [Desk(number) for number in range(AT_ONCE)]

    def start(self, *rest, **variables):
        desk = self.free.pop()
        try:
            return desk.start(*rest, **variables)
        finally:
            self.free.append(desk)


class Record:
    """Which tests reach which mutants, and how long they take."""

    def __init__(self, programs, count, desks):
        self.desks = desks
        self.count = count
        self.tests = []
        self.seconds = []
        self.clock = []
        self.reach = []  # of each test, the set of mutants
        self.tries = []  # whether it tries random cases
        self.no_change = set()
        known = self.kept()
        for program in programs:
            path = BUILD / "bin" / program
            key = hash_of([path.read_bytes(), FEW.encode()])
            if program not in known or known[program]["key"] != key:
                known[program] = {"key": key, **self.record(program, path)}
                (WORK / "reached.json").write_text(json.dumps(known), encoding="utf-8")
            told = known[program]
            for name, seconds, clock, tries, reach in told["tests"]:
                self.tests.append(Test(program, name))
                self.seconds.append(seconds)
                self.clock.append(clock)
                self.tries.append(tries)
                self.reach.append(set(reach))
            self.no_change |= set(told["no_change"])
        all_reached = set().union(*self.reach) if self.reach else set()
        # In a template a change may be one for some types and none for others.
        self.no_change -= all_reached

    @staticmethod
    def kept():
        path = WORK / "reached.json"
        return json.loads(path.read_text()) if path.exists() else {}

    def record(self, program, path):
        listing = subprocess.run([str(path), "--gtest_list_tests"], capture_output=True, text=True,
                                 check=True, cwd=WORK).stdout
        names = [name for name in names_in(listing) if "DISABLED_" not in name]
        no_change = set()

        def one(name):
            notes = WORK / f"notes-{program}-{hash_of([name.encode()])[:16]}"
            notes.write_bytes(bytes(self.count))
            ended = self.desks.start(program, [name], (600, 1200), MUTANTS_REACHED=str(notes))
            told = notes.read_bytes()
            notes.unlink()
            if not ended.passed:
                raise SystemExit(f"{program} {name} fails without a mutant")
            no_change.update(place.start() for place in re.finditer(rb"[\x02\x03]", told))
            return [name, ended.seconds, ended.clock, ended.tried,
                    [place.start() for place in re.finditer(rb"[\x01\x03]", told)]]

        with ThreadPoolExecutor(AT_ONCE) as pool:
            tests = list(pool.map(one, names))
        return {"tests": tests, "no_change": sorted(no_change)}

    def of_mutants(self, mutants, programs):
        """The tests of these programs that reach one of the mutants."""
        return [place for place, reach in enumerate(self.reach)
                if self.tests[place].program in programs and not reach.isdisjoint(mutants)]

    def soonest(self, chosen, budget):
        """The shortest of the chosen tests, as many as pass within so many seconds."""
        found, spent = [], 0.0
        for place in sorted(chosen, key=lambda place: self.seconds[place]):
            spent += self.seconds[place]
            if spent > budget and found:
                break
            found.append(place)
        return found

    def stages(self, chosen, first):
        """The chosen tests (their places) as runs of a program: those that are to be the first,
        then the others by their time. The parts grow, so that an endless loop ends soon."""
        chosen = sorted(chosen, key=lambda place: (place not in first, self.seconds[place]))
        part, spent, budget = [], 0.0, 0.3
        for place in chosen:
            part.append(place)
            spent += self.seconds[place]
            if spent > budget:
                yield from self.programs_of(part)
                part, spent, budget = [], 0.0, 5 * budget
        yield from self.programs_of(part)

    def programs_of(self, places):
        programs = {}
        for place in places:
            programs.setdefault(self.tests[place].program, []).append(place)
        return sorted(programs.items(),
                      key=lambda item: sum(self.seconds[place] for place in item[1]))

    def notice(self, chosen, first, often=True, **variables):
        """Whether one of the tests fails, crashes or runs ten times as long as before; and the
        place of the one that failed, -1 where that is not known. often: asks the properties once
        more, by many random cases."""
        tried = [place for place in chosen if self.tries[place]]
        rounds = [(FEW, 1, chosen)] + [(MANY, 10, tried)] * often
        for properties, more, asked in rounds:
            for program, places in self.stages(asked, first):
                limits = [3 * more + 10 * more * sum(one[place] for place in places)
                          for one in (self.seconds, self.clock)]
                ended = self.desks.start(program, [self.tests[place].name for place in places],
                                         (limits[0], 30 + limits[1]), RC_PARAMS=properties,
                                         **variables)
                if not ended.passed:
                    return True, next((place for place in places
                                       if self.tests[place].name == ended.failed), -1)
        return False, -1

    def hold(self, programs):
        """Whether all tests still pass without a mutant: what one of them left behind would have
        caught the others."""
        for program in programs:
            places = [place for place, test in enumerate(self.tests) if test.program == program]
            names = [self.tests[place].name for place in places]
            limits = [30 + 10 * sum(one[place] for place in places)
                      for one in (self.seconds, self.clock)]
            if not self.desks.start(program, names, limits).passed:
                raise SystemExit(f"{program} fails without a mutant, so that nothing of this counts")
