"""Walks the graph of handles of an ASCII DXF file (AC1021, UTF-8) and names what a strict reader would stumble over.

    dxf_graph.py FILE...        prints the problems, exit status 1 if there is any

It knows nothing of who wrote the file. Readers in common use repair or overlook most of these faults in silence.
"""
import math
import re
import sys
from collections import Counter

SECTIONS = ["HEADER", "CLASSES", "TABLES", "BLOCKS", "ENTITIES", "OBJECTS"]
WITHOUT_HANDLE = {"SECTION", "ENDSEC", "CLASS", "ENDTAB", "EOF"}
REALS = [(10, 59), (110, 149), (210, 239), (460, 469), (1010, 1059)]
INTEGERS = [(60, 79), (90, 99), (160, 179), (270, 289), (370, 389), (400, 409), (420, 429), (440, 459), (1060, 1071)]
POINTERS = [(330, 369), (390, 399), (480, 481), (1005, 1005)]
NAMES = {6: "LTYPE", 7: "STYLE", 8: "LAYER", 1001: "APPID"}  # what an entity names, and the table that must hold it
HANDLE = re.compile(r"[0-9A-F]{1,16}")
INTEGER = re.compile(r"[+-]?\d+")
REAL = re.compile(r"[+-]?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?")


def within(code, ranges):
    return any(low <= code <= high for low, high in ranges)


def read_tags(path):
    with open(path, encoding="utf-8", newline="") as file:
        lines = [line.removesuffix("\r") for line in file.read().removesuffix("\n").split("\n")]
    if len(lines) % 2:
        raise ValueError("a group code without its value at the end of the file")
    return [(int(code), value) for code, value in zip(lines[::2], lines[1::2])]


class Record:
    """What stands between one 0 tag and the next. Tags between 102 { and 102 } are not its own."""

    def __init__(self, tags, section):
        self.kind, self.tags, self.section = tags[0][1], tags, section
        self.own, self.reactors, bracket = [], [], None
        for code, value in tags[1:]:
            if code == 102:
                bracket = value if value.startswith("{") else None
            elif bracket is None:
                self.own.append((code, value))
            elif bracket == "{ACAD_REACTORS" and code == 330:
                self.reactors.append(value)
        self.has_handle = self.kind not in WITHOUT_HANDLE
        self.handle = self.first(105 if self.kind == "DIMSTYLE" else 5) if self.has_handle else None
        head = next((i for i, (code, _) in enumerate(self.own) if code == 100), None)
        self.owner = next((value for code, value in self.own[:head] if code == 330), None)

    def all(self, *codes):
        return [value for code, value in self.own if code in codes]

    def first(self, code):
        return next(iter(self.all(code)), None)

    def __str__(self):
        return f"{self.kind} {self.handle}" if self.has_handle else self.kind


def split(tags, found):
    """The records of the file in order; the frame of sections is checked on the way."""
    starts = [i for i, (code, _) in enumerate(tags) if code == 0]
    records, names, section = [], [], None
    for begin, end in zip(starts, starts[1:] + [len(tags)]):
        if tags[begin] == (0, "SECTION"):
            section = tags[begin + 1][1]
            names.append(section)
        records.append(Record(tags[begin:end], section))
        if tags[begin] == (0, "ENDSEC"):
            section = None
    frame = [r.kind for r in records if r.kind in ("SECTION", "ENDSEC", "EOF") or r.section is None]
    if frame != ["SECTION", "ENDSEC"] * len(names) + ["EOF"] or tags[-1] != (0, "EOF"):
        found.append("SECTION, ENDSEC and EOF do not frame the file")
    if [name for name in names if name in SECTIONS] != SECTIONS:
        found.append(f"sections are {' '.join(names)}")
    return records


def check_values(records, found):
    for record in records:
        for code, value in record.tags:
            shape = REAL if within(code, REALS) else INTEGER if within(code, INTEGERS) else None
            if shape and not (shape.fullmatch(value.strip()) and math.isfinite(float(value))):
                found.append(f"{record}: {code} = {value!r} is not a number")


def check_handles(records, by_handle, found):
    for handle, times in Counter(r.handle for r in records if r.handle).items():
        if times > 1:
            found.append(f"handle {handle} is used {times} times")
    root = next((r for r in records if r.section == "OBJECTS" and r.kind == "DICTIONARY"), None)
    for record in records:
        if record.has_handle and not (HANDLE.fullmatch(record.handle or "") and int(record.handle, 16)):
            found.append(f"{record}: no proper handle")
        top = record.kind == "TABLE" or record is root
        if record.has_handle and record.owner not in by_handle and not (top and record.owner == "0"):
            found.append(f"{record}: owner {record.owner!r} does not exist")
        for code, value in record.tags:
            may_be_null = record.kind not in ("GROUP", "DICTIONARY") and value == "0"
            if within(code, POINTERS) and value not in by_handle and value != record.owner and not may_be_null:
                found.append(f"{record}: {code} points to {value!r}, which does not exist")


def check_header(tags, by_handle, found):
    header = {value: tags[i + 1][1] for i, (code, value) in enumerate(tags[:-1]) if code == 9}
    seed = header.get("$HANDSEED", "")
    largest = max((int(handle, 16) for handle in by_handle if HANDLE.fullmatch(handle)), default=0)
    if not HANDLE.fullmatch(seed) or int(seed, 16) <= largest:
        found.append(f"$HANDSEED {seed!r} is not above the largest handle {largest:X}")
    if header.get("$ACADVER") != "AC1021":
        found.append("$ACADVER is not AC1021")


def check_tables(records, found):
    names, table = {}, None
    for record in [r for r in records if r.section == "TABLES"]:
        if record.kind == "TABLE":
            table = record
            names[table.first(2)] = []
        elif record.kind == "ENDTAB":
            held = len(names[table.first(2)])
            if (table.first(70) or "").strip() != str(held):
                found.append(f"table {table.first(2)} says {table.first(70)} entries and holds {held}")
        elif table and record.has_handle:
            names[table.first(2)].append((record.first(2) or "").upper())
            if record.owner != table.handle:
                found.append(f"{record}: not owned by its table {table.first(2)}")
    for record in [r for r in records if r.section in ("BLOCKS", "ENTITIES")]:
        for code, value in record.own:
            if code in NAMES and value.upper() not in names.get(NAMES[code], []):
                found.append(f"{record}: {NAMES[code]} {value!r} is not in its table")


def check_groups(records, by_handle, found):
    space = next((r.handle for r in records if r.kind == "BLOCK_RECORD" and r.first(2).upper() == "*MODEL_SPACE"), None)
    members = {group.handle: Counter(group.all(340)) for group in records if group.kind == "GROUP"}
    for group in [r for r in records if r.kind == "GROUP"]:
        for handle, times in members[group.handle].items():
            member = by_handle.get(handle)
            if times > 1:
                found.append(f"{group}: holds {handle} {times} times")
            if member and (member.section != "ENTITIES" or member.owner != space):
                found.append(f"{group}: {member} is no entity of model space")
            elif member and group.handle not in member.reactors:
                found.append(f"{group}: {member} has no reactor to it")
        dictionary = by_handle.get(group.owner)
        if not dictionary or group.handle not in dictionary.all(350, 360) or group.owner not in group.reactors:
            found.append(f"{group}: its dictionary and it do not know each other")
    for record in records:
        for handle in record.reactors:
            if handle in members and record.handle not in members[handle]:
                found.append(f"{record}: reactor to GROUP {handle}, which does not hold it")
        keys = Counter(name.upper() for name in record.all(3)) if record.kind == "DICTIONARY" else {}
        found += [f"{record}: the name {name} stands {times} times" for name, times in keys.items() if times > 1]


def problems_in(tags):
    found = []
    records = split(tags, found)
    by_handle = {record.handle: record for record in records if record.handle}
    check_values(records, found)
    check_handles(records, by_handle, found)
    check_header(tags, by_handle, found)
    check_tables(records, found)
    check_groups(records, by_handle, found)
    return found


def problems(path):
    try:
        return problems_in(read_tags(path))
    except ValueError as error:  # bytes that are no UTF-8, a group code that is no number
        return [str(error)]


if __name__ == "__main__":
    faults = [f"{path}: {text}" for path in sys.argv[1:] for text in problems(path)]
    for fault in faults:
        print(fault)
    sys.exit(bool(faults))
