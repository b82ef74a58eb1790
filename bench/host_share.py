#!/usr/bin/python3
"""One import in the CAD host's scripting layer: host_share.py MODULES_DIR STAND_IN_DIR FILE; prints its seconds.

With "mute" for STAND_IN_DIR the host is one whose calls return at once. What that run takes is the module's own time,
the siblings' and the bare cost of calling included.
"""
import sys
import time
import types


def mute_host(file):
    """Modules of the host's names whose calls do nothing but return."""
    def answering(value):
        return lambda *arguments: value

    ok = object()

    def kind(**methods):
        quiet = ("close", "setHeight", "setTextStyle", "append", "has", "setName", "setFileName")
        return types.SimpleNamespace(**{**{name: answering(ok) for name in quiet}, **methods})

    table = kind(getAt=answering((ok, kind(appendGcDbEntity=answering((ok, 1))))))
    styles = kind(getAt=answering((ok, 1)))
    groups = kind(has=answering(False), setAt=answering((ok, 1)))
    database = types.SimpleNamespace(getBlockTable=answering((ok, table)), getGroupDictionary=answering((ok, groups)),
                                     getTextStyleTable=answering((ok, styles)))

    def dialog(title, default, filters, flags, rb):
        rb.resval.rstring = file
        return 1

    host = types.ModuleType("pygcad.core")
    vars(host).update(
        RTNORM=1, RTNONE=2, RTSHORT=3, RTREAL=4, GCDB_MODEL_SPACE="*Model_Space",
        command=lambda **names: lambda function: function, gcedGetFileD=dialog, gcutPrintf=answering(None),
        gcedInitGet=answering(1), gcedGetKword=answering((2, "")), gcedSetVar=answering(1),
        resbuf=lambda: types.SimpleNamespace(resval=types.SimpleNamespace()), Gcad=types.SimpleNamespace(eOk=ok),
        GcDb=types.SimpleNamespace(kForRead=5, kForWrite=6), gcdbWorkingDatabase=answering(database),
        **{name: answering(kind()) for name in (
            "GcGePoint3d", "GcDbPoint", "GcDbText", "GcDbGroup", "GcDbObjectIdArray", "GcDbTextStyleTableRecord")})
    sys.modules["pygcad.core"] = host
    for name in ("pygcad", "pygcad.core.runtime", "pygcad.pygrx"):
        sys.modules[name] = types.ModuleType(name)


modules, stand_in, survey = sys.argv[1:]
sys.path[:0] = [modules, stand_in]
if stand_in == "mute":
    mute_host(survey)
else:
    from pygcad.stand_in import session
    session.file = survey
import vexo_xyz_impl
start = time.perf_counter()
vexo_xyz_impl.importxyz()
print(time.perf_counter() - start)
