#!/usr/bin/env python3
"""The picture of an import: well-formed whatever the labels hold, labels that do not cover each other, suspects marked,
outliers at the edge, a million points in a few megabytes.

Usage: preview.py PROGRAM.
"""

import random
import subprocess
import sys
import tempfile
from pathlib import Path
from xml.etree import ElementTree

PROGRAM = sys.argv[1]
SVG = "{http://www.w3.org/2000/svg}"
NARROWEST = 0.25  # of the letters' height, that a letter takes on average at least
RED = "#d0021b"


def picture(folder, lines, *options):
    (folder / "points.txt").write_text("\n".join(lines) + "\n", encoding="utf-8")
    run = subprocess.run([PROGRAM, folder / "points.txt", "-o", folder / "out.dxf", "--force", "--preview", folder / "out.svg",
                          *options], stdin=subprocess.DEVNULL, capture_output=True, check=False, timeout=120)
    assert run.returncode == 0, run
    return ElementTree.parse(folder / "out.svg").getroot()


def texts(root):
    return ["".join(text.itertext()) for text in root.iter(SVG + "text")]


def labels(root):
    """Label, and the box that its letters cover at least."""
    group = next(group for group in root.iter(SVG + "g") if group.get("class") == "labels")
    size = float(group.get("font-size"))
    for text in group:
        width = NARROWEST * size * len(text.text)
        left = float(text.get("x")) - (width if text.get("text-anchor") else 0)
        bottom = float(text.get("y"))
        yield text.text, (left, bottom - 0.7 * size, left + width, bottom)


def apart(one, other):
    return one[2] <= other[0] or other[2] <= one[0] or one[3] <= other[1] or other[3] <= one[1]


def cloud(count, name="P{}"):
    place = random.Random(7)
    return [f"{name.format(i + 1)};{5801234 + place.random() * 400:.2f};{7501234 + place.random() * 600:.2f};100.5" for i in range(count)]


def main():
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        boxes = [box for _, box in labels(picture(folder, cloud(600)))]
        assert len(boxes) > 100 and all(apart(a, b) for i, a in enumerate(boxes) for b in boxes[:i]), len(boxes)

        root = picture(folder, cloud(9, 'Ż<&>"{}\x07'))
        assert {label for label, _ in labels(root)} == {f'Ż<&>"{i}' for i in range(1, 10)}
        assert {"E [m]", "N [m]", "N"} <= set(texts(root)) and any("EPSG:2178" in text for text in texts(root))

        lines = cloud(40)
        root = picture(folder, lines + ["P3;5801240.00;7501300.00;100.5", lines[6].replace("P7", "Q7"), "D;5999999.00;7501300.00;1.5"])
        titles = [circle[0].text.split(":")[0] for circle in root.iter(SVG + "circle") if len(circle)]
        assert sorted(titles) == ["P3", "P3", "Q7"], titles
        outlier = next(text for text in root.iter(SVG + "text") if text.text.startswith("D · "))
        assert outlier.text == "D · 199 km" and outlier.get("fill") == RED, outlier.text

        assert "X [m]" in texts(picture(folder, [f"A{i};{100 + i * i};{200 + 7 * i};3.5" for i in range(9)]))
        picture(folder, ["P1;5801240.00;7501300.00;100.5"])
        picture(folder, cloud(300000))
        assert (folder / "out.svg").stat().st_size < 5e6
    print("6 pictures")


if __name__ == "__main__":
    main()
