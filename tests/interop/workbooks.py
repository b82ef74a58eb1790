"""Imports workbooks that other people's programs wrote, and those that must be refused.

    workbooks.py PROGRAM WORKBOOKS_DIR [unittest options]

Needs openpyxl and XlsxWriter. WORKBOOKS_DIR is what make_workbooks.py made. LibreOffice, too large to be installed for
a test, made its workbook of a copy of points.csv, where texts are quoted and numbers are not:

    soffice --headless --infilter=CSV:44,34,76,1,,1033,true,false --convert-to xlsx libreoffice_calc.csv
"""
import csv
import html
import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

import openpyxl
import xlsxwriter

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
import dxf_graph

BOOKS = pathlib.Path(__file__).resolve().parents[1] / "data" / "workbooks"
POINTS = [("Ż-1", 6542052.26, 6024823.93, 2.85), ("źdźbło 2", 6542057.52, 6024830.58, 3.77),
          ("3", 6542070.89, 6024826.78, 0.00001), ("", 6542090.53, 6024839.68, -1.5),
          ("ŻÓŁW/6", 6542107.54, 6024830.75, 123456.125)]
WITHOUT_HEIGHT = "4 6542085.11 6024828.73   3.84"  # two gaps, so that the description is not taken for the height


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


class Workbooks(unittest.TestCase):
    program = made = None

    def setUp(self):
        home = tempfile.TemporaryDirectory()
        self.addCleanup(home.cleanup)
        self.folder = pathlib.Path(home.name, "work")
        self.environment = os.environ | {"HOME": home.name, "XDG_STATE_HOME": home.name}

    def start(self):
        """An empty folder, and a path in it."""
        shutil.rmtree(self.folder, ignore_errors=True)
        self.folder.mkdir()
        return str(self.folder / "pomiar.xlsx")

    def call(self):
        run = subprocess.run([self.program, "--market", "PL", "pomiar.xlsx"], stdin=subprocess.DEVNULL, timeout=120,
                             capture_output=True, cwd=self.folder, env=self.environment, encoding="utf-8")
        self.assertNotRegex(run.stderr, "Sanitizer|runtime error|terminate called")
        self.assertLess(len(run.stdout), 10_000, "too much for a screen")
        return run.returncode, run.stdout

    def test_writers(self):
        for write, how in [(by_openpyxl, {}), (by_openpyxl, {"write_only": True}), (by_libreoffice, {}),
                           (by_xlsxwriter, {}), (by_xlsxwriter, {"constant_memory": True})]:
            with self.subTest(write.__name__, **how):
                write(self.start(), **how)
                code, out = self.call()
                self.assertEqual(code, 0, out)
                self.assertIn(WITHOUT_HEIGHT, out)
                drawing = dxf_graph.split(dxf_graph.read_tags(self.folder / "pomiar.dxf"), [])
                points = [tuple(float(r.first(code)) for code in (10, 20, 30)) for r in drawing if r.kind == "POINT"]
                labels = [record.first(1) for record in drawing if record.kind == "TEXT"]
                if write is by_openpyxl:  # it writes letters beyond ASCII as references, and these stay as they are
                    labels = [html.unescape(label) for label in labels]
                self.assertEqual([(label, *point) for label, point in zip(labels, points, strict=True)], POINTS)

    def test_refused(self):
        listed = json.loads((self.made / "expected.json").read_text("utf-8"))
        for name, (kind, *pieces) in [(book["name"], book["failure"]) for book in listed if book["rows"] is None]:
            with self.subTest(name):
                shutil.copyfile(self.made / f"{name}.xlsx", self.start())
                code, out = self.call()
                self.assertEqual((code, os.listdir(self.folder)), (3, ["pomiar.xlsx"]), out)
                for piece in [f": {kind}: ", *pieces]:
                    self.assertIn(piece, out)


if __name__ == "__main__":
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    Workbooks.program, Workbooks.made = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
    unittest.main(argv=sys.argv[:1] + sys.argv[3:])
