"""Compiles all mutants of a source into one program: where the source says `a < b`, the copy says
`mutants::Less(mutants::At{17}, a, b)`, which asks at run time whether mutant 17 or 18 is in force.
Clang tells where the operands begin and end (Mutants.h says what is written)."""

import os
import re
from typing import NamedTuple

import clang.cindex  # Debian's python3-clang-14
from clang.cindex import CursorKind as Kind

BINARY = {"==": "Equal", "!=": "Unequal", "<": "Less", ">": "Greater", "<=": "LessOrEqual",
          ">=": "GreaterOrEqual", "+": "Plus", "-": "Minus", "*": "Times", "/": "Over",
          "+=": "Add", "-=": "Subtract"}
# How a place is evaluated: at run time, perhaps by the compiler, by the compiler alone.
RUN, FOLDED, CONSTANT = "At", "Folded", "Constant"
LITERALS = (Kind.INTEGER_LITERAL, Kind.FLOATING_LITERAL, Kind.CXX_BOOL_LITERAL_EXPR)
FUNCTIONS = (Kind.FUNCTION_DECL, Kind.CXX_METHOD, Kind.CONSTRUCTOR, Kind.CONVERSION_FUNCTION,
             Kind.FUNCTION_TEMPLATE)
DECLARED = (Kind.VAR_DECL, Kind.FIELD_DECL, Kind.PARM_DECL, *FUNCTIONS)


class Site(NamedTuple):
    """A place that can be changed, in bytes: the expression and the sign in it."""

    begin: int
    sign: int
    end: int
    what: str
    how: str
    constant: tuple  # file and offset of the constant that it is a part of, if any


class Constant:
    """A variable that is declared constexpr: as a mere const it can be changed, unless something
    needs its value at compile time."""

    def __init__(self, keyword, of_class):
        self.keyword = keyword
        self.of_class = of_class
        self.needed = False
        self.used_by = set()


class Reader:
    """Collects the sites of the given files from the sources that include them."""

    def __init__(self, root, names):
        self.texts = {name: (root / name).read_bytes() for name in names}
        self.names = {os.path.realpath(root / name): name for name in names}
        self.sites = {name: {} for name in names}
        self.constants = {}
        self.seen = set()
        self.index = clang.cindex.Index.create()

    def read(self, path, arguments):
        unit = self.index.parse(path, args=arguments)
        failed = [told for told in unit.diagnostics if told.severity >= told.Error]
        if failed:
            raise SystemExit(f"{path}: {failed[0]}")
        here = set()
        for cursor in unit.cursor.get_children():
            name = self.name_of(cursor.location.file)
            if name is not None and name not in self.seen:
                here.add(name)
                self.walk(cursor, name, RUN, None)
        self.seen |= here

    def name_of(self, file):
        return None if file is None else self.names.get(os.path.realpath(file.name))

    def head(self, cursor, name):
        """What is written before the name that is declared."""
        return self.texts[name][cursor.extent.start.offset:cursor.location.offset].decode()

    def walk(self, cursor, name, how, owner):
        kind = cursor.kind
        inner = how
        if kind in DECLARED and how != CONSTANT:
            head = self.head(cursor, name)
            constant = re.search(r"\bconst(expr|eval|init)\b", head)
            if kind == Kind.VAR_DECL and constant:
                owner = self.declare(cursor, name, constant, head)
                inner = RUN if how == RUN else CONSTANT
            elif kind in FUNCTIONS and constant:
                inner = FOLDED
            elif kind in (Kind.FIELD_DECL, Kind.PARM_DECL) and how == RUN:
                inner = FOLDED
        elif kind in (Kind.STATIC_ASSERT, Kind.ENUM_CONSTANT_DECL,
                      Kind.TEMPLATE_NON_TYPE_PARAMETER):
            inner = CONSTANT
        if kind == Kind.DECL_REF_EXPR:
            self.use(cursor, how, owner)
        children = list(cursor.get_children())
        if inner != CONSTANT:
            self.note(cursor, children, name, inner, owner)
        for place, child in enumerate(children):
            self.walk(child, name, self.within(cursor, child, place, name, inner), owner)

    def within(self, cursor, child, place, name, how):
        """How a part of a cursor is evaluated."""
        kind = cursor.kind
        if kind == Kind.CASE_STMT and place == 0 or kind == Kind.DECL_REF_EXPR:
            return CONSTANT
        if not child.kind.is_expression() or child.extent.start.file is None:
            return how
        begin = child.extent.start.offset
        if kind in DECLARED and kind not in FUNCTIONS:
            between = self.texts[name][cursor.location.offset:begin]
            if begin < cursor.location.offset or re.match(rb"\w+\s*\[", between):
                return CONSTANT
        elif kind in FUNCTIONS and begin < cursor.location.offset:
            return CONSTANT
        elif kind == Kind.MEMBER_REF_EXPR and child.kind in LITERALS:
            return CONSTANT
        elif kind == Kind.IF_STMT and place == 0:
            if re.match(rb"if constexpr", self.texts[name][cursor.extent.start.offset:]):
                return CONSTANT
        return how

    def declare(self, cursor, name, found, head):
        keyword = cursor.extent.start.offset + len(head[:found.start()].encode())
        key = (name, cursor.location.offset)
        in_class = cursor.semantic_parent.kind in (Kind.CLASS_DECL, Kind.STRUCT_DECL,
                                                   Kind.CLASS_TEMPLATE)
        constant = self.constants.setdefault(key, Constant(keyword, in_class))
        # A class may use it above.
        constant.keyword, constant.of_class = keyword, in_class
        return key

    def use(self, cursor, how, owner):
        to = cursor.referenced
        if to is None or to.kind != Kind.VAR_DECL:
            return
        name = self.name_of(to.location.file)
        key = (name, to.location.offset)
        if name is None:
            return
        constant = self.constants.setdefault(key, Constant(-1, False))
        if how in (CONSTANT, FOLDED):
            constant.needed = True
        elif owner is not None and owner != key:
            constant.used_by.add(owner)

    def note(self, cursor, children, name, how, owner):
        kind = cursor.kind
        start, end = cursor.extent.start, cursor.extent.end
        if self.name_of(start.file) != name or self.name_of(end.file) != name:
            return
        text = self.texts[name]
        begin, end = start.offset, end.offset
        if kind in LITERALS:
            what = "Truth" if kind == Kind.CXX_BOOL_LITERAL_EXPR else "Number"
            template_argument = text[begin - 1:begin] == b"<" or text[end:end + 1] == b">"
            if re.fullmatch(rb"[\w.+-]+", text[begin:end]) and not template_argument:
                self.put(name, Site(begin, begin, end, what, how, owner))
            return
        if kind == Kind.UNARY_OPERATOR and text[begin:begin + 1] == b"!":
            self.put(name, Site(begin, begin, end, "!", how, owner))
            return
        if kind in (Kind.BINARY_OPERATOR, Kind.COMPOUND_ASSIGNMENT_OPERATOR) and len(children) == 2:
            left, right = children
        elif (kind == Kind.CALL_EXPR and cursor.spelling.startswith("operator")
              and len(children) == 3):
            left, _, right = children
        else:
            return
        begin, end = left.extent.start.offset, right.extent.end.offset
        between = text[left.extent.end.offset:right.extent.start.offset]
        sign = re.fullmatch(rb"\s*([-=!<>+*/&|]+)\s*", between)
        if sign and (sign[1].decode() in BINARY or sign[1] in (b"&&", b"||")):
            what = sign[1].decode()
            self.put(name, Site(begin, left.extent.end.offset + sign.start(1), end, what, how,
                                owner))

    def put(self, name, site):
        self.sites[name].setdefault(site.sign, site)

    def settle(self):
        """Finds the constants that have to stay ones."""
        changed = True
        while changed:
            changed = False
            for constant in self.constants.values():
                if not constant.needed and any(self.constants[user].needed
                                               for user in constant.used_by):
                    constant.needed = changed = True


def written(site, mutant):
    """What is put before the expression, in the place of its sign, and behind it."""
    place = f"mutants::{site.how}{{{mutant}}}"
    if site.what in ("Truth", "Number"):
        return f"mutants::{site.what}({place}, ", None, ")"
    if site.what == "!":
        return "(static_cast<bool>(", "", f") == {place}.On())"
    if site.what in ("&&", "||"):
        # Either is the right side or a truth value, by the left side: no side stands there twice.
        ends = place + ".On()"
        if site.what == "&&":
            return ("(static_cast<bool>(", f") != {ends} ? static_cast<bool>(",
                    f") : {ends})")
        return ("(static_cast<bool>(", f") != {ends} ? !{ends} : static_cast<bool>(", "))")
    return f"mutants::{BINARY[site.what]}({place}, ", ", ", ")"


def rewrite(text, places, keywords):
    """The text with all changes in it. places: (site, first mutant); keywords: where constexpr
    becomes const, and whether of a class."""
    # What only the compiler ran runs with the program. No place moves by it.
    text = text.replace(b"consteval ", b"constexpr ")
    cuts = []  # (offset, order among those of one offset, length that is taken out, what is put)
    for site, mutant in places:
        before, instead, behind = written(site, mutant)
        length = site.end - site.begin
        cuts.append((site.begin, 1, -length, 0, before))
        if instead is not None:
            size = len(site.what) if site.what != "!" else 1
            cuts.append((site.sign, 2, 0, size, instead))
        cuts.append((site.end, 0, length, 0, behind))
    for offset, of_class in keywords:
        cuts.append((offset, 2, 0, len("constexpr"), "inline const" if of_class else "const"))
    parts = []
    last = 0
    for offset, _, _, taken, put in sorted(cuts):
        parts += [text[last:offset], put.encode()]
        last = offset + taken
    parts.append(text[last:])
    return b'#include "scripts/mutants/Mutants.h"\n#line 1\n' + b"".join(parts)
