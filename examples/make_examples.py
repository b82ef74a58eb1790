"""Makes the example files, the same bytes at every run.

    make_examples.py [FOLDER]      FOLDER is this script's own when left out

The surveys are invented; the places are real. Every point starts as a latitude and a longitude near a chosen place and
is projected here, so that the files owe nothing to the program that reads them. Degrees are on the datum of the system
they are projected to: ETRS89 for Poland and Germany, Pulkovo 1942(58) for Romania.
"""
import math
import pathlib
import random
import sys
import zipfile
from typing import NamedTuple

GRS80 = (6378137.0, 1 / 298.257222101)  # semi-major axis in metres, flattening
KRASSOWSKY = (6378245.0, 1 / 298.3)


# ---- Projections, from degrees to (easting, northing) in metres

def transverse_mercator(lat, lon, lon0, k0, false_easting, false_northing):
    """Krüger's series on GRS80, to the fourth power of the third flattening."""
    a, f = GRS80
    n, e = f / (2 - f), math.sqrt(f * (2 - f))
    radius = a / (1 + n) * (1 + n**2 / 4 + n**4 / 64)
    alpha = (n / 2 - 2 * n**2 / 3 + 5 * n**3 / 16 + 41 * n**4 / 180,
             13 * n**2 / 48 - 3 * n**3 / 5 + 557 * n**4 / 1440,
             61 * n**3 / 240 - 103 * n**4 / 140,
             49561 * n**4 / 161280)
    s, l = math.sin(math.radians(lat)), math.radians(lon - lon0)
    t = math.sinh(math.atanh(s) - e * math.atanh(e * s))
    xi, eta = math.atan2(t, math.cos(l)), math.asinh(math.sin(l) / math.hypot(t, math.cos(l)))
    north = xi + sum(c * math.sin(2 * j * xi) * math.cosh(2 * j * eta) for j, c in enumerate(alpha, 1))
    east = eta + sum(c * math.cos(2 * j * xi) * math.sinh(2 * j * eta) for j, c in enumerate(alpha, 1))
    return false_easting + k0 * radius * east, false_northing + k0 * radius * north


def stereo_70(lat, lon):
    """EPSG method 9809, oblique stereographic, with the parameters of EPSG:3844."""
    (a, f), phi0, k0, false_origin = KRASSOWSKY, math.radians(46), 0.99975, 500000.0
    e2 = f * (2 - f)
    e, s0 = math.sqrt(e2), math.sin(phi0)
    radius = a * math.sqrt(1 - e2) / (1 - e2 * s0**2)
    n = math.sqrt(1 + e2 * math.cos(phi0)**4 / (1 - e2))

    def stretched(s):
        return ((1 + s) / (1 - s) * ((1 - e * s) / (1 + e * s))**e)**n

    sin_chi00 = (stretched(s0) - 1) / (stretched(s0) + 1)
    c = (n + s0) * (1 - sin_chi00) / ((n - s0) * (1 + sin_chi00))

    def conformal(s):
        return math.asin((c * stretched(s) - 1) / (c * stretched(s) + 1))

    chi0, chi = conformal(s0), conformal(math.sin(math.radians(lat)))
    l = n * math.radians(lon - 25)
    b = 1 + math.sin(chi) * math.sin(chi0) + math.cos(chi) * math.cos(chi0) * math.cos(l)
    east = math.cos(chi) * math.sin(l)
    north = math.sin(chi) * math.cos(chi0) - math.cos(chi) * math.sin(chi0) * math.cos(l)
    return false_origin + 2 * radius * k0 * east / b, false_origin + 2 * radius * k0 * north / b


def pl_2000(zone):
    return lambda lat, lon: transverse_mercator(lat, lon, 3 * zone, 0.999923, zone * 1e6 + 500000, 0)


def pl_1992(lat, lon):
    return transverse_mercator(lat, lon, 19, 0.9993, 500000, -5300000)


def utm(zone, prefixed=False):
    return lambda lat, lon: transverse_mercator(lat, lon, 6 * zone - 183, 0.9996, 500000 + prefixed * zone * 1e6, 0)


# ---- Surveys

class Point(NamedTuple):
    number: str
    east: float
    north: float
    height: float
    note: str


class Survey:
    """Points measured around a place, in metres along and to the right of a direction."""

    def __init__(self, projection, lat, lon, azimuth, height, slope, first=1, prefix=""):
        self.projection, self.lat, self.lon, self.height, self.slope = projection, lat, lon, height, slope
        self.azimuth, self.next, self.prefix = math.radians(azimuth), first, prefix
        self.random = random.Random(f"{lat} {lon}")
        self.points = []

    def scatter(self, metres):
        return metres * (2 * self.random.random() - 1)

    def measure(self, along, right, note="", above=0.0, scatter=0.03):
        """Takes a point, scattered a little, as people stand a little beside what they measure."""
        along, right = along + self.scatter(scatter), right + self.scatter(scatter)
        waves = 0.25 * math.sin(along / 37) + 0.15 * math.sin(right / 19)
        height = self.height + self.slope * along + 0.012 * right + waves + above + self.scatter(0.01)
        east = along * math.sin(self.azimuth) + right * math.cos(self.azimuth)
        north = along * math.cos(self.azimuth) - right * math.sin(self.azimuth)
        a, f = GRS80
        w2 = 1 - f * (2 - f) * math.sin(math.radians(self.lat))**2  # metres to degrees, well enough for a street
        lat = self.lat + math.degrees(north * w2**1.5 / (a * (1 - f)**2))
        lon = self.lon + math.degrees(east * math.sqrt(w2) / (a * math.cos(math.radians(self.lat))))
        number, self.next = f"{self.prefix}{self.next}", self.next + 1
        self.points.append(Point(number, *self.projection(lat, lon), height, note))

    def line(self, start, end, right, step, note="", above=0.0):
        for i in range(round((end - start) / step) + 1):
            self.measure(start + i * step, right + 0.4 * math.sin(i / 3), note, above)

    def building(self, along, right, length, depth, note):
        for u, v in ((0, 0), (length, 0), (length, depth), (0, depth)):
            self.measure(along + u, right + v, note, scatter=0.02)

    def trees(self, count, start, end, right, width, note):
        for _ in range(count):
            self.measure(start + self.random.random() * (end - start), right + self.random.random() * width, note)


def street(survey, kerb, building, manhole, lamp, tree, fence):
    survey.line(0, 150, -3.5, 12.5, kerb)
    survey.line(0, 150, 3.5, 12.5, kerb, above=-0.04)
    survey.building(22, 14, 24, 12, building)
    survey.building(80, 13, 24, 12, building)
    survey.line(30, 120, 0.8, 45, manhole, above=0.02)
    survey.line(12, 112, 5.2, 50, lamp)
    survey.trees(12, 15, 140, 34, 26, tree)
    survey.line(4, 137, 62, 19, fence)
    return survey.points


def warszawa():
    return street(Survey(pl_2000(7), 52.2292, 21.0114, 93, 112.3, 0.008), "krawężnik", "narożnik budynku",
                  "studnia kanalizacyjna", "latarnia", "drzewo", "ogrodzenie")


def kudowa():
    """Spot heights of a sloping meadow, seven lines of five."""
    survey = Survey(pl_2000(5), 50.4430, 16.2440, 20, 389.5, 0.055, first=201, prefix="K")
    for row in range(7):
        for column in range(5):
            survey.measure(15 * row, 18 * (column if row % 2 == 0 else 4 - column), scatter=2.5)
    return survey.points


def lodz():
    """Two courtyards behind a street."""
    survey = Survey(pl_1992, 51.7612, 19.4550, 2, 208.4, -0.004, first=101)
    survey.line(0, 60, -4, 10, "krawędź chodnika")
    survey.building(5, 6, 18, 11, "oficyna")
    survey.building(38, 6, 16, 11, "oficyna")
    survey.building(22, 40, 20, 9, "garaże")
    survey.line(0, 60, 55, 12, "mur")
    survey.line(10, 50, 25, 20, "studzienka")
    survey.trees(8, 4, 58, 20, 18, "drzewo liściaste")
    return survey.points


def koeln():
    return street(Survey(utm(32, prefixed=True), 50.9231, 6.9560, 155, 51.6, -0.006, first=1001), "Bordstein",
                  "Gebäudeecke", "Schacht", "Straßenlaterne", "Baum", "Zaun")


def berlin():
    """Four rows of trees along an avenue, position only."""
    survey = Survey(utm(33), 52.5150, 13.3580, 84, 34.0, 0.0, first=1)
    for right in (-24, -17, 17, 24):
        survey.line(0, 99, right, 11)
    return survey.points


def bucuresti():
    return street(Survey(stereo_70, 44.4385, 26.0960, 12, 77.4, 0.007), "bordură", "colț clădire",
                  "cămin canalizare", "stâlp iluminat", "arbore", "gard")


def constanta():
    """A sea wall with its foot and crest, and the promenade behind it."""
    survey = Survey(stereo_70, 44.1712, 28.6632, 25, 4.2, 0.002)
    survey.line(0, 120, 12, 12, "taluz jos", above=-3.1)
    survey.line(0, 120, 6, 12, "taluz sus")
    survey.line(0, 120, -3, 12, "bordură alee")
    survey.line(10, 110, -5, 25, "stâlp iluminat")
    return survey.points


# ---- Files

def rows(points, decimals, axes, mark=".", notes=True):
    for point in points:
        texts = [f"{value:.{decimals}f}".replace(".", mark) for value in (*axes(point), point.height)]
        yield [point.number, *texts, *([point.note] if notes else [])]


def north_first(point):
    return point.north, point.east


def east_first(point):
    return point.east, point.north


def lines(*parts, separator=";"):
    return "".join(separator.join(part) + "\r\n" for part in parts)


def workbook(sheet_name, header, points, axes):
    """An .xlsx package with a header row and a column left empty before the notes.

    Members are stored, for compressed bytes differ between versions of zlib. Point numbers are texts where they are
    written as such, all texts are shared strings, and coordinates show two decimals.
    """
    shared = {}

    def cell(reference, value):
        if isinstance(value, str):
            return f'<c r="{reference}" t="s"><v>{shared.setdefault(value, len(shared))}</v></c>'
        style = ' s="1"' if isinstance(value, float) else ""
        return f'<c r="{reference}"{style}><v>{value}</v></c>'

    table = [header] + [(p.number, *(round(v, 2) for v in (*axes(p), p.height)), p.note) for p in points]
    body = "".join(f'<row r="{r}">' + "".join(cell(f"{c}{r}", v) for c, v in zip("ABCDF", row)) + "</row>"
                   for r, row in enumerate(table, 1))
    main = "http://schemas.openxmlformats.org/spreadsheetml/2006/main"
    types = "application/vnd.openxmlformats-officedocument.spreadsheetml"
    relations = "http://schemas.openxmlformats.org/officeDocument/2006/relationships"
    package = "http://schemas.openxmlformats.org/package/2006"
    members = {
        "[Content_Types].xml":
            f'<Types xmlns="{package}/content-types">'
            '<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>'
            '<Default Extension="xml" ContentType="application/xml"/>'
            f'<Override PartName="/xl/workbook.xml" ContentType="{types}.sheet.main+xml"/>'
            f'<Override PartName="/xl/worksheets/sheet1.xml" ContentType="{types}.worksheet+xml"/>'
            f'<Override PartName="/xl/styles.xml" ContentType="{types}.styles+xml"/>'
            f'<Override PartName="/xl/sharedStrings.xml" ContentType="{types}.sharedStrings+xml"/></Types>',
        "_rels/.rels":
            f'<Relationships xmlns="{package}/relationships">'
            f'<Relationship Id="rId1" Type="{relations}/officeDocument" Target="xl/workbook.xml"/></Relationships>',
        "xl/workbook.xml":
            f'<workbook xmlns="{main}" xmlns:r="{relations}"><sheets>'
            f'<sheet name="{sheet_name}" sheetId="1" r:id="rId1"/></sheets></workbook>',
        "xl/_rels/workbook.xml.rels":
            f'<Relationships xmlns="{package}/relationships">'
            f'<Relationship Id="rId1" Type="{relations}/worksheet" Target="worksheets/sheet1.xml"/>'
            f'<Relationship Id="rId2" Type="{relations}/styles" Target="styles.xml"/>'
            f'<Relationship Id="rId3" Type="{relations}/sharedStrings" Target="sharedStrings.xml"/></Relationships>',
        "xl/worksheets/sheet1.xml":
            f'<worksheet xmlns="{main}"><cols><col min="2" max="3" width="14" customWidth="1"/>'
            '<col min="6" max="6" width="20" customWidth="1"/></cols>'
            f'<sheetData>{body}</sheetData></worksheet>',
        "xl/styles.xml":
            f'<styleSheet xmlns="{main}"><fonts count="1"><font><sz val="11"/><name val="Calibri"/></font></fonts>'
            '<fills count="2"><fill><patternFill patternType="none"/></fill>'
            '<fill><patternFill patternType="gray125"/></fill></fills>'
            '<borders count="1"><border><left/><right/><top/><bottom/><diagonal/></border></borders>'
            '<cellStyleXfs count="1"><xf numFmtId="0" fontId="0" fillId="0" borderId="0"/></cellStyleXfs>'
            '<cellXfs count="2"><xf numFmtId="0" fontId="0" fillId="0" borderId="0" xfId="0"/>'
            '<xf numFmtId="2" fontId="0" fillId="0" borderId="0" xfId="0" applyNumberFormat="1"/></cellXfs>'
            '<cellStyles count="1"><cellStyle name="Normal" xfId="0" builtinId="0"/></cellStyles></styleSheet>',
        "xl/sharedStrings.xml":
            f'<sst xmlns="{main}" uniqueCount="{len(shared)}">'
            + "".join(f"<si><t>{text}</t></si>" for text in shared) + "</sst>",
    }
    return {name: '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n' + text for name, text in members.items()}


def write_package(path, members):
    with zipfile.ZipFile(path, "w") as archive:
        for name, text in members.items():
            member = zipfile.ZipInfo(name)  # of the year 1980
            member.create_system = 0
            archive.writestr(member, text.encode())


def main(folder):
    def write(name, text, encoding="utf-8"):
        (folder / name).write_bytes(text.encode(encoding))

    write("warszawa.csv", lines("Nr X Y H Opis".split(), *rows(warszawa(), 2, north_first, mark=",")))
    write("kudowa.txt", lines(*rows(kudowa(), 2, north_first, notes=False), separator="  "))
    write_package(folder / "lodz.xlsx", workbook("Pikiety", ("Nr", "X", "Y", "H", "Opis"), lodz(), north_first))
    write("koeln.csv", lines("Punkt Ostwert Nordwert Höhe Beschreibung".split(),
                             *rows(koeln(), 3, east_first, mark=",")))
    positions = (row[:3] for row in rows(berlin(), 3, east_first, mark=","))
    write("berlin.csv", "# Baumkataster, Straße des 17. Juni\r\n" + lines(("Nr", "Ost", "Nord"), *positions), "cp1252")
    write("bucuresti.csv", lines("Nr X Y Z Cod".split(), *rows(bucuresti(), 3, north_first)))
    numbered = [point._replace(number=int(point.number)) for point in constanta()]
    write_package(folder / "constanta.xlsx", workbook("Puncte", ("Nr", "X", "Y", "Z", "Cod"), numbered, north_first))


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else pathlib.Path(__file__).resolve().parent)
