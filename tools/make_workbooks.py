"""Writes workbooks that few people ever see, each named after its oddity, and what reading it must yield.

    make_workbooks.py FOLDER

FOLDER/expected.json lists them with their rows, or with the kind of failure and pieces of its text, worked out by hand
from the patterns that pick a worksheet's cells. FOLDER/seen.json lists whole workbooks with what a person sees in them,
FOLDER/kinds.json files with the kind that they are by their bytes.
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


def part(root, content, encoding="utf-8"):
    return f'<?xml version="1.0" encoding="{encoding}"?>\n<{root} xmlns:r="r">{content}</{root}>'.encode(encoding)


def rels(*targets):  # identifier, type and target of each
    return part("Relationships", "".join(f'<Relationship Id="{i}" Type="http://x/relationships/{t}" Target="{target}"/>'
                                         for i, t, target in targets))


def sheet_xml(*rows, prefix="", encoding="utf-8"):
    return part(prefix + "worksheet", f"<{prefix}sheetData>{''.join(rows)}</{prefix}sheetData>", encoding)


def whole_book(sheets, strings="", styles="", book="", main="xl/workbook.xml"):
    """Of each sheet: the tab's name, its other attributes, the target of its relationship, its XML."""
    tabs = "".join(f'<sheet name="{tab}" {more} r:id="i{i}"/>' for i, (tab, more, *_) in enumerate(sheets))
    related = [(f"i{i}", "worksheet", target) for i, (_, _, target, _) in enumerate(sheets)]
    related += [("s", "sharedStrings", "texts.xml")] * bool(strings) + [("y", "styles", "/xl/looks.xml")] * bool(styles)
    folder, name = main.rsplit("/", 1)
    members = [("_rels/.rels", rels(("m", "officeDocument", main))), (f"{folder}/_rels/{name}.rels", rels(*related)),
               (main, part("workbook", f"{book}<sheets>{tabs}</sheets>"))]
    members += [(f"{folder}/texts.xml", part("sst", strings))] * bool(strings)
    members += [("xl/looks.xml", part("styleSheet", styles))] * bool(styles)
    return package(*members, *((target[1:] if target[0] == "/" else f"{folder}/{target}".replace("book/../D", "d"), xml)
                               for _, _, target, xml in sheets))


def one_sheet(*rows, strings="", styles="", **how):
    return whole_book([("S", "", "worksheets/sheet1.xml", sheet_xml(*rows, **how))], strings, styles)


def styled(reference, value, style):
    return f'<c r="{reference}" s="{style}"><v>{value}</v></c>'


FORMATS = {  # a code, what it makes of 45413.5, and whether that is a date
    "General": "45413.5", "0.00": "45413.5", "#,##0.00\\ [$zł-415]": "45413.5", '0.0" m"': "45413.5",
    "0.00E+00": "45413.5",
    "dd.mm.yyyy": "2024-05-01", "[$-415]d\\ mmm;@": "2024-05-01", "mmm yy": "2024-05-01", "h:mm": "12:00:00",
    "yyyy-mm-dd hh:mm": "2024-05-01 12:00:00", "[h]:mm:ss": "1089924:00:00", '"day" 0': "45413.5", "[Red]0": "45413.5",
    "mm:ss.0": "12:00:00", "AM/PM h": "12:00:00"}
STYLES = ("<numFmts>" + "".join(f'<numFmt numFmtId="{164 + i}" formatCode="{code.replace(chr(34), "&quot;")}"/>'
                                for i, code in enumerate(FORMATS)) + '</numFmts><cellStyleXfs><xf numFmtId="14"/>'
          '</cellStyleXfs><cellXfs><xf/>' + "".join(f'<xf numFmtId="{164 + i}"/>' for i in range(len(FORMATS))) +
          '<xf numFmtId="14"/><xf numFmtId="22"/></cellXfs>')
DAY, MOMENT = len(FORMATS) + 1, len(FORMATS) + 2  # styles that have no code
DAYS = {"1": "1900-01-01", "59": "1900-02-28", "60": "1900-02-29", "61": "1900-03-01", "45413.999999": "2024-05-01",
        "-1": "-1", "2958465": "9999-12-31", "2958466": "2958466", "5788467.12": "5788467.12"}
TWO_TABS = [("Notes", "", "worksheets/sheet1.xml", sheet_xml(row(A))),
            ("Points", "", "worksheets/sheet2.xml", sheet_xml(row(B)))]
SEEN = {  # a workbook; the tab seen first, the one imported; rows by their numbers; flaws by their rows
    "first tab": (whole_book(TWO_TABS), "Notes", "Notes", {1: ["a"]}),
    "active tab": (whole_book(TWO_TABS, book='<bookViews><workbookView activeTab="1"/></bookViews>'),
                   "Points", "Notes", {1: ["", "b"]}),
    "hidden tab": (whole_book([("Old", 'state="veryHidden"', *TWO_TABS[0][2:]), TWO_TABS[1]]), "Points", "Old",
                   {1: ["", "b"]}),
    "all hidden": (whole_book([("Old", 'state="hidden"', *TWO_TABS[0][2:])]), None, "Old", {}),
    "names of its own": (whole_book([("P &amp; Q", "", "../Data/cells.XML", sheet_xml(row(A)))], main="book/main.xml"),
                         "P & Q", None, {1: ["a"]}),
    "absolute target": (whole_book([("P", "", "/xl/worksheets/sheet1.xml", sheet_xml(row(A)))]), "P", "P", {1: ["a"]}),
    "no list of sheets": (package((SHEET, sheet_xml(row(A)))), "sheet1", "sheet1", {1: ["a"]}),
    "prefixes": (one_sheet('<x:row r="3"><x:c r="B3"><x:f>1</x:f><x:v>7</x:v></x:c></x:row>', prefix="x:"), "S", "S",
                 {3: ["", "7"]}, {"prefixed": [3]}),
    "UTF-16": (one_sheet(row(A), encoding="utf-16"), "S", "S", {1: ["a"]}),
    "without references": (one_sheet("<row><c><v>1</v></c><c/><c><v>2</v></c></row>", '<row r="7"></row>',
                                     '<row><c r="B8"><v>3</v></c><c><v>4</v></c></row>'), "S", "S",
                           {1: ["1", "", "2"], 8: ["", "3", "4"]}, {"cells_without_reference": [1, 8]}),
    "texts": (one_sheet(
        row(cells("01234", "s")), '<row r="2">' + cells([7, ""], "s") + "</row>",
        '<row r="3">' + INLINE + "<is><r><t>a</t></r><r><t> b </t></r></is></c>" +
        cell("B1", "x_x000D_y_x005F_", "str") + cell("C1", 1, "b") + cell("D1", "#N/A", "e") + "</row>",
        strings="<si><t>Nr</t></si><si/><si><r><t>r</t></r><r><t>&amp;s</t></r><rPh><t>x</t></rPh></si>"
                "<si><t>&#243;</t></si><si><t> ą </t></si>"), "S", "S",
        {1: ["Nr", "", "r&s", "ó", "ą"], 3: ["a b", "x\ry_", "TRUE", "#N/A"]}),
    "digits": (one_sheet(row(cells(["5788467.120", "1E-3", "0.30000000000000004", "-0", "1e+20"]))), "S", "S",
               {1: ["5788467.120", "1E-3", "0.30000000000000004", "-0", "1e+20"]}),
    "formats": (one_sheet(row(*(styled(f"{chr(70 + i)}1", 45413.5, i + 1) for i in range(len(FORMATS)))),
                          styles=STYLES), "S", "S", {1: [""] * 5 + [*FORMATS.values()]}),
    "days": (one_sheet(row(*(styled(f"{chr(70 + i)}1", day, DAY) for i, day in enumerate(DAYS))), styles=STYLES),
             "S", "S", {1: [""] * 5 + [*DAYS.values()]}),
    "dates from 1904": (whole_book([("S", "", "s.xml", sheet_xml(row(styled("A1", "43951.5", MOMENT))))], styles=STYLES,
                                   book='<workbookPr date1904="1"/>'), "S", None, {1: ["2024-05-01 12:00:00"]},
                        {"dates": [1]}),
    "dates as texts": (one_sheet(row(cell("A1", "2024-05-01T00:00:00", "d"), cell("E1", "2024-05-01T07:30:00", "d"))),
                       "S", "S", {1: ["2024-05-01", "", "", "", "2024-05-01 07:30:00"]}, {"dates": [1]}),
    "formulas that have values and not": (one_sheet(
        '<row r="2"><c r="A2"><f>1</f><v>1</v></c></row>',
        '<row r="4"><c r="A4"><f>1</f><v></v></c><c r="B4"><v>2</v></c></row>',
        '<row r="5"><c r="A5" t="str"><f>1</f><v></v></c></row><row r="6"><c r="A6"><f>1</f></c></row>'), "S", "S",
        {2: ["1"], 4: ["", "2"]}, {"formulas_without_value": [4, 6]}),
    "hidden rows": (one_sheet('<row r="2" hidden="1"><c r="A2"><v>1</v></c></row>', '<row r="3" hidden="1"/>',
                              '<row r="4" hidden="0"><c r="A4"><v>2</v></c></row>'), "S", "S", {2: ["1"], 4: ["2"]},
                    {"hidden_rows": [2]}),
    "not well-formed": (one_sheet(row(A), "<row>"), "S", "S", "ParseError"),
    "entities of its own": (whole_book([("S", "", "s.xml", b'<!DOCTYPE x [<!ENTITY a "b">]><x/>')]), "S", None,
                            "ParseError"),
    "a bomb": (whole_book([("S", "", "s.xml", bytes(20 << 20))]), "S", None, "BadZipFile"),
    "wide rows": (one_sheet(*[row(cell("BABAB1", "x"))] * 40), "S", "S", "MemoryError"),
    "a column too far": (one_sheet(row(cell("ZZZZZZ9", "x"))), "S", "S", "MemoryError"),
}

def compound_file(*names):
    """With a directory of those streams, which begins in the second sector and goes on in the fourth."""
    entries = [name.encode("utf-16-le").ljust(64, b"\0") + struct.pack("<H", 2 * len(name) + 2) + bytes(62)
               for name in names]
    header = bytes.fromhex("D0CF11E0A1B11AE1") + bytes(22) + struct.pack("<H", 9) + bytes(16) + struct.pack("<I", 1)
    table = struct.pack("<4I", 0xFFFFFFFD, 3, 0xFFFFFFFE, 0xFFFFFFFE).ljust(512, b"\xff")
    directory = b"".join(entries).ljust(1024, b"\0")
    return header.ljust(76, b"\0") + bytes(4) + b"\xff" * 432 + table + directory[:512] + bytes(512) + directory[512:]


TYPES = "[Content_Types].xml"
GRID = b"NCOLS 3\r\nNROWS 1\r\nXLLCENTER 0\r\nYLLCENTER 0\r\nCELLSIZE 5\r\n1 2 3\r\n"
POINTS = b"BM1;5788467.12;7501234.5;100.1\r\n" * 3
KINDS = {  # files by their kinds
    "text": [POINTS, b"\xef\xbb\xbf" + POINTS, POINTS.replace(b";", b" ") * 900, b"0\n1\nSECTION\n", POINTS + bytes(2),
             b"1;2;3\n" + b"1 " * 150, "AC1;Łąka;1\n".encode("cp1250"), b"ncols 5\n1;2;3\n"],
    "workbook": [book(row(A)), whole_book(TWO_TABS), 
                 package((TYPES, '<Override ContentType="a/vnd.openxmlformats-x.spreadsheetml.sheet.main+xml"/>'))],
    "ods": [package(("mimetype", "application/vnd.oasis.opendocument.spreadsheet"), ("content.xml", "<x/>"))],
    "xlsb": [package(("xl/workbook.bin", b""), ("xl/worksheets/sheet1.bin", b""))],
    "encrypted": [compound_file("Root Entry", "DataSpaces", "x", "y", "EncryptionInfo")],
    "old_xls": [compound_file("Root Entry", "Workbook"), compound_file("x")[:600], b"\x09\x08\x10\x00" + bytes(40)],
    "zip": [package(("points.csv", POINTS)), package(), b"\x1f\x8b\x08" + bytes(30)],
    "dxf": [b"  0\r\nSECTION\r\n", b"999\nx\n  0\nSECTION\n", b"AutoCAD Binary DXF\r\n\x1a\0"],
    "dwg": [b"AC1032" + bytes(20)],
    "pdf": [b"%PDF-1.7\n"],
    "image": [b"\x89PNG\r\n\x1a\n", b"\xff\xd8\xff\xe0", b"II*\0" + bytes(9), b"GIF89a", b"RIFF1234WEBPVP8 ",
              b"BM" + struct.pack("<IIIIII", 1000, 0, 54, 40, 9, 9)],
    "utf16": ["\ufeffNr;1;2\n".encode("utf-16-le"), POINTS.decode().encode("utf-16-be"),
              "Łąka;1;2;3\n".encode("utf-16-le")],
    "raster": [GRID, GRID.lower(), b"north: 5\nsouth: 1\neast: 3\nwest: 1\nrows: 2\ncols: 2\n1 2\n", b"DSAA\n2 2\n",
               (b"1.5 " * 200 + b"\n") * 9, b"2,3," * 40_000],
    "empty": [b"", b" \r\n\t", b"\xef\xbb\xbf"],
    "unreadable": [GOOD[:len(GOOD) // 2], b"\x7fELF" + bytes(range(200)) * 9],
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
    seen = []
    for name, (data, first, imported, rows, *flaws) in SEEN.items():
        (folder / f"seen {name}.xlsx").write_bytes(data)
        failure, rows = (rows, {}) if isinstance(rows, str) else (None, rows)
        seen.append({"name": f"seen {name}", "first": first, "imported": imported, "failure": failure,
                     "rows": [[number, cells] for number, cells in rows.items()], "flaws": (flaws or [{}])[0]})
    (folder / "seen.json").write_text(json.dumps(seen), "utf-8")
    kinds = [(f"{kind} {i}", kind, data) for kind, files in KINDS.items() for i, data in enumerate(files, 1)]
    for name, _, data in kinds:
        (folder / name).write_bytes(data)
    (folder / "kinds.json").write_text(json.dumps([[name, kind] for name, kind, _ in kinds]), "utf-8")


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(pathlib.Path(sys.argv[1]))
