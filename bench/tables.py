#!/usr/bin/env python3
"""What run.sh has measured, as Markdown."""
import json
import sys
from collections import defaultdict
from statistics import median

WALL_GOAL = 0.35  # of ogr2ogr's time
MEMORY_GOAL = 900  # MB
NOISY_SHARE = 0.05  # of the machine's CPU time, used by others
NOISY_SPREAD = 1.25  # slowest by fastest run

BEGIN, END = "<!-- measured: begin -->", "<!-- measured: end -->"


def rows_of(path):
    with open(path, encoding="utf-8") as file:
        return [line.rstrip("\n").split("\t") for line in file]


def table(head, rows, words=1):
    """The first columns, which hold words, to the left, the others to the right."""
    print("| " + " | ".join(head) + " |")
    print("|---" * words + "|---:" * (len(head) - words) + "|")
    for row in rows:
        print("| " + " | ".join(row) + " |")
    print()


def spread(values, digits):
    return " / ".join(f"{value:,.{digits}f}" for value in (min(values), median(values), max(values)))


def verdict(met):
    return "met" if met else "**missed**"


# ---- The whole command ----------------------------------------------------------------------


class Run:
    """A whole run as `full` of run.sh prints it."""

    def __init__(self, wall, user, system, peak, all_cpu, size):
        self.wall = int(wall) / 1e6
        self.system = float(system)
        self.cpu = float(user) + self.system
        self.peak = int(peak) * 1024 / 1e6
        self.others = max(0.0, int(all_cpu) / 100 - self.cpu)
        self.size = int(size) / 1e6


def noise(runs, cores):
    """What speaks against the figures; empty when nothing does."""
    everything = [run for each in runs.values() for run in each]
    share = sum(run.others for run in everything) / (cores * sum(run.wall for run in everything))
    findings = [f"other processes used {share:.0%} of the machine's CPU time"] if share > NOISY_SHARE else []
    for name, each in runs.items():
        by = max(run.wall for run in each) / min(run.wall for run in each)
        if by > NOISY_SPREAD:
            findings.append(f"the slowest run of `{name}` took {by:.2f} times its fastest")
    return "; ".join(findings)


def whole(path, points, cores):
    runs = defaultdict(list)
    for name, *values in rows_of(path):
        runs[name].append(Run(*values))
    pairs = list(zip(runs["vexo-xyz"], runs["ogr2ogr"]))
    ratio = median(a.wall / b.wall for a, b in pairs)
    peak = max(run.peak for run in runs["vexo-xyz"])

    print(f"## The whole command, {int(points):,} lines")
    print(f"""
`vexo-xyz` reads number, X, Y and height, writes a point and a label for each, in a group, and waits until the drawing
is on the disk. `ogr2ogr` reads the same coordinates from a file without numbers, writes the points alone and does not
wait for the disk. The two took turns; runs of each: {len(pairs)}, after one for warming up. Figures are smallest / median /
largest; MB are millions of bytes.

    vexo-xyz survey.csv -o ours.dxf
    ogr2ogr -f DXF theirs.dxf plain.csv -oo X_POSSIBLE_NAMES=x -oo Y_POSSIBLE_NAMES=y \\
        -oo Z_POSSIBLE_NAMES=z -oo KEEP_GEOM_COLUMNS=NO
""")
    table(["", "wall time, s", "CPU time (user + system), s", "of it system, s", "peak memory, MB", "drawing, MB"],
          [[f"`{name}`", spread([run.wall for run in each], 2), spread([run.cpu for run in each], 2),
            spread([run.system for run in each], 2), spread([run.peak for run in each], 0), f"{each[-1].size:,.0f}"]
           for name, each in runs.items()])
    table(["pair", "`vexo-xyz`, s", "`ogr2ogr`, s", "ratio of wall times", "ratio of CPU times"],
          [[str(number), f"{a.wall:.2f}", f"{b.wall:.2f}", f"{a.wall / b.wall:.3f}", f"{a.cpu / b.cpu:.3f}"]
           for number, (a, b) in enumerate(pairs, start=1)]
          + [["median", "", "", f"**{ratio:.3f}**", f"{median(a.cpu / b.cpu for a, b in pairs):.3f}"]])
    print(f"- Goal: at most {WALL_GOAL} of `ogr2ogr`'s wall time, by the median of the pairs. {ratio:.3f}: "
          f"{verdict(ratio <= WALL_GOAL)}.")
    print(f"- Goal: at most {MEMORY_GOAL} MB of memory at any time. {peak:,.0f} MB: {verdict(peak <= MEMORY_GOAL)}.")
    print(f"- Noise: {noise(runs, int(cores)) or 'none to speak of'}.\n")


def points_of(drawing):
    """The coordinates of each POINT, as numbers: the two programs spell some differently."""
    with open(drawing, encoding="utf-8") as file:
        for line in file:
            if line.strip() == "AcDbPoint":
                yield tuple(float(next(file)) for _ in range(6))[1::2]


def same_points(ours, theirs, points):
    count = 0
    for a, b in zip(points_of(ours), points_of(theirs), strict=True):
        if a != b:
            return False
        count += 1
    return count == int(points)


# ---- Parts of it ----------------------------------------------------------------------------


def growth(path):
    walls = defaultdict(list)
    for count, wall in rows_of(path):
        walls[int(count)].append(int(wall))
    runs = len(next(iter(walls.values())))
    print("## By number of lines")
    print(f"\n`vexo-xyz survey.csv -o ours.dxf`, {runs} runs of each after one for warming up.\n")
    table(["lines", "wall time, ms: smallest / median / largest", "median per line, µs"],
          [[f"{count:,}", spread([wall / 1e3 for wall in each], 1), f"{median(each) / count:.2f}"]
           for count, each in sorted(walls.items())])


def phases(path, points):
    times, faults = defaultdict(list), defaultdict(list)
    for name, seconds, touched in rows_of(path):
        times[name].append(float(seconds))
        faults[name].append(int(touched))
    process = times.pop("whole process")
    del faults["whole process"]
    inside = [sum(each[run] for each in times.values()) for run in range(len(process))]
    times["start and end of the process"] = [all_of_it - steps for all_of_it, steps in zip(process, inside)]
    total = median(process)
    print(f"## Where the time goes, {int(points):,} lines")
    print(f"""
`build/bench/bench/phases survey.csv ours.dxf` takes the program's steps one by one; medians of {len(process)} runs after one
for warming up. "Pages" are those of 4 KiB of memory that a step touches for the first time.
""")
    table(["step", "ms: smallest / median / largest", "share", "pages"],
          [[name, spread([time * 1e3 for time in each], 0), f"{median(each) / total:.0%}",
            f"{median(faults[name]):,.0f}" if name in faults else ""] for name, each in times.items()]
          + [["the whole process", spread([time * 1e3 for time in process], 0), "", ""]])


def micro(path):
    with open(path, encoding="utf-8") as file:
        benchmarks = sorted(json.load(file)["benchmarks"], key=lambda one: one["family_index"])
    groups = defaultdict(lambda: defaultdict(list))  # group, function: items a second
    for one in benchmarks:
        if one["run_type"] == "iteration":
            group, function = one["run_name"].split("/", 1)
            groups[group][function].append(one["items_per_second"])
    repetitions = len(next(iter(next(iter(groups.values())).values())))
    print("## Single functions")
    print(f"""
`build/bench/bench/microbench`: CPU time, medians of {repetitions} repetitions in random order. A baseline is work that nobody gets
around, measured in the same run: absolute times depend on the machine and what else it does, the ratio hardly.
""")
    rows = []
    for group, functions in groups.items():
        topic, item = group.rsplit(", per ", 1)
        speeds = {function: median(rates) for function, rates in functions.items()}
        (baseline,) = [speed for function, speed in speeds.items() if function.startswith("baseline/")]
        for function, speed in speeds.items():
            is_baseline = function.startswith("baseline/")
            rows.append([topic, f"baseline: {function[9:]}" if is_baseline else f"`{function}`", shown(speed, item),
                         "" if is_baseline else f"{baseline / speed:.2f}"])
    table(["on", "function", "speed", "time by the baseline's"], rows, words=2)


def shown(speed, item):
    return f"{speed / 1e6:,.0f} MB/s" if item == "byte" else f"{1e9 / speed:,.1f} ns per {item}"


# ---- The page that shows the results --------------------------------------------------------


def around_results(page):
    """What stands before and after the place for the results."""
    with open(page, encoding="utf-8") as file:
        before, begin, rest = file.read().partition(BEGIN + "\n")
    _, end, after = rest.partition(END + "\n")
    if not begin or not end:
        raise ValueError(f"{page} lacks the lines {BEGIN} and {END}")
    return before, after


def check(page):
    around_results(page)


def insert(page, results):
    before, after = around_results(page)
    with open(results, encoding="utf-8") as file:
        measured = file.read().strip()
    with open(page, "w", encoding="utf-8") as file:
        file.write(f"{before}{BEGIN}\n{measured}\n{END}\n{after}")


COMMANDS = {command.__name__: command for command in (whole, growth, phases, micro, same_points, check, insert)}


def main():
    try:
        answer = COMMANDS[sys.argv[1]](*sys.argv[2:])
    except (OSError, ValueError) as failure:
        sys.exit(f"tables: {failure}")
    sys.exit(answer is False)


if __name__ == "__main__":
    main()
