"""Runs the program on survey files and reads the drawings back with other people's readers.

    read_back.py PROGRAM SAMPLES_DIR [unittest options]

Needs ezdxf and GDAL's ogr2ogr. SAMPLES_DIR holds the survey files and manifest.json with what each must yield.
"""
import json
import os
import re
import subprocess
import sys
import tempfile
import unittest

import ezdxf

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tools"))
import dxf_graph

NOTHING_RECOGNISED = 3  # exit status of an import that ended without a layout
EVERYWHERE = ["ąćęłńóśźż", "ĄĆĘŁŃÓŚŹŻ", "ăâîșț", "ĂÂÎȘȚ", "äöüß", "12\"a'b", "<&>", "100%", "%", "A^B", "^J",
              r"c\P{d}"]
CAD_CODES = ["5%%d", "50%%", "%%%", "a%%u b", "7%%065", "%%c", r"\U+0041", "ą%%ß"]


def run(program, source, target, market):
    return subprocess.run([program, "--market", market, "--axes", "keep", "--first-column", "number",
                           "-o", target, "--force", source],
                          stdin=subprocess.DEVNULL, capture_output=True, text=True, errors="replace",
                          timeout=120)


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


def cleaned_stem(path):
    stem = os.path.basename(path).rpartition(".")[0]
    return re.sub(r"[^A-Za-z0-9_-]+", "_", stem).strip("_")[:40] or "IMPORT"


class Drawings(unittest.TestCase):
    program = samples = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.target = os.path.join(self.folder, "out.dxf")

    def draw(self, source, market):
        result = run(self.program, source, self.target, market)
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
                self.check_group(drawing, source, points, labels)
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
        for point, label in zip(points, labels):
            x, y, z = point.dxf.location
            offset = 0.6 * label.dxf.height
            self.assertGreater(label.dxf.height, 0)
            for is_at, due in zip(label.dxf.insert, (x + offset, y + offset, z)):
                self.assertAlmostEqual(is_at, due, delta=1e-8)

    def check_group(self, drawing, source, points, labels):
        (name, group), = list(drawing.groups)
        self.assertRegex(name, rf"^PIKIETY_\d{{4}}-\d\d-\d\d_{re.escape(cleaned_stem(source))}$")
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

    def test_file_without_layout_leaves_nothing(self):
        for sample in [s for s in self.manifest() if s["expected"].get("layout_failure")]:
            with self.subTest(sample["file"]):
                result = run(self.program, os.path.join(self.samples, sample["file"]), self.target, sample["market"])
                self.assertEqual(result.returncode, NOTHING_RECOGNISED, result.stdout + result.stderr)
                self.assertEqual(os.listdir(self.folder), [])

    def test_the_walk_names_every_fault(self):
        sample = next(s for s in self.manifest() if s["expected"].get("points"))
        self.draw(os.path.join(self.samples, sample["file"]), sample["market"])
        good = dxf_graph.read_tags(self.target)

        def after(*path):
            """Index of the last of these tags, each sought after the one before; None stands for any value."""
            at = -1
            for code, value in path:
                at = next(i for i in range(at + 1, len(good)) if good[i][0] == code and value in (None, good[i][1]))
            return at

        def put(value, *path):
            at = after(*path)
            return good[:at] + [(good[at][0], value)] + good[at + 1:]

        def cut(count, *path):
            at = after(*path)
            return good[:at] + good[at + count:]

        def twin_name(tags):
            at = after((2, "OBJECTS"), (0, "DICTIONARY"), (3, None))
            return tags[:at + 2] + [(3, tags[at][1].lower()), tags[at + 1]] + tags[at + 2:]

        reactor = (2, "ENTITIES"), (102, "{ACAD_REACTORS")
        handle = good[after((0, "POINT"), (5, None))][1]
        for fault, named in [
            (cut(3, *reactor), "has no reactor to it"),
            (put("FFFFFF0", *reactor, (330, None)), "330 points to 'FFFFFF0'"),
            (put("FFFFFF0", (0, "GROUP"), (340, None)), "340 points to 'FFFFFF0'"),
            (cut(1, (0, "GROUP"), (340, None)), "which does not hold it"),
            (put(good[after((0, "LAYER"), (5, None))][1], (0, "GROUP"), (340, None)), "is no entity of model space"),
            (put(handle, (0, "GROUP"), (340, None), (340, None)), f"holds {handle} 2 times"),
            (cut(3, (0, "GROUP"), (102, "{ACAD_REACTORS")), "do not know each other"),
            (put("FFFFFF0", (2, "OBJECTS"), (350, None)), "350 points to 'FFFFFF0'"),
            (twin_name(good), "stands 2 times"),
            (put(handle, (9, "$HANDSEED"), (5, None)), "$HANDSEED"),
            (put(handle, (0, "TEXT"), (5, None)), f"handle {handle} is used 2 times"),
            (put(handle, (0, "DIMSTYLE"), (105, None)), f"handle {handle} is used 2 times"),
            (put("", (0, "TEXT"), (5, None)), "no proper handle"),
            (put("", (0, "ENDBLK"), (330, None)), "owner '' does not exist"),
            (put("FFFFFF0", (0, "POINT"), (1005, None)), "1005 points to 'FFFFFF0'"),
            (put("9", (2, "LTYPE"), (70, None)), "table LTYPE says 9"),
            (put("nan", (0, "POINT"), (30, None)), "'nan' is not a number"),
            (put("1e999", (9, "$EXTMAX"), (10, None)), "'1e999' is not a number"),
            (put("nowhere", (0, "TEXT"), (7, None)), "STYLE 'nowhere'"),
            (cut(1, (2, "BLOCKS"), (0, "ENDSEC")), "do not frame the file"),
            (cut(1, (0, "EOF")), "do not frame the file"),
        ]:
            problems = dxf_graph.problems_in(fault)
            with self.subTest(named, problems=problems):
                self.assertTrue(any(named in problem for problem in problems))


if __name__ == "__main__":
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    Drawings.program, Drawings.samples = map(os.path.abspath, sys.argv[1:3])
    unittest.main(argv=sys.argv[:1] + sys.argv[3:])
