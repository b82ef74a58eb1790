#!/usr/bin/env python3
"""What `vexo-xyz prepare` asks, refuses, writes and never touches, and that the importer takes every row it writes.

Usage: prepare.py PROGRAM. A case is a file's content, options, typed lines, the exit code and the prepared file's text.
"""

import json
import subprocess
import sys
import tempfile
from pathlib import Path

PROGRAM = sys.argv[1]

UNCLEAR = "1,5355.18,4601.15,691.05,5\n2,5357.20,4608.54,691.15,6\n3,5351.30,4603.36,691.25,6\n"
NAMED = "DESC,NORTH,EAST,ELEV,POINT\nrog,5780353.017,7499689.075,114.029,P1\nrog,5780353.117,7499689.175,,P2\n"
DEGREES = "id,lat,lon\n1,52.2297001,21.0122002\n2,52.2298001,21.0123002\n"
NUMBERED = "# columns: number;X;Y;Z\n1;5355.18;4601.15;691.05\n2;5357.20;4608.54;691.15\n3;5351.30;4603.36;691.25\n"

# name: (content, options, typed, exit code, prepared file or None)
CASES = {
    "nothing typed": (UNCLEAR, [], "", 1, None),
    "Escape": (UNCLEAR, [], "\x1b\n", 1, None),
    "a number": (UNCLEAR, [], "1\n", 0, NUMBERED),
    "wrong answers, then roles": (UNCLEAR, [], "7\nfoo\nnr,x,y,z\n", 0, NUMBERED),
    "told beforehand": (UNCLEAR, ["--columns", "nr,x,y,z"], "", 0, NUMBERED),
    "a first column not taken": (UNCLEAR, ["--columns", "-,e,n"], "", 0,
                                 "# columns: number;E;N\n1;5355.18;4601.15\n2;5357.20;4608.54\n3;5351.30;4603.36\n"),
    "roles that do not fit": (UNCLEAR, ["--columns", "nr,e"], "", 2, None),
    "roles one short": ("PKT 1 55.18 46.15 91.05\nPKT 2 57.20 46.54 91.15\n", ["--columns", "nr,n,e,z"], "", 2, None),
    "names": (NAMED, [], "", 0, "# columns: number;E;N;Z\nP1;7499689.075;5780353.017;114.029\n"),
    "no height": (NAMED, ["--missing-height", "zero"], "", 0,
                  "# columns: number;E;N;Z\nP1;7499689.075;5780353.017;114.029\nP2;7499689.175;5780353.117;0\n"),
    "by name": (NAMED, ["--columns", "x=NORTH,y=east,nr=5"], "", 0,
                "# columns: number;X;Y\nP1;5780353.017;7499689.075\nP2;5780353.117;7499689.175\n"),
    "by name alone": (NAMED, ["--columns", "NORTH,EAST,POINT"], "", 0,
                      "# columns: number;E;N\nP1;7499689.075;5780353.017\nP2;7499689.175;5780353.117\n"),
    "degrees": (DEGREES, [], "", 1, None),
    "degrees all the same": (DEGREES, ["--columns", "nr,n,e"], "", 1, None),
    "no points": ("a,b\nc,d\n", [], "", 1, None),
}


def run(folder, *arguments, typed=""):
    return subprocess.run([PROGRAM, *arguments, "--lang", "EN"], input=typed, capture_output=True, text=True,
                          cwd=folder, timeout=60)


def check(told, seen, expected):
    if seen != expected:
        sys.exit(f"{told}: {seen!r}, not {expected!r}")


for name, (content, options, typed, code, expected) in CASES.items():
    with tempfile.TemporaryDirectory() as made:
        folder = Path(made)
        (folder / "in.txt").write_text(content)
        done = run(folder, "prepare", "in.txt", *options, typed=typed)
        check(f"{name}: exit code of {done.stdout}", done.returncode, code)
        output = folder / "in_prepared.csv"
        check(f"{name}: file", output.read_text() if output.exists() else None, expected)
        check(f"{name}: log", (folder / "in_prepared.csv.log").exists(), expected is not None)
        check(f"{name}: source", (folder / "in.txt").read_text(), content)
        if expected is None:
            check(f"{name}: what is left", sorted(path.name for path in folder.iterdir()), ["in.txt"])
            continue
        # The command that is told repeats it, and every row becomes a point, nothing asked.
        again = done.stdout.split("without questions: vexo-xyz ")[1].split()
        check(f"{name}: repeated", run(folder, *again, "--force").returncode, 0)
        check(f"{name}: repeated file", output.read_text(), expected)
        imported = run(folder, "in_prepared.csv", "--report", "report.json", "--axes", "keep")
        check(f"{name}: import of {imported.stdout}", imported.returncode, 0)
        points = json.loads((folder / "report.json").read_text())["account"]["points"]
        check(f"{name}: points", points, expected.count("\n") - 1)

with tempfile.TemporaryDirectory() as made:
    folder = Path(made)
    (folder / "in.txt").write_text(UNCLEAR)
    (folder / "other.csv").write_text("mine\n")
    fixed = ["prepare", "in.txt", "--columns", "nr,x,y,z"]
    for output in ("in.txt", "other.csv", "none/out.csv", "."):
        options = ["--force"] if output != "other.csv" else []
        check(f"written to {output}", run(folder, *fixed, "-o", output, *options).returncode, 3)
    check("untouched", [(folder / "in.txt").read_text(), (folder / "other.csv").read_text()], [UNCLEAR, "mine\n"])
    check("replaced", run(folder, *fixed, "-o", "other.csv", "--force").returncode, 0)
    check("replaced by", (folder / "other.csv").read_text(), NUMBERED)
    check("next free name", [run(folder, *fixed).returncode for _ in range(2)], [0, 0])
    check("names", sorted(path.name for path in folder.glob("in_*.csv")), ["in_prepared.csv", "in_prepared_2.csv"])
    check("no such file", run(folder, "prepare", "none.txt").returncode, 3)
