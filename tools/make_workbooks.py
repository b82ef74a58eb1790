"""Writes workbooks that few people ever see, each named after its oddity, and what reading it must yield.

    make_workbooks.py FOLDER

FOLDER/expected.json lists them with their rows, or with the kind of failure and pieces of its text, worked out by hand
from the patterns that pick a worksheet's cells.
"""
import io
import json
import pathlib
import random
import struct
import sys
import warnings
import zipfile

SHEET, STRINGS = "xl/worksheets/sheet1.xml", "xl/sharedStrings.xml"
FLAGS, METHOD, CRC, PACKED, SIZE, OFFSET = 8, 10, 16, 20, 24, 42  # places in a directory entry
N = 200_000  # so many tags take minutes wherever each is looked up to the end of the text


class Pipe(io.BytesIO):  # cannot go back, so that a member's sizes and checksum follow its content
    tell = seek = property()


def package(*members, method=zipfile.ZIP_DEFLATED, level=None, target=io.BytesIO, extra=b""):
    file = target()
    with zipfile.ZipFile(file, "w") as archive, warnings.catch_warnings():
        warnings.simplefilter("ignore")  # a name that is used twice
        for name, content in members:
            member = zipfile.ZipInfo(name)  # of the year 1980, so that every run makes the same bytes
            member.extra = extra
            archive.writestr(member, content, method, level)
    return file.getvalue()


def patched(data, at, form, value, name=SHEET):
    """With another value in the member's directory entry and, of flags and method, in the header before its content."""
    data = bytearray(data)
    entry = data.rindex(name.encode()) - 46
    struct.pack_into("<" + form, data, entry + at, value)
    if at in (FLAGS, METHOD):
        struct.pack_into("<" + form, data, struct.unpack_from("<I", data, entry + OFFSET)[0] + at - 2, value)
    return bytes(data)


def book(sheet, strings=None, **how):
    shared = [] if strings is None else [(STRINGS, f'<?xml version="1.0"?>\n<sst count="9">{strings}</sst>')]
    return package(*shared, (SHEET, f'<?xml version="1.0"?>\n<worksheet>{sheet}</worksheet>'), **how)


def row(*cells):
    return f'<row r="1">{"".join(cells)}</row>'


def cell(reference, value, kind=""):
    return f'<c r="{reference}"' + (kind and f' t="{kind}"') + f"><v>{value}</v></c>"


def cells(texts, kind=""):
    return "".join(cell(chr(65 + i) + "1", text, kind) for i, text in enumerate(texts))


A, B, C = (cell(reference, reference[0].lower()) for reference in ("A1", "B1", "C1"))
THREE = '<si><t>Nr</t></si><si><r><t>Nr</t></r><r><b/><t xml:space="preserve"> pkt</t></r></si><si><t>ą</t></si>'
INLINE = '<c r="A1" t="inlineStr">'
NO_REFERENCES = ['"a1"', '"A"', '"7"', '""', '"$A$1"', '"A1:B1"', '"A1 "', '" A1"', '"Ą1"', "'A1'", "A1", ' "A1"']
INDICES = {"0": "Nr", "1": "Nr pkt", "2": "ą", "3": "", "-1": "ą", "-3": "Nr", "-4": "", "-0": "Nr", "+1": "Nr pkt",
           " 1\n": "Nr pkt", "01": "Nr pkt", "": "", "1.0": "", "1e0": "", "- 1": "", "+-1": "", str(2**64): ""}
WRITTEN = ["5788467.12", "1E-3", "0.30000000000000004", "-0", " 7\n", "007", "1,5", "R&amp;D", "&lt;c&gt;&#10;", "&x"]
FAR = {"Z": 25, "AA": 26, "AZ": 51, "BA": 52, "XFD": 16383}

SHEETS = {  # what stands in the worksheet, and its rows; there are three shared strings: Nr, Nr pkt and ą
    "gaps": (row(A, C) + row(cell("C5", "c")) + row('<c r="B2"/>'), [["a", "", "c"], ["", "", "c"], ["", ""]]),
    "self-closing cells": (row('<c r="A1" s="4"/>', B, '<c r="C1" />') + row('<c r="A1" / >', B, C),
                           [["", "b", ""], ["b", "", "c"]]),
    "no reference": (row(A, '<c><v>x</v></c><c s="1"><v>y</v></c><c />', C) + row('<c s="1"/>'), [["a", "", "c"]]),
    "bad references": (row(*(f"<c r={r}><v>x</v></c>" for r in NO_REFERENCES), B), [["", "b"]]),
    "upper and lower case": (row(A, '<c r="b1"><v>b</v></c><C r="C1"><v>c</v></C><c R="D1"><v>d</v></c>') +
                             f"<ROW>{A}</ROW><x:row>{A}</x:row>", [["a"]]),
    "repeated columns": (row(cell("B1", "x"), A, B) + row(A, C, '<c r="A1"/>'), [["a", "b"], ["", "", "c"]]),
    "far columns": (row(*(cell(f"{name}1", at) for name, at in reversed(FAR.items()))),
                    [[str(at) if at in FAR.values() else "" for at in range(16384)]]),
    "attributes": (row('<c t="s" s="0" r="A1"><v>1</v></c>', "<c r=\"B1\" t='s'><v>1</v></c>", cell("C1", 1, "s s")) +
                   row('<c xr="B1" ht="s" r="A1" t="n"><v>1</v></c><c\nr="C1"\r\n\tt="s"\f><v>1</v></c><c\rr="D1"/>') +
                   row('<c x=">" r="A1"><v>x</v></c><c r="B1" x=">" t="s"><v>1</v></c><c x="/a/" r="C1"><v>2</v></c>'),
                   [["Nr pkt", "1", "1"], ["", "Nr pkt", "Nr pkt", ""], ["", "1", "2"]]),
    "tags like cells": (row('<cols><col r="A1"/></cols><cr="A1"/><cols <c r="D1"/>', C), [["", "", "c", ""]]),
    "string indices": (row(*(cell(chr(65 + i) + "1", index, "s") for i, index in enumerate(INDICES))) +
                       row('<c r="A1" t="s"/>'), [[*INDICES.values()], [""]]),
    "numbers and entities as written": (row(cells(WRITTEN)), [WRITTEN]),
    "booleans, errors, dates": (row(cells("01", "b"), cell("C1", "#N/A", "e"), cell("D1", "2024-05-01", "d")),
                                [["0", "1", "#N/A", "2024-05-01"]]),
    "formulas": (row('<c r="A1"><f>1+1</f><v>2</v></c><c r="B1" t="str"><f>A1&amp;"x"</f><v>2x</v></c>',
                     '<c r="C1"><f>A1</f></c>'), [["2", "2x", ""]]),
    "values": (row('<c r="A1"><v/></c><c r="B1"><v></v></c><c r="C1"><v x="1">1</v></c>',
                   '<c r="D1"><v><![CDATA[1]]></v></c><c r="E1"><v>1</v><v>2</v></c>'), [["", "", "", "", "1"]]),
    "inline strings": (row(INLINE, "<is><r><t>a </t></r><r><t/></r><r><t> b</t></r><r><t>\nc</t></r></is></c>",
                           cell("B1", 1, "inlineStr"), '<c r="C1" t="inlineStr"/>') +
                       row(INLINE, "<is><t <t>a</t><tail>x</tail><t>x<b/></t><t>c</t></is></c>",
                           cell("B1", "<t>x</t>", "InlineStr")),
                       [["a  b\nc", "", ""], ["ac", ""]]),
    "self-closing rows": (f'<row/>{row(A)}<row r="2"/>{row(B)}<row r="9"/>', [["a"], ["", "b"]]),
    "empty rows": (row() + row(A) + row(" \n") + row('<c s="1"/>') + row(C), [["a"], ["", "", "c"]]),
    "row numbers": (f'<row>{A}</row><row r="9">{B}</row><row r="2" hidden="1">{A}</row><row\n>{A}</row>',
                    [["a"], ["", "b"], ["a"], ["a"]]),
    "many cells": (row(A, B, C) * 500, [["a", "b", "c"]] * 500),
    "many strings": (row(cells("012", "s")) * 500, [["Nr", "Nr pkt", "ą"]] * 500),
    "tags like rows": (f"<rowBreaks>{A}</rowBreaks>{row(B)}<!-- {row(C)} --><rowBreaks>", [["a", "b"], ["", "", "c"]]),
    "tags not closed": (f"<row>{A}<row>{B}</row>" + row('<c r="A1"><v>1</v>') + row('<c r="A1" <v>1</v>') + f"<row>{A}",
                        [["a", "b"]]),
}
ITEMS = {  # the shared strings, and what their indices from 0 on show
    "no shared strings": (None, ["", ""]),
    "items that do not count": ('<si/><si xml:space="preserve"><t>x</t></si><si><t>a</t></si>', ["a", "", ""]),
    "items without text": ("<si></si><si><t/></si><si><r><t></t></r></si><si><t>d</t></si>", ["", "", "", "d"]),
    "runs": ("<si><t\n>a</t></si><si><t>漢</t><rPh><t>kan</t></rPh></si><si>\n<t>a</t>\n<t>b</t></si>",
             ["a", "漢kan", "ab"]),
    "items not closed": ("<si><t>a<si><t>b</t></si><si><t>c</t></si><si><t>d</t>", ["b", "c", ""]),
    "many runs": (("<si>" + "<t>0123456789</t>" * 9 + "</si>") * 20_000, ["0123456789" * 9] * 3),
}
FIRST = row(cells("0", "s"))  # the first shared string
FLOODS = {  # tags without end that must not take time without end: the worksheet, its rows, the shared strings
    "rows not closed": (row(A) + '<row r="1">' * N, [["a"]]),
    "row tags not ended": ("<row" * N, []),
    "rows of a cell not closed": ('<row><c r="A1"></row>' * N, []),
    "cells not closed": (row(A, '<c r="A1">' * N), [["a"]]),
    "cells closed once": (row('<c r="A1">' * N, "</c>"), [[""]]),
    "cell tags not ended": (row("<c " * N), []),
    "tags like cells not closed": (row("<cx>" * N, "</c>"), []),
    "tags like cells ended once": (row("<cx" * (N // 2), "></c>") * 9, []),
    "values not closed": (row('<c r="A1">', "<v>" * N, "</c>"), [[""]]),
    "references and types not ended": (row("<c " + 'r="A t="s ' * N + "/>"), []),
    "all kinds": (row('<row><c r="A1" t="s"><is><t><v><c <t' * N), []),
    "items not closed, a flood": (FIRST, [[""]], "<si>" * N),
    "runs not closed": (FIRST, [[""]], "<si>" + "<t>" * N + "</si><si>" + "<t" * N + "</si>"),
    "run tags ended once": (FIRST, [[""]], "<si>" + "<t" * N + "><b/></t></si>"),
}

BAD = [  # bytes that are no UTF-8, with ? for what replaces them; the first are the Unicode standard's example
    (b"a\xf1\x80\x80\xe1\x80\xc2b\x80c\x80\xbfd", "a???b?c??d"), (b"\xc0\xafx\xff\xfe", "??x??"), (b"\xe0\x80", "??"),
    (b"\xed\xa0\x80", "???"), (b"\xf4\x90\x80\x80", "????"), (b"\xf0\x9f\x98", "?"), ("ż".encode("cp1250"), "?")]
BAD_ITEMS = b"".join(b"<si><t>" + text + b"</t></si>" for text, _ in BAD)
BAD_CELLS = b"\xff" + row(cells(range(len(BAD)), "s"), cell("H1", "@")).encode().replace(b"@", BAD[0][0])
NO_SHEETS = ["sheet1.xml", "xl/worksheets/sheet.xml", "xl/worksheets/Sheet1.xml", SHEET + ".bak", "x/" + SHEET,
             "/" + SHEET, "xl/worksheets/_rels/sheet1.xml.rels", "xl/chartsheets/sheet1.xml", SHEET.replace("/", "\\")]
GOOD, STORED, LARGE = book(row(A), THREE), book(row(A), method=zipfile.ZIP_STORED), (SHEET, bytes(20 << 20))
SHEET2, SHEET10 = ((f"xl/worksheets/sheet{n}.xml", row(cells([n]))) for n in (2, 10))
TABS = "xl/workbook.xml", '<sheet name="1" r:id="rId2"/><sheet name="2" r:id="rId1"/>'
AES = patched(package((SHEET, row(A)), extra=struct.pack("<HHH2sBH", 0x9901, 7, 2, b"AE", 3, 8)), METHOD, "H", 99)
BOMB, TWO = package(LARGE), package(SHEET2, SHEET10)

PACKAGES = {  # a package and its rows; or None, the kind of failure, and pieces of its text; or either
    "sheet10 before sheet2": (TWO, [["10"]]),
    "sheet01 before sheet1": (package((SHEET, row(A)), ("xl/worksheets/sheet01.xml", row(B))), [["", "b"]]),
    "tabs in another order": (package(TABS, SHEET2, (SHEET, row(A))), [["a"]]),
    "no worksheet": (package(*((name, row(A)) for name in NO_SHEETS)), []),
    "strings under another name": (package((STRINGS.lower(), THREE), (SHEET, FIRST)), [[""]]),
    "two members with one name": (package((SHEET, row(A)), ("x", b""), (SHEET, row(B))), [["", "b"]]),
    "stored": (STORED, [["a"]]),
    "bzip2": (book(row(A), method=zipfile.ZIP_BZIP2), [["a"]], "NotImplementedError", SHEET),
    "lzma": (book(row(A), method=zipfile.ZIP_LZMA), [["a"]], "NotImplementedError", SHEET),
    "unknown method": (patched(GOOD, METHOD, "H", 6), None, "NotImplementedError", SHEET, "save it again"),
    "sizes behind the content": (book(row(A), target=Pipe), [["a"]]),
    "byte-order marks": (package((STRINGS, "\ufeff" + THREE), (SHEET, f"\ufeff{FIRST}" + row(cell("A2", "\ufeff")))),
                         [["Nr"], ["\ufeff"]]),
    "invalid UTF-8": (package((STRINGS, BAD_ITEMS), (SHEET, BAD_CELLS)),
                      [[text.replace("?", "\ufffd") for _, text in BAD + BAD[:1]]]),
    "damage in what is not read": (patched(TWO, CRC, "I", 1, SHEET2[0]), [["10"]]),
    "large and packed as text is": (package((SHEET, random.Random(1).randbytes(9999).hex() * 1100)), []),
    "cut before its directory": (GOOD[:len(GOOD) // 2], None, "BadZipFile", "ZIP package"),
    "cut in its directory": (GOOD[:-30], None, "BadZipFile", "ZIP package"),
    "rubbish behind a signature": (b"PK\3\4" + bytes(range(256)) * 40, None, "BadZipFile", "ZIP package"),
    "wrong checksum": (patched(STORED, CRC, "I", 1), None, "BadZipFile", SHEET),
    "damaged strings": (GOOD[:30 + len(STRINGS)] + b"\7" + GOOD[31 + len(STRINGS):], None, "BadZipFile", STRINGS),
    "damaged strings and no worksheet": (patched(package((STRINGS, THREE)), CRC, "I", 1, STRINGS), None, "BadZipFile",
                                         STRINGS),
    "size too small": (patched(GOOD, SIZE, "I", 9), None, "BadZipFile", SHEET, "more than it claims"),
    "size too large": (patched(GOOD, SIZE, "I", 99_999), [["a"]], "BadZipFile", SHEET),  # the checksum is right
    "packed size too small": (patched(GOOD, PACKED, "I", 9), None, "BadZipFile", SHEET),
    "content behind the end": (patched(GOOD, OFFSET, "I", 10**6), None, "BadZipFile", SHEET),
    "encrypted": (patched(GOOD, FLAGS, "H", 1), None, "RuntimeError", SHEET, "encrypted"),
    "encrypted strings": (patched(GOOD, FLAGS, "H", 1, STRINGS), None, "RuntimeError", STRINGS, "encrypted"),
    "encrypted by AES": (patched(AES, FLAGS, "H", 1), None, "RuntimeError", SHEET, "encrypted"),
    "claim of more than 1 GiB": (patched(GOOD, SIZE, "I", 2**30 + 1), None, "MemoryError", SHEET, "1024 MiB"),
    "claim of what others left": (patched(package((STRINGS, b"\xff" * (2 << 20)), (SHEET, row(A))), SIZE, "I",
                                          2**30 - (7 << 20)), None, "MemoryError", SHEET, "1024 MiB"),
    "bomb": (package(LARGE, ("noise", random.Random(1).randbytes(1 << 20))), None, "BadZipFile", SHEET, "200 times"),
    "bomb that claims to be small": (patched(BOMB, SIZE, "I", 1024), None, "BadZipFile", SHEET, "more than it claims"),
    "bomb that claims to be packed large": (patched(BOMB, PACKED, "I", 60 << 20), None, "BadZipFile", SHEET),
    "column of twenty letters": (book(row(A, cell("A" * 20 + "1", "x"))), None, "MemoryError", "cell AAAAAA"),
    "column of many letters": (book(row(cell("A" * N + "1", "x"))), None, "MemoryError", "cell AAAAAA"),
    "column beyond all sheets": (book(row(A) + row(cell("ZZZZZZ9", "x"))), None, "MemoryError", "cell ZZZZZZ9"),
}


def main(folder):
    books = {name: (book(sheet, THREE), rows) for name, (sheet, rows) in SHEETS.items()}
    books |= {name: (book(row(cells(range(len(made)), "s")), items), [made]) for name, (items, made) in ITEMS.items()}
    books |= {name: (book(sheet, *strings), rows) for name, (sheet, rows, *strings) in FLOODS.items()} | PACKAGES
    folder.mkdir(parents=True, exist_ok=True)
    for name, (data, *_) in books.items():
        (folder / f"{name}.xlsx").write_bytes(data)
    expected = [{"name": name, "rows": rows, "failure": failure} for name, (_, rows, *failure) in books.items()]
    (folder / "expected.json").write_text(json.dumps(expected), "utf-8")


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(pathlib.Path(sys.argv[1]))
