#!/usr/bin/env python3
"""Makes large files of surveyed points, the same ones at every run.

The points lie scattered over ten by ten kilometres near Warsaw, in PL-2000 zone 7, to the millimetre:
X is the northing and Y the easting, as Polish surveyors write them.

    make_points.py survey 1000000 points.csv    number;X;Y;H with decimal commas and CR LF: what the program imports
    make_points.py plain 1000000 points.csv     x,y,z (east, north, height) with decimal points: what GDAL reads
"""
import argparse
import random

SEED = 20000707
LINES_AT_ONCE = 10_000

# Millimetres: the south-western corner, the side of the square, the lowest and the highest point.
NORTH, EAST, SIDE = 5_780_000_000, 7_495_000_000, 10_000_000
LOW, HIGH = 78_000, 122_000


def points(count):
    """Northing, easting and height of each point, in whole millimetres."""
    # Of all generators only random() is promised to stay the same from one version of Python to the next.
    number = random.Random(SEED).random
    for _ in range(count):
        yield NORTH + int(number() * SIDE), EAST + int(number() * SIDE), LOW + int(number() * (HIGH - LOW))


def decimal(millimetres, mark):
    return f"{millimetres // 1000}{mark}{millimetres % 1000:03d}"


def survey_lines(count):
    for number, (north, east, height) in enumerate(points(count), start=1):
        yield f"{number};{decimal(north, ',')};{decimal(east, ',')};{decimal(height, ',')}\r\n"


def plain_lines(count):
    yield "x,y,z\n"
    for north, east, height in points(count):
        yield f"{decimal(east, '.')},{decimal(north, '.')},{decimal(height, '.')}\n"


def write(path, lines):
    with open(path, "w", encoding="ascii", newline="") as file:
        batch = []
        for line in lines:
            batch.append(line)
            if len(batch) == LINES_AT_ONCE:
                file.write("".join(batch))
                batch.clear()
        file.write("".join(batch))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("kind", choices=["survey", "plain"])
    parser.add_argument("count", type=int, help="number of points")
    parser.add_argument("path", help="file to write")
    arguments = parser.parse_args()
    kinds = {"survey": survey_lines, "plain": plain_lines}
    write(arguments.path, kinds[arguments.kind](arguments.count))


if __name__ == "__main__":
    main()
