#!/usr/bin/python3
"""Holds what an import costs against the figures kept in guard.json: guard.py TREE [--write]

Instructions are counted by callgrind, which a busy machine does not disturb; pages touched and the peak of memory show
what instructions do not. A figure more than 3 % above the one kept is a failure; --write keeps the new ones.
"""
import ctypes
import json
import math
import os
import platform
import re
import shutil
import subprocess
import sys
import tempfile

from make_points import make

KEPT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "guard.json")
ALLOWED = 1.03
NO_LARGE_PAGES = 41  # PR_SET_THP_DISABLE of prctl(2)
FEW, MANY, LARGE = 3000, 7000, 100_000  # rows; those below 2,001 are registered for control, too


def run(command):
    environment = {**os.environ, "VEXO_RYNEK": "PL", "LC_ALL": "C", "XDG_STATE_HOME": os.path.dirname(command[-1])}
    result = subprocess.run(command, stdin=subprocess.DEVNULL, capture_output=True, text=True, env=environment)
    if result.returncode != 0:
        sys.exit(f"guard: failed: {' '.join(command)}\n{result.stderr}")
    return result.stderr


def instructions(*command):
    return int(re.search(r"Collected : (\d+)", run(["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", *command]))[1])


def measured(tree, folder):
    program, reader = os.path.join(tree, "vexo-xyz"), os.path.join(tree, "bench", "read_workbook")
    drawing = os.path.join(folder, "drawing.dxf")

    def survey(lines):
        path = os.path.join(folder, f"{lines}.csv")
        make("survey", lines, path)
        return [path, "--force", "-o", drawing]

    def workbook(rows):
        path = os.path.join(folder, f"{rows}.xlsx")
        make("workbook", rows, path)
        return [path]

    def a_row(binary, arguments):
        return (instructions(binary, *arguments(MANY)) - instructions(binary, *arguments(FEW))) // (MANY - FEW)

    pages, kilobytes = run(["/usr/bin/time", "-f", "%R %M", program, *survey(LARGE)]).split()[-2:]
    return {
        "instructions a line of text, from file to drawing": a_row(program, survey),
        "instructions a row of a workbook, reading alone": a_row(reader, workbook),
        "instructions of a whole run of 40 lines": instructions(program, *survey(40)),
        f"pages touched, {LARGE:,} lines": int(pages),
        f"peak memory, {LARGE:,} lines, kB": int(kilobytes),
    }


def machine(tree):
    """What the figures depend on beside the code."""
    with open(os.path.join(tree, "CMakeCache.txt"), encoding="utf-8") as file:
        compiler = re.search(r"^CMAKE_CXX_COMPILER:\w+=(.*)", file.read(), re.M)[1]
    version = subprocess.run([compiler, "--version"], capture_output=True, text=True, check=True).stdout.split("\n")[0]
    return f"{version}; {' '.join(platform.libc_ver())}; {platform.machine()}"


def main(tree, option=""):
    if option not in ("", "--write"):
        sys.exit(__doc__)
    if shutil.which("valgrind") is None:
        print("guard: skipped, valgrind is not installed")
        return
    with open(KEPT, "r+" if option else "r", encoding="utf-8") as file:
        kept = {"machine": "", "figures": {}, **json.load(file)}
    ctypes.CDLL(None).prctl(NO_LARGE_PAGES, 1, 0, 0, 0)  # how many there are depends on what else the machine does
    with tempfile.TemporaryDirectory() as folder:
        figures = measured(tree, folder)
    risen = [name for name, now in figures.items() if now > ALLOWED * kept["figures"].get(name, 0)]
    print("| | kept | now | change |\n|---|---:|---:|---:|")
    for name, now in figures.items():
        before = kept["figures"].get(name, math.nan)
        print(f"| {name} | {before:,} | {now:,} | {now / before - 1:+.1%}{' **too much**' if name in risen else ''} |")
    if option == "--write":
        with open(KEPT, "w", encoding="utf-8") as file:
            file.write(json.dumps({"machine": machine(tree), "figures": figures}, indent=2) + "\n")
    elif kept["machine"] != machine(tree):
        print(f"guard: not held against the figures kept, which are of {kept['machine']}, not {machine(tree)}")
    elif risen:
        sys.exit("guard: an import costs more than it did; if it must, keep the new figures: ./dev bench guard --write")


if __name__ == "__main__":
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    try:
        main(*sys.argv[1:])
    except (OSError, ValueError) as failure:
        sys.exit(f"guard: {failure}")
