"""Loads the extension module into the stand-in of the CAD host and uses it as the host and its scripts do.

    host_test.py DIST_DIR [unittest options]

DIST_DIR holds the extension and the family's modules.
"""
import cmath
import importlib
import itertools
import json
import math
import os
import pathlib
import random
import sys
import tempfile
import threading
import time
import types
import unittest
import zipfile

sys.dont_write_bytecode = True
HERE = pathlib.Path(__file__).resolve().parent

from pygcad.core import runtime
from pygcad.stand_in import STATUS, GcDb, GcDbObjectId, session

UNUSED = "_il _r _A_GRS80 _ROWNE_WYSOKOSCI _MAX_KONTROLA _kword".split()  # names that no other test uses
AXES = "K1 5590435.97 5588346.40 392.34\nK2 5590429.97 5588342.20 393.60\nK3 5590428 5588334 394\n"  # one question
COLUMNS = "7 100 200\n9 110 220\n"  # another one
BOTH = "5590435.97 5588346.40 5590400.5\n5590429.97 5588342.20 5590401.5\n5590428 5588334 5590402.5\n"


class Boot(types.ModuleType):
    """Notices that are kept. That of a failure fails itself, which nobody may notice."""
    notices = []

    def zdarzenie(self, name):
        session.fails("zdarzenie", False)
        self.notices.append(name)

    def blad(self, name, failure):
        self.notices.append((name, failure))
        raise RuntimeError("no log")


class Injected(Exception):
    pass


class HostTest(unittest.TestCase):
    def setUp(self):
        session.clear()
        Boot.notices = []
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name

    def put(self, name, content):
        path = os.path.join(self.folder, name)
        with open(path, "wb") as file:
            file.write(content if isinstance(content, bytes) else content.encode())
        return path

    def check_nothing_is_held(self):
        self.assertEqual((session.open, session.closed_twice), ([], []))
        self.assertEqual(session.live_objects(), idle)

    def check_raises(self, failure, call, *arguments):
        with self.assertRaises(type(failure)) as raised:
            call(*arguments)
        self.assertIs(raised.exception, failure)


class Odd:
    """A cell without a text form."""
    def __str__(self):
        raise TypeError("no text")


class Scripts(HostTest):
    def test_names(self):
        self.assertEqual([name for name in UNUSED if not hasattr(m, name)], [])
        family = [sys.modules["vexo_" + name] for name in ("teksty", "cad_core", "rynek", "xyz_dane_PL")]
        self.assertEqual([m.T, m._nadaj_styl_pl, m._rynek, m._D],
                         [family[0].T, family[1].nadaj_styl_pl, family[2], family[3]])
        self.assertEqual((m._F_GRS80, m._A_K), (1 / 298.257222101, 6367449.145771048))
        self.assertEqual((m._BETA[4], m._DELTA[4]), (3.7940918788755123e-16, 1.7692141010784007e-13))
        self.assertEqual(m._wspolczynniki(), (m._A_K, list(m._BETA), list(m._DELTA)))
        self.assertIs(m.importxyz, session.commands["VEXO_XYZ"])
        self.assertEqual(m.importxyz.names, ("VEXO_XYZ", "VEXO_XYZ", "VEXO"))

    def test_markets(self):
        agreed = json.loads((HERE.parent / "data" / "geodesy" / "markets.json").read_text("utf-8"))
        for code, tables in agreed.items():
            market = vars(importlib.import_module("vexo_xyz_dane_" + code))
            stated = {name: market[name] for name in tables}
            self.assertEqual(json.loads(json.dumps(stated, default=sorted)), tables)

    def test_nearest_places(self):
        """Held against all places of the table, in the plane."""
        place_of, chance = importlib.import_module("vexo_miejsca").najblizsze_miejsce, random.Random(7)
        table = HERE.parents[1] / "siblings" / "vexo_miejsca" / "places" / "PL.tsv"
        places = [line.split("\t") for line in table.read_text("utf-8").splitlines()[1:]]
        for _ in range(100):
            lat, lon = chance.uniform(49.5, 54.5), chance.uniform(15, 23)
            away = [(111.195 * complex(lat - float(y), (lon - float(x)) * math.cos(math.radians(lat))), name)
                    for name, y, x, _ in places]
            name, distance, bearing = place_of(lat, lon)
            off = min((off for off, own in away if own == name), key=abs)
            self.assertLess(distance, 1.11 * min(abs(off) for off, _ in away))
            self.assertLess(abs(off - cmath.rect(distance, math.radians(bearing))), 0.02 * distance)
        self.assertEqual([place_of(40, 20), place_of(math.nan, 20)], [None, None])

    def test_results(self):
        book = os.path.join(self.folder, "pomiar.csv")
        with zipfile.ZipFile(book, "w") as archive:
            archive.writestr("xl/worksheets/sheet1.xml", '<row><c r="A1"><v>1</v></c><c r="C1"><v>ą</v></c></row>')
        few, junk = m.T("xyz.pow_za_malo_kolumn") % (1, 2), m.T("xyz.pow_naglowek")
        known = vars(m) | {
            "Odd": Odd, "folder": self.folder, "book": book, "text": self.put("a.csv", "1;2,5\n#\nł;3\n"),
            "old": self.put("b", bytes.fromhex("D0CF11E0A1B11AE1")), "damaged": self.put("c", b"PK\3\4" + b"x" * 99),
            "texts": [self.put(str(i), content) for i, content in enumerate((
                b"", b"PK\3", b"PK\5\6 22", bytes.fromhex("D0CF11E0A1B11A"), b"\xd0\xcf\x11\xe0 1;22\n3"))],
            "odd_name": self.put(os.fsdecode(b"\xb9.csv"), "1 2"), "surrogate": "\udc80",
            "labelled": [["P1", 1.5, "2"], (7, 8, 9), ["x"]],
            "bare": [[6542052.26, 6024823.93, 2.85], ["6542057,52", "6024830.58", 3]]}
        for call, expected in [
            ("_num('1 234,5')", 1234.5), ("_num(5)", 5.0), ("_num(' \\u0661\\t')", 1.0), ("_num('1_0')", 10.0),
            ("_num(10**400)", math.inf), ("_num('x')", ValueError), ("_num(None)", ValueError),
            ("_num(True)", ValueError), ("_num(surrogate)", ValueError), ("_num('1\\0')", ValueError),
            ("_num(Odd())", TypeError), ("_num()", TypeError), ("_num(1, 2)", TypeError),
            ("_czy_liczba('-1e3')", True), ("_czy_liczba('')", False), ("_czy_liczba(None)", False),
            ("_czy_liczba(Odd())", False), ("_czy_liczba(surrogate)", False), ("_czy_liczba('\\ud800')", False),
            ("_kol_nr('A')", 0), ("_kol_nr('Z')", 25), ("_kol_nr('AA')", 26), ("_kol_nr('AZ')", 51),
            ("_kol_nr('BA')", 52), ("_kol_nr('C7')", 2), ("_kol_nr('XFD1048576')", 16383), ("_kol_nr('Ab1')", 0),
            ("_kol_nr('BĄ')", 1), ("[_kol_nr(ref) for ref in ('', 'a1', '7', ' A1', '$A$1', 'Ą1', None)]", [None] * 7),
            ("_kol_nr('A' * 13)", 99246114928149462), ("_kol_nr('A' * 20 + '1')", OverflowError),
            ("_kol_nr('Z' * 20)", OverflowError),
            ("_liczba_kolumn([])", 0), ("_liczba_kolumn([[1], (1, 2), [], [3, 4], ['x']])", 2),
            ("_pary(labelled, 1, 2)", [(1.5, 2.0), (8.0, 9.0)]), ("_pary(bare, 0, 3)", []),
            ("_pierwsza_to_numer(labelled)", True), ("_pierwsza_to_numer(bare)", False),
            ("_pierwsza_to_numer([])", None),
            ("_wykryj_format([])", (None, m.T("xyz.fmt_mniej_2"), [])),
            ("_wykryj_format([['7', '1', '2']])", (None, m.T("xyz.fmt_niejasny") % 3, [["7", "1", "2"]])),
            ("_wykryj_format([[1, 2], ['x', 3]])", IndexError), ("_wykryj_format(7)", TypeError),
            ("_rozbierz([['7', '1,5', '2'], [8, 3, 4.5]], 'NrXY')", ([("7", 1.5, 2.0, 0.0), ("8", 3.0, 4.5, 0.0)], [])),
            ("_rozbierz([['1'], ['a', 'ą' * 50], ('1', '2'), []], 'XY')",
             ([("1", 1.0, 2.0, 0.0)], [(1, few, "1"), (2, junk, "a " + "ą" * 38), (4, few.replace("1", "0", 1), "")])),
            ("_rozbierz(None, 'YX')", KeyError), ("_rozbierz([], None)", KeyError),
            ("_rowna_wysokosc(105)", 100.0), ("_rowna_wysokosc(1.36)", 1.5), ("_rowna_wysokosc('x')", TypeError),
            ("_wykryj_uklad([])", []), ("_wykryj_uklad([(1, 2)])", []),
            ("_wykryj_uklad([(5590435.97, 5588346.4)])", [(2176, False, 1.0), (2176, True, 1.0)]),
            ("_wykryj_uklad([(1, 2, 3)])", ValueError), ("_wykryj_uklad([(1,)])", ValueError),
            ("_wykryj_uklad([1])", TypeError), ("_wykryj_uklad([('1', 2)])", TypeError),
            ("_sensowny(7500846, 5788467, 2178)", True), ("_sensowny(5788467, 7500846, 2178)", False),
            ("_sensowny(1, 2, 7)", KeyError), ("_do_geo(1, 2, 7)", KeyError), ("_do_geo(1, 2, '2178')", KeyError),
            ("_do_geo('1', 2, 2178)", TypeError), ("_do_geo(500000, -5300000, 2180)", (0.0, math.radians(19))),
            ("_uklad_nazwa(2180)", "PL-1992 (EPSG:2180)"), ("_uklad_nazwa(7)", "EPSG:7"),
            ("_uklad_nazwa('7a')", "EPSG:7a"),
            ("_typ_pliku(book)", "xlsx"), ("_typ_pliku(odd_name)", "tekst"), ("_typ_pliku(old)", "xls_stary"),
            ("[_typ_pliku(one) for one in texts]", ["tekst"] * 5),
            ("_typ_pliku(folder)", None), ("_typ_pliku(text + '\\0')", ValueError),
            ("_wczytaj(book)", ([["1", "", "ą"]], "xlsx")), ("_wczytaj(text)", ([["1", "2,5"], ["ł", "3"]], "tekst")),
            ("_wczytaj(odd_name)", ([["1", "2"]], "tekst")), ("_wczytaj(old)", (None, "xls_stary")),
            ("_wczytaj(text + 'x')", (None, None)), ("_wczytaj(damaged)", zipfile.BadZipFile),
            ("_czytaj_tekst(text + 'x')", None), ("_czytaj_xlsx(text + 'x')", OSError),
            ("_czytaj_xlsx(text)", zipfile.BadZipFile), ("_czytaj_xlsx(book)", [["1", "", "ą"]]),
            ("_slowo('Zamien')", "Zamien"), ("_slowo('Brak')", "Brak"), ("_setPointDisplayVars()", None),
            ("_oznacz_do_kontroli([])", (0, None)),
            ("_oznacz_do_kontroli([7] * 2001)", (0, m.T("xyz.kontrola_za_duzo") % (2001, 2000))),
        ]:
            with self.subTest(call):
                if isinstance(expected, type):
                    self.assertRaises(expected, eval, call, known)
                else:
                    self.assertEqual(repr(eval(call, known)), repr(expected))  # the types agree, too
        self.assertEqual(session.variables, {"PDMODE": 3, "PDSIZE": -2.0})

    def draw(self, count):
        """Points in model space, drawn by a script with the module's help: the database and the ids."""
        ms, db = m._openModelSpace()
        self.assertEqual([type(ms), type(db)], [runtime.GcDbBlockTableRecord, runtime.GcDbDatabase])
        ids = runtime.GcDbObjectIdArray()
        for i in range(count):
            point = runtime.GcDbPoint(runtime.GcGePoint3d(float(i), 0.0, 0.0))
            ids.append(ms.appendGcDbEntity(point)[1])
            point.close()
        self.assertEqual(m._openModelSpace(), (None, None))  # it is open
        ms.close()
        return db, ids

    def test_groups_and_control_records(self):
        db, ids = self.draw(3)
        names = []
        for _ in range(3):
            names.append(m._nazwa_grupy(db, "C:\\pomiary\\Działka 12.v2.csv"))
            self.assertEqual(m._grupuj(db, ids, names[-1]), (True, ""))
        self.assertRegex(names[0], r"^PIKIETY_\d{4}-\d\d-\d\d_Dzia_ka_12_v2$")
        self.assertEqual(names[1:], [names[0] + "_2", names[0] + "_3"])
        self.assertEqual([group.members for group in session.groups.values()], [list(session.entities)] * 3)
        self.assertEqual(m._grupuj(db, ids, names[0]), (False, m.T("xyz.grup_setat")))
        self.assertEqual(m._grupuj(None, runtime.GcDbObjectIdArray(), ""), (False, m.T("xyz.grup_brak_encji")))
        self.assertEqual(m._oznacz_do_kontroli([*ids.ids, GcDbObjectId(1)]), (3, None))
        self.assertEqual(session.records, [(f"{key:X}", "XYZPKT", [f"{key:X}"]) for key in session.entities])
        m._nazwa_grupy(db, "x")
        del db, ids
        self.check_nothing_is_held()

    def test_group_names(self):
        db = runtime.GcDbDatabase()
        for path, stem in [
            ("C:\\pomiary\\Działka 12.csv", "Dzia_ka_12"), ("/home/jan/pomiary/punkty.v2.txt", "punkty_v2"),
            ("punkty", "punkty"), ("___.txt", "IMPORT"), ("żółć.csv", "IMPORT"), (".csv", "IMPORT"),
            ("_-a-_.csv", "-a-"), ("x" * 60 + ".csv", "x" * 40), ('100% "nowe".csv', "100_nowe"),
            ("__" + "x" * 39 + "  y.csv", "x" * 39 + "_"),  # the cut comes after the strip
        ]:
            with self.subTest(path):
                before = time.strftime("%Y-%m-%d")  # midnight may pass
                name = m._nazwa_grupy(db, path)
                self.assertIn(name, {f"PIKIETY_{day}_{stem}" for day in (before, time.strftime("%Y-%m-%d"))})
        name = m._nazwa_grupy(db, "A.csv")
        for taken, due in [([name[:-1] + "a"], "_2"),  # names are unique without regard to case
                           ([f"{name}_{i}" for i in range(2, 99)], "_99"), ([name + "_99"], r"_\d{6}")]:
            session.groups |= {one: types.SimpleNamespace(name=one) for one in taken}
            self.assertRegex(m._nazwa_grupy(db, "A.csv"), f"^{name}{due}$")
        _, writer = db.getGroupDictionary(GcDb.kForWrite)
        self.assertEqual(m._nazwa_grupy(db, "A.csv"), name)  # cannot be checked
        writer.close()


class Imports(HostTest):
    def drawn_of(self, content):
        session.clear()
        session.file = self.put("p.csv", content)
        m.importxyz()
        return list(session.entities.values())

    def test_labels_by_the_extent_of_the_points(self):
        for content, height in [
            ("A;100;200\nB;100;200\n", 2.5),  # one spot
            ("A;0;0\nB;1e-6;1e-6\n", 2.5), ("A;0;0\nB;1.1e-6;0\n", 0.1),  # the least of all heights
            ("A;0;0\nB;112;60\n", 2.0),  # 2 % of the larger extent
            ("A;0;0\nB;10;5000\n", 100.0), ("A;0;0\nB;10;7750\n", 160.0),  # whole tens above 100
        ]:
            with self.subTest(content):
                point, label, *_ = self.drawn_of(content)
                x, y, z = point.position
                self.assertEqual((label.text, label.height, label.position),
                                 ("A", height, [x + height * 0.6, y + height * 0.6, z]))

    def test_two_hundred_rows_settle_columns_and_axes(self):
        rows = ["7;1;2\n" if i < 20 or i >= 200 else "7;5788457;7500833\n" for i in range(300)]
        drawn = self.drawn_of("".join(rows))
        self.assertEqual((len(drawn), drawn[40].position[1]), (600, 5788457.0))

    def test_places_are_no_more_than_a_help(self):
        real = importlib.import_module("vexo_miejsca")
        self.addCleanup(sys.modules.update, {"vexo_miejsca": real})
        path = self.put("p.txt", AXES)

        def shown(places):
            sys.modules["vexo_miejsca"] = places
            session.clear()
            session.file, session.typed = path, [m.T("xyz.kw_zamien")]
            m.importxyz()
            return session.shown.splitlines()

        def module(answer):
            places = types.ModuleType("vexo_miejsca")
            places.najblizsze_miejsce = lambda lat, lon: answer() if callable(answer) else answer
            return places

        def fails(failure=Injected()):
            raise failure
        told, plain = shown(real), shown(None)
        self.assertEqual([line for line in told if not line.startswith("    ")], plain)
        self.assertEqual(len(told), len(plain) + 2)
        self.assertIn(m.T("xyz.osie_miejsce").rstrip("\n") % "X", shown(module(("X", 0.99, 7))))
        west = m.T("xyz.osie_obok_miejsca").rstrip("\n") % (12, m.T("xyz.kierunek_w"), "X")
        self.assertIn(west, shown(module(("X", 12.4, -90))))
        for odd in (None, fails, 7, ("X", 1), ("X", "1", 2), ("X", math.nan, 2), ("X", 3, math.inf), ("X", -1, 2)):
            self.assertEqual(shown(module(odd)), plain, odd)
        self.assertEqual(shown(types.ModuleType("empty")), plain)
        with self.assertRaises(KeyboardInterrupt):
            shown(module(lambda: fails(KeyboardInterrupt())))

    def test_why_points_are_not_controlled(self):
        core = importlib.import_module("vexo_reaktywne_core")
        self.addCleanup(sys.modules.update, {"vexo_reaktywne_core": core})
        for count, core, said in [
            (2000, core, m.T("xyz.kontrola_ok") % 2000), (2001, core, m.T("xyz.kontrola_za_duzo") % (2001, 2000)),
            (3, None, m.T("xyz.kontrola_niedostepna").partition("%s")[0] + "ModuleNotFoundError: "),
        ]:
            with self.subTest(count):
                sys.modules["vexo_reaktywne_core"] = core
                drawn = self.drawn_of("".join(f"L;{i};200,25;11\n" for i in range(count)))
                self.assertEqual(len(drawn), 2 * count)
                self.assertIn(said, session.shown)
                points = [f"{key:X}" for key, one in session.entities.items() if one.kind == "POINT"]
                self.assertEqual([handle for handle, *_ in session.records], points if count == 2000 else [])

    def test_ways_through_the_dialogue(self):
        axes, columns = self.put("50%s %d.txt", AXES), self.put("u.txt", COLUMNS)
        odd, refused = self.put(os.fsdecode(b"\xb9.csv"), AXES), self.put("r.csv", "%s\x1b𝄞;1;2;3\nB;1;2;nan\n")
        cancelled, cannot_open, imported = (m.T("xyz." + key) for key in ("anulowano", "blad_otworz_plik", "zoom_hint"))
        for case, file, typed, end, points in [
            ("dialog cancelled", None, [], m.T("xyz.anulowano_brak_pliku"), 0),
            ("path cancelled", "", [None], cancelled, 0), ("blank path", "", [" \t"], cancelled, 0),
            ("quoted path", "", [f' "{axes}" ', ""], imported, 3), ("no UTF-8 in the path", odd, [""], imported, 3),
            ("no such file", odd + "x", [], cannot_open % (odd + "x"), 0),
            ("column question cancelled", columns, [None], cancelled, 0),
            ("column question answered", columns, [""], imported, 2),
            ("axis question cancelled", axes, [None], imported, 3),
            ("one point refused", refused, [], imported, 1),
        ]:
            with self.subTest(case):
                session.clear()
                session.file, session.typed = file, typed
                m.importxyz()
                self.assertTrue(session.shown.endswith(end), session.shown)
                self.assertEqual([one.kind for one in session.entities.values()], ["POINT", "TEXT"] * points)
                members = [list(session.entities)] * bool(points)
                self.assertEqual([group.members for group in session.groups.values()], members)
                self.check_nothing_is_held()
        self.assertEqual([*session.entities.values()][1].text, "%s\x1b𝄞")

    def end_due(self, call, way):
        """The failure rules: how what is shown ends, None where the exception leaves the command."""
        T, name = m.T, call.rstrip("0123456789 ")
        rest = T("xyz.punkty_sa") + T("xyz.zoom_hint")
        if way == STATUS:
            refused = T("xyz.grupa_reczne") + rest
            return {"gcedGetFileD 1": T("xyz.anulowano_brak_pliku"), "gcedGetString 1": T("xyz.anulowano"),
                    "gcedGetKword 1": T("xyz.anulowano"), "GcDbDatabase.getBlockTable 1": T("xyz.blad_model"),
                    "GcDbBlockTable.getAt 1": T("xyz.blad_model"),
                    "GcDbDatabase.getGroupDictionary 2": T("xyz.grupa_blad") % T("xyz.grup_brak_slownika") + refused,
                    "GcDbDictionary.setAt 1": T("xyz.grupa_blad") % T("xyz.grup_setat") + refused}.get(call, rest)
        if call in ("resbuf 1", "gcedGetFileD 1", "gcedGetString 1") or isinstance(way, KeyboardInterrupt):
            return None  # before the path is known nothing guards the command
        if name.startswith(("GcDbDictionary", "GcDbGroup", "GcDbDatabase.getGroup", "GcDbObjectIdArray.length")):
            return T("xyz.grupa_pominieta") % "Injected" + rest
        alone = ("zdarzenie", "resbuf", "gcedSetVar", "handle_z_oid", "zapisz_reakt")
        styling = "Style" in name or (name == "gcdbWorkingDatabase" and call[-2:] != " 1")
        return rest if name in alone or styling else T("xyz.blad_ogolny") % ("Injected", str(way))

    def import_with_fault(self, path, at, way, lasting):
        """One import; whether an exception, which can only be that one, left the command."""
        session.clear()
        session.file, session.typed, Boot.notices = "", [path, "", ""], []
        session.fail(at, way, lasting)
        try:
            m.importxyz()
        except BaseException as failure:
            self.assertIs(failure, way)
            return True
        finally:
            self.assertEqual((session.open, session.closed_twice), ([], []), session.failed_call())
        return False

    def check_outcome(self, call, way, left):
        due = self.end_due(call, way)
        self.assertEqual(left, due is None)
        self.assertTrue(session.shown.endswith(due or ""), session.shown)
        if due == m.T("xyz.blad_ogolny") % ("Injected", str(way)):
            self.assertIs(Boot.notices[-1][1], way)
        elif due:
            refused = way == STATUS and call.split()[0].endswith((".appendGcDbEntity", ".setHeight"))
            imported = due.endswith(m.T("xyz.zoom_hint"))
            self.assertEqual(len(session.entities), (6 - refused) * imported)

    def test_every_call_fails_in_turn(self):
        path = self.put("p.txt", BOTH)
        for way, kinds in [(STATUS, 27), (Injected("tekst 100%"), 41), (KeyboardInterrupt(), 41)]:
            tried = set()
            for at in itertools.count():
                with self.subTest(way=way, at=at):
                    left = self.import_with_fault(path, at, way, lasting=False)
                    if call := session.failed_call():
                        tried.add(call.split()[0])
                        self.check_outcome(call, way, left)
                        self.import_with_fault(path, at, way, lasting=True)  # the host fails for good
                if not session.failed_call():
                    break
            self.assertEqual(len(tried), kinds, sorted(tried))  # else an import that calls nothing would pass
        session.clear()
        Boot.notices = []
        del way
        self.check_nothing_is_held()

    def test_other_threads_run_while_a_file_is_read(self):
        # Not UTF-8 at its end, so that it is read twice; hardly a row in it, for making rows needs the lock.
        path = self.put("duzy.txt", ("# " + "komentarz " * 20 + "\n").encode() * 100_000 + b"P1 100 200\n# \xb9\n")
        session.file = path
        for read in (lambda: m._wczytaj(path), m.importxyz):
            blocked = min(self.longest_block(read) for _ in range(3))  # the machine may be busy
            self.assertLess(blocked, 0.5)

    def longest_block(self, read):
        """The longest time in which another thread stood still, as a share of all the reading."""
        ticks, over = [], threading.Event()

        def tick():
            while not over.wait(0.001):
                ticks.append(time.perf_counter())

        ticker = threading.Thread(target=tick)
        ticker.start()
        start = time.perf_counter()
        read()
        end = time.perf_counter()
        over.set()
        ticker.join()
        inside = [start, *(tick for tick in ticks if start < tick < end), end]
        return max(after - before for before, after in zip(inside, inside[1:])) / (end - start)


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    os.environ.pop("VEXO_RYNEK", None)
    os.environ.pop("VEXO_JEZYK", None)
    sys.path.insert(1, os.path.abspath(sys.argv[1]))
    sys.modules["vexo_boot"] = Boot("vexo_boot")
    import vexo_xyz_impl as m
    idle = session.live_objects()
    unittest.main(argv=sys.argv[:1] + sys.argv[2:])
