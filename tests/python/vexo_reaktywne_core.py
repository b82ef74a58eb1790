"""The family's control records as the stand-in's drawing keeps them. A failing status here is an empty answer."""
from pygcad.stand_in import GcDbObjectId, check, session


def handle_z_oid(oid):
    check("handle_z_oid", [oid], [GcDbObjectId])
    if session.fails("handle_z_oid", True) or oid.value not in session.entities:
        return None
    return f"{oid.value:X}"


def zapisz_reakt(oid, kind, handles):
    check("zapisz_reakt", [oid, kind, *handles], [GcDbObjectId, str, str])
    if session.fails("zapisz_reakt", True) or any(other.key == oid.value for other in session.open):
        return 0
    session.records.append((f"{oid.value:X}", kind, handles))
    return len(session.records)
