#!/usr/bin/env python3
"""What a check tells of imported points after somebody, or another program, changed the drawing.

Usage: check.py PROGRAM. A case changes a drawing of twelve points, as a document of ezdxf or as text, and says what the
check must find: moved, deleted and copied points by their numbers, and whether lists of the import were there.
"""

import json
import re
import subprocess
import sys
import tempfile
from pathlib import Path

import ezdxf

PROGRAM = sys.argv[1]
NUMBERS = [f"Ż{i + 1}" for i in range(12)]
PLACES = {number: (7501234.5 + 7.91 * i, 5801234.12 + 11.37 * i, 101.23 + 0.31 * i) for i, number in enumerate(NUMBERS)}
SOUND = "".join(f"{number};{y:.2f};{x:.2f};{z:.2f}\n" for number, (x, y, z) in PLACES.items())


def points(doc):
    return list(doc.modelspace().query("POINT"))


def move(point, dx=0.0, dy=0.0, dz=0.0):
    point.dxf.location = point.dxf.location + ezdxf.math.Vec3(dx, dy, dz)


def copy(point, doc, dx=0.0):
    twin = point.copy()
    doc.modelspace().add_entity(twin)
    move(twin, dx)
    return twin


def copy_with_its_own_handle(doc):
    twin = copy(points(doc)[4], doc, 5)
    record = twin.get_xdata("VEXO")
    twin.set_xdata("VEXO", [(code, twin.dxf.handle if code == 1005 else value) for code, value in record])


def copy_into_block(doc):
    twin = points(doc)[4].copy()
    doc.blocks.new("STUDNIE").add_entity(twin)


def other_data(doc):
    """Records of other applications before ours and behind it, and one of ours of another kind."""
    doc.appids.new("OTHER")
    for point in points(doc):
        ours = list(point.get_xdata("VEXO"))
        point.discard_xdata("VEXO")
        point.set_xdata("OTHER", [(1000, "XYZPKT"), (1005, "1"), (1010, (1, 2, 3))])
        point.set_xdata("VEXO", [(1000, "ELSE"), (1005, "2"), (1010, (4, 5, 6))] + [pair for pair in ours if pair[0] != 1001])
        point.set_xdata("ACAD", [(1000, "x"), (1010, (7, 8, 9))])


def change(function):
    def changed(path):
        doc = ezdxf.readfile(path)
        function(doc)
        doc.saveas(path)
    return changed


def spoil(pattern, replacement):
    """A change of the file's text, which must be one."""
    def changed(path):
        text = path.read_text(encoding="utf-8")
        spoilt = re.sub(pattern, replacement, text)
        assert spoilt != text, pattern
        path.write_text(spoilt, encoding="utf-8")
    return changed


def handles_anew(function):
    """A change, after which all points get other handles while records and list say what they said."""
    def changed(path):
        change(function)(path)
        renumber = lambda match: f"{match[1]}{int(match[2], 16) + 0x100:X}\n"
        path.write_text(re.sub(r"(\n  0\nPOINT\n  5\n)(\w+)\n", renumber, path.read_text(encoding="utf-8")), encoding="utf-8")
    return changed


def registered_places_rounded(path):
    """By another program, which gives handles anew and keeps none in records."""
    handles_anew(lambda doc: None)(path)
    spoil(r"\n *1005\n\w+", "")(path)
    spoil(r"(\n *10[1-3]0\n)(\d{3,}\.?\d*)", lambda match: f"{match[1]}{float(match[2]) + 0.0003}")(path)


def without_lists(doc):
    del doc.rootdict["VEXO_KONTROLA"]


def as_r12(doc):
    """Points, records and nothing else, as a version without objects keeps them."""
    doc.dxfversion = "AC1009"


# name: (options of the import, change of the drawing, moved, deleted, copied, listed)
CASES = {
    "nothing": ([], change(lambda doc: None), [], [], [], True),
    "3 mm": ([], change(lambda doc: move(points(doc)[2], dy=0.003)), ["Ż3"], [], [], True),
    "below the tolerance": ([], change(lambda doc: move(points(doc)[2], dx=0.0004)), [], [], [], True),
    "as much as the tolerance": ([], change(lambda doc: move(points(doc)[2], dx=0.0005)), [], [], [], True),
    "height only": ([], change(lambda doc: move(points(doc)[2], dz=-0.5)), ["Ż3"], [], [], True),
    "deleted": ([], change(lambda doc: points(doc)[6].destroy()), [], ["Ż7"], [], True),
    "copied": ([], change(lambda doc: copy(points(doc)[4], doc, 5)), [], [], ["Ż5"], True),
    "copied in place": ([], change(lambda doc: copy(points(doc)[4], doc)), [], [], ["Ż5"], True),
    "moved and copied": ([], change(lambda doc: (copy(points(doc)[4], doc), move(points(doc)[4], 9))), ["Ż5"], [], ["Ż5"], True),
    "copied, then deleted": ([], change(lambda doc: (copy(points(doc)[4], doc, 1), points(doc)[4].destroy())), [], ["Ż5"],
                             ["Ż5"], True),
    "a copy that names itself": ([], change(copy_with_its_own_handle), [], [], ["Ż5"], True),
    "copied into a block": ([], change(copy_into_block), [], [], ["Ż5"], True),
    "other applications": ([], change(lambda doc: (other_data(doc), move(points(doc)[1], 1))), ["Ż2"], [], [], True),
    "without lists": ([], change(lambda doc: (without_lists(doc), points(doc)[6].destroy(), move(points(doc)[0], 1),
                                              copy(points(doc)[3], doc, 2))), ["Ż1"], [], ["Ż4"], False),
    "handles anew": ([], handles_anew(lambda doc: (copy(points(doc)[4], doc, 5), move(points(doc)[8], 1), points(doc)[1].destroy())),
                     ["Ż9"], ["Ż2"], ["Ż5"], True),
    "records lost": ([], change(lambda doc: ([point.discard_xdata("VEXO") for point in points(doc)],
                                             move(points(doc)[3], 1), points(doc)[5].destroy())), ["Ż4"], ["Ż6"], [], True),
    "handles lost in records": ([], spoil(r"\n *1005\n\w+", ""), [], [], [], True),
    "registered places rounded": ([], registered_places_rounded, [], [], [], True),
    "exponents": ([], spoil(r"(\n *1010\n)(\d)(\d{6})\.(\d+)", r"\1+\2.\3\4E+06"), [], [], [], True),
    "a code page": (["--dxf", "2000"], change(lambda doc: move(points(doc)[2], 1)), ["Ż3"], [], [], True),
    "R12": ([], change(lambda doc: (as_r12(doc), move(points(doc)[2], 1))), ["Ż3"], [], [], False),
}


def run(*arguments):
    return subprocess.run([PROGRAM, *arguments], stdin=subprocess.DEVNULL, capture_output=True, check=False, timeout=60)


def main():
    with tempfile.TemporaryDirectory() as folder:
        source, drawing = Path(folder) / "points.txt", Path(folder) / "plan.dxf"
        source.write_text(SOUND)
        for name, (options, changed, moved, deleted, copied, listed) in CASES.items():
            assert run(source, "-o", drawing, "--force", *options).returncode == 0, name
            changed(drawing)
            told = run("check", drawing, "--json")
            assert told.returncode == (1 if moved + deleted + copied else 0), (name, told)
            found = json.loads(told.stdout)
            seen = {what: [point["number"] for point in found["points"] if point["what"] == what]
                    for what in ("moved", "deleted", "copied")}
            assert seen == {"moved": moved, "deleted": deleted, "copied": copied}, (name, found)
            assert (found["without_list"] == 0) == listed, (name, found)
            gone = 1 if name == "without lists" else 0  # which nobody can know of
            assert (found["controlled"], found["in_place"]) == (12 - gone, 12 - gone - len(moved + deleted)), (name, found)
            for point in found["points"]:
                assert all(abs(a - b) < 1e-5 for a, b in zip(point["registered"], PLACES[point["number"]])), (name, point)
        table = run("check", drawing, "--lang", "PL").stdout.decode().splitlines()
        assert table[1].split() == ["Ż3", "przesunięty", "1.0000", "0.0000", "0.0000", "1.0000"], table
        assert len({len(line) for line in table[:2]}) == 1, table
        assert run("check", drawing, "--tolerance", "1.5").returncode == 0
        # Neither a drawing without records nor what is no drawing is called in order.
        ezdxf.new().saveas(drawing)
        assert run("check", drawing).returncode == 1
        for content, code in ((b"AutoCAD Binary DXF\r\n\x1a\0", 3), (b"AC1032\0\0", 3), (b"x", 3), (drawing.read_bytes()[:-400], 3)):
            drawing.write_bytes(content)
            assert run("check", drawing).returncode == code, content[:30]
    print(f"{len(CASES)} changes")


if __name__ == "__main__":
    main()
