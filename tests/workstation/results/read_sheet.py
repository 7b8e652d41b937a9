#!/usr/bin/env python3
"""Prints a workbook as another program reads it: read_sheet.py FILE.xlsx

The sheets' names, then every cell of the first one: its place, its kind, its number format, its
value. Only Python's own library, no part of what wrote the file."""

import sys
import xml.etree.ElementTree as xml
import zipfile

MAIN = "{http://schemas.openxmlformats.org/spreadsheetml/2006/main}"


def part(book, name):
    return xml.fromstring(book.read(name))


def main():
    with zipfile.ZipFile(sys.argv[1]) as book:
        broken = book.testzip()
        if broken:
            print("broken:", broken)
            return 1
        for sheet in part(book, "xl/workbook.xml").iter(MAIN + "sheet"):
            print("sheet", sheet.get("name"))
        texts = []
        if "xl/sharedStrings.xml" in book.namelist():
            for item in part(book, "xl/sharedStrings.xml").iter(MAIN + "si"):
                texts.append("".join(text.text or "" for text in item.iter(MAIN + "t")))
        styles = part(book, "xl/styles.xml")
        patterns = {f.get("numFmtId"): f.get("formatCode") for f in styles.iter(MAIN + "numFmt")}
        patterns.update({"0": "General", "1": "0", "2": "0.00"})
        formats = [f.get("numFmtId") for f in styles.find(MAIN + "cellXfs")]
        sheet = part(book, "xl/worksheets/sheet1.xml")
        for pane in sheet.iter(MAIN + "pane"):
            print("fixed rows", pane.get("ySplit"))
        for cell in sheet.iter(MAIN + "c"):
            value = cell.find(MAIN + "v")
            if value is None:
                continue
            text = cell.get("t") == "s"
            shown = texts[int(value.text)] if text else value.text
            style = patterns.get(formats[int(cell.get("s", "0"))], "?")
            print(cell.get("r"), "text" if text else "number", style, repr(shown))
    return 0


if __name__ == "__main__":
    sys.exit(main())
