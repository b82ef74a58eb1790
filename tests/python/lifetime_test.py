"""What a host may do to the module while it works: re-enter it, reload it, take it apart, run it in threads, end.

    lifetime_test.py DIST_DIR [unittest options]

Each script runs in a process of its own, so that one that ends it fails alone.
"""
import json
import pathlib
import sys
import unittest

sys.dont_write_bytecode = True

from fresh_process import run

START = """
import gc, importlib, itertools, json, os, sys, threading, types, zipfile
from pygcad.core import runtime
from pygcad.stand_in import GcDb, session
import vexo_xyz_impl as m

POINTS = "P1;6542052.26;6024823.93;2.85\\nP2;6542057.52;6024830.58;3.77\\nP3;6542070.89;6024826.78;3.26\\n"
def put(name, content):
    with open(name, "w", encoding="utf-8") as file:
        file.write(content)
    return os.path.abspath(name)
def workbook(name, rows):
    with zipfile.ZipFile(name, "w") as archive:
        archive.writestr("xl/sharedStrings.xml", "".join(f"<si><t>N{i}</t></si>" for i in range(rows)))
        archive.writestr("xl/worksheets/sheet1.xml", "".join(
            f'<row><c r="A{i}" t="s"><v>{i}</v></c><c r="B{i}"><v>{7500000 + i / 8}</v></c></row>' for i in range(rows)))
    return os.path.abspath(name)
def in_threads(count, work):
    outcomes = []
    threads = [threading.Thread(target=lambda: outcomes.append(work())) for _ in range(count)]
    for thread in threads: thread.start()
    for thread in threads: thread.join()
    assert len(outcomes) == count, "a thread died"
    return outcomes
points = session.file = put("p.csv", POINTS)
"""

# An import with something done to the module at one of the host's calls, for each call and each thing; what came of it.
REENTRY = START + """
other = put("inner.csv", "I1;6542000;6024000;1\\nI2;6542100;6024100;2\\n")
def nested():
    session.file, outer = other, session.file
    m.importxyz()
    session.file = outer
def operations():
    ms, db = m._openModelSpace()
    if ms:
        ms.close()
        m._nazwa_grupy(db, "x"), m._grupuj(db, runtime.GcDbObjectIdArray(), "x")
    m._oznacz_do_kontroli([]), m._setPointDisplayVars(), m._wczytaj(points), m._slowo("Tak")
    m._wykryj_format([["1", "2", "3"]] * 3), m._wykryj_uklad([(6542052.26, 6024823.93)])
def again():
    del sys.modules["vexo_xyz_impl"]
    importlib.import_module("vexo_xyz_impl")
def reload():
    sys.modules["vexo_xyz_impl"] = m
    importlib.reload(m)
def taken_apart():
    kept = dict(vars(m))
    sys.modules.pop("vexo_xyz_impl", None)
    m.__dict__.clear()
    gc.collect()
    m.__dict__.update(kept)
command, outcomes = m.importxyz, {}
for action in (nested, operations, again, reload, taken_apart):
    for at in itertools.count():
        session.clear()
        session.file = points
        calls = itertools.count()
        def callback(call):
            if next(calls) == at:
                session.callback = None
                action()
                session.callback = callback
        session.callback = callback
        command()
        if next(calls) <= at:
            break
        texts = [[getattr(session.entities[h], "text", "") for h in group.members] for group in session.groups.values()]
        sound = ["", "P1", "", "P2", "", "P3"] in texts and not session.open and not session.closed_twice
        outcomes.setdefault(action.__name__, set()).add(sound)
print(json.dumps({name: sorted(all) for name, all in outcomes.items()}))
"""

# Each prints what must be true, as a list.
SCRIPTS = {
    "a module without its attributes goes on working": START + """
command, num = m.importxyz, m._num
m.__dict__.clear()
del m, sys.modules["vexo_xyz_impl"]
gc.collect()
command()
print(json.dumps([num("1,5") == 1.5, len(session.entities) == 6]))
""",
    "what the module's dictionary holds may use it until the very end": START + """
class Last:
    def __del__(self, num=m._num, run=m.importxyz):
        try:
            num("1"), run()
        except Exception:
            pass  # of scripts there is little left by then
m.last = Last()
print(json.dumps([True]))
""",
    "an old module stays as it was loaded": START + """
old = m
sys.modules["vexo_rynek"] = types.SimpleNamespace(rynek=lambda: "DE")
del sys.modules["vexo_xyz_impl"]
import vexo_xyz_impl as new
sys.modules["vexo_cad_core"] = None
del sys.modules["vexo_xyz_impl"]
try:
    import vexo_xyz_impl
except ImportError:
    pass
pair, names = [(6542052.26, 6024823.93)], [one._D.__name__ for one in (old, new)]
old.importxyz()
print(json.dumps([names == ["vexo_xyz_dane_PL", "vexo_xyz_dane_DE"], old._wykryj_uklad(pair) != [],
                  new._wykryj_uklad(pair) == [], old._uklad_nazwa(25832) == "EPSG:25832", len(session.entities) == 6]))
""",
    "a reload sets up anew": START + """
paths, command, first = len(sys.path), m.importxyz, m._num
sys.modules["vexo_rynek"] = types.SimpleNamespace(rynek=lambda: "DE")
same = importlib.reload(m) is m
print(json.dumps([same, m._D.__name__ == "vexo_xyz_dane_DE", len(sys.path) == paths + 1, m.importxyz is not command,
                  m._num is not first, m._num("1") == 1.0, session.commands["VEXO_XYZ"] is m.importxyz]))
""",
    "no module is kept by itself": START + """
for i in range(150):
    del sys.modules["vexo_xyz_impl"]
    import vexo_xyz_impl as m
    importlib.reload(m)
gc.collect()
alive = [one for one in gc.get_objects() if isinstance(one, types.ModuleType) and one.__name__ == "vexo_xyz_impl"]
print(json.dumps([len(alive) < 4]))
""",
    "the command is a function as any": START + """
def command(**names):
    def register(function):
        function.registered, command.function = True, function
        function()  # even at once
        return function
    return register
import inspect, pygcad.core
pygcad.core.command = command
importlib.reload(m)
own = command.function
print(json.dumps([m.importxyz is own, own.registered, own.__name__ == "importxyz", own.__module__ == "vexo_xyz_impl",
                  str(inspect.signature(own)) == "()", len(session.entities) == 6]))
""",
    "operations take their arguments by name, paths of any kind": START + """
import pathlib
rows = [["P1", "P2", "P3"]]
print(json.dumps([m._num(tok="1") == 1.0, m._do_geo(E=500000, N=-5300000, srid=2180)[0] == 0.0,
                  m._pary(dane=[["1", "2"]], i=0, j=1) == [(1.0, 2.0)], m._rozbierz(wiersze=[], fmt="XY") == ([], []),
                  [m._typ_pliku(kind(points)) for kind in (str, os.fsencode, pathlib.Path)] == ["tekst"] * 3,
                  len(m._czytaj_tekst(os.fsencode(points))) == 3]))
""",
    "equal texts of a workbook are one object": START + """
text = "x" * (1 << 20)
with zipfile.ZipFile("t.xlsx", "w") as archive:
    archive.writestr("xl/sharedStrings.xml", f"<si><t>{text}</t></si>")
    archive.writestr("xl/worksheets/sheet1.xml", '<row><c r="A1" t="s"><v>0</v></c></row>' * 3000)
rows, typ = m._wczytaj("t.xlsx")
print(json.dumps([len(rows) == 3000, rows[0][0] == text, all(row[0] is rows[0][0] for row in rows)]))
""",
    "a text that does not take its values is shown, and told": START + """
heard, T = [], m.T
sys.modules["vexo_boot"] = types.SimpleNamespace(zdarzenie=len, blad=lambda name, failure: heard.append(failure))
sys.modules["vexo_teksty"] = types.SimpleNamespace(T=lambda key: {"xyz.fmt_niejasny": "%s i %s"}.get(key, T(key)))
importlib.reload(m)
answers = [m._wykryj_format([["1", "2", "3"]]) == (None, "%s i %s", [["1", "2", "3"]])]
print(json.dumps([*answers, [type(one) for one in heard] == [ValueError], "xyz.fmt_niejasny" in str(heard[0])]))
""",
    "no subinterpreter": START + """
import _xxsubinterpreters
inner = _xxsubinterpreters.create()
_xxsubinterpreters.run_string(inner, '''
for name in ("vexo_xyz_impl", "vexo_teksty"):
    try:
        __import__(name)
    except ImportError as refused:
        open(name, "w").write(str(refused))
''')
print(json.dumps(["main interpreter" in open(name).read() for name in ("vexo_xyz_impl", "vexo_teksty")]))
""",
    "a thread that reads while the interpreter ends": START + """
books = [workbook(f"b{i}.xlsx", 20000) for i in range(3)]
def forever(book):
    while True: m._wczytaj(book)
for book in books: threading.Thread(target=forever, args=(book,), daemon=True).start()
import time
time.sleep(0.3)
print(json.dumps([True]))
""",
    "a thread inside a script while the interpreter ends": START + """
import builtins, time
class Late:  # keeps the interpreter ending while the threads wake up
    def __del__(self, sleep=time.sleep): sleep(0.5)
def slowly(*args):
    while True: time.sleep(0.001)
class Tables(types.SimpleNamespace):
    __getitem__ = slowly
m._D.UKLADY = Tables()
def inserting():
    session.thread, session.callback = None, lambda call: call == "GcDbText" and slowly()
    m.importxyz()
for work in (inserting, lambda: m._sensowny(1, 2, 1), lambda: m._wykryj_format([["1", "2", "3"]] * 3)):
    threading.Thread(target=work, daemon=True).start()
time.sleep(0.3)
builtins.late = Late()
print(json.dumps([True]))
""",
    "a garbage collection sees no half-made list": START + """
book = workbook("b.xlsx", 3000)
gc.callbacks.append(lambda *of: [one[-1] for one in gc.get_objects() if type(one) is list and len(one) == 3000])
print(json.dumps([len(m._czytaj_xlsx(book)) == 3000]))
""",
    "a status that cannot be judged leaves nothing open": START + """
class Odd:
    def __eq__(self, other): raise KeyboardInterrupt
import pygcad.pygrx
answers = []
for at in range(8):
    session.clear()
    session.file, statuses = points, itertools.count()
    def judged(method):
        def call(self, *arguments):
            status, one = method(self, *arguments)
            return (Odd() if next(statuses) == at else status), one
        return call
    kept = [(kind, name, getattr(kind, name)) for kind, name in (
        (runtime.GcDbDatabase, "getBlockTable"), (runtime.GcDbBlockTable, "getAt"),
        (runtime.GcDbDatabase, "getGroupDictionary"), (runtime.GcDbDatabase, "getTextStyleTable"))]
    for kind, name, method in kept: setattr(kind, name, judged(method))
    try:
        m.importxyz()
        interrupted = False
    except KeyboardInterrupt:
        interrupted = True
    for kind, name, method in kept: setattr(kind, name, method)
    answers.append(interrupted == (at < next(statuses)) and not session.open)
print(json.dumps(answers))
""",
    "answers of any length and kind": START + """
import pygcad.pygrx
def fails(call, kind):
    try: call()
    except kind: return True
class Interrupting:
    def __float__(self): raise KeyboardInterrupt
answers = [fails(lambda: m._wykryj_uklad([itertools.count()]), ValueError)]
answers += [fails(lambda: m._do_geo(Interrupting(), 1, 2178), KeyboardInterrupt)]
pygcad.pygrx.gcedInitGet = pygcad.pygrx.gcedSetVar = lambda *arguments: None
pygcad.pygrx.gcedGetString = lambda *arguments: itertools.repeat("a")
importlib.reload(m)
m.importxyz()
session.file = ""
answers += [len(session.entities) == 6, fails(m.importxyz, ValueError)]
print(json.dumps(answers))
""",
    "a script's projection in threads": """
import os
os.environ["VEXO_RYNEK"] = "RO"
""" + START + """
sys.setswitchinterval(1e-5)
pairs = [(587785.603, 325790.205)] * 20
expected = m._wykryj_uklad(pairs)
assert expected
def detect():
    return all(m._wykryj_uklad(pairs) == expected for _ in range(100))
print(json.dumps(in_threads(4, detect)))
""",
    "imports in threads": START + """
session.thread = None
sys.setswitchinterval(1e-5)
def several():
    for _ in range(25): m.importxyz()
    return True
done = in_threads(4, several)
texts = [one.text for one in session.entities.values() if one.kind == "TEXT"]
inserted = session.shown.count(m.T("xyz.zoom_hint"))
refused = session.shown.count(m.T("xyz.blad_model")) + session.shown.count(m.T("xyz.blad_ogolny")[:12])
print(json.dumps([*done, inserted > 0, inserted + refused == 100, len(texts) == 3 * inserted, not session.open]))
""",
}

# Loads the module for a market of the given tables, beside sound ones.
MARKET = START + """
from math import inf, nan
TM = ("TM", 21.0, 0.999923, 7500000.0, 0.0)
def loaded(**tables):
    sound = dict(UKLADY={1: TM}, KOLEJNOSC=[1], NAZWY={}, KRAJ_LAT=(49, 55), KRAJ_LON=(14, 24), ZONE_EXEMPT=(),
                 EASTING_HALF=None, LON_HALF=None)
    sys.modules["vexo_xyz_dane_XX"] = types.SimpleNamespace(__name__="XX", **sound | tables)
    sys.modules["vexo_rynek"] = types.SimpleNamespace(rynek=lambda: "XX")
    importlib.reload(m)
    return m._D.__name__ == "XX"
"""

# Evaluates calls: their answers, or the kinds of their failures.
MARKETS = MARKET + """
class Items:
    def __init__(self, items): self.items = items
    def __getitem__(self, key): return self.items[key]
class Members:
    def __contains__(self, code): return code == "x"
def outcome(call):
    try:
        return repr(eval(call))
    except Exception as failure:
        return type(failure).__name__
answers = []
for tables, call in json.loads(sys.argv[1]):
    eval(f"loaded({tables})") or answers.append("not bound")
    answers.append(outcome(call))
print(json.dumps(answers))
"""
HERE_, THERE = "(7500833.5, 5788456.5)", "(5788456.5, 7500833.5)"
ODD_MARKETS = [  # tables beside sound ones, a call, its answer or the kind of its failure
    ("", f"m._wykryj_uklad([{HERE_}])", "[(1, False, 1.0)]"),
    ("UKLADY={1: TM, 2: 'odd', 3: ()}", f"m._wykryj_uklad([{HERE_}])", "[(1, False, 1.0)]"),  # unused, so unseen
    ("UKLADY=Items({1: TM}), ZONE_EXEMPT=Members(), KOLEJNOSC=iter([1])", f"m._wykryj_uklad([{THERE}])",
     "[(1, True, 1.0)]"),
    ("UKLADY={'x': list(TM)}, KOLEJNOSC=['x'], ZONE_EXEMPT=Members(), EASTING_HALF=0", f"m._wykryj_uklad([{HERE_}])",
     "[('x', False, 1.0)]"),
    ("UKLADY={1: TM[:4]}", f"m._wykryj_uklad([{HERE_}])", "ValueError"),
    ("UKLADY={1: TM + (0,)}", f"m._do_geo(*{HERE_}, 1)", "ValueError"),
    ("UKLADY={1: ('TM', '21', 1, 0, 0)}", f"m._sensowny(*{HERE_}, 1)", "TypeError"),
    ("UKLADY={1: ()}", f"m._sensowny(*{HERE_}, 1)", "IndexError"),
    ("UKLADY={1: ('TM', 21, 0, 0, 0)}", f"m._wykryj_uklad([{HERE_}])", "[]"),  # divided by zero: not plausible
    ("UKLADY={1: ('TM', 21, 0, 0, 0)}", f"m._do_geo(*{HERE_}, 1)", "ZeroDivisionError"),
    ("", "m._do_geo(7500000, -inf, 1)", "ValueError"),
    ("", "m._do_geo(-1e10, 5.8e6, 1)", "OverflowError"),  # beyond the hyperbolic functions
    ("", "[len(m._do_geo(*pair, 1)) for pair in ((inf, 5.8e6), (nan, nan))]", "[2, 2]"),
    ("KRAJ_LAT=(-360, 360), KRAJ_LON=(-360, 360)", "[m._sensowny(*pair, 1) for pair in ((7500000, -inf), "
     "(-1e10, 5.8e6), (inf, 5.8e6), (nan, nan), (7500000, 5.8e6))]", "[False, False, False, False, True]"),
    ("KOLEJNOSC=[1, 9]", f"m._wykryj_uklad([{HERE_}])", "KeyError"),
    ("KOLEJNOSC=None", f"m._wykryj_uklad([{HERE_}])", "TypeError"),
    ("KRAJ_LON=None", f"m._wykryj_uklad([(0, 0)])", "[]"),  # outside by latitude, so never asked
    ("KRAJ_LON=None", f"m._wykryj_uklad([{HERE_}])", "TypeError"),
    ("KRAJ_LAT=(49,)", f"m._wykryj_uklad([{HERE_}])", "IndexError"),
    ("EASTING_HALF='wide'", f"m._wykryj_uklad([{HERE_}])", "TypeError"),
    ("EASTING_HALF=500", f"m._wykryj_uklad([{HERE_}])", "[]"),
    ("LON_HALF=0.001", f"m._wykryj_uklad([{HERE_}])", "[]"),
    ("LON_HALF=0.001, ZONE_EXEMPT={1}", f"m._wykryj_uklad([{HERE_}])", "[(1, False, 1.0)]"),
    ("NAZWY={1: 'A'}", "(m._D.NAZWY.update({1: 'B'}), m._uklad_nazwa(1), m._uklad_nazwa(2))[1:]", "('B', 'EPSG:2')"),
    ("NAZWY={'x': 7}", "(m._uklad_nazwa('x'), m._uklad_nazwa('y'))", "(7, 'EPSG:y')"),
]

# A projection of scripts that answers or raises; whether the points went in, and what was said of the system.
PROJECTION = MARKET + """
answer = None
def stereo70_do_geo(E, N): return eval(answer)
sys.modules["vexo_stereo70"] = types.SimpleNamespace(stereo70_do_geo=stereo70_do_geo)
loaded(UKLADY={1: ("stereo70",)}, KRAJ_LAT=(43, 49), KRAJ_LON=(20, 30))
said = []
for answer in json.loads(sys.argv[1]):
    session.clear()
    session.file, session.typed = points, [""]
    m.importxyz()
    key = next((key for key in ("xyz.uklad_nierozpoznany", "xyz.osie_niejednoznaczne") if m.T(key) in session.shown), "")
    said.append([len(session.entities), key or session.shown.rstrip().splitlines()[-1].rpartition(": ")[0][-9:]])
print(json.dumps(said))
"""
UNKNOWN, BOTH_WAYS = [6, "xyz.uklad_nierozpoznany"], [6, "xyz.osie_niejednoznaczne"]
PROJECTIONS = [
    ("(0.8, 0.43)", BOTH_WAYS), ("[0.8, 0.43]", BOTH_WAYS), ("(0, 0)", UNKNOWN), ("1 / 0", UNKNOWN),
    ("math.exp(1e9)", [0, "NameError"]), ("__import__('math').exp(1e9)", UNKNOWN), ("int('x')", UNKNOWN),
    ("b'\\xff'.decode()", UNKNOWN), ("(1, 2, 3)", UNKNOWN), ("7", [0, "TypeError"]), ("('a', 'b')", [0, "TypeError"]),
    ("{}['x']", [0, " KeyError"]),
]


class Lifetime(unittest.TestCase):
    def test_whatever_the_host_does_at_any_of_its_calls(self):
        names = ["nested", "operations", "again", "reload", "taken_apart"]
        self.assertEqual(run(dist, REENTRY), {name: [True] for name in names})

    def test_scripts(self):
        for name, script in SCRIPTS.items():
            with self.subTest(name):
                answers = run(dist, script)
                self.assertEqual(answers, [True] * len(answers))

    def test_odd_markets(self):
        answers = run(dist, MARKETS, json.dumps([case[:2] for case in ODD_MARKETS]))
        self.assertEqual(list(zip(ODD_MARKETS, answers)), [(case, case[2]) for case in ODD_MARKETS])

    def test_a_script_s_projection(self):
        answers = run(dist, PROJECTION, json.dumps([answer for answer, _ in PROJECTIONS]))
        self.assertEqual(list(zip(PROJECTIONS, answers)), [(case, case[1]) for case in PROJECTIONS])


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    dist = pathlib.Path(sys.argv[1]).resolve()
    unittest.main(argv=sys.argv[:1] + sys.argv[2:])
