"""How much of an import in the CAD host is the module's own time: host_share.py MODULES_DIR STAND_IN_DIR [POINTS]

The same file is imported through the tests' strict stand-in for the host and through a mute one whose calls return at
once. What the mute run takes is the module's own time, the siblings' and the bare cost of calling included, so that its
share of the strict run bounds the module's share from above. Runs in turn, each in its own interpreter; medians.
"""
import os
import statistics
import subprocess
import sys
import tempfile
import time
import types

RUNS = 5
GOAL = 0.20


def mute_host():
    """Modules of the host's names whose calls do nothing but return."""
    def answering(value):
        return lambda *arguments: value

    ok = object()
    constants = {"RTNORM": 1, "RTNONE": 2, "RTSHORT": 3, "RTREAL": 4, "GCDB_MODEL_SPACE": "*Model_Space"}
    opened = {"close": answering(ok), "setHeight": answering(ok), "setTextStyle": answering(ok), "append": answering(ok),
              "has": answering(True), "setName": answering(None), "setFileName": answering(None)}

    def kind(**methods):
        return types.SimpleNamespace(**opened, **methods)

    entity, group = kind(), kind()
    record = kind(appendGcDbEntity=answering((ok, 1)))
    table = kind(getAt=answering((ok, record)))
    styles = kind(getAt=answering((ok, 1)))
    groups = types.SimpleNamespace(close=answering(ok), has=answering(False), setAt=answering((ok, 1)))
    database = types.SimpleNamespace(getBlockTable=answering((ok, table)), getGroupDictionary=answering((ok, groups)),
                                     getTextStyleTable=answering((ok, styles)))

    def dialog(title, default, filters, flags, rb):
        rb.resval.rstring = mute_host.file
        return 1

    host = types.ModuleType("pygcad.core")
    vars(host).update(
        constants, command=lambda **names: lambda function: function, gcedGetFileD=dialog, gcutPrintf=answering(None),
        gcedInitGet=answering(1), gcedGetKword=answering((2, "")), gcedSetVar=answering(1),
        resbuf=lambda: types.SimpleNamespace(resval=types.SimpleNamespace()), Gcad=types.SimpleNamespace(eOk=ok),
        GcDb=types.SimpleNamespace(kForRead=5, kForWrite=6), gcdbWorkingDatabase=answering(database),
        GcGePoint3d=answering(entity), GcDbPoint=answering(entity), GcDbText=answering(entity), GcDbGroup=answering(group),
        GcDbObjectIdArray=answering(kind()), GcDbTextStyleTableRecord=answering(kind()))
    sys.modules["pygcad"] = types.ModuleType("pygcad")
    sys.modules["pygcad.core"] = host
    for name in ("pygcad.core.runtime", "pygcad.pygrx"):
        sys.modules[name] = types.ModuleType(name)


def timed_import(modules, stand_in, file):
    """Seconds of one import; through the mute host when `stand_in` is empty."""
    sys.path.insert(0, modules)
    if stand_in:
        sys.path.insert(0, stand_in)
        from pygcad.stand_in import session
        session.file = file
    else:
        mute_host.file = file
        mute_host()
    import vexo_xyz_impl
    start = time.perf_counter()
    vexo_xyz_impl.importxyz()
    return time.perf_counter() - start


def main(modules, stand_in, points="100000"):
    with tempfile.TemporaryDirectory() as folder:
        file = os.path.join(folder, "survey.csv")
        maker = os.path.join(os.path.dirname(os.path.abspath(__file__)), "make_points.py")
        subprocess.run([sys.executable, maker, "survey", points, file], check=True, stdout=subprocess.DEVNULL)

        def seconds(host):
            run = subprocess.run([sys.executable, "-B", __file__, "--one", modules, host, file], check=True,
                                 capture_output=True, text=True, env={**os.environ, "VEXO_RYNEK": "PL"})
            return float(run.stdout)

        strict, mute = zip(*[(seconds(stand_in), seconds("")) for _ in range(RUNS)])
    share = statistics.median(one / other for one, other in zip(mute, strict))
    print(f"| import of {points} points through | seconds, median of {RUNS} (min to max) |\n|---|---|")
    for name, times in (("the strict stand-in", strict), ("a mute host", mute)):
        print(f"| {name} | {statistics.median(times):.2f} ({min(times):.2f} to {max(times):.2f}) |")
    print(f"\nThe module's own share, siblings and the cost of calling included: at most {share:.1%}"
          f" (goal: below {GOAL:.0%}, {'met' if share < GOAL else 'missed'}).")


if __name__ == "__main__":
    if sys.argv[1:2] == ["--one"]:
        print(timed_import(*sys.argv[2:]))
    elif len(sys.argv) < 3:
        sys.exit(__doc__)
    else:
        main(*sys.argv[1:])
