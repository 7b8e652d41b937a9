#!/usr/bin/env python3
"""Checks the guide: links, anchors, contents, index terms, places, pictures and tags.

Run it from anywhere; it prints what is wrong and ends with 1, or with 0 and one line."""

import json
import sys
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote, urlsplit

ROOT = Path(__file__).resolve().parent
PAGES = ROOT / "pages"
PICTURES = ROOT / "pictures"
VOID = {"area", "base", "br", "col", "hr", "img", "input", "link", "meta", "wbr"}
# The places of the program where F1 opens a page.
PLACES = {"tab0", "tab1", "tab2", "results", "search", "steel", "parameters", "manager", "about",
          "otchet", "find", "date", "assoc", "drawing", "opinion", "live", "variants"}
# The findings of the second opinion, from which buttons open a page.
PLACES |= {"finding-" + code for code in (
    "check-differs", "bracing-length", "not-balanced", "load-differs", "own-weight-twice",
    "chord-bending", "section-data", "phi-gap", "selection-open")}
# What may stand inside what: a stray end tag is found by the nesting itself.
PARENTS = {"li": {"ul", "ol"}, "tr": {"table"}, "td": {"tr"}, "th": {"tr"}, "dt": {"dl"},
           "dd": {"dl"}}
NOT_IN_PARAGRAPH = {"p", "ul", "ol", "table", "h1", "h2", "h3", "dl", "pre", "hr"}
WIDEST_PICTURE = 900

problems = []


def complain(place, text):
    problems.append(f"{place}: {text}")


class Page(HTMLParser):
    def __init__(self, path):
        super().__init__(convert_charrefs=True)
        self.path = path
        self.stack = []
        self.ids = set()
        self.links = []
        self.sources = []
        self.headings = []
        self.language = None
        self.title = ""

    def complain(self, text):
        complain(f"{self.path.name}:{self.getpos()[0]}", text)

    def handle_starttag(self, tag, attrs):
        values = dict(attrs)
        if len(values) != len(attrs):
            self.complain(f"<{tag}> repeats an attribute")
        parent = self.stack[-1] if self.stack else ""
        if tag in PARENTS and parent not in PARENTS[tag]:
            self.complain(f"<{tag}> inside <{parent}>")
        if tag in NOT_IN_PARAGRAPH and "p" in self.stack:
            self.complain(f"<{tag}> inside <p>")
        if "id" in values:
            if values["id"] in self.ids:
                self.complain(f"the id {values['id']} stands twice")
            self.ids.add(values["id"])
        if tag == "html":
            self.language = values.get("lang")
        if tag == "a":
            self.links.append((values.get("href") or "", self.getpos()[0]))
        if tag == "link":
            self.sources.append(values.get("href") or "")
        if tag == "img":
            self.sources.append(values.get("src") or "")
            if not values.get("alt"):
                self.complain("a picture without a text of its own")
        if tag in ("h1", "h2", "h3"):
            self.headings.append(tag)
            if "id" not in values:
                self.complain(f"<{tag}> without an id")
        if tag == "script":
            self.complain("a script")
        if tag not in VOID:
            self.stack.append(tag)

    def handle_endtag(self, tag):
        if tag in VOID:
            self.complain(f"</{tag}>")
        elif not self.stack or self.stack[-1] != tag:
            self.complain(f"</{tag}> closes <{self.stack[-1] if self.stack else ''}>")
        else:
            self.stack.pop()

    def handle_data(self, data):
        if self.stack and self.stack[-1] == "title":
            self.title += data

    def finish(self):
        if self.stack:
            complain(self.path.name, f"not closed: {', '.join(self.stack)}")
        if self.language != "ru":
            complain(self.path.name, "the language is not ru")
        if not self.title.strip():
            complain(self.path.name, "no title")
        if self.headings.count("h1") != 1 or self.headings[:1] != ["h1"]:
            complain(self.path.name, "there must be one h1, before all other headings")
        if "../style.css" not in self.sources:
            complain(self.path.name, "the style is not linked")


def read_pages():
    pages = {}
    for path in sorted(PAGES.glob("*.html")):
        text = path.read_bytes()
        if b"\r" in text or text.startswith(b"\xef\xbb\xbf"):
            complain(path.name, "a carriage return or a byte order mark")
        page = Page(path)
        page.feed(text.decode("utf-8"))
        page.close()
        page.finish()
        pages[path.name] = page
    return pages


def check_target(place, target, pages):
    """A target is page#anchor or a bare page, beside the pages."""
    page, _, anchor = target.partition("#")
    if page not in pages:
        complain(place, f"no page {page}")
    elif anchor and unquote(anchor) not in pages[page].ids:
        complain(place, f"no anchor {target}")


def check_links(pages):
    used = set()
    linked = {"index.html"}
    for name, page in pages.items():
        for link, line in page.links:
            address = urlsplit(link)
            if address.scheme or address.netloc:
                complain(f"{name}:{line}", f"a link out of the guide: {link}")
                continue
            target = link if not link.startswith("#") else name + link
            check_target(f"{name}:{line}", target, pages)
            linked.add(target.partition("#")[0])
        for source in page.sources:
            file = (PAGES / source).resolve()
            if not file.is_file() or ROOT not in file.parents:
                complain(name, f"no file {source}")
            used.add(file)
    for name in sorted(set(pages) - linked):
        complain(name, "no page links to it")
    for picture in sorted(PICTURES.iterdir()):
        if picture not in used:
            complain(picture.name, "no page shows it")
        head = picture.read_bytes()[:24]
        if not head.startswith(b"\x89PNG\r\n\x1a\n"):
            complain(picture.name, "no PNG")
        elif int.from_bytes(head[16:20], "big") > WIDEST_PICTURE:
            complain(picture.name, f"wider than {WIDEST_PICTURE}")


def check_contents(pages):
    listed = []

    def walk(entries):
        for entry in entries:
            if not entry.get("title"):
                complain("contents.json", f"no title: {entry}")
            check_target("contents.json", entry["page"], pages)
            listed.append(entry["page"])
            walk(entry.get("children", []))

    walk(json.loads((ROOT / "contents.json").read_text(encoding="utf-8")))
    for target in sorted({t for t in listed if listed.count(t) > 1}):
        complain("contents.json", f"{target} stands twice")
    for name in sorted(set(pages) - set(listed)):
        complain("contents.json", f"{name} is missing")


def check_maps(pages):
    terms = json.loads((ROOT / "index-terms.json").read_text(encoding="utf-8"))
    for term, targets in terms.items():
        for target in targets:
            check_target(f"index-terms.json, {term}", target, pages)
    if list(terms) != sorted(terms, key=str.casefold):
        complain("index-terms.json", "the terms are not in order")
    places = json.loads((ROOT / "places.json").read_text(encoding="utf-8"))
    if set(places) != PLACES:
        complain("places.json", f"wrong places: {sorted(set(places) ^ PLACES)}")
    for place, target in places.items():
        check_target(f"places.json, {place}", target, pages)


def main():
    for path in ROOT.rglob("*"):
        if not path.name.isascii() or " " in path.name:
            complain(path.name, "the name is not plain ASCII")
    pages = read_pages()
    check_links(pages)
    check_contents(pages)
    check_maps(pages)
    for problem in problems:
        print(problem)
    if not problems:
        print(f"{len(pages)} pages: links, anchors, pictures and tags are in order")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
