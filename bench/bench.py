#!/usr/bin/python3
"""Measures the program and prints the results as Markdown; how far it is, it says on standard error.

A goal that is missed is part of the result: the exit code is 0 unless something could not run.
"""
import argparse
import importlib.util
import itertools
import json
import math
import mmap
import os
import random
import re
import shlex
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import zipfile
from collections import defaultdict
from pathlib import Path
from statistics import median
from typing import NamedTuple

import make_points

ROOT = Path(__file__).resolve().parents[1]
TREE = ROOT / "build" / "bench"
NOISY_SHARE = 0.05  # of the machine's CPU time, used by others
NOISY_SPREAD = 1.25  # slowest by fastest run
PLACE = re.compile("(?<=<!-- measured: begin -->\n).*(?=<!-- measured: end -->\n)", re.S)  # of the results in a page


class Program(NamedTuple):
    """Of the files that a command names, KIND_COUNT.… are made before it runs, and it writes out_… itself."""
    name: str
    command: str
    needs: str = "sys"  # a module of Python
    slow: bool = False  # runs half as often


class Run(NamedTuple):
    wall: float  # seconds, as are user, system, CPU and others
    user: float
    system: float
    cpu: float
    others: float  # CPU time that other processes took meanwhile
    peak: float  # MB, as is size
    size: float  # of the file written
    output: str


def spread(values, digits, factor=1.0):
    return " / ".join(f"{value * factor:,.{digits}f}" for value in (min(values), median(values), max(values)))


def column(runs, what):
    return [getattr(run, what) for run in runs]


def goal(what, value, limit, digits=3, unit=""):
    verdict = "met" if value <= limit else "**missed**"
    return f"- Goal: {what}: at most {limit}{unit}. {value:,.{digits}f}{unit}: {verdict}.\n"


def table(head, rows, words=1):
    """The first columns, which hold words, to the left, the others to the right."""
    lines = [f"| {' | '.join(row)} |\n" for row in (head, *rows)]
    lines.insert(1, "|---" * words + "|---:" * (len(head) - words) + "|\n")
    return "".join(lines) + "\n"


def comparison(results, goals):
    """Figures of all programs, the first one's by those of the others; goals: (one, other, figure, limit of the ratio)."""
    ours, shown = next(iter(results)), (("wall", 2), ("cpu", 2), ("system", 2), ("peak", 0))

    def ratios(one, other, what):
        return [a / b for a, b in zip(column(results[one], what), column(results[other], what))]

    text = table(
        ["", "wall time, s", "CPU time (user + system), s", "of it system, s", "peak memory, MB", "written, MB"],
        [[f"`{name}`", *(spread(column(runs, what), digits) for what, digits in shown),
          f"{runs[-1].size:,.1f}" if runs[-1].size else ""] for name, runs in results.items()])
    others = [[f"`{name}`", *(spread(ratios(ours, name, what), 3) for what in ("wall", "cpu")), str(len(runs))]
              for name, runs in results.items() if name != ours]
    text += table([f"`{ours}` by", "ratio of wall times", "ratio of CPU times", "runs"], others) if others else ""
    for one, other, what, limit in goals:
        if other in results:
            text += goal(f"{what.replace('cpu', 'CPU')} time of `{one}` by that of `{other}`, median of the runs",
                         median(ratios(one, other, what)), limit)
    return text + f"- Noise: {noise(results)}.\n"


def noise(results):
    everything = [run for runs in results.values() for run in runs]
    share = sum(column(everything, "others")) / (os.cpu_count() * sum(column(everything, "wall")))
    findings = [f"other processes and the kernel's own used {share:.0%} of the machine's CPU time"] if share > NOISY_SHARE else []
    for name, walls in ((name, column(runs, "wall")) for name, runs in results.items()):
        if max(walls) > NOISY_SPREAD * min(walls):
            findings.append(f"the slowest run of `{name}` took {max(walls) / min(walls):.2f} times its fastest")
    return "; ".join(findings) or "none to speak of"


def chart(counts, *panels):
    """An SVG with a curve for each (title, values), one value for each count; both axes are logarithmic."""
    marks = ['<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 760 240" font-family="sans-serif" font-size="13"'
             ' text-anchor="middle" fill="#768390" stroke-width="2">']
    names = [f"{count // 10**6} M" if count >= 10**6 else f"{count:,}" for count in counts]
    for left, (title, values) in zip((50, 430), panels):
        low, high = math.log(min(values)), math.log(max(values))
        places = [(left + 280 * index // (len(values) - 1), round(170 - 100 * (math.log(value) - low) / (high - low)))
                  for index, value in enumerate(values)]
        curve = " ".join(f"{x},{y}" for x, y in places)
        marks.append(f'<text x="{left + 140}" y="25" font-size="15">{title}</text>'
                     f'<text x="{left + 140}" y="230">lines of the file (both axes are logarithmic)</text>'
                     f'<path d="M{left - 20} 190h320" stroke="#768390" stroke-width="1"/>'
                     f'<polyline points="{curve}" fill="none" stroke="#3b82d0"/>')
        marks += [f'<circle cx="{x}" cy="{y}" r="4" fill="#3b82d0"/><text x="{x}" y="208">{name}</text>'
                  f'<text x="{x + 14}" y="{y - 10}">{value:,.{2 if value < 100 else 0}f}</text>'
                  for (x, y), value, name in zip(places, values, names)]
    return "\n".join([*marks, "</svg>\n"])


def all_cpu():
    """CPU seconds that all processes and the hypervisor took so far."""
    user, nice, system, _, _, irq, softirq, steal = map(int, Path("/proc/stat").read_text().split()[1:9])
    return (user + nice + system + irq + softirq + steal) / os.sysconf("SC_CLK_TCK")


class Bench:
    """Works in the folder that the process is in."""

    def __init__(self, points, runs, page):
        self.points, self.runs, self.page = points, runs, page
        self.results, self.growth, self.used = [], "", {}

    def show(self, text):
        self.results.append(text)
        print(text, end="", flush=True)

    @staticmethod
    def say(text):
        print(f"bench: {text}", file=sys.stderr, flush=True)

    def made(self, command):
        """The command, when there are the files that it reads."""
        for path, kind, count in re.findall(rf"\b(({'|'.join(make_points.KINDS)})_(\d+)\.\w+)", command):
            if not os.path.exists(path):
                self.say(f"making {path}")
                make_points.make(kind, int(count), path)
        return command

    def measured(self, program):
        written = [Path(word) for word in program.command.split() if word.startswith("out_")]
        for path in written:
            path.unlink(missing_ok=True)
        subprocess.run(["sync", "-f", "."], check=True)
        # What a hypervisor took back while there was no use for it takes long to get again, and is nobody's time.
        memory = self.used.get(program, 1000)  # MB
        mmap.mmap(-1, int(memory * 1e6), flags=mmap.MAP_PRIVATE | mmap.MAP_ANONYMOUS | mmap.MAP_POPULATE).close()
        # A child's peak memory counts from the size of its parent: `time` is a small one.
        command = ["/usr/bin/time", "-o", "peak", "-f", "%M", *shlex.split(self.made(program.command))]
        before, begun = all_cpu(), time.perf_counter()
        with open("output", "wb") as output, subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=output,
                                                              stderr=output, start_new_session=True) as process:
            try:
                _, status, used = os.wait4(process.pid, 0)
            except BaseException:
                os.killpg(process.pid, signal.SIGKILL)
                raise
            wall = time.perf_counter() - begun
            process.returncode = os.waitstatus_to_exitcode(status)
        output = Path("output").read_text("utf-8")
        if process.returncode != 0:
            sys.exit(f"{output}\nbench: failed: {program.command}")
        cpu = used.ru_utime + used.ru_stime
        peak, size = int(Path("peak").read_text()) * 1024 / 1e6, sum(path.stat().st_size for path in written) / 1e6
        self.used[program] = peak + size
        return Run(wall, used.ru_utime, used.ru_stime, cpu, max(0.0, all_cpu() - before - cpu), peak, size, output)

    def in_turn(self, programs, check=lambda: None):
        """The runs of each program by its name, after one for warming up, which `check` follows."""
        there = [program for program in programs
                 if shutil.which(program.command.split()[0]) and importlib.util.find_spec(program.needs)]
        if missing := [f"`{program.name}`" for program in programs if program not in there]:
            self.show(f"Left out, as not installed: {', '.join(missing)}.\n\n")
        results = {program.name: [] for program in there}
        for number in range(self.runs + 1):
            turn = random.Random(number).sample(there, len(there))  # so that no one always follows the same other
            for program in (one for one in turn if not one.slow or number <= max(1, self.runs // 2)):
                self.say(f"{program.name}: {f'run {number} of {self.runs}' if number else 'warming up'}")
                run = self.measured(program)
                if number > 0:
                    results[program.name].append(run)
            if number == 0:
                check()
        for path in Path().glob("out_*"):
            path.unlink()
        return results


def machine(bench):
    def answer(*command):
        return subprocess.run(command, capture_output=True, text=True, check=True).stdout.splitlines()

    cpu = Path("/proc/cpuinfo").read_text()
    compiler = re.search(r"^CMAKE_CXX_COMPILER:\w+=(.*)", (TREE / "CMakeCache.txt").read_text(), re.M)[1]
    gdal = answer("ogr2ogr", "--version")[0].split(",")[0] if shutil.which("ogr2ogr") else "no GDAL"
    bench.show(f"""Measured on {time.strftime("%Y-%m-%d")} with `./dev bench`.

- Processor: {(re.findall("^model name[^:]*: (.*)", cpu, re.M) or [os.uname().machine])[0]}, {os.cpu_count()} cores\
{", in a virtual machine" if re.search("^flags.* hypervisor", cpu, re.M) else ""}; \
{os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES") / 1e9:.0f} GB of memory; \
load average at the start: {" ".join(f"{load:.2f}" for load in os.getloadavg())}
- Kernel: {os.uname().sysname} {os.uname().release}; files on {answer("df", "--output=fstype", ".")[-1]}
- Compiler: {answer(compiler, "--version")[0]}; {gdal}

Programs that are compared take turns; figures are smallest / median / largest; MB are millions of bytes.

""")


def entities_of(drawing, subclass, *codes):
    """The values of each entity of a subclass, as numbers where they are: programs spell some differently."""
    with open(drawing, encoding="utf-8") as file:
        for line in file:
            if line.strip() == subclass:
                tags = [next(file).strip() for _ in range(2 * len(codes))]
                if tuple(map(int, tags[::2])) == codes:  # not the second mention of a TEXT's
                    yield [value if code == 1 else float(value) for code, value in zip(codes, tags[1::2])]


def whole(bench):
    """the program against a floor, ogr2ogr and ezdxf: time, CPU, memory"""
    n, few = bench.points, bench.points // 10
    columns = "-oo X_POSSIBLE_NAMES=x -oo Y_POSSIBLE_NAMES=y -oo Z_POSSIBLE_NAMES=z"
    both = ("SELECT CASE k WHEN 1 THEN 'LABEL(t:' || id || ',s:200g)' END AS OGR_STYLE, geometry"
            f" FROM labelled_{n}, (SELECT 0 AS k UNION ALL SELECT 1)")
    programs = [
        Program("vexo-xyz", f"vexo-xyz survey_{n}.csv -o out_ours.dxf"),
        Program("vexo-xyz, shuffled labels", f"vexo-xyz shuffled_{n}.csv -o out_shuffled.dxf"),
        Program("floor", f"floor survey_{n}.csv out_floor.dxf"),
        Program("ogr2ogr, points", f"ogr2ogr -f DXF out_points.dxf plain_{n}.csv {columns} -oo KEEP_GEOM_COLUMNS=NO"),
        Program("ogr2ogr, points and labels",
                f'ogr2ogr -f DXF out_labelled.dxf labelled_{n}.csv {columns} -dialect SQLite -sql "{both}"', slow=True)]
    with_script = [Program("vexo-xyz", f"vexo-xyz survey_{few}.csv -o out_few.dxf"),
                   Program("ezdxf", f"with_ezdxf.py survey_{few}.csv out_ezdxf.dxf", needs="ezdxf", slow=True)]

    def check():
        point, text = ("AcDbPoint", 10, 20, 30), ("AcDbText", 10, 20, 30, 40, 1)
        for drawings, entity in ((Path().glob("out_*.dxf"), point), (("out_ours.dxf", "out_floor.dxf"), text)):
            same = [all(one == row[0] for one in row)
                    for row in itertools.zip_longest(*(entities_of(drawing, *entity) for drawing in drawings))]
            if len(same) != n or not all(same):
                sys.exit(f"bench: the drawings do not hold the same {entity[0]}")

    bench.show(f"""## The whole command, {n:,} lines

`vexo-xyz` reads number, X, Y and height, writes a point and a label for each, in a group, and waits until the drawing
is on the disk. `floor` goes straight to the same entities, without checks and waiting. `ogr2ogr` reads coordinates only
and writes points only; with labels, it writes them as MTEXT, without a group.

{"".join(f"    {program.command}{os.linesep}" for program in programs + with_script)}
""")
    results = bench.in_turn(programs, check)
    bench.show(comparison(results, [
        ("vexo-xyz", "floor", "cpu", 1.25), ("vexo-xyz", "floor", "wall", 1.25),
        ("vexo-xyz", "ogr2ogr, points", "wall", 0.1), ("vexo-xyz, shuffled labels", "vexo-xyz", "cpu", 1.1)]))
    if n == 1_000_000:
        bench.show(goal("peak memory of `vexo-xyz`", max(run.peak for run in results["vexo-xyz"]), 260, 0, " MB"))
    bench.show(f"\n### Beside a script with ezdxf, {few:,} lines\n\n")
    bench.show(comparison(bench.in_turn(with_script), []) + "\n")


def growth(bench):
    """time and memory by number of lines"""
    counts = [10**power for power in range(3, 8) if 10**power <= 10 * bench.points]
    results = bench.in_turn([Program(f"{count:,}", f"vexo-xyz survey_{count}.csv -o out_growth.dxf",
                                     slow=count > bench.points) for count in counts])
    Path(f"survey_{counts[-1]}.csv").unlink()
    a_line = {what: [median(column(runs, what)) / count * 1e6 for runs, count in zip(results.values(), counts)]
              for what in ("wall", "user", "cpu", "peak")}
    bench.show("## By number of lines\n\n")
    bench.show(table(
        ["lines", "wall time, ms", "user, ms", "system, ms", "peak memory, MB", "wall time a line, µs",
         "CPU time a line, µs", "memory a line, bytes", "runs"],
        [[name, *(spread(column(runs, what), 1, 1e3) for what in ("wall", "user", "system")),
          spread(column(runs, "peak"), 0), f"{wall:.2f}", f"{cpu:.2f}", f"{peak:,.0f}", str(len(runs))]
         for (name, runs), wall, _, cpu, peak in zip(results.items(), *a_line.values())]))
    for what, title, limit in (("user", "user time", 11.5), ("peak", "peak memory", 11)):
        bench.show(goal(f"{title} of the most lines by that of a tenth of them",
                        10 * a_line[what][-1] / a_line[what][-2], limit, 1))
    bench.growth = chart(counts, ("CPU time a line, µs", a_line["cpu"]), ("peak memory a line, bytes", a_line["peak"]))
    bench.show("\n![CPU time and memory a line, by the number of lines](growth.svg)\n\n" if bench.page else "\n")


def phases(bench):
    """one import, its steps timed one by one"""
    program = Program("phases", f"phases survey_{bench.points}.csv out_phases.dxf")
    steps, (runs,) = defaultdict(list), bench.in_turn([program]).values()
    for run in runs:
        rest = [run.wall, run.cpu]
        for name, *used in (line.split("\t") for line in run.output.splitlines()):
            steps[name].append([float(one) for one in used])
            rest = [left - one for left, one in zip(rest, steps[name][-1])]
        steps["start and end of the process"].append(rest)
        steps["the whole process"].append([run.wall, run.cpu])
    rows, whole_time = [], median(column(runs, "wall"))
    for name, each in steps.items():
        wall, cpu, *pages = zip(*each)
        rows.append([name, spread(wall, 0, 1e3), spread(cpu, 0, 1e3), f"{median(wall) / whole_time:.0%}",
                     f"{median(pages[0]):,.0f}" if pages else ""])
    bench.show(f"""## Where the time goes, {bench.points:,} lines

`{program.command}` takes the program's steps one by one; {len(runs)} runs after one for warming up. "Pages" are
those of 4 KiB of memory that a step touches for the first time.

{table(["step", "wall time, ms", "CPU time, ms", "share", "pages"], rows)}""")


def micro(bench):
    """single functions, each beside a baseline"""
    bench.say("micro: this takes a minute or two")
    bench.measured(Program("", "microbench survey_100000.csv --benchmark_out=micro.json --benchmark_repetitions=9"
                           " --benchmark_min_time=0.1 --benchmark_enable_random_interleaving=true"))
    groups = defaultdict(lambda: defaultdict(list))  # group, function: items a second
    for one in sorted(json.loads(Path("micro.json").read_text())["benchmarks"], key=lambda one: one["family_index"]):
        if one["run_type"] == "iteration":
            group, function = one["run_name"].split("/", 1)
            groups[group][function].append(one["items_per_second"])
    rows = []
    for group, functions in groups.items():
        topic, item = group.rsplit(", per ", 1)
        (baseline,) = (median(rates) for function, rates in functions.items() if function.startswith("baseline"))
        for function, speed in ((function, median(rates)) for function, rates in functions.items()):
            shown = f"{speed / 1e6:,.0f} MB/s" if item == "byte" else f"{1e9 / speed:,.1f} ns per {item}"
            rows.append([topic, f"`{function}`", shown, f"{baseline / speed:.2f}"])
    bench.show(f"""## Single functions

`microbench`: CPU time, medians of 9 repetitions in random order. A baseline is work that nobody gets around, measured
in the same run: absolute times depend on the machine and what else it does, the ratio hardly.

{table(["on", "function", "speed", "time by the baseline's"], rows, words=2)}""")
    pairs = {function: median(rates) for function, rates in groups["coordinates, per pair"].items()}
    bench.show(goal("time of `inverse` by that of GeographicLib", pairs["GeographicLib"] / pairs["inverse"], 0.68)
               if "GeographicLib" in pairs else "Left out, as not installed: GeographicLib.\n")
    bench.show("\n")


def workbook(bench):
    """a workbook into the table of rows against other readers: time, memory"""
    path = f"workbook_{bench.points // 5}.xlsx"
    script = "import sys, openpyxl; all(openpyxl.load_workbook(sys.argv[1], read_only=True).active.values)"
    programs = [Program("into the table of rows", f"read_workbook {path}"),
                Program("ogr2ogr to CSV", f"ogr2ogr -f CSV out_gdal.csv {path}"),
                Program("openpyxl, read-only", f'/usr/bin/python3 -c "{script}" {path}', needs="openpyxl", slow=True),
                Program("xlsx2csv", f"xlsx2csv {path} out_xlsx2csv.csv", slow=True)]
    with zipfile.ZipFile(bench.made(path)) as package:
        unpacked = sum(package.getinfo(name).file_size for name in (make_points.SHEET, make_points.SHARED)) / 1e6
    bench.show(f"## A workbook of {bench.points // 5:,} rows and four columns, {unpacked:.0f} MB unpacked\n\n")
    results = bench.in_turn(programs)
    bench.show(comparison(results, [(programs[0].name, "ogr2ogr to CSV", "wall", 0.24)]))
    bench.show(goal("peak memory by the unpacked size",
                    max(run.peak for run in results[programs[0].name]) / unpacked, 3, 2) + "\n")


def prepare(bench):
    """a table separated by commas into the file that is imported without a question: time, against ogr2ogr"""
    path = f"labelled_{bench.points}.csv"
    programs = [Program("vexo-xyz prepare", f"vexo-xyz prepare {path} -o out_prepared.csv --force"),
                Program("ogr2ogr to semicolons", f"ogr2ogr -f CSV -lco SEPARATOR=SEMICOLON out_gdal.csv {path}", slow=True)]
    megabytes = os.path.getsize(bench.made(path)) / 1e6
    bench.show(f"## A table of {bench.points:,} rows separated by commas, {megabytes:.0f} MB\n\n")
    results = bench.in_turn(programs)
    bench.show(comparison(results, [(programs[0].name, "ogr2ogr to semicolons", "wall", 0.2)]))
    bench.show(goal("CPU time a MB", 1e3 * median(run.cpu for run in results[programs[0].name]) / megabytes, 10, 1, " ms") + "\n")


def into(bench):
    """a thousand points into a large drawing: time, memory, against copying its bytes"""
    subprocess.run(shlex.split(bench.made(f"vexo-xyz survey_{bench.points // 4}.csv -o plan.dxf")), check=True,
                   stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)
    megabytes = os.path.getsize("plan.dxf") / 1e6
    ours, copy = "vexo-xyz --into", "cat"
    bench.show(f"## A thousand points into a drawing of {megabytes:.0f} MB\n\n")
    results = bench.in_turn([Program(ours, "vexo-xyz survey_1000.csv --into plan.dxf"),
                             Program(copy, "sh -c 'cat plan.dxf > $0' out_plan.dxf")])
    bench.show(comparison(results, []))
    walls = [column(results[name], "wall") for name in (ours, copy)]
    bench.show(goal("seconds beyond 2.5 times those of `cat`", median(a - 2.5 * b for a, b in zip(*walls)), 1, 2))
    bench.show(goal("peak memory by the drawing's size", max(run.peak for run in results[ours]) / megabytes, 2.5, 2) + "\n")


def script(bench):
    """the module's own share of an import in the CAD host's scripting layer"""
    points = bench.points // 10
    modules, stand_in = (shlex.quote(str(path)) for path in (TREE / "python" / "vexo_xyz", ROOT / "tests" / "python"))
    results = bench.in_turn([Program(name, f"host_share.py {modules} {host} survey_{points}.csv")
                             for name, host in (("the tests' strict stand-in", stand_in), ("a mute host", "mute"))])
    times = {name: [float(run.output) for run in runs] for name, runs in results.items()}
    share = 100 * median(mute / strict for strict, mute in zip(*times.values()))
    bench.show("## The module in the scripting layer\n\n")
    bench.show(table([f"import of {points:,} points through", "seconds"],
                     [[name, spread(seconds, 2)] for name, seconds in times.items()]))
    bench.show(goal("the module's own share beside the strict stand-in, siblings and the cost of calling included", share, 12, 1, " %") + "\n")


SECTIONS = {section.__name__: section for section in (whole, growth, phases, micro, workbook, prepare, into, script)}


def arguments():
    parser = argparse.ArgumentParser(
        prog="./dev bench", description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter,
        epilog="sections:\n" + "\n".join(f"  {name:9} {section.__doc__}" for name, section in SECTIONS.items()))
    parser.add_argument("sections", nargs="*", metavar="SECTION", help="all of them unless named")
    parser.add_argument("--in", dest="folder", metavar="DIR", type=Path, default=Path(tempfile.gettempdir()),
                        help="folder for the files, some 4.5 GB, all removed at the end (default: $TMPDIR, else /tmp)")
    parser.add_argument("--points", metavar="N", type=int, default=1_000_000,
                        help="lines of the large file (default: %(default)s); up to ten times as many in growth")
    parser.add_argument("--runs", metavar="N", type=int, default=5,
                        help="runs of each program, in turn (default: %(default)s); half as many of slow ones")
    parser.add_argument("--write", metavar="FILE", type=Path,
                        help="put the results of all sections into FILE, too, between its lines `<!-- measured: … -->`,"
                             " and growth.svg beside it")
    asked = parser.parse_args()
    if not set(asked.sections) <= set(SECTIONS):
        parser.error(f"the sections are: {', '.join(SECTIONS)}")
    if asked.points < 1000 or asked.runs < 1:
        parser.error("--points takes a number from 1000 on, --runs one from 1 on")
    if asked.write and (asked.sections or not PLACE.search(asked.write.read_text("utf-8"))):
        parser.error("--write takes a file with the lines between which the results go, and no section")
    return asked


def main():
    asked = arguments()
    names, page = asked.sections or SECTIONS, asked.write and asked.write.resolve()
    needed = asked.points * (4_500 if "growth" in names else 2_000) / 1e6  # MB
    if (free := shutil.disk_usage(asked.folder).free / 1e6) < needed:
        sys.exit(f"bench: {asked.folder} has {free:.0f} MB free, {needed:.0f} are needed (--in DIR chooses another)")
    for number in (signal.SIGTERM, signal.SIGHUP):
        signal.signal(number, signal.default_int_handler)
    with tempfile.TemporaryDirectory(prefix="vexo-bench-", dir=asked.folder.resolve()) as work:
        os.chdir(work)
        os.environ.update(PATH=f"{TREE}:{TREE}/bench:{ROOT}/bench:{os.environ['PATH']}", PYTHONDONTWRITEBYTECODE="1",
                          LC_ALL="C", XDG_STATE_HOME=work, VEXO_RYNEK="PL")  # neither this user's log nor country
        bench = Bench(asked.points, asked.runs, page)
        bench.say(f"working in {work}, which takes up to {needed:.0f} MB and is removed at the end")
        machine(bench)
        for name in names:
            SECTIONS[name](bench)
    if page:
        results = "".join(bench.results).strip()
        page.with_name("growth.svg").write_text(bench.growth, encoding="utf-8")
        page.write_text(PLACE.sub(lambda _: f"{results}\n", page.read_text("utf-8")), encoding="utf-8")


if __name__ == "__main__":
    try:
        main()
    except (KeyboardInterrupt, OSError) as failure:
        sys.exit(f"bench: {str(failure) or 'interrupted'}")
