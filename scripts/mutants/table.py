"""What may be changed in a line of the program, and the mutants that come of it."""

import re
from typing import NamedTuple

# What is looked for, and what may stand there instead. A number between angle brackets is a part of
# a type.
CHANGES = [
    (r"(?<= )==(?= |$)", ["!="]),
    (r"(?<= )!=(?= |$)", ["=="]),
    (r"(?<=[\w)\]] )<(?= [\w(!-])", ["<=", ">="]),
    (r"(?<=[\w)\]] )>(?= [\w(!-])", [">=", "<="]),
    (r"(?<= )<=(?= )", ["<", ">"]),
    (r"(?<= )>=(?= )", [">", "<"]),
    (r"(?<=[\w)\]] )\+(?= [\w(!-])", ["-"]),
    (r"(?<=[\w)\]] )-(?= [\w(!-])", ["+"]),
    (r"(?<=[\w)\]] )\*(?= [\w(!-])", ["/"]),
    (r"(?<=[\w)\]] )/(?= [\w(!-])", ["*"]),
    (r"(?<= )\+=(?= )", ["-="]),
    (r"(?<= )-=(?= )", ["+="]),
    (r"(?<= )&&(?= (?!{)|$)", ["||"]),
    (r"(?<= )\|\|(?= |$)", ["&&"]),
    (r"\btrue\b", ["false"]),
    (r"\bfalse\b", ["true"]),
    (r"(?<=[(& ])!(?=[\w(])", [""]),
    (r"(?<![\w.\"'])\d+(?:\.\d+)?(?:e-?\d+)?(?![\w.\"'>])", ["number"]),
]


class Mutant(NamedTuple):
    """One change: of the line (counted from 0) of a file, where its bytes begin and end there."""

    file: str
    line: int
    before: str
    after: str
    sign: str
    begin: int
    end: int

    def key(self):
        """What it is known by, whatever stands above it in the file."""
        return self.file, self.before.strip(), self.after.strip()

    def __str__(self):
        return (f"{self.file}:{self.line + 1}\n  - {self.before.strip()}\n"
                f"  + {self.after.strip()}")


def code_of(line):
    """The line with its texts and remarks blanked out, as long as before."""
    line = re.sub(r'"(?:[^"\\]|\\.)*"', lambda text: '"' + " " * (len(text[0]) - 2) + '"', line)
    line = re.sub(r"//.*", lambda text: " " * len(text[0]), line)
    return "" if re.match(r"\s*(#|using |namespace |template|static_assert)", line) else line


def mutants_of(name, text):
    """All mutants of a file; those of one place stand together."""
    offset = 0
    for number, line in enumerate(text.split("\n")):
        code = code_of(line)
        for pattern, others in CHANGES:
            for found in re.finditer(pattern, code):
                begin = offset + len(line[:found.start()].encode())
                end = begin + len(found[0].encode())
                for other in others:
                    if other == "number":
                        other = "1" if float(found[0]) == 0 else f"({found[0]} + 1)"
                    after = line[:found.start()] + other + line[found.end():]
                    yield Mutant(name, number, line, after, found[0], begin, end)
        offset += len(line.encode()) + 1
