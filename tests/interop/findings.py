#!/usr/bin/env python3
"""What an import accounts for, doubts and gives as its reason, read from the report of each of many small files.

Usage: findings.py PROGRAM. A case is a file's content, options, and what the report must hold: outcome, points, codes of
doubts, code of the reason, lines left out, lines skipped. For every file the sums must close.
"""

import datetime
import io
import json
import subprocess
import sys
import tempfile
import zipfile
from pathlib import Path

import openpyxl

PROGRAM = sys.argv[1]

GRID = [(5801234.12 + 11.37 * i, 7501234.5 + 7.91 * i, 101.23 + 0.31 * i) for i in range(12)]


def rows(template, separator=";", points=GRID):
    """A line a point: {n} the number, {x} northing, {y} easting, {z} height."""
    return "\n".join(template.format(n=i + 1, x=f"{x:.2f}", y=f"{y:.2f}", z=f"{z:.2f}")
                     for i, (x, y, z) in enumerate(points)).replace(";", separator) + "\n"


SOUND = rows("P{n};{x};{y};{z}")
LOCAL = [(100.0 + 3.7 * i, 200.0 + 2.3 * i * i, 10.5 + i / 7) for i in range(12)]
DEGREES = [(52.2297 + i / 1000, 21.0122 + i / 997, 101.5 + i / 7) for i in range(12)]


def swapped(header):
    return header + "\n" + rows("P{n};{y};{x};{z}")


def degrees(template):
    return "\n".join(template.format(n=i + 1, lat=f"{lat:.7f}", lon=f"{lon:.7f}", z=f"{z:.1f}")
                     for i, (lat, lon, z) in enumerate(DEGREES)) + "\n"


def degrees_apart(template):
    return "".join(template.format(n=n) + "\n" for n in range(1, 9))


# name: (content, options, outcome, points, doubts, reason, lines left out, lines skipped)
CASES = {
    "sound": (SOUND, [], "imported", 12, [], None, [], []),
    "comments, blank lines, header": ("# a\r\n\r\nNr;X;Y;H\r\n;;\r\n// b\r\n" + SOUND.replace("\n", "\r\n"), [],
                                      "imported", 12, [], None, [3], []),
    "lone carriage returns": (SOUND.replace("\n", "\r"), [], "imported", 12, [], None, [], []),
    "a row too short": (SOUND + "P13;5801300.10\nP14;5801300.10;7501300.20\n", [], "imported", 12, ["rows_left_out"],
                        None, [13, 14], []),
    "no number where one is due": (SOUND + "P13;brak;7501300.20;101.2\nP14;5801300.1;7501300.2;brak\n", [], "imported",
                                   12, ["height", "rows_left_out"], None, [13], [14]),
    "nan": (SOUND + "P13;5801300.1;7501300.2;nan\n", [], "imported", 12, ["not_finite"], None, [], [13]),
    "inf ends it": (SOUND + "P13;inf;7501300.2;1\n", [], "failed", 0, ["not_finite"], None, [], list(range(1, 14))),
    "degrees": (degrees("P{n};{lat};{lon};{z}"), [], "imported", 12, ["degrees"], None, [], []),
    "degrees by name": ("Nr;Breite;Länge;H\n" + rows("P{n};{x};{y};{z}", points=[(10.5, 53.5 + i, 3.5) for i in range(4)]),
                        [], "imported", 4, ["degrees"], None, [1], []),
    "degrees of a continent": ("\n".join(f"A{i} {110.12345 + i * 1.7:.5f} {30.54321 + i * 0.9:.5f}" for i in range(9)) + "\n",
                               [], "imported", 9, ["degrees"], None, [], []),
    "small local values": (rows("P{n};{x};{y};{z}", points=[(4.4 + i % 3, 4.2 + i / 9, 0.3 + i / 50) for i in range(9)]), [],
                           "imported", 9, [], None, [], []),
    "one whole number as height": (rows("P{n};{x};{y};33"), [], "imported", 12, ["height"], None, [], []),
    "heights of nought": (rows("P{n};{x};{y};0"), [], "imported", 12, [], None, [], []),
    "no number as height, ever": (rows("P{n};{x};{y};{z}*"), [], "nothing", 0, ["height"], "no_numbers", [], list(range(1, 13))),
    "a name a line": ("Ore\n4\nHole\nX\nY\nGrade\n" + rows("P{n} {x} {y} {z}"), [], "imported", 12, ["height"], None,
                      list(range(1, 7)), []),
    "height repeats the easting": (rows("P{n};{x};{y};{y}"), [], "imported", 12, ["height"], None, [], []),
    "standard errors as height": (rows("P{n};{x};{y};0.01{n}"), [], "imported", 12, ["height"], None, [], []),
    "height counts": (rows("P{n};{x};{y};{n}"), [], "imported", 12, ["height"], None, [], []),
    "header names an error": ("Nr;X [m];Y [m];mx [mm]\n" + SOUND, [], "imported", 12, ["height"], None, [1], []),
    "header names another column": ("Nr;Kod;X;H\n" + SOUND, [], "imported", 12, ["header_columns"], None, [1], []),
    "header contradicts the axes": ("Nr;Easting;Northing;H\n" + SOUND, [], "imported", 12, ["header_axes"], None, [1], []),
    "header agrees with the axes": (swapped("Nr;Rechtswert;Hochwert;Höhe"), [], "imported", 12, [], None, [1], []),
    "repeated number": (SOUND + "P3;5801400.1;7501400.2;101.2\n" + SOUND.splitlines()[0] + "\n", [], "imported", 14,
                        ["repeated_number"], None, [], []),
    "one place, two numbers": (SOUND + SOUND.splitlines()[4].replace("P5", "Q5") + "\n", [], "imported", 13,
                               ["same_place"], None, [], []),
    "far away": (SOUND + "P13;58012.34;75012.34;1.5\n", [], "imported", 13, ["far_away"], None, [], []),
    "rows the other way round": (SOUND + "P13;7501240.1;5801240.2;101.5\nP14;7501250.1;5801230.2;101.5\n", [], "imported",
                                 14, ["far_away"], None, [], []),
    "axes left open": (rows("K{n};{x};{y};{z}", points=[(5590430.2 + i, 5588360.9 + 3 * i, 389.4) for i in range(9)]), [],
                       "imported", 9, ["axes_unconfirmed"], None, [], []),
    "axes told": (rows("K{n};{x};{y};{z}", points=[(5590430.2 + i, 5588360.9 + 3 * i, 389.4) for i in range(9)]),
                  ["--axes", "north-first"], "imported", 9, [], None, [], []),
    "a comma behind each value": ("1, 110, 200, 100\n2, 260, 560, 155\n3, 450, 230, 120\n", [], "imported", 3,
                                  ["comma_in_label"], None, [], []),
    "columns left open": (rows("{n} {x} {y} {z}", points=LOCAL[:2]), [], "nothing", 0, [], None, [], [1, 2]),
    "commas": (rows("{n},{x},{y},{z}"), [], "nothing", 0, [], "comma_separated", list(range(1, 13)), []),
    "commas, prepared": ("\n".join(["POINT,NORTH,EAST,ELEV"] + [f"{i},{x:.2f},{y:.2f},{z:.2f}" for i, (x, y, z)
                                                               in enumerate(GRID)]) + "\n", ["--prepare"],
                         "imported", 12, [], None, [], []),
    "commas, prepared without one": ("POINT,NORTH,EAST,ELEV\n" + rows("{n},{x},{y},{z}") + "13,brak,7501300.1,101.2\n",
                                     ["--prepare"], "imported", 12, ["rows_left_out"], None, [], []),
    "commas, prepared by a false header": ("POINT,NORTH,EAST,ELEV\n" + rows("{n},{y},{x},{z}"), ["--prepare"], "imported",
                                           12, ["header_axes"], None, [], []),
    "pipes": (rows("{n}|{x}|{y}|{z}"), [], "nothing", 0, [], "pipe_separated", list(range(1, 13)), []),
    "quotes": (rows('"P{n}";"{x}";"{y}";"{z}"'), [], "nothing", 0, [], "quoted", list(range(1, 13)), []),
    "UTF-16": (SOUND.encode("utf-16"), [], "nothing", 0, [], "utf16", None, None),
    "mixed separators": (rows("{x} {y}") + "P3\t5801 7501\nP4;12.5\n", [], "failed", 0, [], "mixed_separators",
                         list(range(1, 15)), []),
    "degrees, minutes": (rows("P{n};52°13'4{n}\";21°0'3{n}\""), [], "nothing", 0, [], "dms", None, None),
    "angles in columns of their own": (degrees_apart("P{n} 50 13 4{n}.12 21 0{n} 34.5"), [], "imported", 8, ["degrees"],
                                       None, [], []),
    "degrees and minutes with a blank": (degrees_apart("P{n};50 13.1{n}5;21 0.3{n}5;100.1"), [], "imported", 8,
                                         ["degrees"], None, [], []),
    "hemispheres": (degrees_apart("P{n};52.2{n}123N;21.0{n}123E"), [], "nothing", 0, [], "dms", None, None),
    "degree signs": (degrees_apart("P{n};52.2{n}123\u00b0;21.0{n}123\u00b0"), [], "nothing", 0, [], "dms", None, None),
    "degrees parted by colons": (degrees_apart("P{n};52:13:4{n}.5;21:00:3{n}.5"), [], "nothing", 0, [], "dms", None, None),
    "a blank in some numbers": (rows("P{n} {x} {y} {z}").replace("P4", "A 4").replace("P8", "B 8"), [], "imported", 12,
                                ["height", "far_away"], None, [], []),
    "another column in some rows": (rows("P{n};{x};{y};{z}").replace("P4;", "P4;102;").replace("P8;", "P8;102;"), [],
                                    "imported", 12, ["height", "far_away"], None, [], []),
    "axes exchanged in two rows": (SOUND + rows("Q{n};{y};{x};{z}", points=[(5801300.1, 7501300.2, 1.5), (5801301.1, 7501303.2, 1.4)]),
                                   [], "imported", 14, ["far_away"], None, [], []),
    "a title of numbers": ("Pomiar 2024 zlecenie 17\n" + SOUND, [], "imported", 12, [], None, [1], []),
    "an ordinal by its Polish name": ("L.p.;X;Y;Rz\u0119dna\n" + SOUND, [], "imported", 12, [], None, [1], []),
    "a height by a name unknown": ("Nr;X;Y;Hn\n" + SOUND, [], "imported", 12, [], None, [1], []),
    "heights of contours": (rows("P{n};{x};{y};{z}", points=[(x, y, 5.0 * (1 + i // 4)) for i, (x, y, _) in enumerate(GRID)]),
                            [], "imported", 12, [], None, [], []),
    "a shaft": ("\n".join(f"P{i};{10 + i % 3 * 0.713:.3f};{20 + i % 4 * 0.617:.3f};{-4.123 * i:.3f}" for i in range(1, 13)) + "\n",
                [], "imported", 12, [], None, [], []),
    "raster": ("ncols 4\nnrows 3\nxllcorner 0\nyllcorner 0\ncellsize 10\n" + "1.5 2.5 3.5 4.5\n" * 3, [], "failed", 0, [],
               "raster", None, None),
    "DXF": ("0\nSECTION\n2\nHEADER\n0\nENDSEC\n0\nEOF\n", [], "nothing", 0, [], "dxf", None, None),
    "PDF": (b"%PDF-1.4\n1 0 obj\n", [], "nothing", 0, [], "pdf", None, None),
    "image": (b"\x89PNG\r\n\x1a\n" + bytes(40), [], "nothing", 0, [], "image", None, None),
    "old workbook": (b"\xd0\xcf\x11\xe0\xa1\xb1\x1a\xe1" + bytes(600), [], "failed", 0, [], "old_xls", [], []),
    "archive": ({"notes.txt": "x"}, [], "nothing", 0, [], "zip", [], []),
    "OpenDocument": ({"mimetype": "application/vnd.oasis.opendocument.spreadsheet", "content.xml": "<x/>"}, [], "nothing", 0,
                     [], "ods", [], []),
    "empty": ("", [], "nothing", 0, [], "empty", [], []),
    "words": ("Dear all,\nplease find the points attached.\n", [], "nothing", 0, [], "no_numbers", None, None),
}


def workbook(change, sheets=("Points",), active=0):
    """A workbook whose sheets hold the points of GRID; `change` is told each of them."""
    book = openpyxl.Workbook()
    book.remove(book.active)
    for name in sheets:
        sheet = book.create_sheet(name)
        for i, (x, y, z) in enumerate(GRID):
            sheet.append([f"P{i + 1}", x, y, z])
        change(sheet)
    book.active = active
    packed = io.BytesIO()
    book.save(packed)
    return packed.getvalue()


def empty_unless(name):
    return lambda sheet: sheet.title == name or sheet.delete_rows(1, sheet.max_row)


def broken_off(packed):
    """The workbook with its first sheet cut behind the row before the last."""
    cut = io.BytesIO()
    with zipfile.ZipFile(io.BytesIO(packed)) as whole, zipfile.ZipFile(cut, "w") as broken:
        for name in whole.namelist():
            content = whole.read(name)
            broken.writestr(name, content[:content.rindex(b"<row")] if name.endswith("sheet1.xml") else content)
    return cut.getvalue()


WORKBOOKS = {
    "sound sheet": (workbook(lambda sheet: None), [], "imported", 12, [], None, [], []),
    "another sheet is seen": (workbook(lambda sheet: None, ("Old", "New"), 1), [], "imported", 12, ["sheet_choice"], None,
                              [], []),
    "values on another sheet": (workbook(empty_unless("New"), ("Old", "New")), [], "nothing", 0, [], "cells_unreadable", [],
                                []),
    "formula": (workbook(lambda sheet: sheet.__setitem__("D5", "=D4+1")), [], "imported", 11,
                ["height", "formula_without_value"], None, [], [5]),
    "date": (workbook(lambda sheet: sheet.__setitem__("A3", datetime.date(2024, 2, 1))), [], "imported", 12, ["date"], None,
             [], []),
    "entity": (workbook(lambda sheet: sheet.__setitem__("A2", "a<b")), [], "imported", 12, ["entity"], None, [], []),
    "hidden row": (workbook(lambda sheet: setattr(sheet.row_dimensions[6], "hidden", True)), [], "imported", 12,
                   ["filtered_rows"], None, [], []),
    "sheet that breaks off": (broken_off(workbook(lambda sheet: None)), [], "imported", 11, ["rows_left_out"], None, [], []),
    "bytes that are no UTF-8": (b"P\xb31 brak\n" + SOUND.encode(), [], "imported", 12, [], None, [1], []),
}


def check_names_of_reports(folder):
    """A report replaces a report, and nothing else; whatever is refused, the drawing is there."""
    source = folder / "points.txt"
    source.write_text(SOUND)
    other = folder / "other.csv"
    other.write_text("mine\n")
    for name, code, written in (("new.json", 0, True), ("new.json", 0, True), ("other.csv", 3, False),
                                ("points.txt", 3, False), ("points.dxf", 3, False), ("text.txt", 0, True)):
        for drawing in folder.glob("*.dxf"):
            drawing.unlink()
        before = (folder / name).read_bytes() if (folder / name).exists() else b""
        run = subprocess.run([PROGRAM, source, "--report", folder / name], stdin=subprocess.DEVNULL, capture_output=True,
                             check=False, timeout=60)
        assert run.returncode == code, (name, run)
        after = (folder / name).read_bytes() if (folder / name).exists() else b""
        assert written or after == before or b"SECTION" in after[:99], name
        assert not after.startswith(b"{") or json.loads(after)["outcome"] == "imported", name


def write(path, content):
    if isinstance(content, dict):
        with zipfile.ZipFile(path, "w") as package:
            for name, text in content.items():
                package.writestr(name, text)
    else:
        path.write_bytes(content.encode() if isinstance(content, str) else content)


def report_of(folder, content, options):
    source, report = folder / "points.txt", folder / "report.json"
    write(source, content)
    run = subprocess.run([PROGRAM, source, "-o", folder / "out.dxf", "--force", "--report", report, "--lang", "EN", *options],
                         stdin=subprocess.DEVNULL, capture_output=True, check=False, timeout=60)
    assert run.returncode in (0, 1, 3), run.stderr.decode()
    found = json.loads(report.read_text())
    for told in found["doubts"] + [found["reason"]] * (found["reason"] is not None):
        assert told["text"] in run.stdout.decode(), told
    return found


def check(name, found, case):
    _, _, outcome, points, doubts, reason, left_out, skipped = case
    account = found["account"]
    lines = {key: [row["line"] for row in account[key]] for key in ("left_out", "skipped")}
    assert account["lines"] == account["comments"] + account["blank"] + account["rows"], (name, account)
    assert account["rows"] == account["points"] + len(lines["left_out"]) + len(lines["skipped"]), (name, account)
    seen = (found["outcome"], account["points"], [doubt["code"] for doubt in found["doubts"]],
            found["reason"] and found["reason"]["code"])
    assert seen == (outcome, points, doubts, reason), (name, seen)
    if left_out is not None:
        assert (lines["left_out"], lines["skipped"]) == (left_out, skipped), (name, lines)


def main():
    with tempfile.TemporaryDirectory() as folder:
        for name, case in (CASES | WORKBOOKS).items():
            check(name, report_of(Path(folder), case[0], case[1]), case)
    with tempfile.TemporaryDirectory() as folder:
        check_names_of_reports(Path(folder))
    print(f"{len(CASES) + len(WORKBOOKS)} files")


if __name__ == "__main__":
    main()
