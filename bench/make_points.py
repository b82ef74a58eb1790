#!/usr/bin/env python3
"""Makes large files of surveyed points, the same ones at every run: make_points.py KIND COUNT PATH

The points lie scattered over ten by ten kilometres near Warsaw, in PL-2000 zone 7, to the millimetre:
X is the northing and Y the easting, as Polish surveyors write them. The kinds:

    survey     number;X;Y;H with decimal commas and CR LF: what the program imports
    shuffled   the same with labels such as PKT-0000123, in random order
    plain      x,y,z (east, north, height) with decimal points: what GDAL reads
    labelled   id,x,y,z, the same with labels such as PKT-0000123
    workbook   label, X, Y and H in a workbook, the labels as shared strings
"""
import os
import random
import sys
import zipfile

KINDS = ("survey", "shuffled", "plain", "labelled", "workbook")
SEED = 20000707

# Millimetres: the south-western corner, the side of the square, the lowest and the highest point.
NORTH, EAST, SIDE = 5_780_000_000, 7_495_000_000, 10_000_000
LOW, HIGH = 78_000, 122_000

# What an office program wants around the two large members is taken from an example.
FRAME = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "examples", "lodz.xlsx")
SHEET, SHARED = "xl/worksheets/sheet1.xml", "xl/sharedStrings.xml"
NAMESPACE = 'xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"'


def points(count):
    """Number from 1, northing, easting and height of each point, in whole millimetres."""
    # Of all generators only random() is promised to stay the same from one version of Python to the next.
    draw = random.Random(SEED).random
    for number in range(1, count + 1):
        yield number, NORTH + int(draw() * SIDE), EAST + int(draw() * SIDE), LOW + int(draw() * (HIGH - LOW))


def decimal(millimetres, mark="."):
    return f"{millimetres // 1000}{mark}{millimetres % 1000:03d}"


def label(number):
    return f"PKT-{number:07d}"


def survey_line(name, *values):
    return f"{name};{';'.join(decimal(value, ',') for value in values)}\r\n"


def plain_line(north, east, height):
    return f"{decimal(east)},{decimal(north)},{decimal(height)}\n"


def lines(kind, count):
    if kind == "survey":
        yield from (survey_line(*point) for point in points(count))
    elif kind == "shuffled":
        draw = random.Random(SEED + 1).random
        order = sorted(range(1, count + 1), key=lambda _: draw())
        yield from (survey_line(label(number), *at) for number, (_, *at) in zip(order, points(count)))
    elif kind == "plain":
        yield "x,y,z\n"
        yield from (plain_line(*at) for _, *at in points(count))
    else:
        yield "id,x,y,z\n"
        yield from (f"{label(number)},{plain_line(*at)}" for number, *at in points(count))


def write_workbook(count, path):
    sheet, shared = [f"<worksheet {NAMESPACE}><sheetData>"], [f"<sst {NAMESPACE}>"]
    for row, *values in points(count):
        cells = "".join(f'<c r="{column}{row}"><v>{decimal(value)}</v></c>' for column, value in zip("BCD", values))
        sheet.append(f'<row r="{row}" spans="1:4"><c r="A{row}" t="s"><v>{row - 1}</v></c>{cells}</row>')
        shared.append(f"<si><t>{label(row)}</t></si>")
    large = {SHEET: "".join(sheet) + "</sheetData></worksheet>", SHARED: "".join(shared) + "</sst>"}
    with zipfile.ZipFile(FRAME) as frame, zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as package:
        for name in frame.namelist():
            text = f'<?xml version="1.0" encoding="UTF-8"?>{large[name]}' if name in large else frame.read(name)
            package.writestr(name, text)


def make(kind, count, path):
    if kind == "workbook":
        return write_workbook(count, path)
    with open(path, "w", encoding="ascii", newline="") as file:
        file.writelines(lines(kind, count))


if __name__ == "__main__":
    if len(sys.argv) != 4 or sys.argv[1] not in KINDS:
        sys.exit(__doc__)
    make(sys.argv[1], int(sys.argv[2]), sys.argv[3])
