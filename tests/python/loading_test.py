"""Loads the extension module in processes of their own: with other markets, with steps that fail, and to import each
sample as the console does.

    loading_test.py DIST_DIR PROGRAM SAMPLES_DIR [unittest options]

DIST_DIR holds the extension and the family's modules, PROGRAM is the console program.
"""
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))

import dxf_graph
from fresh_process import PATIENCE, run

LOAD = """
import json, sys, types
from pygcad.stand_in import session
class Broken(types.ModuleType):
    def __getattr__(self, name):
        raise AttributeError(name) if name.startswith("__") else ValueError("brak licencji")
def market(answer):
    sys.modules["vexo_rynek"] = types.SimpleNamespace(rynek=answer)
def absent(name):
    sys.modules[name] = None
def broken(name):
    sys.modules[name] = Broken(name)
def outcome():
    try:
        import vexo_xyz_impl as m
    except BaseException as failure:
        return f"{type(failure).__name__}: {failure}", list(session.commands)
    return m._D.__name__, list(session.commands)
"""
IMPORT = """
import importlib, json, sys, types
from pygcad.stand_in import session
import vexo_xyz_impl as m
session.file, session.typed = sys.argv[1], [m._slowo(sys.argv[2])]
m.importxyz()
entities, groups = ([vars(one) for one in kept.values()] for kept in (session.entities, session.groups))
outcome = [session.shown, m._slowo(sys.argv[2]), entities, groups, session.variables, session.open]

sys.modules["vexo_teksty"] = types.SimpleNamespace(T=str)  # keys instead of texts
importlib.reload(m)
rows, _ = m._wczytaj(sys.argv[1])
found = {"table_rows": len(rows)}
try:
    layout, opis, dane = m._wykryj_format(rows)
    points, skipped = m._rozbierz(dane, layout)
    found |= {"column_count": m._liczba_kolumn(rows), "layout": layout, "opis_key": opis, "data_rows": len(dane),
              "points": len(points), "skipped": skipped, "duplicates": len(points) - len({nr for nr, *_ in points}),
              "candidates": [dict(srid=srid, swap=swap, frac=frac) for srid, swap, frac in m._wykryj_uklad(
                  m._pary(dane, *((1, 2) if layout.startswith("Nr") else (0, 1))))],
              "first_points": points[:3], "last_point": points[-1]}
except IndexError:
    found["layout_failure"] = "IndexError"
print(json.dumps([found, *outcome]))
"""


def without_date(text):
    return re.sub(r"\d{4}-\d\d-\d\d", "DATE", text)


def without_hints(text):
    """Without what to do with groups and views, which the program says for people at a shell prompt."""
    return re.sub(r".*ZOOM.*\n", "", re.sub(r"(PIKIETY_DATE_.*\n)(  .*\n)+", r"\1", text))


class Loading(unittest.TestCase):
    def test_market_and_failing_steps(self):
        needed = ["vexo_teksty", "vexo_xyz_dane_PL", "vexo_cad_core"]
        interface = ["pygcad.core", "pygcad.core.runtime", "pygcad.pygrx"]
        for steps, market, expected in [
            ("", "", "vexo_xyz_dane_PL"), ("", "XX", "vexo_xyz_dane_PL"), ("", "RO", "vexo_xyz_dane_RO"),
            ("", "DE", "vexo_xyz_dane_DE"), ("market(lambda: 'DE')", "PL", "vexo_xyz_dane_DE"),
            *((steps, "DE", "vexo_xyz_dane_PL") for steps in (
                "absent('vexo_rynek')", "absent('vexo_xyz_dane_DE')", "broken('vexo_rynek')", "market(lambda: 1 / 0)",
                "market(lambda: None)", "market(lambda: '')")),
            *((f"absent('{name}')", "PL", "ModuleNotFoundError: ") for name in needed + interface),
            *((f"broken('{name}')", "PL", "ValueError: brak licencji") for name in needed if "dane" not in name),
            ("market(lambda: sys.exit('koniec'))", "DE", "SystemExit: koniec"),
            ("import pygcad.core; pygcad.core.command = lambda **names: open('/brak')", "PL",
             "FileNotFoundError: [Errno 2] No such file or directory: '/brak'"),
        ]:
            with self.subTest(steps, market=market):
                found, commands = run(dist, LOAD + steps + "\nprint(json.dumps(outcome()))", market=market)
                self.assertEqual(found[:len(expected)], expected)
                self.assertEqual(commands, ["VEXO_XYZ"] if expected.startswith("vexo") else [])

    def test_samples_as_the_console_imports_them(self):
        with open(samples / "manifest.json", encoding="utf-8") as file:
            manifest = json.load(file)["files"]
        for sample in manifest:
            for symbol in ["Tak", "Zamien"] if "readings" in sample["expected"] else ["Tak"]:
                with self.subTest(sample["file"], answer=symbol):
                    self.check_sample(str(samples / sample["file"]), sample["market"], symbol, sample["expected"])

    def check_sample(self, source, market, symbol, expected):
        found, shown, word, entities, groups, variables, still_open = run(dist, IMPORT, source, symbol, market=market)
        self.assertEqual(found, {key: expected.get(key) for key in found})
        home = tempfile.TemporaryDirectory()
        self.addCleanup(home.cleanup)
        target = os.path.join(home.name, "drawn.dxf")
        console = subprocess.run([program, "--market", market, "-o", target, source], input=f"{word}\n", text=True,
                                 env=os.environ | {"XDG_STATE_HOME": home.name}, capture_output=True, timeout=PATIENCE)
        imported = without_hints(without_date(shown))
        said = "".join(line for line in without_hints(without_date(console.stdout)).splitlines(True)
                       if not line.startswith("    ") or line in imported)  # the program knows more of a reading
        self.assertEqual(said[:len(imported)], imported)
        self.assertEqual((still_open, os.path.exists(target)), ([], bool(entities)))
        if entities:
            self.assertIn(f" {target}\n", said)
            self.check_same_drawing(target, entities, groups, variables)

    def check_same_drawing(self, target, entities, groups, variables):
        tags = dxf_graph.read_tags(target)
        records = dxf_graph.split(tags, [])
        drawn = []
        for one in (record for record in records if record.section == "ENTITIES" and record.has_handle):
            drawn.append({"kind": one.kind, "position": [float(one.first(code)) for code in (10, 20, 30)]})
            if one.kind == "TEXT":
                drawn[-1] |= {"text": one.first(1), "height": float(one.first(40)), "style": one.first(7)}
        self.assertEqual(drawn, entities)
        group, = [one for one in records if one.kind == "GROUP"]
        self.assertEqual([(one["description"], one["selectable"], len(one["members"])) for one in groups],
                         [(group.first(300), group.first(71).strip() == "1", len(group.all(340)))])
        header = {name: value for (_, name), (_, value) in zip(tags, tags[1:])}
        self.assertEqual(variables, {name: float(header["$" + name]) for name in ("PDMODE", "PDSIZE")})


if __name__ == "__main__":
    if len(sys.argv) < 4:
        sys.exit(__doc__)
    os.environ.pop("VEXO_JEZYK", None)
    dist, program, samples = (pathlib.Path(argument).resolve() for argument in sys.argv[1:4])
    unittest.main(argv=sys.argv[:1] + sys.argv[4:])
