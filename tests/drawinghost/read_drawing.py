"""Opens a drawing file with ezdxf and compares it with a list of what was drawn.

    read_drawing.py FILE LIST

LIST has a line for each entity, its fields divided by tabs. Ends with 1 and tells of every
difference where there is one. Lengths in mm agree to 1e-6.
"""
import math
import sys

import ezdxf

problems = []


def check(right, text):
    if not right:
        problems.append(text)


def same(what, got, expected, tolerance=1e-6):
    check(abs(float(got) - float(expected)) <= tolerance, f"{what}: {got} for {expected}")


def same_point(what, got, expected):
    for axis, (a, b) in enumerate(zip(got, expected)):
        same(f"{what} {'xyz'[axis]}", a, b)


def same_angle(what, degrees, radians):
    turn = math.remainder(math.radians(degrees) - float(radians), 2 * math.pi)
    check(abs(turn) < 1e-9, f"{what}: {degrees} degrees for {radians}")


def compare_line(what, entity, fields):
    same_point(what + " start", entity.dxf.start, fields[0:3])
    same_point(what + " end", entity.dxf.end, fields[3:6])


def compare_text(what, entity, fields):
    names = {"7": "TOP_CENTER", "13": "BOTTOM_CENTER"}
    alignment, point, _ = entity.get_pos()
    same_point(what, point, fields[0:3])
    same(what + " height", entity.dxf.height, fields[3])
    same_angle(what, entity.dxf.rotation, fields[4])
    check(alignment == names[fields[5]], f"{what}: {alignment} for {fields[5]}")
    check(entity.dxf.style == fields[6], f"{what}: style {entity.dxf.style}")
    check(entity.dxf.text == fields[7], f"{what}: text {entity.dxf.text!r}")
    same(what + " width", entity.dxf.width, 0.55)
    same_angle(what, entity.dxf.oblique, 0.262)


def compare_dimension(what, entity, fields):
    (*places, rotation, style, textstyle, arrow, gap, height, scale, level, inside, precision,
     length, text) = fields
    same_point(what + " point 1", entity.dxf.defpoint2, places[0:3])
    same_point(what + " point 2", entity.dxf.defpoint3, places[3:6])
    same_angle(what, entity.dxf.angle, rotation)
#The definition point may stand anywhere on the dimension line.
    across = (-math.sin(float(rotation)), math.cos(float(rotation)))
    place = entity.dxf.defpoint
    same(what + " line", (place.x - float(places[6])) * across[0]
         + (place.y - float(places[7])) * across[1], 0)
    check(entity.dxf.dimstyle == style, f"{what}: style {entity.dxf.dimstyle}")
    values = entity.override()
    check(values.get("dimtxsty") == textstyle, f"{what}: text style {values.get('dimtxsty')}")
    for name, expected in (("dimasz", arrow), ("dimgap", gap), ("dimtxt", height),
                           ("dimscale", scale), ("dimtih", level), ("dimtix", inside),
                           ("dimdec", precision)):
        same(f"{what} {name}", values.get(name), expected)
    same(what + " length", entity.get_measurement(), length)
    same(what + " kept length", entity.dxf.actual_measurement, length)
    block = list(entity.doc.blocks.get(entity.dxf.geometry))
    kinds = [part.dxftype() for part in block]
    check(kinds.count("SOLID") == 2 and kinds.count("LINE") >= 3, f"{what}: block of {kinds}")
    check([part.dxf.text for part in block if part.dxftype() == "TEXT"] == [text],
          f"{what}: block without the text {text}")


def compare_records(doc):
    check(doc.dxfversion == "AC1021", f"version {doc.dxfversion}")
    check(doc.header["$INSUNITS"] == 4 and doc.header["$MEASUREMENT"] == 1, "units")
    for name, weight in (("Main", 50), ("Dimension", 13)):
        layer = doc.layers.get(name)
        check(layer.dxf.lineweight == weight, f"layer {name}: {layer.dxf.lineweight}")
        check(layer.is_on() and not layer.is_frozen() and not layer.is_locked(), f"layer {name}")
        check(layer.dxf.plot == 1, f"layer {name}: not plotted")
    style = doc.styles.get("Dimensional")
    same("style width", style.dxf.width, 0.55)
    same_angle("style", style.dxf.oblique, 0.262)
    dimstyle = doc.dimstyles.get("NordDim")
    for name, value in (("dimscale", 20), ("dimdli", 10), ("dimexe", 1), ("dimexo", 1),
                        ("dimdec", 0), ("dimgap", 1), ("dimtih", 0), ("dimtad", 1),
                        ("dimtxt", 5), ("dimasz", 4)):
        same(f"NordDim {name}", dimstyle.dxf.get(name), value)
    check(dimstyle.dxf.dimtxsty == "Dimensional", f"NordDim: {dimstyle.dxf.dimtxsty}")


def main(path, listing):
    doc = ezdxf.readfile(path)
    auditor = doc.audit()
    for entry in list(auditor.errors) + list(auditor.fixes):
        check(False, f"audit: {entry.message}")
    compare_records(doc)
    with open(listing, encoding="utf-8") as file:
        drawn = [line.rstrip("\n").split("\t") for line in file]
    entities = list(doc.modelspace())
    check(len(entities) == len(drawn), f"{len(entities)} entities for {len(drawn)}")
    kinds = {"LINE": compare_line, "TEXT": compare_text, "DIMENSION": compare_dimension}
    for number, (entity, (kind, layer, *fields)) in enumerate(zip(entities, drawn), 1):
        what = f"{number}. {kind}"
        if entity.dxftype() != kind:
            check(False, f"{what}: {entity.dxftype()}")
            continue
        check(entity.dxf.layer == layer, f"{what}: layer {entity.dxf.layer} for {layer}")
        kinds[kind](what, entity, fields)
    for problem in problems:
        print(problem)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
