"""Every call of every command fails once, in every way; and from every call on all fail."""

import random

from world import Case, Fault

ERRORS = ("EIO", "ENOSPC", "EACCES", "EINTR", "EMFILE")
# An answer about a file that is refused, and not by its device, is an answer: there is none.
ERRORS_OF_QUESTIONS = ("EIO", "ENOMEM")
QUESTIONS = ("stat", "lstat", "fstat", "stat64", "lstat64", "fstat64")
TORN = ("read", "write", "pread", "pwrite", "pread64", "pwrite64")
WRITES = ("write", "pwrite", "pwrite64")

READING = [
    Case("calc", "calc {}/roof.tsav"),
    Case("calc --json", "calc {}/roof.tsav --json --bar-force"),
    Case("audit", "audit {}/roof.tsav"),
    Case("select", "select {}/roof.tsav --opinion"),
    Case("report -", "report {}/roof.tsav -o -"),
    Case("catalogue list", "catalogue list"),
    Case("catalogue show", "catalogue show 2"),
    Case("catalogue verify", "catalogue verify"),
    Case("catalogue verify FILE", "catalogue verify {}/../beside/Index.ind"),
]
SAVING = [
    Case("new", "new -o {}/new.tsav", "new.tsav"),
    Case("new over a project", "new -o {}/new.tsav", "new.tsav", "kept"),
    Case("new --force", "new -f -o {}/new.tsav", "new.tsav", "plain"),
    Case("new --force, symbolic link", "new -f -o {}/new.tsav", "new.tsav", "symlink"),
    Case("new --force, hard link", "new -f -o {}/new.tsav", "new.tsav", "hardlink"),
    Case("select -o", "select {}/roof.tsav -o {}/new.tsav", "new.tsav"),
    Case("select --force -o", "select {}/roof.tsav -f -o {}/new.tsav", "new.tsav", "plain"),
    Case("report .txt", "report {}/roof.tsav -o {}/new.txt", "new.txt", "plain"),
    Case("report .txt, hard link", "report {}/roof.tsav -o {}/new.txt", "new.txt", "hardlink"),
    Case("report .rtf", "report {}/roof.tsav --appendix -o {}/new.rtf", "new.rtf", "symlink"),
    Case("report .html", "report {}/roof.tsav -o {}/new.html", "new.html"),
    Case("draw .dxf", "draw {}/roof.tsav -o {}/new.dxf", "new.dxf", "plain"),
]
PAGES = [
    Case("report .pdf", "report {}/roof.tsav -o {}/new.pdf", "new.pdf", "plain"),
    Case("draw .svg", "draw {}/roof.tsav -o {}/new.svg", "new.svg", "plain"),
    Case("draw .pdf", "draw {}/roof.tsav -o {}/new.pdf", "new.pdf", "plain"),
    Case("draw .png", "draw {}/roof.tsav -o {}/new.png", "new.png"),
]
FIRST_START = [Case("first start", "catalogue verify", first_start=True)]


def faults_of(calls, named, save_only):
    """All faults that these calls can meet; or those only that follow the last reading."""
    first = len(calls) - calls[::-1].index("read") if save_only else 0
    for number, call in list(enumerate(calls, 1))[first:]:
        ways = list(ERRORS_OF_QUESTIONS if call in QUESTIONS else ERRORS)
        if call in TORN:
            ways.append("tear")
        ways.append("kill")
        if call in WRITES:
            ways.append("tear-kill")
        for way in ways:
            yield Fault(str(number), way, named), call
        # A disk that stays full, one that is gone.
        for way in ("EIO",) if call in QUESTIONS else ("EIO", "ENOSPC"):
            yield Fault(f"{number}+", way, named), call


def try_case(world, case, named, few):
    usual, calls = world.learn(case, Fault(named=named))
    # Reading is the same whatever is made of it then.
    save_only = case in PAGES or (named and not case.first_start)
    faults = list(faults_of(calls, named, save_only))
    if few:
        # Chance takes some; what is asked of a file that has more to lose than its content is
        # always in.
        chosen = random.Random(case.name).sample(faults, min(few, len(faults)))
        if case.before in ("kept", "symlink", "hardlink") and not named:
            chosen += [pair for pair in faults if pair[0].how == "EIO" and pair[1] in QUESTIONS]
        faults = chosen
    for fault, call in faults:
        world.prepare(case)
        outcome = world.run(case, fault)
        world.judge(case, fault, outcome, usual, call)
        if fault.kills() or fault.lasts():
            world.judge_next(case, fault, usual)


def try_every_call(world, few, pages):
    """`few`: so many of each case only; 0: all."""
    for case in READING + SAVING + FIRST_START:
        try_case(world, case, False, few)
        if case.target or case.first_start:
            try_case(world, case, True, few)
    if pages:
        # They are slow to make and are saved as everything else is.
        for case in PAGES:
            try_case(world, case, False, 60)
