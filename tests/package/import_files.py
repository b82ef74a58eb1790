"""Imports a survey file, and a workbook made of it, with the package and the stand-in of the CAD host beside it.

    import_files.py FILE

FILE is delimited by semicolons and needs no answers.
"""
import pathlib
import sys
import zipfile

HERE = pathlib.Path(__file__).resolve().parent
sys.path[:0] = [str(HERE), str(HERE / "vexo_xyz")]

import vexo_miejsca
import vexo_xyz_impl
from pygcad.stand_in import session


def workbook_of(lines, path):
    rows = "".join("<row>" + "".join(f'<c r="{chr(65 + i)}1" t="inlineStr"><is><t>{text}</t></is></c>'
                                     for i, text in enumerate(line.split(";"))) + "</row>" for line in lines)
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as package:
        package.writestr("xl/worksheets/sheet1.xml", f"<worksheet>{rows}</worksheet>")


def entities_of(path):
    session.clear()
    session.file = str(path)
    vexo_xyz_impl.importxyz()
    assert len(session.groups) == 1, session.shown
    return [vars(entity) for entity in session.entities.values()]


survey, workbook = pathlib.Path(sys.argv[1]), HERE / "survey.xlsx"
lines = survey.read_text(encoding="utf-8").splitlines()
workbook_of(lines, workbook)
from_text, from_workbook = entities_of(survey), entities_of(workbook)
assert len(from_text) == 2 * (len(lines) - 1), session.shown  # a point and its number for each line below the header
assert from_workbook == from_text, session.shown
assert vexo_miejsca.najblizsze_miejsce(52.23, 21.01)[0] == "Warszawa"
