"""Reading a workbook against GDAL: workbook.py READER FOLDER [PAIRS [ROWS]]

The workbook has rows of a point number as a shared string and three numbers. READER reads it into the table of rows;
ogr2ogr reads it and writes it as CSV. Runs in turn; medians.
"""
import os
import statistics
import subprocess
import sys
import time
import zipfile

from make_points import decimal, points

RATIO_GOAL, MEMORY_GOAL = 0.35, 3.0

# What an office program wants around the two large members is taken from an example.
FRAME = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "examples", "lodz.xlsx")
SHEET, SHARED = "xl/worksheets/sheet1.xml", "xl/sharedStrings.xml"
NAMESPACE = 'xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main"'


def write_workbook(path, rows):
    """The bytes of its two large members, unpacked."""
    sheet, shared = [f"<worksheet {NAMESPACE}><sheetData>"], [f"<sst {NAMESPACE}>"]
    for row, (north, east, height) in enumerate(points(rows), start=1):
        numbers = zip("BCD", (north, east, height))
        cells = "".join(f'<c r="{column}{row}"><v>{decimal(value, ".")}</v></c>' for column, value in numbers)
        sheet.append(f'<row r="{row}" spans="1:4"><c r="A{row}" t="s"><v>{row - 1}</v></c>{cells}</row>')
        shared.append(f"<si><t>PKT-{row:07d}</t></si>")
    large = {SHEET: "".join(sheet) + "</sheetData></worksheet>", SHARED: "".join(shared) + "</sst>"}
    with zipfile.ZipFile(FRAME) as frame, zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as package:
        for name in frame.namelist():
            package.writestr(name, '<?xml version="1.0" encoding="UTF-8"?>' + large[name] if name in large else frame.read(name))
    return sum(map(len, large.values()))


def measured(command, folder):
    """Seconds and peak bytes of a process, as /usr/bin/time sees it: to this one's own size a child of it owes nothing."""
    peak = os.path.join(folder, "peak")
    start = time.perf_counter()
    run = subprocess.run(["/usr/bin/time", "-f", "%M", "-o", peak, *command], capture_output=True, text=True)
    seconds = time.perf_counter() - start
    if run.returncode != 0:
        sys.exit(f"failed: {' '.join(command)}\n{run.stderr}")
    with open(peak, encoding="ascii") as file:
        return seconds, int(file.read()) * 1024


def main(reader, folder, pairs="5", rows="200000"):
    path, csv = os.path.join(folder, "survey.xlsx"), os.path.join(folder, "survey-from-workbook.csv")
    unpacked = write_workbook(path, int(rows))
    ours, theirs = [], []
    for run in range(int(pairs) + 1):  # number 0 warms up
        for results, command in ((ours, [reader, path]), (theirs, ["ogr2ogr", "-f", "CSV", csv, path])):
            result = measured(command, folder)
            if run > 0:
                results.append(result)
            if os.path.exists(csv):
                os.remove(csv)
    os.remove(path)
    ratio = statistics.median(one[0] / other[0] for one, other in zip(ours, theirs))
    memory = max(peak for _, peak in ours) / unpacked
    print(f"### A workbook of {int(rows):,} rows and four columns, {unpacked / 1e6:.0f} MB unpacked\n")
    print("| | wall s (min / median / max) | peak MB |\n|---|---|---|")
    for name, results in (("into the table of rows", ours), ("ogr2ogr to CSV", theirs)):
        times = sorted(seconds for seconds, _ in results)
        print(f"| {name} | {times[0]:.3f} / {statistics.median(times):.3f} / {times[-1]:.3f} "
              f"| {max(peak for _, peak in results) / 1e6:.0f} |")
    for what, value, goal in (("Ratio of wall times, median of the pairs", ratio, RATIO_GOAL),
                              ("Peak memory by unpacked size", memory, MEMORY_GOAL)):
        print(f"\n{what}: **{value:.2f}** (goal: at most {goal:.2f}, {'met' if value <= goal else 'missed'})")
    print()


if __name__ == "__main__":
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])
