"""Adds points to drawings of other writers and holds each against what it was before: which lines differ, what ezdxf's
audit and a walk over the handles find, what is refused.

    into.py PROGRAM [unittest options]

Needs ezdxf and GDAL's ogr2ogr.
"""
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

import ezdxf
import ezdxf.recover

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
import dxf_graph

POINTS = "P1 6542010.25 6024815.50 101.25\nsłup2 6542020.75 6024825.10 102.00\nĂ3 6542030.00 6024835.00 103.5\n"
LABELS = ["P1", "słup2", "Ă3"]
TWO_READINGS = "# Two readings fit\n" + "".join(f"K{i};{5590430 - 4 * i}.21;{5588360 + 15 * i}.91\n" for i in range(9))
MINIMAL = ("0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n10\n6542000\n20\n6024800\n11\n6542001\n21\n6024801\n"
           "0\nENDSEC\n0\nEOF\n")

# Nothing here is known to the program: it must all come through, and give neither positions nor names.
UNKNOWN = {"ENTITIES": "999\nfrom another house\n  0\nVENDOR_PIPE\n  5\nF001\n330\n{space}\n100\nAcDbEntity\n  8\n0\n"
                       "100\nVendorPipe\n 70\n   7\n1004\n00FF\n1000\n  two blanks  \n",
           "OBJECTS": "  0\nVENDOR_LIST\n  5\nF002\n330\n0\n100\nVendorList\n  3\nACAD_GROUP\n350\nF003\n310\nAB\n"}
SECTION = "  0\nSECTION\n  2\nVENDOR\n  0\nANYTHING\n  1\nENDSEC\n  0\nENDSEC\n"


def changed(text, place, what):
    """`text` with `what` before the mark that ends the section `place`."""
    start = text.index(f"\n{place}\n")
    at = text.index("\n  0\nENDSEC\n", start) + 1
    return text[:at] + what + text[at:]


def by_ezdxf(path, version, code_page="utf-8", line_end="\n"):
    drawing = ezdxf.new(version, setup=True)
    drawing.encoding = code_page
    space = drawing.modelspace()
    for i in range(5):
        space.add_line((6542000 + i, 6024800), (6542100, 6024900 + i))
        space.add_text("słup" if code_page != "cp1252" else "Ä").set_placement((6542000, 6024810 + i))
    if version != "R12":
        drawing.groups.new("PIKIETY_dawne").extend(space.query("LINE"))
        drawing.appids.add("VENDOR")
        for dictionary in (drawing.rootdict, drawing.rootdict["ACAD_GROUP"]):
            dictionary.set_xdata("VENDOR", [(1000, "behind the entries")])
        drawing.layout("Layout1").add_point((1, 1))
    drawing.saveas(path)
    encoding = code_page if version < "R2007" else "utf-8"
    with open(path, encoding=encoding, newline="") as file:
        text = file.read().replace("\r\n", "\n")
    if version != "R12":
        owner = drawing.modelspace().block_record_handle
        for place, what in UNKNOWN.items():
            text = changed(text, place, what.format(space=owner))
        at = text.index("  0\nEOF")
        text = text[:at] + SECTION + text[at:]
        text = re.sub(r"(\$HANDSEED\n  5\n)\w+", r"\g<1>1", text)  # lower than the greatest
    with open(path, "w", encoding=encoding, newline="") as file:
        file.write(text.replace("\n", line_end))


def by_gdal(path):
    source = path + ".csv"
    pathlib.Path(path).unlink(missing_ok=True)
    with open(source, "w", encoding="utf-8") as file:
        file.write("id,WKT\n" + "".join(f'{i},"LINESTRING(6542000 602480{i},6542001 6024810)"\n' for i in range(5)))
    subprocess.run(["ogr2ogr", "-f", "DXF", path, source], check=True, capture_output=True)


WRITERS = {"R12": lambda path: by_ezdxf(path, "R12", "cp1250"),
           "R2000": lambda path: by_ezdxf(path, "R2000", "cp1250"),
           "R2004": lambda path: by_ezdxf(path, "R2004", "cp1252", "\r\n"),
           "R2007": lambda path: by_ezdxf(path, "R2007"),
           "R2010": lambda path: by_ezdxf(path, "R2010", line_end="\r\n"),
           "R2013": lambda path: by_ezdxf(path, "R2013"),
           "R2018": lambda path: by_ezdxf(path, "R2018"),
           "gdal": by_gdal}
# In the code page of the drawing, else by number.
SPELLED = {"R2004": ["P1", r"s\U+0142up2", r"\U+01023"], "gdal": ["P1", r"s\U+0142up2", r"\U+01023"]}


def replaced(before, after):
    """What the values belong to that `after` has otherwise; everything else of `before` must be there in its order."""
    result = subprocess.run(["diff", "--text", "--minimal", "--old-line-format=%dn ", "--new-line-format=",
                             "--unchanged-line-format=", before, after], capture_output=True, text=True)
    with open(before, "rb") as file:
        lines = [line.strip().decode("latin-1") for line in file]
    names = set()
    for number in map(int, result.stdout.split()):
        at = number - 1
        assert at % 2 == 1, f"the code in line {number} of {before} is gone"
        begin = max(i for i in range(0, at, 2) if lines[i] in ("0", "9"))
        name = lines[begin + 1]
        names.add(lines[begin + 3] if name == "TABLE" else name)
    return names


class Into(unittest.TestCase):
    program = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.plan = os.path.join(folder.name, "plan.dxf")
        self.points = os.path.join(folder.name, "punkty.txt")
        self.write(self.points, POINTS)

    def write(self, path, content):
        with open(path, "wb") as file:
            file.write(content if isinstance(content, bytes) else content.encode())

    def read(self, path):
        with open(path, "rb") as file:
            return file.read()

    def command(self):
        return [self.program, "--market", "PL", "--lang", "EN", "--into", self.plan, self.points]

    def add(self, *options):
        return subprocess.run([*self.command(), *options], stdin=subprocess.DEVNULL, capture_output=True, text=True,
                              timeout=120)

    def added(self, *options):
        before = self.read(self.plan)
        result = self.add(*options)
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        self.assertEqual(self.read(self.plan + ".bak"), before)
        return result.stdout

    def audited(self, path):
        auditor = ezdxf.recover.readfile(path)[1]
        return [re.sub(r"#\w+", "", entry.message) for entry in [*auditor.errors, *auditor.fixes]]

    def check_read_back(self, name, groups):
        drawing = ezdxf.readfile(self.plan)
        space = drawing.modelspace()
        self.assertEqual([tuple(p.dxf.location) for p in space.query("POINT")][-3:],
                         [(6542010.25, 6024815.5, 101.25), (6542020.75, 6024825.1, 102), (6542030, 6024835, 103.5)])
        self.assertEqual([t.dxf.text for t in space.query("TEXT")][-3:], SPELLED.get(name, LABELS))
        for text in space.query("TEXT"):
            self.assertTrue(text.dxf.layer in drawing.layers and text.dxf.style in drawing.styles)
        self.assertEqual((drawing.header["$PDMODE"], drawing.header["$PDSIZE"]), (3, -2.0))
        if name != "R12":
            found = [group for group_name, group in drawing.groups if "punkty" in group_name]
            self.assertEqual([len(group) for group in found], [6] * groups)

    def test_only_what_must_differs(self):
        for name, write in WRITERS.items():
            with self.subTest(name):
                write(self.plan)
                audit = self.audited(self.plan)
                output = self.added()
                self.assertIn("Nearest to what the drawing holds: ", output)
                self.assertEqual("No group was made" in output, name == "R12", output)
                changes = {"$PDMODE", "$PDSIZE", "$HANDSEED", "LAYER", "STYLE", "APPID"}
                if name == "gdal":  # it knows its extents, of which one is too small now; others leave them open
                    changes.add("$EXTMAX")
                self.assertEqual(replaced(self.plan + ".bak", self.plan), changes)
                lines = self.read(self.plan).split(b"\n")[:-1]
                self.assertEqual({line.endswith(b"\r") for line in lines}, {name in ("R2004", "R2010")})
                self.assertEqual(self.audited(self.plan), audit)
                self.check_read_back(name, 1)
                self.check_graph(name)

                first = self.read(self.plan)
                output = self.added()
                self.assertEqual(self.read(self.plan + ".bak"), first)
                self.assertIn("Nearest to what the drawing holds: 0.0 m", output)
                self.assertEqual(replaced(self.plan + ".bak", self.plan), {"$HANDSEED"})
                if name != "R12":
                    self.assertRegex(output, r"in the group PIKIETY_[0-9-]+_punkty_2\.")
                    self.assertIn(b"_punkty_2", self.read(self.plan))
                self.check_read_back(name, 2)
                self.check_graph(name)

    def check_graph(self, name):
        if name in ("R12", "R2000", "R2004"):  # no graph, or no UTF-8
            return
        before, after = dxf_graph.problems(self.plan + ".bak"), dxf_graph.problems(self.plan)
        self.assertEqual([text for text in after if text not in before], [])

    def test_every_handle_is_new(self):
        for name in ("R12", "R2000", "gdal"):
            with self.subTest(name):
                WRITERS[name](self.plan)
                self.added()
                self.added()
                lines = [line.strip() for line in self.read(self.plan).split(b"\n")]
                seed = int(lines[lines.index(b"$HANDSEED") + 2], 16)
                handles, kind = [], b""
                for code, value in zip(lines[::2], lines[1::2]):
                    kind = value if code in (b"0", b"9") else kind
                    if code == (b"105" if kind == b"DIMSTYLE" else b"5") and kind != b"$HANDSEED":
                        handles.append(int(value, 16))
                self.assertEqual(len(handles), len(set(handles)))
                self.assertLess(max(handles), seed)

    def test_minimal_file(self):
        empty = "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF"
        for content in (MINIMAL, "\ufeff" + MINIMAL.replace("\n", "\r\n"), empty):
            with self.subTest(content[:12]):
                self.write(self.plan, content)
                output = self.added("--layer", "Żuraw")
                self.assertEqual("Nearest" in output, "LINE" in content)
                drawing, auditor = ezdxf.recover.readfile(self.plan)
                self.assertEqual(len(auditor.errors), 0)
                self.assertEqual([p.dxf.layer for p in drawing.modelspace().query("POINT")], ["Żuraw"] * 3)
                self.assertIn(rb"\U+017Buraw", self.read(self.plan))
                self.assertEqual(drawing.dxfversion, "AC1009")
                self.assertEqual(self.added("--layer", "Żuraw").count("Nearest"), 1)

    def test_dictionary_of_groups(self):
        """Drawings without objects, without the dictionary, with an entry that points nowhere; the dictionary as the
        last object, comments in it."""
        by_ezdxf(self.plan, "R2010")
        text = self.read(self.plan).decode()
        objects = text.index("  0\nSECTION\n  2\nOBJECTS\n")
        entry = text.index("  3\nACAD_GROUP\n", objects)
        end = text.index("\n", text.index("\n", entry + 17) + 1) + 1
        handle = re.search(r"ACAD_GROUP\n350\n(\w+)", text)[1]
        groups = re.search(rf"  0\nDICTIONARY\n  5\n{handle}\n(?:(?!  0\n|1001\n).*\n.*\n)*", text)[0]
        for what, content, sizes in (
                ("no objects", text[:objects] + text[text.index("  0\nSECTION\n  2\nVENDOR"):], [6]),
                ("no entry", text[:entry] + text[end:], [6]),
                ("dangling", re.sub(r"(ACAD_GROUP\n350\n)\w+", r"\g<1>FFF0", text, count=1), [6]),
                ("last", changed(text.replace(groups, ""), "OBJECTS", groups), [5, 6]),
                ("comment", text.replace("ACAD_GROUP\n350\n", "ACAD_GROUP\n999\nold\n350\n", 1), [5, 6])):
            with self.subTest(what):
                self.write(self.plan, content)
                self.assertIn("are gathered in the group", self.added())
                drawing = ezdxf.readfile(self.plan)
                self.assertEqual(sorted(len(group) for _, group in drawing.groups), sizes)

    def test_refusals(self):
        by_ezdxf(self.plan, "R2010")
        sound = self.read(self.plan).decode()
        odd = sound.replace("  2\nENTITIES\n", "  2\nENTITIES\nline\n", 1)
        cases = {"binary": (b"AutoCAD Binary DXF\r\n\x1a\0" + bytes(100), "binary DXF"),
                 "dwg": (b"AC1032" + bytes(100), "DWG"), "text": ("1 2 3\n4 5 6\n", "not a DXF drawing"),
                 "empty": ("", "not a DXF"),
                 "a code that is none": (odd, f"line {odd.splitlines().index('line') + 1}: a group code")}
        self.write(self.points, TWO_READINGS)  # which are asked about, but not now
        for name, (content, message) in cases.items():
            with self.subTest(name):
                self.write(self.plan, content)
                before = self.read(self.plan)
                result = self.add()
                self.assertEqual(result.returncode, 3)
                self.assertIn(message, result.stdout)
                self.assertNotIn("Column", result.stdout)
                self.assertEqual(self.read(self.plan), before)
        os.remove(self.plan)
        self.assertIn("There is no drawing", self.add().stdout)
        os.mkdir(self.plan)
        self.assertIn("not an ordinary file", self.add().stdout)
        os.rmdir(self.plan)
        os.link(self.points, self.plan)
        self.assertIn("is the file of points", self.add().stdout)
        self.assertEqual(sorted(os.listdir(self.folder)), ["plan.dxf", "punkty.txt"])

    def test_what_the_drawing_says_of_the_axes(self):
        drawing = ezdxf.new("R2010")
        drawing.modelspace().add_circle((5588360.91, 5590442.21), 1)  # where north stands first
        drawing.layout("Layout1").add_point((5590430.21, 5588360.91))
        drawing.saveas(self.plan)
        self.write(self.points, TWO_READINGS)
        for changed_meanwhile in (True, False):
            with self.subTest(changed_meanwhile=changed_meanwhile):
                run = subprocess.Popen(self.command(), stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
                told = ""
                while "Swap" not in told or "[" not in told:
                    told += run.stdout.read(1)
                if changed_meanwhile:
                    with open(self.plan, "ab") as file:
                        file.write(b"\n")
                before = self.read(self.plan)
                rest = run.communicate("swap\n", timeout=60)[0]
                keep, swap = re.findall(r"nearest to what the drawing holds: (.*)", told)
                self.assertRegex(keep, r"^[23]\.\d km$")
                self.assertEqual(swap, "12 m")
                self.assertEqual(run.returncode, 3 if changed_meanwhile else 0)
                self.assertIn("changed by another program" if changed_meanwhile else "holds: 12 m", rest)
                self.assertEqual(self.read(self.plan) == before, changed_meanwhile)

    def test_another_system(self):
        drawing = ezdxf.new("R2000")
        drawing.units = 4
        drawing.layers.add("pikiety").off()
        drawing.layers.add("PIKIETY_H").freeze()  # heights are not asked for
        drawing.modelspace().add_lwpolyline([(0, 0), (6542010.25, 5500000)])
        drawing.modelspace().add_hatch().paths.add_polyline_path([(1, 1), (2, 1), (2, 2)])
        mirrored = {"extrusion": (0, 0, -1), "insert": (6542010.25, 6024815.5)}
        drawing.modelspace().add_text("mirrored", dxfattribs=mirrored)
        drawing.saveas(self.plan)
        output = self.added("--label-layer", "Pikiety")
        self.assertIn("the points are 525 km away from what the drawing holds. Another coordinate system", output)
        self.assertNotIn("Nearest", output)
        self.assertIn("off or frozen in the drawing: PIKIETY.", output)
        self.assertIn("$INSUNITS 4", output)


if __name__ == "__main__":
    Into.program = os.path.abspath(sys.argv.pop(1))
    unittest.main()
