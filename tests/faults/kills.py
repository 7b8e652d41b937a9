"""Saves that are killed without mercy, a disk that is full, many first starts at once."""

import os
import random
import shutil
import subprocess
import time

from world import CATALOGUE, COPY, OLD, UNFINISHED, Case, Fault

KILLED = [
    Case("project", "new -f -o {}/new.tsav", "new.tsav", "plain"),
    Case("report", "report {}/roof.tsav -o {}/new.txt", "new.txt", "plain"),
    Case("drawing", "draw {}/roof.tsav -o {}/new.dxf", "new.dxf", "plain"),
    Case("catalogue", "catalogue verify", first_start=True),
]


def kill_saves(world, times):
    """Each save so often by the shim, at a random call, and so often by the clock."""
    chance = random.Random(1981)
    for case in KILLED:
        for named in (False, True):
            began = time.monotonic()
            usual, calls = world.learn(case, Fault(named=named))
            lasted = time.monotonic() - began
            for _ in range(times // 2):
                number = chance.randint(1, len(calls))
                way = chance.choice(("kill", "tear-kill"))
                _kill(world, case, Fault(str(number), way, named), usual, calls[number - 1])
                _kill(world, case, Fault(how="kill", named=named), usual, "",
                      chance.uniform(0, 1.1 * lasted))


def _kill(world, case, fault, usual, call, after=None):
    world.prepare(case)
    process = world.start(case, fault)
    if after is not None:
        time.sleep(after)
        process.kill()
    world.judge(case, fault, world.end(process), usual, call)
    world.judge_next(case, fault, usual)


def fill_disk(world, step):
    """Reports onto a small disk with less and less room. False where none can be mounted."""
    if os.geteuid() != 0 or not shutil.which("mount"):
        return False
    disk = world.base / "disk"
    disk.mkdir()
    mounted = subprocess.run(["mount", "-t", "tmpfs", "-o", "size=64k", "tmpfs", disk],
                             capture_output=True, check=False)
    if mounted.returncode != 0:
        return False
    try:
        for links in (1, 2):
            case = Case(f"full disk, {links} links", "report {}/roof.tsav -o {}/../disk/new.txt")
            for room in range(0, 64 * 1024 + 1, step):
                _fill(world, case, disk, links, room)
    finally:
        subprocess.run(["umount", disk], check=True)
    return True


def _fill(world, case, disk, links, room):
    for path in disk.iterdir():
        path.unlink()
    world.prepare(case)
    target = disk / "new.txt"
    target.write_bytes(OLD)
    if links == 2:
        os.link(target, disk / "other name")
    status = os.statvfs(disk)
    filler = max(0, status.f_bavail * status.f_frsize - room)
    (disk / "filler").write_bytes(bytes(filler))
    outcome = world.run(case)
    fault = Fault(how=f"{room} bytes of room")
    content = target.read_bytes()
    if outcome.status == 0:
        if content == OLD:
            world.finding(case, fault, "", "status 0 and no report")
        if content != world.whole.setdefault("full disk", content):
            world.finding(case, fault, "", "status 0 and another report")
    elif outcome.status != 1 or not outcome.errors.strip():
        world.finding(case, fault, "", f"status {outcome.status}, {outcome.errors!r}")
    elif content != OLD:
        world.finding(case, fault, "", "the old report is damaged")
    if target.stat().st_nlink != links:
        world.finding(case, fault, "", "the hard link is gone")
    for path in world.leftovers(UNFINISHED) + world.leftovers(COPY):
        world.finding(case, fault, "", f"{path.name} is left")


def start_at_once(world, rounds, together=20):
    """First starts in an empty home, all at the same time."""
    case = Case(f"{together} first starts at once", "catalogue list", first_start=True)
    world.prepare(case)
    usual = world.run(case)
    for number in range(rounds):
        # Every second round in a file system without nameless files.
        fault = Fault(named=number % 2 == 1)
        world.prepare(case)
        processes = [world.start(case, fault) for _ in range(together)]
        # What a living one is at is not left.
        outcomes = [world.end(process) for process in processes]
        for outcome in outcomes:
            world.judge(case, fault, outcome, usual)
        for name in CATALOGUE:
            if (world.data / name).read_bytes() != world.catalogue[name]:
                world.finding(case, fault, "", f"{name} is not whole")
