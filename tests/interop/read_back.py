"""Runs the program on survey files, workbooks of other people's writers among them, and reads the drawings back with
other people's readers.

    read_back.py PROGRAM SAMPLES_DIR [unittest options]

Needs ezdxf, GDAL's ogr2ogr, openpyxl and XlsxWriter. SAMPLES_DIR holds the survey files and manifest.json with what
each must yield. LibreOffice, too large to be installed for a test, made its workbook of a copy of points.csv, where
texts are quoted and numbers are not:

    soffice --headless --infilter=CSV:44,34,76,1,,1033,true,false --convert-to xlsx libreoffice_calc.csv
"""
import csv
import html
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

import ezdxf
import openpyxl
import xlsxwriter

HERE = pathlib.Path(__file__).resolve()
sys.path.insert(0, str(HERE.parents[2] / "tools"))
import dxf_graph

EVERYWHERE = ["ąćęłńóśźż", "ĄĆĘŁŃÓŚŹŻ", "ăâîșț", "ĂÂÎȘȚ", "äöüß", "12\"a'b", "<&>", "100%", "%", "A^B", "^J",
              r"c\P{d}"]
CAD_CODES = ["5%%d", "50%%", "%%%", "a%%u b", "7%%065", "%%c", r"\U+0041", "ą%%ß"]
BOOKS = HERE.parents[1] / "data" / "workbooks"
POINTS = [("Ż-1", 6542052.26, 6024823.93, 2.85), ("źdźbło 2", 6542057.52, 6024830.58, 3.77),
          ("3", 6542070.89, 6024826.78, 0.00001), ("", 6542090.53, 6024839.68, -1.5),
          ("ŻÓŁW/6", 6542107.54, 6024830.75, 123456.125)]  # of points.csv, where another row has no height


def features(path):
    """What GDAL reads. It takes $DWGCODEPAGE for the bytes of the file unless told that they are UTF-8."""
    result = subprocess.run(["ogr2ogr", "--config", "DXF_ENCODING", "UTF-8", "-f", "GeoJSON", "/vsistdout/", path],
                            capture_output=True, check=True)
    return json.loads(result.stdout)["features"]


def as_drawn(value):
    """What a CAD program draws for a TEXT value: caret, \\U+ and %% codes applied."""
    symbols = {"d": "°", "c": "Ø", "p": "±", "%": "%", "u": "", "o": "", "k": ""}
    value = re.sub(r"\^(.)", lambda m: "^" if m[1] == " " else chr(ord(m[1]) ^ 64), value)
    value = re.sub(r"\\U\+([0-9A-Fa-f]{4})", lambda m: chr(int(m[1], 16)), value)
    return re.sub(r"%%(\d{3}|.)", lambda m: chr(int(m[1])) if len(m[1]) == 3 else symbols.get(m[1].lower(), m[1]), value)


def rows():
    """Texts, numbers and None for gaps."""
    with open(BOOKS / "points.csv", encoding="utf-8", newline="") as file:
        for row in csv.reader(file, quoting=csv.QUOTE_NONNUMERIC):
            yield [int(cell) if isinstance(cell, float) and cell.is_integer() else cell or None for cell in row]


def by_openpyxl(path, **how):
    book = openpyxl.Workbook(**how)
    sheet = book.active or book.create_sheet()
    for row in rows():
        sheet.append(row)
    book.create_sheet("Drugi").append(["x", 1, 2, 3])
    book.save(path)


def by_xlsxwriter(path, **how):
    """With a label in two styles and a height that a formula yields; strings in the cells if memory is constant."""
    with xlsxwriter.Workbook(path, how) as book:
        sheet, bold = book.add_worksheet("Punkty"), book.add_format({"bold": True})
        for at, row in enumerate(rows()):
            for column, cell in enumerate(row):
                if cell == "źdźbło 2":
                    sheet.write_rich_string(at, column, "źdź", bold, "bło ", "2")
                elif cell == -1.5:
                    sheet.write_formula(at, column, "=1-2.5", None, cell)
                elif cell is not None:
                    sheet.write(at, column, cell)


def by_libreoffice(path):
    shutil.copyfile(BOOKS / "libreoffice_calc.xlsx", path)


class Drawings(unittest.TestCase):
    program = samples = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.target = os.path.join(self.folder, "out.dxf")

    def draw(self, source, market):
        result = subprocess.run([self.program, "--market", market, "--axes", "keep", "-o", self.target, "--force", source],
                                stdin=subprocess.DEVNULL, capture_output=True, text=True, timeout=120)
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        self.assertEqual(dxf_graph.problems(self.target), [])
        return ezdxf.readfile(self.target)

    def manifest(self):
        with open(os.path.join(self.samples, "manifest.json"), encoding="utf-8") as file:
            return json.load(file)["files"]

    def test_samples_read_back(self):
        for sample in [s for s in self.manifest() if s["expected"].get("points")]:
            with self.subTest(sample["file"]):
                source = os.path.join(self.samples, sample["file"])
                drawing = self.draw(source, sample["market"])
                points = list(drawing.modelspace().query("POINT"))
                labels = list(drawing.modelspace().query("TEXT"))
                self.check_points(sample["expected"], points, labels)
                self.check_group(drawing, points, labels)
                self.check_view(drawing, points)
                auditor = drawing.audit()  # last: it repairs what it finds
                self.assertEqual([fault.message for fault in auditor.errors + auditor.fixes], [])
                self.check_gdal(points, labels)

    def check_points(self, expected, points, labels):
        self.assertEqual((len(points), len(labels)), (expected["points"], expected["points"]))
        exchanged = len(expected["candidates"]) == 1 and expected["candidates"][0]["swap"]
        for index, (number, x, y, z) in [*enumerate(expected["first_points"]), (-1, expected["last_point"])]:
            self.assertEqual(tuple(points[index].dxf.location), (y, x, z) if exchanged else (x, y, z))
            self.assertEqual(labels[index].plain_text(), number)

    def check_group(self, drawing, points, labels):
        (_, group), = list(drawing.groups)
        self.assertEqual({entity.dxf.handle for entity in group}, {entity.dxf.handle for entity in points + labels})

    def check_view(self, drawing, points):
        view, = [v for v in drawing.viewports if v.dxf.name.upper() == "*ACTIVE"]
        middle = view.dxf.center + ezdxf.math.Vec2(view.dxf.target)  # the centre counts from the target
        half = view.dxf.height / 2
        for x, y, _ in (point.dxf.location for point in points):
            self.assertLess(abs(x - middle.x), half * view.dxf.aspect_ratio)
            self.assertLess(abs(y - middle.y), half)

    def check_gdal(self, points, labels):
        read = features(self.target)
        self.assertEqual(len(read), len(points) + len(labels))
        self.assertEqual(read[0]["geometry"]["coordinates"], list(points[0].dxf.location))
        self.assertEqual([f["properties"]["Text"] for f in read if "AcDbText" in f["properties"]["SubClasses"]],
                         [label.plain_text() for label in labels])

    def test_labels_show_as_typed(self):
        typed = EVERYWHERE + CAD_CODES
        source = os.path.join(self.folder, "opisy punktów.csv")
        with open(source, "w", encoding="utf-8") as file:
            for i, label in enumerate(typed):
                file.write(f"{label};{6542052.25 + 7 * i};{6024823.5 + 3 * i};{100 + i}\n")
        drawing = self.draw(source, "PL")
        labels = list(drawing.modelspace().query("TEXT"))
        self.assertEqual([as_drawn(label.dxf.text) for label in labels], typed)
        by_gdal = [f["properties"]["Text"] for f in features(self.target) if f["properties"].get("Text")]
        for shown in ([label.plain_text() for label in labels], by_gdal):
            self.assertEqual(shown[:len(EVERYWHERE)], EVERYWHERE)
            self.assertFalse(re.search("[°Ø±]", "".join(shown)), shown)  # readers that know only some %% codes

    def test_numbers_at_the_limit(self):
        source = os.path.join(self.folder, "daleko.csv")
        pathlib.Path(source).write_text("A;-1e15;987654321098765.4;-1e15\nB;1e15;-1e15;1e-99\n")
        space = self.draw(source, "PL").modelspace()
        self.check_gdal(list(space.query("POINT")), list(space.query("TEXT")))

    def test_workbooks_of_other_writers(self):
        source = os.path.join(self.folder, "pomiar.xlsx")
        for write, how in [(by_openpyxl, {}), (by_openpyxl, {"write_only": True}), (by_libreoffice, {}),
                           (by_xlsxwriter, {}), (by_xlsxwriter, {"constant_memory": True})]:
            with self.subTest(write.__name__, **how):
                write(source, **how)
                space = self.draw(source, "PL").modelspace()
                labels = [label.plain_text() for label in space.query("TEXT")]
                if write is by_openpyxl:  # it writes letters beyond ASCII as references, and these stay as they are
                    labels = [html.unescape(label) for label in labels]
                points = [tuple(point.dxf.location) for point in space.query("POINT")]
                self.assertEqual([(label, *point) for label, point in zip(labels, points, strict=True)], POINTS)


if __name__ == "__main__":
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    Drawings.program, Drawings.samples = map(os.path.abspath, sys.argv[1:3])
    unittest.main(argv=sys.argv[:1] + sys.argv[3:])
