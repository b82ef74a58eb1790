"""Values, and the drawing: its tables and dictionaries, points and texts, groups and styles."""
import math

from pygcad.stand_in import (Gcad, GcDb, GcDbObjectId, HostObject, Newcomer, OpenMode, Opening, ResultType, check,
                             host_call, session)

GCDB_MODEL_SPACE = "*Model_Space"


class Fields(HostObject):
    """Attributes of fixed names and types; one that was never set cannot be read."""
    kinds = {}

    def __setattr__(self, name, value):
        if name not in self.kinds:
            raise AttributeError(f"{type(self).__name__} has no attribute {name}")
        check(f"{type(self).__name__}.{name}", [value], [self.kinds[name]])
        super().__setattr__(name, value)


class ResultValue(Fields):
    kinds = {"rstring": str, "rint": int, "rreal": float}


class resbuf(Fields):
    kinds = {"restype": ResultType, "resval": ResultValue}

    @host_call()
    def __init__(self):
        self.resval = ResultValue()


class GcGePoint3d(HostObject):
    @host_call()
    def __init__(self, x: float, y: float, z: float):
        self.xyz = [x, y, z]


class GcDbObjectIdArray(HostObject):
    @host_call()
    def __init__(self):
        self.ids = []

    @host_call()
    def append(self, oid: GcDbObjectId):
        self.ids.append(oid)

    @host_call()
    def length(self):
        return len(self.ids)


class Entity(Newcomer):
    def is_sound(self):
        height = getattr(self.data, "height", 1.0)
        return all(map(math.isfinite, [*self.data.position, height])) and height > 0


class GcDbPoint(Entity):
    @host_call()
    def __init__(self, position: GcGePoint3d):
        super().__init__(kind="POINT", position=position.xyz)


class GcDbText(Entity):
    @host_call()
    def __init__(self, position: GcGePoint3d, text: str):
        super().__init__(kind="TEXT", position=position.xyz, text=text, height=0.0, style="Standard")

    @host_call(Gcad.eInvalidInput)
    def setHeight(self, height: float):
        self.data.height = height
        return Gcad.eOk

    @host_call(Gcad.eInvalidInput)
    def setTextStyle(self, style: GcDbObjectId):
        if style.value not in session.styles:
            return Gcad.eInvalidInput
        self.data.style = session.styles[style.value].name
        return Gcad.eOk


class GcDbGroup(Newcomer):
    @host_call()
    def __init__(self, description: str, selectable: bool):
        super().__init__(description=description, selectable=selectable, members=[])

    @host_call(Gcad.eInvalidInput)
    def append(self, ids: GcDbObjectIdArray):
        handles = [oid.value for oid in ids.ids]
        if not all(handle in session.entities for handle in handles):
            return Gcad.eInvalidInput
        self.data.members += handles
        return Gcad.eOk


class GcDbBlockTableRecord(Opening):
    @host_call((Gcad.eInvalidInput, None))
    def appendGcDbEntity(self, entity: Entity):
        entity.use("appendGcDbEntity")
        if self.mode != GcDb.kForWrite:
            return Gcad.eNotOpenForWrite, None
        if entity.key is not None or not entity.is_sound():
            return Gcad.eInvalidInput, None
        return Gcad.eOk, entity.move_into(session.entities)


class GcDbBlockTable(Opening):
    @host_call((Gcad.eInvalidInput, None))
    def getAt(self, name: str, mode: OpenMode):
        if name != GCDB_MODEL_SPACE:
            return Gcad.eKeyNotFound, None
        return session.opened(GcDbBlockTableRecord, name, mode)


class Names(Opening):
    """What finds things by their names, letter case aside."""

    def handle(self, name):
        kept = session.groups if isinstance(self, GcDbDictionary) else session.styles
        return next((handle for handle, one in kept.items() if one.name.lower() == name.lower()), None)

    def take(self, newcomer, name, kept):
        newcomer.use("taking it in")
        if self.mode != GcDb.kForWrite:
            return Gcad.eNotOpenForWrite, None
        if newcomer.key is not None or self.handle(name):
            return Gcad.eDuplicateKey, None
        newcomer.data.name = name
        return Gcad.eOk, newcomer.move_into(kept)

    @host_call()
    def has(self, name: str):
        return self.handle(name) is not None


class GcDbDictionary(Names):
    @host_call((Gcad.eInvalidInput, None))
    def setAt(self, name: str, group: GcDbGroup):
        return self.take(group, name, session.groups)


class GcDbTextStyleTableRecord(Newcomer):
    @host_call()
    def __init__(self):
        super().__init__(name="", file="")

    @host_call(Gcad.eInvalidInput)
    def setName(self, name: str):
        self.data.name = name
        return Gcad.eOk

    @host_call(Gcad.eInvalidInput)
    def setFileName(self, name: str):
        self.data.file = name
        return Gcad.eOk


class GcDbTextStyleTable(Names):
    @host_call((Gcad.eInvalidInput, None))
    def getAt(self, name: str):
        handle = self.handle(name)
        return (Gcad.eOk, GcDbObjectId(handle)) if handle else (Gcad.eKeyNotFound, None)

    @host_call((Gcad.eInvalidInput, None))
    def add(self, record: GcDbTextStyleTableRecord):
        return self.take(record, record.data.name, session.styles)


class GcDbDatabase(HostObject):
    @host_call((Gcad.eInvalidInput, None))
    def getBlockTable(self, mode: OpenMode):
        return session.opened(GcDbBlockTable, "block table", mode)

    @host_call((Gcad.eInvalidInput, None))
    def getGroupDictionary(self, mode: OpenMode):
        return session.opened(GcDbDictionary, "group dictionary", mode)

    @host_call((Gcad.eInvalidInput, None))
    def getTextStyleTable(self, mode: OpenMode):
        return session.opened(GcDbTextStyleTable, "text style table", mode)


@host_call()
def gcdbWorkingDatabase():
    return GcDbDatabase()
